#include "layers/line/SymbolSizes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chart/layer/AxisPixels.h"
#include "foundation/Constants.h"
#include "layers/line/LineLayer.h"

namespace {

// Larger than any symbol that is drawn.
const double kLargest = 1 << 20;

std::vector<double> copyOf(DoubleArray a) {
    std::vector<double> out(a.data, a.data + (a.data ? std::max(a.len, 0) : 0));
    for (double &v : out)
        if (std::isnan(v)) v = kNoValue;
    return out;
}

}  // namespace

SymbolSizes::SymbolSizes() : typeX(kPixelScale), typeY(kPixelScale) {}

void SymbolSizes::set(DoubleArray zX, int tX, DoubleArray zY, int tY) {
    sizeX = copyOf(zX);
    sizeY = copyOf(zY);
    typeX = tX;
    typeY = tY;
}

int SymbolSizes::pixels(const std::vector<double> &sizes, int type, int i, double x, double y,
                        const AxisPixels &xs, const AxisPixels &ys) {
    double v = i >= 0 && i < (int)sizes.size() ? sizes[i] : kNoValue;
    if (v == kNoValue || !std::isfinite(v)) return 0;
    double size = v;
    if (type == kXAxisScale) size = xs.at(x + v / 2) - xs.at(x - v / 2);
    if (type == kYAxisScale) size = ys.at(y + v / 2) - ys.at(y - v / 2);
    size = std::fabs(size);
    return size < kLargest ? (int)std::floor(size + 0.5) : (int)kLargest;
}

void SymbolSizes::at(int i, double x, double y, const AxisPixels &xs, const AxisPixels &ys,
                     bool swapped, int ownWidth, int ownHeight, int *width, int *height) const {
    bool hasX = !sizeX.empty(), hasY = !sizeY.empty();
    int w = ownWidth, h = ownHeight;
    if (hasX || hasY) {
        w = hasX ? pixels(sizeX, typeX, i, x, y, xs, ys) : 0;
        h = hasY ? pixels(sizeY, typeY, i, x, y, xs, ys) : 0;
        if (!hasX) w = h;
        if (!hasY) h = w;
        if (swapped) std::swap(w, h);
    }
    if (w < 1 || h < 1) w = h = 0;
    *width = w;
    *height = h;
}
