#include "chart/axis/Axis.h"

#include "chart/axis/AxisImpl.h"

Axis *Axis::create(BaseChart *owner, DrawArea *drawArea, const Formatter *formatter) {
    return new AxisImpl(owner, drawArea, formatter);
}
