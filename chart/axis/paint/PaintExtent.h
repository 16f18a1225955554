#pragma once

// The box around what an axis drew or would draw; empty until something is added.
class PaintExtent {
public:
    void addPoint(double x, double y);
    // A box of the given size with its top-left corner at (left, top).
    void addBox(double left, double top, double width, double height);
    void add(const PaintExtent &other);

    bool isEmpty() const { return empty; }
    double getLeft() const { return left; }
    double getTop() const { return top; }
    double getRight() const { return right; }
    double getBottom() const { return bottom; }

private:
    bool empty = true;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};
