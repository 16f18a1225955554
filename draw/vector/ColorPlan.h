#pragma once

#include <vector>

#include "draw/vector/VectorBox.h"
#include "draw/vector/VectorPaint.h"

// One coat of a colour: a paint, perhaps only inside a box.
struct PaintLayer {
    const VectorPaint *paint = nullptr;
    bool clipped = false;
    VectorBox clip;
};

// How an element is painted with one colour word: coats laid one after the
// other (a zone colour is two clipped coats, a layered colour one coat per
// layer), and for lines the dash runs.
struct ColorPlan {
    std::vector<PaintLayer> layers;
    // On and off lengths in pixels, alternately; empty for a solid line.
    std::vector<double> dash;

    bool isEmpty() const { return layers.empty(); }
    // One coat over the whole element.
    bool isSimple() const { return layers.size() == 1 && !layers[0].clipped; }
    const VectorPaint *simplePaint() const { return isSimple() ? layers[0].paint : nullptr; }
};
