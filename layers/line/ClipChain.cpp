#include "layers/line/ClipChain.h"

#include "chart/layer/LayerImpl.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/DrawArea.h"

ClipChain::ClipChain(double left, double top, double right, double bottom)
    : atMostY(SideClipper::kAtMostY, bottom, &buffer),
      atMostX(SideClipper::kAtMostX, right, &atMostY),
      atLeastY(SideClipper::kAtLeastY, top, &atMostX),
      atLeastX(SideClipper::kAtLeastX, left, &atLeastY) {}

const PointBuffer &ClipChain::clip(const double *x, const double *y, int n) {
    buffer.clear();
    for (int i = 0; i < n; ++i) atLeastX.addPoint(x[i], y[i]);
    atLeastX.close();
    return buffer;
}

ClipChain *ClipChain::forLayer(const LayerImpl &layer) {
    PlotAreaImpl &plot = layer.getChart()->getPlotAreaImpl();
    int margin = plot.getClipMargin();
    if (margin != PlotAreaImpl::kNoClipping)
        return new ClipChain(plot.getLeftX() - margin, plot.getTopY() - margin,
                             plot.getRightX() + margin, plot.getBottomY() + margin);
    DrawArea *d = layer.getDrawArea();
    return new ClipChain(0, 0, d->getWidth() - 1, d->getHeight() - 1);
}
