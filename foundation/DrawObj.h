#pragma once

#include "foundation/Constants.h"

class DrawArea;

// Base of everything a chart paints in z order.  Charts sort their objects with
// std::stable_sort and comparator(), so equal z orders keep their order of addition.
// A new object stands in front of the chart's content.
class DrawObj {
public:
    DrawObj() : zOrder(kChartFrontZ) {}
    virtual ~DrawObj() {}
    virtual void release() = 0;
    virtual void setZOrder(int z) { zOrder = z; }
    virtual int getZOrder() const { return zOrder; }
    virtual bool operator<(const DrawObj &other) const { return zOrder < other.zOrder; }
    virtual void paint(DrawArea *d) = 0;

    static bool comparator(const DrawObj *a, const DrawObj *b) { return *a < *b; }

protected:
    int zOrder;
};
