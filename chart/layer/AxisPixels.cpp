#include "chart/layer/AxisPixels.h"

#include <cmath>

#include "chart/axis/AxisImpl.h"
#include "chart/xy/PlotAreaImpl.h"

// The line through the pixels of the scale's two ends: values in between, as
// data are, come out within rounding of the axis's own answer.
AxisPixels::AxisPixels(const PlotAreaImpl &plot, const AxisImpl *axis)
    : plot(plot), axis(axis), affine(false), from(0), origin(0), slope(0) {
    if (!axis || axis->isLogScale() || axis->isSynced()) return;
    double to = axis->getMaxValue();
    from = axis->getMinValue();
    if (!(to != from) || !std::isfinite(to - from)) return;
    origin = plot.pixelOf(axis, from);
    slope = (plot.pixelOf(axis, to) - origin) / (to - from);
    affine = std::isfinite(origin) && std::isfinite(slope);
}

double AxisPixels::general(double value) const {
    return axis ? plot.pixelOf(axis, value) : 0;
}
