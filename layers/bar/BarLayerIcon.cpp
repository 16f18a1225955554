#include "layers/bar/BarLayerIcon.h"

#include "foundation/Constants.h"

BarLayerIcon::BarLayerIcon(int fill, int edge, const BarLook &barLook, int width, int height)
    : fill(fill),
      edge(edge),
      look(barLook),
      hasShape(barLook.shape != nullptr),
      width(width),
      height(height) {
    if (hasShape) shape = *barLook.shape;
    look.shape = nullptr;
    // A key shows the bar's face only.
    look.depth = 0;
}

void BarLayerIcon::paint(DrawArea *d, int left, int top, int w, int h, int, int) {
    if (!d || w < 1 || h < 1) return;
    BarLook key = look;
    key.shape = hasShape ? &shape : nullptr;
    BarPainter(d).paint(left, top, left + w - 1, top + h - 1, kTop, fill, edge, key);
}
