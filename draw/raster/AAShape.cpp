#include "draw/raster/AAShape.h"

#include <algorithm>
#include <cmath>

#include "draw/pixel/ColorWords.h"
#include "draw/raster/scan/AAEllipseEdge.h"
#include "draw/raster/scan/AALineEdge.h"
#include "draw/raster/scan/ActiveEdgeFiller.h"
#include "draw/raster/scan/ShapeTarget.h"
#include "draw/raster/scan/SpanPainter.h"

namespace {

bool finite4(double a, double b, double c, double d) {
    return std::isfinite(a) && std::isfinite(b) && std::isfinite(c) && std::isfinite(d);
}

}  // namespace

AAShape::AAShape(ShapeTarget *target, bool exact) : target(target), exact(exact) {}

AAShape::~AAShape() {
    clear();
}

void AAShape::clear() {
    for (AAEdge *e : edges) delete e;
    edges.clear();
}

void AAShape::addEdge(AAEdge *edge) {
    edges.push_back(edge);
}

void AAShape::addLine(int color, bool exactLine, double x1, double y1, double x2, double y2) {
    if (!finite4(x1, y1, x2, y2)) return;
    addEdge(new AALineEdge(color, x1, y1, x2, y2, exact || exactLine));
}

void AAShape::addArc(int color, double cx, double cy, double rx, double ry, double x1, double y1,
                     double x2, double y2) {
    addArc2(color, false, cx, cy, rx, ry, x1, y1, x2, y2);
}

void AAShape::addArc2(int color, bool reverse, double cx, double cy, double rx, double ry,
                      double x1, double y1, double x2, double y2) {
    if (!finite4(cx, cy, rx, ry) || !finite4(x1, y1, x2, y2)) return;
    addEdge(new AAEllipseEdge(color, cx, cy, rx, ry, x1, y1, x2, y2, reverse));
}

void AAShape::paint(int color, bool inset, bool keepOutline) {
    if (target) paintOn(target, color, inset, keepOutline);
}

void AAShape::paintOn(ShapeTarget *on, int color, bool inset, bool keepOutline) {
    if (ColorWord::paints(color)) {
        if ((int)edges.size() > kMaxDirectEdges)
            fillGeneral(on, color, inset);
        else
            fillDirect(on, color, inset);
    }
    if (!keepOutline)
        for (AAEdge *e : edges) e->drawOutline(on);
}

bool AAShape::rowRange(const SpanPainter &painter, int *first, int *last) const {
    if (edges.empty()) return false;
    double minY = edges[0]->minY(), maxY = edges[0]->maxY();
    for (AAEdge *e : edges) minY = std::min(minY, e->minY()), maxY = std::max(maxY, e->maxY());
    return painter.rowRange(minY, maxY, first, last);
}

void AAShape::fillDirect(ShapeTarget *on, int color, bool inset) {
    SpanPainter painter(on, color, inset);
    int first, last;
    if (!rowRange(painter, &first, &last)) return;
    std::vector<SpanPainter::RowSpan> spans;
    for (int y = first; y <= last; ++y) {
        spans.clear();
        for (int i = 0; i < (int)edges.size(); ++i)
            if (edges[i]->crosses(y)) spans.push_back({edges[i]->spanAt(y), i});
        if (spans.size() >= 2) painter.paintRow(spans, y);
    }
}

void AAShape::fillGeneral(ShapeTarget *on, int color, bool inset) {
    SpanPainter painter(on, color, inset);
    int first, last;
    if (!rowRange(painter, &first, &last)) return;
    ActiveEdgeFiller(edges).fill(painter, first, last);
}
