#include "draw/raster/brush/ColorBrush.h"

#include <cmath>

int ColorBrush::colorAtF(double x, double y) {
    return colorAt((int)std::floor(x + 0.5), (int)std::floor(y + 0.5));
}

void ColorBrush::fillSpan(BrushHost *target, int x1, int x2, int y, int *out, int outIndex) {
    for (int x = x1; x <= x2; ++x)
        target->blendInto(out + outIndex + (x - x1), x, y, colorAt(x, y));
}
