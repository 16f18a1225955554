#include "draw/raster/scan/LineRasterizer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

bool whole(double v) {
    return v == std::floor(v) && std::fabs(v) < 1e9;
}

}  // namespace

LineRasterizer::LineRasterizer(int clipLeft, int clipTop, int clipRight, int clipBottom,
                               bool antiAlias)
    : left(clipLeft), top(clipTop), right(clipRight), bottom(clipBottom), antiAlias(antiAlias) {}

bool LineRasterizer::isExact(double x1, double y1, double x2, double y2) {
    if (!whole(x1) || !whole(y1) || !whole(x2) || !whole(y2)) return false;
    double dx = std::fabs(x2 - x1), dy = std::fabs(y2 - y1);
    return dx == 0 || dy == 0 || dx == dy;
}

bool LineRasterizer::clip(double &x1, double &y1, double &x2, double &y2, double l, double t,
                          double r, double b) {
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2))
        return false;
    double t0 = 0, t1 = 1, dx = x2 - x1, dy = y2 - y1;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {x1 - l, r - x1, y1 - t, b - y1};
    for (int i = 0; i < 4; ++i) {
        if (p[i] == 0) {
            if (q[i] < 0) return false;
            continue;
        }
        double u = q[i] / p[i];
        if (p[i] < 0) {
            if (u > t1) return false;
            t0 = std::max(t0, u);
        } else {
            if (u < t0) return false;
            t1 = std::min(t1, u);
        }
    }
    double nx1 = x1 + t0 * dx, ny1 = y1 + t0 * dy;
    x2 = x1 + t1 * dx, y2 = y1 + t1 * dy;
    x1 = nx1, y1 = ny1;
    return true;
}

void LineRasterizer::draw(double x1, double y1, double x2, double y2, LineSink *sink) {
    drawJoined(x1, y1, x2, y2, sink, false);
}

void LineRasterizer::drawJoined(double x1, double y1, double x2, double y2, LineSink *sink,
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

void LineRasterizer::emit(int x, int y, int level, int color, LineSink *sink) {
    if (level > 0 && x >= left && x <= right && y >= top && y <= bottom)
        sink->plot(x, y, level, color);
}

void LineRasterizer::exact(int x1, int y1, int x2, int y2, LineSink *sink, bool skipFirst) {
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
        emit(x, y, 16, sink->stepColor(x, y), sink);
    }
}

void LineRasterizer::walk(double x1, double y1, double x2, double y2, LineSink *sink,
                          bool skipFirst) {
    double dx = x2 - x1, dy = y2 - y1;
    bool xMajor = std::fabs(dx) >= std::fabs(dy);
    double a1 = xMajor ? x1 : y1, a2 = xMajor ? x2 : y2;
    double b1 = xMajor ? y1 : x1, slope = xMajor ? (dx != 0 ? dy / dx : 0) : dx / dy;
    int i1 = (int)std::floor(a1 + 0.5), i2 = (int)std::floor(a2 + 0.5);
    int step = i2 >= i1 ? 1 : -1;
    for (int i = i1;; i += step) {
        if (!(skipFirst && i == i1)) {
            double b = b1 + (i - a1) * slope;
            int bi = (int)std::floor(b);
            int nearest = (int)std::floor(b + 0.5);
            int color = xMajor ? sink->stepColor(i, nearest) : sink->stepColor(nearest, i);
            if (antiAlias) {
                int lower = (int)std::floor(16 * (b - bi) + 0.5);
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
