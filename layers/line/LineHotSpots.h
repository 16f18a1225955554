#pragma once

#include <vector>

#include "chart/layer/HotSpot.h"

class ClipChain;
class LayerPainter;
class MultiLine;

// The hot spots of a line, one for each stored point: the band of the
// image-map width along the half segments on either side of the point, or a
// square of that width around a point that stands alone.  Polygons are clipped
// to the chain's rectangle.
class LineHotSpots {
public:
    static void collect(int dataSet, const MultiLine &line, const LayerPainter &painter,
                        int width, ClipChain &clip, std::vector<HotSpot> &out);

private:
    static void addBand(HotSpot &spot, const double *x, const double *y, double half,
                        ClipChain &clip);
};
