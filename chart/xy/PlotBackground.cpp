#include "chart/xy/PlotBackground.h"

#include <algorithm>
#include <cmath>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace {

int orNone(int color) {
    return color == -1 ? kTransparent : color;
}

// The back wall: the plot moved by its 3D shift.
void backWall(const PlotFrame &p, double *l, double *t, double *r, double *b) {
    *l = p.x + p.depthX;
    *t = p.y - p.depthY;
    *r = *l + p.width;
    *b = *t + p.height;
}

}  // namespace

PlotBackground::PlotBackground()
    : bgColor(kTransparent),
      altBgColor(kTransparent),
      edgeColor(kTransparent),
      horizontalBands(false),
      quadrants(false),
      quadrantColors{kTransparent, kTransparent, kTransparent, kTransparent},
      imageAlign(kCenter) {}

void PlotBackground::setBackground(int color, int altColor, int edge) {
    bgColor = color;
    altBgColor = orNone(altColor);
    edgeColor = orNone(edge);
    // Alternate colours follow the horizontal grid lines, as most charts have them.
    horizontalBands = true;
    quadrants = false;
}

void PlotBackground::setAltBgColor(bool horizontal, int color1, int color2, int edge) {
    bgColor = color1;
    altBgColor = orNone(color2);
    edgeColor = orNone(edge);
    horizontalBands = horizontal;
    quadrants = false;
}

void PlotBackground::set4QBgColor(const int colors[4], int edge) {
    std::copy(colors, colors + 4, quadrantColors);
    edgeColor = orNone(edge);
    quadrants = true;
}

void PlotBackground::setImage(const char *path, int align) {
    imagePath = path ? path : "";
    imageAlign = align;
}

bool PlotBackground::hasBands() const {
    return !quadrants && altBgColor != kTransparent;
}

void PlotBackground::paint(DrawArea *d, const PlotFrame &plot, const std::vector<double> &bandEdges,
                           double originX, double originY) {
    if (!d) return;
    double l, t, r, b;
    backWall(plot, &l, &t, &r, &b);
    if (quadrants) {
        paintQuadrants(d, plot, originX, originY);
    } else {
        if (bgColor != kTransparent) d->rect(l, t, r, b, bgColor, bgColor, 0);
        if (hasBands()) paintBands(d, plot, bandEdges);
    }
    paintImage(d, plot);
}

void PlotBackground::paintBands(DrawArea *d, const PlotFrame &plot,
                                const std::vector<double> &bandEdges) {
    double l, t, r, b;
    backWall(plot, &l, &t, &r, &b);
    double length = horizontalBands ? plot.height : plot.width;
    // Band i runs from edge i to edge i + 1; the stretch before the first edge
    // counts as band -1.  Odd bands take the alternate colour.
    for (int i = -1; i < (int)bandEdges.size(); ++i) {
        if (i % 2 == 0) continue;
        double from = i < 0 ? 0 : bandEdges[i];
        double to = i + 1 < (int)bandEdges.size() ? bandEdges[i + 1] : length;
        from = std::floor(std::max(from, 0.0) + 0.5);
        to = std::floor(std::min(to, length) + 0.5);
        if (from >= to) continue;
        if (horizontalBands)
            d->rect(l, b - to, r, b - from, altBgColor, altBgColor, 0);
        else
            d->rect(l + from, t, l + to, b, altBgColor, altBgColor, 0);
    }
}

void PlotBackground::paintQuadrants(DrawArea *d, const PlotFrame &plot, double originX,
                                    double originY) {
    double l, t, r, b;
    backWall(plot, &l, &t, &r, &b);
    double ox = std::floor(std::min(std::max(originX + plot.depthX, l), r) + 0.5);
    double oy = std::floor(std::min(std::max(originY - plot.depthY, t), b) + 0.5);
    const double boxes[4][4] = {{ox, t, r, oy}, {l, t, ox, oy}, {l, oy, ox, b}, {ox, oy, r, b}};
    for (int q = 0; q < 4; ++q) {
        const double *box = boxes[q];
        int color = quadrantColors[q];
        if (color == kTransparent || box[0] >= box[2] || box[1] >= box[3]) continue;
        d->rect(box[0], box[1], box[2], box[3], color, color, 0);
    }
}

void PlotBackground::paintImage(DrawArea *d, const PlotFrame &plot) {
    if (imagePath.empty()) return;
    DrawArea *image = d->createSubDrawArea(1, 1);
    if (image->load(imagePath.c_str())) {
        double l, t, r, b;
        backWall(plot, &l, &t, &r, &b);
        int left, top, right, bottom;
        d->getClipRect(&left, &top, &right, &bottom);
        d->setClipRect((int)l, (int)t, (int)r, (int)b);
        if (imageAlign >= kBottomLeft && imageAlign <= kTopRight)
            d->merge(image, (int)l + DrawArea::alignX(plot.width, imageAlign),
                     (int)t + DrawArea::alignY(plot.height, imageAlign), imageAlign, 0);
        else
            d->tile(image, 0);
        d->setClipRect(left, top, right, bottom);
    }
    image->destroy();
}

void PlotBackground::paintWalls(DrawArea *d, const PlotFrame &plot) {
    if (!d || (plot.depthX == 0 && plot.depthY == 0)) return;
    int wall = quadrants ? quadrantColors[2] : bgColor;
    double x1 = plot.x, y1 = plot.y, x2 = plot.right(), y2 = plot.bottom();
    double dx = plot.depthX, dy = plot.depthY;
    const double left[8] = {x1, y1, x1 + dx, y1 - dy, x1 + dx, y2 - dy, x1, y2};
    const double floor[8] = {x1, y2, x1 + dx, y2 - dy, x2 + dx, y2 - dy, x2, y2};
    d->polyShape(DoubleArray(left, 8), edgeColor, wall);
    d->polyShape(DoubleArray(floor, 8), edgeColor, wall);
}

void PlotBackground::paintEdge(DrawArea *d, const PlotFrame &plot) {
    if (!d || edgeColor == kTransparent) return;
    double l, t, r, b;
    backWall(plot, &l, &t, &r, &b);
    d->rect(l, t, r, b, edgeColor, kTransparent, 0);
    if (plot.depthX == 0 && plot.depthY == 0) return;
    // The front edges of the walls.
    d->line(plot.x, plot.y, l, t, edgeColor, 1);
    d->line(plot.x, plot.y, plot.x, plot.bottom(), edgeColor, 1);
    d->line(plot.x, plot.bottom(), plot.right(), plot.bottom(), edgeColor, 1);
    d->line(plot.right(), plot.bottom(), r, b, edgeColor, 1);
}
