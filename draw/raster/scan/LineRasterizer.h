#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>

// Where a walked line puts its pixels.
class LineSink {
public:
    virtual ~LineSink() {}
    // Called once per step of the walk, in walking order, at the step's pixel.
    virtual int stepColor(int x, int y) = 0;
    // A pixel covered level / 16 (1 to 16) by the colour of its step.
    virtual void plot(int x, int y, int level, int color) = 0;
};

// Walks one-pixel lines.  Lines on whole numbers that are horizontal, vertical
// or diagonal are exact; others are clipped to the rectangle and walked along
// the major axis, anti-aliased as two pixels per step whose coverages add to 16.
//
// The walk is written once for any sink with stepColor and plot: through the
// LineSink interface (one virtual call per step and pixel), and with a concrete
// sink that the compiler sees whole, for the hot path of plain-coloured lines.
class LineRasterizer {
public:
    LineRasterizer(int clipLeft, int clipTop, int clipRight, int clipBottom, bool antiAlias);
    void draw(double x1, double y1, double x2, double y2, LineSink *sink);
    // Skip the first step: the pixel was drawn as the end of the previous segment.
    void drawJoined(double x1, double y1, double x2, double y2, LineSink *sink, bool skipFirst);
    template <class Sink>
    void drawJoinedInto(double x1, double y1, double x2, double y2, Sink &sink, bool skipFirst);

    static bool isExact(double x1, double y1, double x2, double y2);
    // Cuts the segment to the rectangle; false when nothing is left.
    static bool clip(double &x1, double &y1, double &x2, double &y2, double left, double top,
                     double right, double bottom);

private:
    template <class Sink>
    void exact(int x1, int y1, int x2, int y2, Sink &sink, bool skipFirst);
    template <class Sink>
    void walk(double x1, double y1, double x2, double y2, Sink &sink, bool skipFirst);
    template <class Sink>
    void emit(int x, int y, int level, int color, Sink &sink) {
        if (level > 0 && x >= left && x <= right && y >= top && y <= bottom)
            sink.plot(x, y, level, color);
    }
    // floor for values well inside the int range, as the walk's are after the clip.
    static int floorInt(double v) {
        int i = (int)v;
        return i - (v < i);
    }

    int left, top, right, bottom;
    bool antiAlias;
};

template <class Sink>
void LineRasterizer::drawJoinedInto(double x1, double y1, double x2, double y2, Sink &sink,
                                    bool skipFirst) {
    if (left > right || top > bottom) return;
    if (isExact(x1, y1, x2, y2)) {
        exact((int)x1, (int)y1, (int)x2, (int)y2, sink, skipFirst);
        return;
    }
    double cx1 = x1, cy1 = y1, cx2 = x2, cy2 = y2;
    if (!clip(cx1, cy1, cx2, cy2, left - 1, top - 1, right + 1, bottom + 1)) return;
    // A start moved by the clip is not a joint any more.
    walk(cx1, cy1, cx2, cy2, sink, skipFirst && cx1 == x1 && cy1 == y1);
}

template <class Sink>
void LineRasterizer::exact(int x1, int y1, int x2, int y2, Sink &sink, bool skipFirst) {
    int sx = x2 > x1 ? 1 : (x2 < x1 ? -1 : 0), sy = y2 > y1 ? 1 : (y2 < y1 ? -1 : 0);
    int n = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    // Start the walk at the clip so that long lines cost only their visible part.
    int from = 0, to = n;
    if (sx != 0) {
        int a = sx > 0 ? left - x1 : x1 - right, b = sx > 0 ? right - x1 : x1 - left;
        from = std::max(from, a), to = std::min(to, b);
    }
    if (sy != 0) {
        int a = sy > 0 ? top - y1 : y1 - bottom, b = sy > 0 ? bottom - y1 : y1 - top;
        from = std::max(from, a), to = std::min(to, b);
    }
    if (skipFirst) from = std::max(from, 1);
    for (int i = from; i <= to; ++i) {
        int x = x1 + i * sx, y = y1 + i * sy;
        emit(x, y, 16, sink.stepColor(x, y), sink);
    }
}

template <class Sink>
void LineRasterizer::walk(double x1, double y1, double x2, double y2, Sink &sink, bool skipFirst) {
    double dx = x2 - x1, dy = y2 - y1;
    bool xMajor = std::fabs(dx) >= std::fabs(dy);
    double a1 = xMajor ? x1 : y1, a2 = xMajor ? x2 : y2;
    double b1 = xMajor ? y1 : x1, slope = xMajor ? (dx != 0 ? dy / dx : 0) : dx / dy;
    int i1 = floorInt(a1 + 0.5), i2 = floorInt(a2 + 0.5);
    int step = i2 >= i1 ? 1 : -1;
    for (int i = i1;; i += step) {
        if (!(skipFirst && i == i1)) {
            double b = b1 + (i - a1) * slope;
            int bi = floorInt(b);
            int nearest = floorInt(b + 0.5);
            int color = xMajor ? sink.stepColor(i, nearest) : sink.stepColor(nearest, i);
            if (antiAlias) {
                int lower = floorInt(16 * (b - bi) + 0.5);
                int upper = 16 - lower;
                if (xMajor) {
                    emit(i, bi, upper, color, sink);
                    emit(i, bi + 1, lower, color, sink);
                } else {
                    emit(bi, i, upper, color, sink);
                    emit(bi + 1, i, lower, color, sink);
                }
            } else {
                xMajor ? emit(i, nearest, 16, color, sink) : emit(nearest, i, 16, color, sink);
            }
        }
        if (i == i2) break;
    }
}
