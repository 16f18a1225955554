#include "draw/raster/scan/AAEllipseEdge.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "draw/pixel/ColorWords.h"
#include "draw/raster/scan/ShapeTarget.h"

AAEllipseEdge::AAEllipseEdge(int color, double cx, double cy, double rx, double ry, double x1,
                             double y1, double x2, double y2, bool reverse)
    : AAEdge(color), cx(cx), cy(cy), rx(std::fabs(rx)), ry(std::fabs(ry)) {
    // Snapped like the ends of the lines that join the arc.
    x1 = snap(x1), y1 = snap(y1), x2 = snap(x2), y2 = snap(y2);
    rx2 = this->rx * this->rx;
    ratio = this->ry == 0 ? 1e100 : rx2 / (this->ry * this->ry);
    ratio2 = ratio * ratio;
    leftHalf = cx > x1 || cx > x2 || (cx == x1 && cx == x2 && y1 > y2);
    downward = (y1 >= y2) != reverse;
    if (y1 <= y2) {
        topX = x1, topY = y1, bottomX = x2, bottomY = y2;
    } else {
        topX = x2, topY = y2, bottomX = x1, bottomY = y1;
    }
    yMin = topY, yMax = bottomY;
}

double AAEllipseEdge::halfWidth(double y) const {
    double dy = y - cy;
    return std::sqrt(std::max(rx2 - ratio * dy * dy, 0.0));
}

double AAEllipseEdge::xOnEdge(double y) const {
    double h = halfWidth(y);
    return leftHalf ? cx - h : cx + h;
}

AASpan AAEllipseEdge::spanAt(double y) const {
    AASpan s;
    if (y - yMin < 0.1) {
        s.x = topX;
        s.factor = 1;
        s.minX = cx - rx;
        s.maxX = cx + rx;
        return s;
    }
    double dy = y - cy;
    double h2 = std::max(rx2 - ratio * dy * dy, 0.0);
    double h = std::sqrt(h2);
    double den = dy * dy * ratio2 + h2;
    s.factor = den > 0 ? std::sqrt(h2 / den) : 1;
    s.x = leftHalf ? cx - h : cx + h;
    // The x range over the row: the ends of the row and the widest point if it
    // falls inside.
    double ya = std::max(y - 0.5, yMin), yb = std::min(y + 0.5, yMax);
    double xa = xOnEdge(ya), xb = xOnEdge(yb);
    double lo = std::min(xa, xb), hi = std::max(xa, xb);
    if (cy > ya && cy < yb) {
        double xc = xOnEdge(cy);
        lo = std::min(lo, xc), hi = std::max(hi, xc);
    }
    s.minX = lo, s.maxX = hi;
    return s;
}

void AAEllipseEdge::drawOutline(ShapeTarget *target) const {
    if (!ColorWord::paints(color)) return;
    int clipLeft, clipTop, clipRight, clipBottom;
    target->getClip(&clipLeft, &clipTop, &clipRight, &clipBottom);
    // Only the rows near the clip are walked.
    double y0 = std::max(yMin, clipTop - 2.0), y1 = std::min(yMax, clipBottom + 2.0);
    if (!(y1 > y0)) return;
    // One step per pixel row; the end steps are split at their thirds, where the
    // curve turns fastest, so that it doesn't look polygonal.
    std::vector<double> ys;
    ys.push_back(y0);
    double first = std::floor(y0) + 1, last = std::ceil(y1) - 1;
    if (first <= last) {
        if (y0 == yMin) ys.push_back(0.667 * y0 + 0.333 * first);
        for (double y = first; y <= last; ++y) ys.push_back(y);
        if (y1 == yMax) ys.push_back(0.333 * last + 0.667 * y1);
    }
    ys.push_back(y1);
    auto xAt = [&](double y) {
        if (y == yMin) return topX;
        if (y == yMax) return bottomX;
        return xOnEdge(y);
    };
    double px = xAt(ys[0]), py = ys[0];
    for (size_t i = 1; i < ys.size(); ++i) {
        double x = xAt(ys[i]);
        if (ys[i] > py) target->outlineLine(px, py, x, ys[i], color);
        px = x, py = ys[i];
    }
}
