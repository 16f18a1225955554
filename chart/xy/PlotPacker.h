#pragma once

// A stretch of the plot along one direction: where it starts and how long it is.
struct PlotSpan {
    int start;
    int length;
};

// Fits the plot between low and high along one direction, leaving lowNeed and
// highNeed pixels for the axes at the two ends and |depth| for the 3D shift,
// at the high end for a positive depth and at the low end for a negative one.
// When that leaves less than minLength (at least 1), the box grows at both
// ends in proportion to the axes' needs, or equally when they need nothing.
class PlotPacker {
public:
    static PlotSpan fit(int low, int high, int lowNeed, int highNeed, int depth, int minLength);
};
