#pragma once

#include "chart/layer/PointPixels.h"

class DataSetImpl;
class LayerPainter;
class SymbolSizes;

// The symbols of one data set at its points, where a layer of lines or areas
// puts them: centred on the point's pixel moved by the set's symbol offset,
// at the symbol's size or at the sizes given per point.
class SetSymbols {
public:
    // sizes may be null: every symbol at its own size.
    SetSymbols(const LayerImpl &layer, int dataSet, const SymbolSizes *sizes);

    // The canvas pixel the symbol of point i centres on and its size (0 for
    // none); false for a point without values.
    bool at(int i, const LayerPainter &painter, int *x, int *y, int *width, int *height) const;
    // The symbols of the points the chart shows: one record for all of them
    // when they share one size.
    void paint(LayerPainter &painter) const;

private:
    const LayerImpl &layer;
    DataSetImpl *set;
    PointPixels pixels;
    const SymbolSizes *sizes;
};
