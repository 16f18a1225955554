#pragma once

#include "layers/line/PointBuffer.h"
#include "layers/line/SideClipper.h"

class LayerImpl;

// The four clippers of a rectangle, in the order x at least left, y at least
// top, x at most right, y at most bottom, ending in a buffer.  A polygon goes
// in through input() and its clipped form is read from output() after
// input()->close().
class ClipChain {
public:
    ClipChain(double left, double top, double right, double bottom);
    // The rectangle a layer's polygons and hot spots are cut to: the plot's
    // clip when the chart clips, else the whole chart.
    static ClipChain *forLayer(const LayerImpl &layer);
    ClipChain(const ClipChain &) = delete;
    ClipChain &operator=(const ClipChain &) = delete;

    PointStream *input() { return &atLeastX; }
    const PointBuffer &output() const { return buffer; }
    // Clips the polygon of n points; the result is in output().
    const PointBuffer &clip(const double *x, const double *y, int n);

private:
    PointBuffer buffer;
    SideClipper atMostY;
    SideClipper atMostX;
    SideClipper atLeastY;
    SideClipper atLeastX;
};
