#pragma once

#include "foundation/DrawObj.h"

// A free line on a chart, painted in z order with the chart's other objects.
class Line : public DrawObj {
public:
    virtual void setPos(int x1, int y1, int x2, int y2) = 0;
    virtual void setColor(int color) = 0;
    virtual void setWidth(int lineWidth) = 0;
};
