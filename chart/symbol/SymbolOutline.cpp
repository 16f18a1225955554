#include "chart/symbol/SymbolOutline.h"

#include <algorithm>
#include <cmath>

#include "chart/symbol/ShapeWords.h"
#include "foundation/Constants.h"
#include "text/markup/ShapeSymbol.h"

namespace {

// The shapes of fixed corners: code, corner count, then x, y of each corner.
struct FixedShape {
    int code;
    int corners;
    double xy[8];
};

const FixedShape kFixedShapes[] = {
    {kSquareShape, 4, {-0.5, -0.5, 0.5, -0.5, 0.5, 0.5, -0.5, 0.5}},
    {kDiamondShape, 4, {0, -0.5, 0.5, 0, 0, 0.5, -0.5, 0}},
    {kTriangleShape, 3, {0, -0.5, 0.5, 0.5, -0.5, 0.5}},
    {kRightTriangleShape, 3, {-0.5, -0.5, 0.5, 0, -0.5, 0.5}},
    {kLeftTriangleShape, 3, {0.5, -0.5, 0.5, 0.5, -0.5, 0}},
    {kInvertedTriangleShape, 3, {-0.5, -0.5, 0.5, -0.5, 0, 0.5}},
};

const int kMinCorners = 3;
const int kMaxCorners = 100;
// Points given beyond this are ignored: a symbol is small.
const size_t kMaxCustomValues = 20000;

void rotate(SymbolOutline::Polygon &p, double degrees) {
    double t = degrees * kPi / 180, c = std::cos(t), s = std::sin(t);
    for (size_t i = 0; i < p.x.size(); ++i) {
        double x = p.x[i], y = p.y[i];
        // Clockwise on the screen.
        p.x[i] = x * c - y * s;
        p.y[i] = x * s + y * c;
    }
}

}  // namespace

std::vector<SymbolOutline::Polygon> SymbolOutline::of(int word,
                                                      const std::vector<double> &customPoints) {
    int code = Chart::shapeCode(word);
    std::vector<Polygon> polygons;
    switch (code) {
        case kCrossSymbol:
        case kCross2Symbol: {
            double width = ShapeSymbol::unpackFraction(word);
            if (width > 0) polygons.push_back(cross(width, code == kCross2Symbol));
            break;
        }
        case kVistrel_PolygonSymbol:
        case kVistrel_Polygon2Symbol: {
            int n = ShapeSymbol::unpackCount(word);
            // A side on top: the corners turn by half a step.
            double turn = code == kVistrel_Polygon2Symbol ? 180.0 / std::max(n, kMinCorners) : 0;
            polygons.push_back(regularPolygon(n, turn));
            break;
        }
        case kVistrel_StarSymbol:
            polygons.push_back(star(ShapeSymbol::unpackCount(word)));
            break;
        case kVistrel_CustomSymbol:
            polygons = custom(customPoints);
            break;
        case kVistrel_ArrowSymbol:
            // The arrow turns within its box: scaling it up would bend it.
            return {arrow(word)};
        default:
            return fixedShape(code);
    }
    fillUnitBox(polygons);
    return polygons;
}

std::vector<SymbolOutline::Polygon> SymbolOutline::fixedShape(int code) {
    for (const FixedShape &s : kFixedShapes) {
        if (s.code != code) continue;
        Polygon p;
        for (int i = 0; i < s.corners; ++i) {
            p.x.push_back(s.xy[2 * i]);
            p.y.push_back(s.xy[2 * i + 1]);
        }
        return {p};
    }
    return {};
}

SymbolOutline::Polygon SymbolOutline::regularPolygon(int corners, double turn) {
    int n = std::min(std::max(corners, kMinCorners), kMaxCorners);
    Polygon p;
    for (int i = 0; i < n; ++i) {
        double t = (360.0 * i / n + turn) * kPi / 180;
        p.x.push_back(0.5 * std::sin(t));
        p.y.push_back(-0.5 * std::cos(t));
    }
    return p;
}

SymbolOutline::Polygon SymbolOutline::star(int points) {
    int n = std::min(std::max(points, kMinCorners), kMaxCorners);
    // The inner corners lie on the lines between outer ones two apart, as in a
    // drawn pentagram; stars of few points get a fixed waist.
    double inner = n >= 5 ? std::cos(2 * kPi / n) / std::cos(kPi / n) : 0.4;
    inner = std::max(inner, 0.35);
    Polygon p;
    for (int i = 0; i < 2 * n; ++i) {
        double r = i % 2 ? 0.5 * inner : 0.5, t = kPi * i / n;
        p.x.push_back(r * std::sin(t));
        p.y.push_back(-r * std::cos(t));
    }
    return p;
}

SymbolOutline::Polygon SymbolOutline::cross(double armWidth, bool diagonal) {
    double a = armWidth / 2;
    Polygon p;
    p.x = {-a, a, a, 0.5, 0.5, a, a, -a, -a, -0.5, -0.5, -a};
    p.y = {-0.5, -0.5, -a, -a, a, a, 0.5, 0.5, a, a, -a, -a};
    if (diagonal) rotate(p, 45);
    return p;
}

SymbolOutline::Polygon SymbolOutline::arrow(int word) {
    double args[4];
    ShapeSymbol::unpackArrow(word, args);
    double head = std::min(args[1], 1.0) / 2, length = std::min(args[2], 1.0);
    double shaft = std::min(args[3], 1.0) / 2;
    double base = -0.5 + length;
    Polygon p;
    p.x = {0, head, shaft, shaft, -shaft, -shaft, -head};
    p.y = {-0.5, base, base, 0.5, 0.5, base, base};
    // Shrunk into the box's inner circle, so that it stays in the box at any angle.
    double reach = 0;
    for (size_t i = 0; i < p.x.size(); ++i) reach = std::max(reach, std::hypot(p.x[i], p.y[i]));
    for (size_t i = 0; i < p.x.size(); ++i) {
        p.x[i] *= 0.5 / reach;
        p.y[i] *= 0.5 / reach;
    }
    rotate(p, args[0]);
    return p;
}

std::vector<SymbolOutline::Polygon> SymbolOutline::custom(const std::vector<double> &points) {
    std::vector<Polygon> polygons(1);
    size_t n = std::min(points.size(), kMaxCustomValues);
    for (size_t i = 0; i < n; ++i) {
        if (points[i] == kNewShape) {
            if (!polygons.back().x.empty()) polygons.emplace_back();
            continue;
        }
        if (i + 1 >= n || points[i + 1] == kNewShape) continue;
        if (!std::isfinite(points[i]) || !std::isfinite(points[i + 1])) return {};
        polygons.back().x.push_back(points[i]);
        polygons.back().y.push_back(points[i + 1]);
        ++i;
    }
    polygons.erase(std::remove_if(polygons.begin(), polygons.end(),
                                  [](const Polygon &p) { return p.x.size() < 3; }),
                   polygons.end());
    return polygons;
}

void SymbolOutline::fillUnitBox(std::vector<Polygon> &polygons) {
    double minX = 1e300, minY = 1e300, maxX = -1e300, maxY = -1e300;
    for (const Polygon &p : polygons)
        for (size_t i = 0; i < p.x.size(); ++i) {
            minX = std::min(minX, p.x[i]), maxX = std::max(maxX, p.x[i]);
            minY = std::min(minY, p.y[i]), maxY = std::max(maxY, p.y[i]);
        }
    if (!(maxX > minX) || !(maxY > minY)) {
        polygons.clear();
        return;
    }
    for (Polygon &p : polygons)
        for (size_t i = 0; i < p.x.size(); ++i) {
            p.x[i] = (p.x[i] - minX) / (maxX - minX) - 0.5;
            p.y[i] = (p.y[i] - minY) / (maxY - minY) - 0.5;
        }
}
