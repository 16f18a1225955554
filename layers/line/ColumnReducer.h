#pragma once

#include <cmath>

class MultiLine;

// Reduces a walk over many points to at most four in each pixel column (the
// column of a point is floor(0.5 + x)): the first, the highest and the lowest
// in the order they came, and the last.  Neighbouring columns join through
// the last point of one and the first of the next, a segment of the data
// itself, and a column's path from its first through its extremes to its
// last covers the rows that all its points cover: the line keeps its
// envelope.  A point repeated in two of the roles is stored once.
class ColumnReducer {
public:
    explicit ColumnReducer(MultiLine &line);

    void add(double x, double y, int index) {
        if (!(std::fabs(x) < kFar) || !(std::fabs(y) < kFar)) {
            gap();
            return;
        }
        long long c = columnOf(x);
        ++order;
        if (!open || c != column) {
            startColumn(c, x, y, index);
            return;
        }
        Point p = {x, y, index, order};
        if (y > high.y) high = p;
        if (y < low.y) low = p;
        last = p;
    }
    // The column of a pixel x: floor(0.5 + x) without a call, for x well
    // inside the range of long long.
    static long long columnOf(double x) {
        double shifted = 0.5 + x;
        long long c = (long long)shifted;
        return c - (shifted < c);
    }
    // A missing point: the column so far is stored and a gap follows it.
    void gap();
    // Stores what the last column holds.
    void finish();

private:
    // Beyond this a pixel is no place on any canvas; the column would not fit
    // an integer.
    static constexpr double kFar = 1e15;

    struct Point {
        double x, y;
        int index;
        long long order;
    };

    void startColumn(long long c, double x, double y, int index);
    void flush();
    void store(const Point &p);

    MultiLine &line;
    bool open;
    long long column;
    long long order;
    long long storedOrder;
    Point first, high, low, last;
};
