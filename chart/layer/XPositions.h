#pragma once

#include <vector>

#include "foundation/ArrayViews.h"
#include "foundation/Constants.h"

// The x positions of a layer's points: values given one by one, a range
// spread evenly over the points, or, with neither, the index itself (an
// enumerated x axis).  Every position is found in constant time.
class XPositions {
public:
    XPositions();

    void setValues(DoubleArray x);
    void setRange(double minValue, double maxValue);
    bool isEnumerated() const { return values.empty() && !hasRange(); }
    // The values given one by one; empty for a range or the index.
    const std::vector<double> &getValues() const { return values; }

    // The position of point i of count points; kNoValue where there is none.
    // Inline: the walks over large data read it once a point.
    double at(int i, int count) const {
        if (i < 0) return kNoValue;
        if (!values.empty()) return i < (int)values.size() ? values[i] : kNoValue;
        if (hasRange()) {
            if (count > 1)
                return i < count ? minValue + (maxValue - minValue) * i / (count - 1) : kNoValue;
            return i == 0 ? (minValue + maxValue) / 2 : kNoValue;
        }
        return i < count ? i : kNoValue;
    }
    // The point nearest to x; ties go to the lower index.  -1 with no points.
    int nearestIndex(double x, int count) const;
    // The point within tolerance of x, -1 if none.
    int indexOf(double x, double tolerance, int count) const;
    // Smallest and largest position of points from to to - 1; kNoValue for both
    // when there is none.
    void range(int from, int to, int count, double *min, double *max) const;

private:
    bool hasRange() const { return minValue != kNoValue && maxValue != kNoValue; }
    int nearestByScan(double x, int count) const;

    std::vector<double> values;
    bool ascending;
    double minValue;
    double maxValue;
};
