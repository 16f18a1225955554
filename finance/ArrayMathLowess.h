#pragma once

#include <vector>

#include "foundation/ArrayViews.h"

// Cleveland's robust locally weighted regression (LOWESS) of y on an
// ascending x, evaluated at every x.
class ArrayMathLowess {
public:
    // Replaces y[0..yLen) by the fit; pairs with a gap, and every position
    // past the shorter array, become kNoValue.
    static void smooth(double *y, int yLen, DoubleArray x, double smoothness, int iteration);

private:
    ArrayMathLowess(const double *y, int yLen, DoubleArray x);

    void run(double smoothness, int iteration);
    // The fit at point i from the window [left, right]; false when no
    // neighbour carries weight.
    bool fitPoint(int i, int left, int right, bool robust, double &out);
    // False when the residuals are all but zero and further passes are moot.
    bool updateRobustness();
    double meanMagnitude() const;
    void writeBack(double *y, int yLen) const;

    int count() const { return (int)xs.size(); }

    std::vector<double> xs;
    std::vector<double> ys;
    std::vector<int> positions;
    std::vector<double> fitted;
    std::vector<bool> fittedOk;
    std::vector<double> weights;
    std::vector<double> robustness;
};
