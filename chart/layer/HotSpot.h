#pragma once

#include <vector>

// The hot spot of a point on the canvas: a rectangle as left, top, right,
// bottom (inclusive pixels), or a polygon as x, y pairs.
struct HotSpot {
    int dataSet;
    int dataItem;
    std::vector<int> coords;

    bool isRect() const { return coords.size() == 4; }
};
