#include "draw/raster/scan/StrokeMask.h"

#include <algorithm>

StrokeMask::StrokeMask(int l, int t, int r, int b, bool antiAlias)
    : left(l), top(t), right(r), bottom(b), antiAlias(antiAlias), stride(0) {
    if (!isEmpty()) {
        stride = right - left + 1;
        levels.assign((size_t)stride * (bottom - top + 1), 0);
    }
}

void StrokeMask::getClip(int *l, int *t, int *r, int *b) const {
    *l = left, *t = top, *r = right, *b = bottom;
}

void StrokeMask::solidSpan(int x1, int x2, int y, int) {
    unsigned char *row = levels.data() + (size_t)(y - top) * stride - left;
    for (int x = x1; x <= x2; ++x) row[x] = 16;
}

void StrokeMask::fringePixel(int x, int y, int level, int) {
    unsigned char &v = levels[(size_t)(y - top) * stride + (x - left)];
    v = (unsigned char)std::max<int>(v, level);
}

int StrokeMask::levelAt(int x, int y) const {
    if (x < left || x > right || y < top || y > bottom) return 0;
    return levels[(size_t)(y - top) * stride + (x - left)];
}

void StrokeMask::paintOn(ShapeTarget *target, int color) const {
    if (isEmpty()) return;
    for (int y = top; y <= bottom; ++y) {
        const unsigned char *row = levels.data() + (size_t)(y - top) * stride;
        for (int x = left; x <= right; ++x)
            if (row[x - left]) target->fringePixel(x, y, row[x - left], color);
    }
}
