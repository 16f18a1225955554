#pragma once

#include "chart/legend/LegendIcon.h"
#include "layers/bar/BarPainter.h"
#include "layers/bar/BarShapes.h"

// The legend key of a bar layer's data set: a small upright bar in the set's
// colour with the layer's border, lighting, corners and shape.  Round shapes
// give a round key.
class BarLayerIcon : public LegendIcon {
public:
    // look.shape is not kept; the shape is copied.
    BarLayerIcon(int fill, int edge, const BarLook &look, int width, int height);

    int getWidth() const override { return width; }
    int getHeight() const override { return height; }
    void paint(DrawArea *d, int left, int top, int width, int height, int keyEdgeColor,
               int keyRaisedEffect) override;

private:
    int fill;
    int edge;
    BarLook look;
    BarShape shape;
    bool hasShape;
    int width;
    int height;
};
