#pragma once

#include <map>
#include <utility>
#include <vector>

#include "foundation/ArrayViews.h"

// The shape of a bar: a symbol word (kSquareShape draws the plain box), or a
// polygon of its own as x, y pairs.
struct BarShape {
    int word = 0;
    std::vector<double> polygon;

    bool isBox() const;
    // Circles and spheres: drawn as ellipses filling the bar's box.
    bool isRound() const;
};

// The shapes a bar layer was given: for every bar, for the bars of one data
// group, or for one bar; the most particular one applies.
class BarShapes {
public:
    static constexpr int kAll = -1;

    void set(int shape, int dataGroup, int dataItem);
    void setPolygon(IntArray points, int dataGroup, int dataItem);
    // Null for the plain box.
    const BarShape *find(int dataGroup, int dataItem) const;
    bool empty() const { return shapes.empty(); }

private:
    std::map<std::pair<int, int>, BarShape> shapes;
};
