#pragma once

#include <cmath>

// The cubic pieces of an arc segment; included by VectorPath.h.
template <class Out>
void VectorPath::forEachBezier(const PathSegment &arc, Out out) {
    const double quarter = 1.5707963267948966;
    int pieces = (int)std::ceil(std::fabs(arc.sweep) / quarter - 1e-9);
    if (pieces < 1) pieces = 1;
    if (pieces > 8) pieces = 8;
    double step = arc.sweep / pieces;
    double k = 4.0 / 3.0 * std::tan(step / 4);
    double a = arc.startAngle;
    for (int i = 0; i < pieces; ++i) {
        double b = a + step;
        double ca = std::cos(a), sa = std::sin(a), cb = std::cos(b), sb = std::sin(b);
        double x1 = arc.cx + arc.rx * (ca - k * sa), y1 = arc.cy + arc.ry * (sa + k * ca);
        double x2 = arc.cx + arc.rx * (cb + k * sb), y2 = arc.cy + arc.ry * (sb - k * cb);
        bool last = i + 1 == pieces;
        out(x1, y1, x2, y2, last ? arc.x : arc.cx + arc.rx * cb,
            last ? arc.y : arc.cy + arc.ry * sb);
        a = b;
    }
}
