#include "draw/canvas/CurveFlattener.h"

#include <cmath>

namespace {

typedef CurveFlattener::Point Point;

// Deep enough for any curve that fits in a canvas; guards against huge coordinates.
const int kMaxDepth = 16;

Point mid(Point a, Point b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

double squaredOffset(Point c, Point a, Point b, double wa, double wb) {
    double dx = c.x - (wa * a.x + wb * b.x);
    double dy = c.y - (wa * a.y + wb * b.y);
    return dx * dx + dy * dy;
}

double distance(Point a, Point b) {
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
}

bool isFinite(Point p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

}  // namespace

void CurveFlattener::flattenCubic(Point p0, Point c1, Point c2, Point p3, std::vector<Point> &out) {
    if (!isFinite(p0) || !isFinite(c1) || !isFinite(c2) || !isFinite(p3)) return;
    subdivide(p0, c1, c2, p3, 0, out);
}

void CurveFlattener::subdivide(Point p0, Point c1, Point c2, Point p3, int depth,
                               std::vector<Point> &out) {
    // The control points of a straight piece sit at a third and two thirds of the chord.
    bool flat = squaredOffset(c1, p0, p3, 2.0 / 3, 1.0 / 3) <= kTolerance &&
                squaredOffset(c2, p0, p3, 1.0 / 3, 2.0 / 3) <= kTolerance;
    if (flat || depth >= kMaxDepth) {
        out.push_back(p3);
        return;
    }
    Point p01 = mid(p0, c1), p12 = mid(c1, c2), p23 = mid(c2, p3);
    Point p012 = mid(p01, p12), p123 = mid(p12, p23);
    Point m = mid(p012, p123);
    subdivide(p0, p01, p012, m, depth + 1, out);
    subdivide(m, p123, p23, p3, depth + 1, out);
}

void CurveFlattener::smoothControls(const Point *p, int n, int i, bool closed, Point *c1,
                                    Point *c2) {
    auto at = [&](int k) {
        if (closed) return p[((k % n) + n) % n];
        return p[k < 0 ? 0 : (k >= n ? n - 1 : k)];
    };
    Point a = at(i - 1), b = at(i), c = at(i + 1), d = at(i + 2);
    double lab = distance(a, b), lbc = distance(b, c), lcd = distance(c, d);
    // Tangent at b through its neighbours, scaled to a third of the chord b-c.
    double wb = lab + lbc > 0 ? lbc / (lab + lbc) / 3 : 0;
    double wc = lbc + lcd > 0 ? lbc / (lbc + lcd) / 3 : 0;
    *c1 = {b.x + (c.x - a.x) * wb, b.y + (c.y - a.y) * wb};
    *c2 = {c.x - (d.x - b.x) * wc, c.y - (d.y - b.y) * wc};
}

void CurveFlattener::smoothCurve(const Point *p, int n, bool closed, std::vector<Point> &out) {
    if (n < 1) return;
    out.push_back(p[0]);
    int pieces = closed ? n : n - 1;
    for (int i = 0; i < pieces; ++i) {
        Point c1, c2;
        smoothControls(p, n, i, closed, &c1, &c2);
        flattenCubic(p[i], c1, c2, p[(i + 1) % n], out);
    }
}
