#include "layers/bar/BarPainter.h"

#include <algorithm>
#include <cmath>

#include "chart/symbol/DataSymbol.h"
#include "chart/symbol/SymbolOutline.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/bar/BarShapes.h"

namespace {

// An edge of the layer's default is the fill darkened this much on a box
// with an effect.
const double kEffectEdgeShade = 0.75;
// The faces behind a 3D bar: the top catches light, the side is in shade.
const double kTopFaceShade = 1.15;
const double kSideFaceShade = 0.75;
// Points of the ellipse of a round 3D bar.
const int kRoundPoints = 48;
// The glare edge of the bar's cylinder orientation for lying bars.
const int kLyingCylinder = 8;

bool lying(int endSide) {
    return endSide == kLeft || endSide == kRight;
}

bool isPlainBox(const BarLook &look) {
    return !look.shape;
}

std::vector<double> ellipse(double left, double top, double right, double bottom) {
    std::vector<double> points;
    double cx = (left + right) / 2, cy = (top + bottom) / 2;
    double rx = (right - left) / 2, ry = (bottom - top) / 2;
    for (int k = 0; k < kRoundPoints; ++k) {
        double a = 2 * kPi * k / kRoundPoints;
        points.push_back(cx + rx * std::cos(a));
        points.push_back(cy - ry * std::sin(a));
    }
    return points;
}

}  // namespace

int BarPainter::resolveEdge(int edge, int fill, const BarLook &look) const {
    double factor = isPlainBox(look) && look.effect != 0 ? kEffectEdgeShade : 1.0;
    if (edge == -1 && Chart::isBarLighting(look.effect))
        return look.depth > 0 ? d->adjustBrightness(fill, factor) : kTransparent;
    if (edge == -1) return kTransparent;
    if (edge == -2) return factor == 1.0 ? fill : d->adjustBrightness(fill, factor);
    return edge == kSameAsMainColor ? fill : edge;
}

void BarPainter::canvasRadii(const int radius[4], int endSide, int out[4]) {
    // Where the end-left, end-right, base-right and base-left corners of a
    // bar go among top-left, top-right, bottom-right, bottom-left.
    static const int kUp[4] = {0, 1, 2, 3};
    static const int kDown[4] = {3, 2, 1, 0};
    static const int kRightward[4] = {1, 2, 3, 0};
    static const int kLeftward[4] = {0, 3, 2, 1};
    const int *to = endSide == kBottom  ? kDown
                    : endSide == kRight ? kRightward
                    : endSide == kLeft  ? kLeftward
                                        : kUp;
    for (int k = 0; k < 4; ++k) out[to[k]] = radius[k];
}

std::vector<std::vector<double>> BarPainter::outline(const BarShape *shape, int x1, int y1, int x2,
                                                     int y2, int endSide) {
    double left = x1 - 0.5, top = y1 - 0.5, right = x2 + 0.5, bottom = y2 + 0.5;
    if (!shape) return {{left, top, right, top, right, bottom, left, bottom}};
    if (shape->isRound()) return {ellipse(left, top, right, bottom)};
    double cx = (left + right) / 2, cy = (top + bottom) / 2, w = right - left, h = bottom - top;
    std::vector<std::vector<double>> result;
    for (const SymbolOutline::Polygon &p : SymbolOutline::of(shape->word, shape->polygon)) {
        std::vector<double> points;
        for (size_t k = 0; k < p.x.size(); ++k) {
            // u across the bar, v from its end (-0.5) to its base (0.5).
            double u = p.x[k], v = p.y[k];
            switch (endSide) {
                case kBottom:
                    points.insert(points.end(), {cx + u * w, cy - v * h});
                    break;
                case kRight:
                    points.insert(points.end(), {cx - v * w, cy + u * h});
                    break;
                case kLeft:
                    points.insert(points.end(), {cx + v * w, cy + u * h});
                    break;
                default:
                    points.insert(points.end(), {cx + u * w, cy + v * h});
                    break;
            }
        }
        result.push_back(points);
    }
    return result;
}

void BarPainter::paint(int x1, int y1, int x2, int y2, int endSide, int fill, int edgeWord,
                       const BarLook &look) {
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    int edge = resolveEdge(edgeWord, fill, look);
    if (look.depth > 0) {
        paintFaces(outline(look.shape, x1, y1, x2, y2, endSide), fill, edge, look.depth);
        if (look.shape)
            paintShape(x1, y1, x2, y2, endSide, fill, edge, look);
        else
            paintFront(x1, y1, x2, y2, endSide, fill, edge, look, false);
        return;
    }
    if (look.shape)
        paintShape(x1, y1, x2, y2, endSide, fill, edge, look);
    else
        paintFront(x1, y1, x2, y2, endSide, fill, edge, look, true);
}

int BarPainter::litFill(int x1, int y1, int x2, int y2, int endSide, int fill, int effect) {
    int pairs[4];
    Chart::getBarLighting(pairs, effect, 1.0);
    // The start brightness at both sides, the end brightness in the middle.
    const int table[6] = {0, pairs[3], 128, pairs[1], 256, pairs[3]};
    IntArray lighting(table, 6);
    return lying(endSide)
               ? d->linearLightingColor(x1, y1 - 0.5, x1, y2 + 0.5, fill, lighting, false)
               : d->linearLightingColor(x1 - 0.5, y1, x2 + 0.5, y1, fill, lighting, false);
}

void BarPainter::paintFront(int x1, int y1, int x2, int y2, int endSide, int fill, int edge,
                            const BarLook &look, bool rounded) {
    int radius[4] = {0, 0, 0, 0};
    if (rounded) canvasRadii(look.radius, endSide, radius);
    int effect = look.effect;
    if (Chart::isBarLighting(effect)) {
        int lit = litFill(x1, y1, x2, y2, endSide, fill, effect);
        paintBox(x1, y1, x2, y2, radius, lit, d->getARGBColor(edge) == kTransparent ? lit : edge,
                 look.lineWidth);
        return;
    }
    if (effect == 0) {
        paintBox(x1, y1, x2, y2, radius, fill, edge, look.lineWidth);
        return;
    }
    if (lying(endSide)) effect = Chart::setDefaultCylinderOrientation(effect, kLyingCylinder);
    // Without an edge the lit box reaches one pixel further, so that no seam
    // of the background shows around it.
    if (d->getARGBColor(edge) == kTransparent) {
        --x1, --y1, ++x2, ++y2;
        edge = kTransparent;
    }
    d->rect(x1, y1, x2, y2, edge, fill, effect);
}

void BarPainter::paintBox(int x1, int y1, int x2, int y2, const int radius[4], int fill, int edge,
                          int lineWidth) {
    int most = std::max(std::min(x2 - x1 + 1, y2 - y1 + 1) / 2, 0);
    int r[4];
    for (int k = 0; k < 4; ++k) r[k] = std::max(std::min(radius[k], most), 0);
    if (lineWidth <= 0) edge = kTransparent;
    if (lineWidth <= 1) {
        const int edges[4] = {edge, edge, edge, edge};
        d->roundedRect(x1, y1, x2, y2, r, edges, fill);
        return;
    }
    const int none[4] = {kTransparent, kTransparent, kTransparent, kTransparent};
    d->roundedRect(x1, y1, x2, y2, r, none, fill);
    d->frameRect(x1, y1, x2, y2, r, lineWidth, edge);
}

void BarPainter::paintShape(int x1, int y1, int x2, int y2, int endSide, int fill, int edge,
                            const BarLook &look) {
    if (Chart::isBarLighting(look.effect))
        fill = litFill(x1, y1, x2, y2, endSide, fill, look.effect);
    int lineWidth = std::max(look.lineWidth, 0);
    if (look.shape->isRound() && look.depth <= 0) {
        DataSymbol::draw2(d, look.shape->word, look.shape->polygon, x1, y1, x2 - x1 + 1,
                          y2 - y1 + 1, fill, edge, lineWidth);
        return;
    }
    for (const std::vector<double> &points : outline(look.shape, x1, y1, x2, y2, endSide)) {
        std::vector<double> xs, ys;
        for (size_t k = 0; k + 1 < points.size(); k += 2) {
            xs.push_back(points[k]);
            ys.push_back(points[k + 1]);
        }
        d->polygon(DoubleArray(xs.data(), (int)xs.size()), DoubleArray(ys.data(), (int)ys.size()),
                   lineWidth > 0 ? edge : kTransparent, fill);
    }
}

// The faces that look up or right, towards the shift of the back.
void BarPainter::paintFaces(const std::vector<std::vector<double>> &outlines, int fill, int edge,
                            int depth) {
    int top = d->adjustBrightness(fill, kTopFaceShade);
    int side = d->adjustBrightness(fill, kSideFaceShade);
    bool ownEdge = d->getARGBColor(edge) != kTransparent && edge != fill;
    for (const std::vector<double> &points : outlines) {
        size_t n = points.size() / 2;
        if (n < 3) continue;
        double cx = 0, cy = 0;
        for (size_t k = 0; k < n; ++k) cx += points[2 * k], cy += points[2 * k + 1];
        cx /= n, cy /= n;
        for (size_t k = 0; k < n; ++k) {
            double ax = points[2 * k], ay = points[2 * k + 1];
            double bx = points[2 * ((k + 1) % n)], by = points[2 * ((k + 1) % n) + 1];
            double nx = by - ay, ny = ax - bx;
            // Outward: away from the middle.
            if (nx * ((ax + bx) / 2 - cx) + ny * ((ay + by) / 2 - cy) < 0) nx = -nx, ny = -ny;
            if (nx - ny <= 0) continue;
            int face = -ny >= nx ? top : side;
            d->surface(ax, ay, bx, by, depth, -depth, ownEdge ? edge : face, face);
        }
    }
}
