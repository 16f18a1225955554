#pragma once

#include <vector>

#include "foundation/ArrayViews.h"

class AxisPixels;

// Symbol sizes per point, from setSymbolScale: in pixels or as lengths along
// the x axis or the data set's y axis (SymbolScaleType).
class SymbolSizes {
public:
    SymbolSizes();

    // Copies the arrays; NaN becomes kNoValue.  An empty array leaves that
    // direction to the other.
    void set(DoubleArray zX, int typeX, DoubleArray zY, int typeY);
    bool isSet() const { return !sizeX.empty() || !sizeY.empty(); }

    // The symbol's width and height at point i, whose values are x and y,
    // given the symbol's own size: each direction from its array (kNoValue or
    // beyond the array gives 0), the other's when it has none, the symbol's
    // when neither has; swapped on a chart with swapped axes.  Below 1 in
    // either direction there is no symbol.
    void at(int i, double x, double y, const AxisPixels &xs, const AxisPixels &ys, bool swapped,
            int ownWidth, int ownHeight, int *width, int *height) const;

private:
    // The pixel size of one entry: floor(|size| + 0.5).
    static int pixels(const std::vector<double> &sizes, int type, int i, double x, double y,
                      const AxisPixels &xs, const AxisPixels &ys);

    std::vector<double> sizeX;
    std::vector<double> sizeY;
    int typeX;
    int typeY;
};
