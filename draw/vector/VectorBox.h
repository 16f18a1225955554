#pragma once

#include <algorithm>

// A rectangle in the space the vector outputs draw in: pixel (i, j) of the
// canvas covers [i, i + 1] by [j, j + 1].  Display-list coordinates name pixel
// centres, so a point of a record lies 0.5 further right and down.
struct VectorBox {
    double left = 0, top = 0, right = 0, bottom = 0;

    VectorBox() {}
    VectorBox(double l, double t, double r, double b) : left(l), top(t), right(r), bottom(b) {}
    // The pixels left..right, top..bottom, inclusive.
    static VectorBox ofPixels(int l, int t, int r, int b) {
        return VectorBox(l, t, (double)r + 1, (double)b + 1);
    }
    // Nothing: an empty box that any point grows.
    static VectorBox none() { return VectorBox(1e300, 1e300, -1e300, -1e300); }

    bool isEmpty() const { return !(left < right && top < bottom); }
    double width() const { return right - left; }
    double height() const { return bottom - top; }
    void add(double x, double y) {
        left = std::min(left, x), right = std::max(right, x);
        top = std::min(top, y), bottom = std::max(bottom, y);
    }
    VectorBox grown(double d) const { return VectorBox(left - d, top - d, right + d, bottom + d); }
    VectorBox intersect(const VectorBox &o) const {
        return VectorBox(std::max(left, o.left), std::max(top, o.top), std::min(right, o.right),
                         std::min(bottom, o.bottom));
    }
    bool contains(const VectorBox &o) const {
        return left <= o.left && top <= o.top && right >= o.right && bottom >= o.bottom;
    }
    bool operator==(const VectorBox &o) const {
        return left == o.left && top == o.top && right == o.right && bottom == o.bottom;
    }
    bool operator!=(const VectorBox &o) const { return !(*this == o); }
};
