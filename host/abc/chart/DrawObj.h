#pragma once

#include "api/chart/CDrawObj.h"
#include "host/abc/VSObject.h"

namespace abc {

// Anything a chart paints in z order.  The engine object belongs to the chart;
// the wrapper to the chart wrapper's garbage.
class DrawObj : public VSObject {
public:
    explicit DrawObj(CDrawObj *handle) : drawObj(handle) {}
    DrawObj(const DrawObj &) = delete;
    DrawObj &operator=(const DrawObj &) = delete;

    CDrawObj *getDrawObjHandle() const { return drawObj; }
    void setZOrder(int z) { CDrawObj_setZOrder(drawObj, z); }
    int getZOrder() { return CDrawObj_getZOrder(drawObj); }

private:
    CDrawObj *drawObj;
};

}  // namespace abc
