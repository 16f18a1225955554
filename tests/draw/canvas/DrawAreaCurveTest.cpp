#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "draw/canvas/CurveFlattener.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"

namespace {

typedef CurveFlattener::Point Point;

Point cubicAt(Point p0, Point c1, Point c2, Point p3, double t) {
    double u = 1 - t, a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    return {a * p0.x + b * c1.x + c * c2.x + d * p3.x, a * p0.y + b * c1.y + c * c2.y + d * p3.y};
}

double segmentDistance(Point p, Point a, Point b) {
    double dx = b.x - a.x, dy = b.y - a.y, len2 = dx * dx + dy * dy;
    double t = len2 > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / len2 : 0;
    t = std::max(0.0, std::min(1.0, t));
    double ex = a.x + t * dx - p.x, ey = a.y + t * dy - p.y;
    return std::sqrt(ex * ex + ey * ey);
}

double polylineDistance(Point p, const std::vector<Point> &line) {
    double best = 1e300;
    for (size_t i = 1; i < line.size(); ++i)
        best = std::min(best, segmentDistance(p, line[i - 1], line[i]));
    return best;
}

}  // namespace

// With control offsets of at most sqrt(2) from the chord, a piece stays within
// 0.75 * sqrt(2) of its chord.
TEST(DrawAreaCurve, FlatteningStaysWithinTolerance) {
    const double kMaxError = 0.75 * std::sqrt(2.0) + 1e-9;
    std::mt19937 rng(1234);
    std::uniform_real_distribution<double> coor(-300, 300);
    for (int round = 0; round < 300; ++round) {
        Point p[4];
        for (Point &q : p) q = {coor(rng), coor(rng)};
        std::vector<Point> flat{p[0]};
        CurveFlattener::flattenCubic(p[0], p[1], p[2], p[3], flat);
        ASSERT_GE(flat.size(), 2u);
        EXPECT_EQ(p[3].x, flat.back().x);
        EXPECT_EQ(p[3].y, flat.back().y);
        double worst = 0;
        for (int i = 0; i <= 400; ++i)
            worst =
                std::max(worst, polylineDistance(cubicAt(p[0], p[1], p[2], p[3], i / 400.0), flat));
        EXPECT_LE(worst, kMaxError) << round;
        // Subdivision points lie on the curve.
        for (const Point &q : flat) {
            double nearest = 1e300;
            for (int i = 0; i <= 4000; ++i) {
                Point c = cubicAt(p[0], p[1], p[2], p[3], i / 4000.0);
                nearest = std::min(nearest, std::hypot(c.x - q.x, c.y - q.y));
            }
            EXPECT_LT(nearest, 0.5);
        }
    }
}

TEST(DrawAreaCurve, StraightAndDegeneratePieces) {
    std::vector<Point> flat;
    CurveFlattener::flattenCubic({0, 0}, {10, 10}, {20, 20}, {30, 30}, flat);
    EXPECT_EQ(1u, flat.size());
    flat.clear();
    CurveFlattener::flattenCubic({0, 0}, {NAN, 0}, {1, 1}, {2, 2}, flat);
    EXPECT_TRUE(flat.empty());
    flat.clear();
    // Huge coordinates stop at the depth limit instead of recursing on.
    CurveFlattener::flattenCubic({0, 0}, {1e200, -1e200}, {-1e200, 1e200}, {1, 1}, flat);
    EXPECT_LE(flat.size(), 1u << 16);

    // Equally spaced points on a line give a smooth curve along that line.
    const Point pts[4] = {{0, 0}, {10, 5}, {20, 10}, {30, 15}};
    std::vector<Point> curve;
    CurveFlattener::smoothCurve(pts, 4, false, curve);
    EXPECT_EQ(4u, curve.size());
    for (const Point &q : curve) EXPECT_NEAR(q.y, q.x / 2, 1e-9);
}

TEST(DrawAreaCurve, SmoothPolygonPassesThroughItsPoints) {
    const Point pts[4] = {{10, 10}, {90, 10}, {90, 90}, {10, 90}};
    std::vector<Point> closed;
    CurveFlattener::smoothCurve(pts, 4, true, closed);
    EXPECT_EQ(10, closed.back().x);
    EXPECT_EQ(10, closed.back().y);
    for (const Point &p : pts) {
        bool found = false;
        for (const Point &q : closed) found |= q.x == p.x && q.y == p.y;
        EXPECT_TRUE(found);
    }
    // The rounded square bulges outside its corners' square but not far.
    double minX = 1e9, maxX = -1e9;
    for (const Point &q : closed) {
        minX = std::min(minX, q.x);
        maxX = std::max(maxX, q.x);
    }
    EXPECT_LT(minX, 10);
    EXPECT_GT(minX, 0);
    EXPECT_GT(maxX, 90);

    // On the canvas: one polygon record through the flattened points.
    CanvasHolder c;
    c->setSize(100, 100, 0xffffff);
    double x[4], y[4];
    for (int i = 0; i < 4; ++i) {
        x[i] = pts[i].x;
        y[i] = pts[i].y;
    }
    c->smoothPolygon(DoubleArray(x, 4), DoubleArray(y, 4), 0, 0xff);
    std::string listing = listingOf(c.get());
    EXPECT_EQ(0u, listing.find("SetSize(100, 100, 0xffffff)\nPolygon(0x000000, 0x0000ff, [10, "));
    // A cubic path drawn open becomes one batched polyline.
    CanvasHolder d;
    d->setSize(100, 100, 0xffffff);
    const double path[8] = {0, 0, 0, 60, 60, 60, 60, 0};
    d->drawPath(DoubleArray(path, 8), 0xff, (int)0xff000000u, 1);
    listing = listingOf(d.get());
    EXPECT_EQ(1u, [&] {
        size_t n = 0;
        for (size_t p = listing.find("PolyLine("); p != std::string::npos;
             p = listing.find("PolyLine(", p + 1))
            ++n;
        return n;
    }());
    EXPECT_NE(std::string::npos, listing.find(", 60, 0])"));
}
