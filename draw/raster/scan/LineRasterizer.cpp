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
    drawJoinedInto(x1, y1, x2, y2, *sink, skipFirst);
}
