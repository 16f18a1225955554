#include "draw/raster/scan/SpanPainter.h"

#include <algorithm>
#include <cmath>

#include "draw/raster/scan/ShapeTarget.h"

namespace {

bool spanLess(const SpanPainter::RowSpan &a, const SpanPainter::RowSpan &b) {
    if (a.span.x != b.span.x) return a.span.x < b.span.x;
    if (a.span.factor != b.span.factor) return a.span.factor < b.span.factor;
    return a.edge < b.edge;
}

// Pixel limits well inside int range for any finite or infinite double.
int floorLimited(double v) {
    return (int)std::floor(std::max(std::min(v, 1e9), -1e9));
}
int ceilLimited(double v) {
    return (int)std::ceil(std::max(std::min(v, 1e9), -1e9));
}

}  // namespace

SpanPainter::SpanPainter(ShapeTarget *target, int color, bool inset)
    : target(target), color(color), half(inset ? 0.5 : 0) {
    antiAlias = target->isAntiAlias();
    target->getClip(&clipLeft, &clipTop, &clipRight, &clipBottom);
}

bool SpanPainter::rowRange(double minY, double maxY, int *first, int *last) const {
    if (!(minY <= maxY)) return false;
    // An inset shape keeps its rows half a pixel inside the top and bottom too.
    *first = std::max(ceilLimited(minY + half), clipTop);
    *last = std::min(floorLimited(maxY - half), clipBottom);
    return *first <= *last;
}

double SpanPainter::leftCoverage(double x, double xL, double fL, double xR, double fR,
                                 double half) {
    double cL = fL * (x - xL - half) + 0.5;
    double cR = fR * (x + half - xR) + 0.5;
    return std::min(cL, 1.0) - std::max(cR, 0.0);
}

double SpanPainter::rightCoverage(double x, double xL, double fL, double xR, double fR,
                                  double half) {
    double c = fR * (xR - half - x) + 0.5;
    double cL = fL * (xL + half - x) + 0.5;
    return std::min(c, 1.0) - std::max(cL, 0.0);
}

int SpanPainter::levelOf(double coverage) {
    if (!(coverage > 0)) return 0;
    if (coverage >= 1) return 16;
    return (int)std::floor(16 * coverage + 0.5);
}

void SpanPainter::paintRow(std::vector<RowSpan> &spans, int y) {
    std::sort(spans.begin(), spans.end(), spanLess);
    for (size_t i = 0; i + 1 < spans.size(); i += 2) paintPair(spans[i].span, spans[i + 1].span, y);
}

void SpanPainter::fringe(int x, int y, double coverage) {
    if (antiAlias) {
        int level = levelOf(coverage);
        if (level > 0) target->fringePixel(x, y, level, color);
    } else if (coverage >= 0.5) {
        target->fringePixel(x, y, 16, color);
    }
}

void SpanPainter::paintPair(const AASpan &l, const AASpan &r, int y) {
    if (!std::isfinite(l.x) || !std::isfinite(r.x)) return;
    double fL = std::max(l.factor, 1e-9), fR = std::max(r.factor, 1e-9);
    int lb = floorLimited(half + std::min(std::min(l.maxX, l.x + 0.5 / fL), r.maxX));
    int rb = ceilLimited(-half + std::max(std::max(r.minX, r.x - 0.5 / fR), l.minX));
    if (rb <= lb) rb = lb + 1;
    // Left fringe, from the inside out.
    for (int x = std::min(lb, clipRight); x >= clipLeft; --x) {
        if (fL * (x - l.x - half) + 0.5 <= 0) break;
        fringe(x, y, leftCoverage(x, l.x, fL, r.x, fR, half));
    }
    int s1 = std::max(lb + 1, clipLeft), s2 = std::min(rb - 1, clipRight);
    if (s1 <= s2) target->solidSpan(s1, s2, y, color);
    for (int x = std::max(rb, clipLeft); x <= clipRight; ++x) {
        if (fR * (r.x - half - x) + 0.5 <= 0) break;
        fringe(x, y, rightCoverage(x, l.x, fL, r.x, fR, half));
    }
}
