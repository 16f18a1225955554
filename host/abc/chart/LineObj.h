#pragma once

#include "api/chart/CLineObj.h"
#include "host/abc/VSObject.h"
#include "host/abc/Views.h"

namespace abc {

// A line that a chart lays out, such as a mark's line across the plot.
class LineObj : public VSObject {
public:
    explicit LineObj(CLineObj *handle) : handle(handle) {}

    CLineObj *getHandle() const { return handle; }
    // Valid until the chart lays the line out again.
    DoubleArray getPoints() {
        DoubleArray points = {0, nullptr};
        CLineObj_getPoints(handle, &points.data, &points.len);
        return points;
    }

private:
    CLineObj *handle;
};

}  // namespace abc
