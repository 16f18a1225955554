#include "chart/symbol/LayerPainter.h"

#include <algorithm>
#include <cmath>

#include "draw/canvas/DrawArea.h"
#include "foundation/ArrayViews.h"

namespace {

int toPixel(double v) {
    return (int)std::floor(std::min(std::max(v, -1073741823.0), 1073741823.0) + 0.5);
}

}  // namespace

LayerPainter::LayerPainter(DrawArea *d, bool swap, int dx, int dy)
    : canvas(d), swapXY(swap), offsetX(dx), offsetY(dy), lastX(0), lastY(0) {}

LayerPainter::~LayerPainter() {
    while (!clips.empty()) popClipRect();
}

void LayerPainter::map(double x, double y, double *px, double *py) const {
    *px = (swapXY ? y : x) + offsetX;
    *py = (swapXY ? x : y) + offsetY;
}

void LayerPainter::line(double x1, double y1, double x2, double y2, int color, int lineWidth) {
    double a, b, c, d;
    map(x1, y1, &a, &b);
    map(x2, y2, &c, &d);
    canvas->line(a, b, c, d, color, lineWidth);
}

void LayerPainter::initLineTo(double x, double y) {
    lastX = x;
    lastY = y;
}

void LayerPainter::lineTo(double x, double y, int color, int lineWidth) {
    // Segments that meet go to the canvas one after the other, which joins them
    // into one poly-line.
    line(lastX, lastY, x, y, color, lineWidth);
    initLineTo(x, y);
}

void LayerPainter::polygon(const double *x, const double *y, int n, int edgeColor, int fillColor) {
    if (!x || !y || n < 1) return;
    std::vector<double> px(n), py(n);
    for (int i = 0; i < n; ++i) map(x[i], y[i], &px[i], &py[i]);
    canvas->polygon(DoubleArray(px.data(), n), DoubleArray(py.data(), n), edgeColor, fillColor);
}

void LayerPainter::rect(double x1, double y1, double x2, double y2, int edgeColor, int fillColor,
                        int raisedEffect) {
    double a, b, c, d;
    map(x1, y1, &a, &b);
    map(x2, y2, &c, &d);
    canvas->rect(std::min(a, c), std::min(b, d), std::max(a, c), std::max(b, d), edgeColor,
                 fillColor, raisedEffect);
}

void LayerPainter::surface(double x1, double y1, double x2, double y2, int depthX, int depthY,
                           int edgeColor, int fillColor) {
    double a, b, c, d;
    map(x1, y1, &a, &b);
    map(x2, y2, &c, &d);
    canvas->surface(a, b, c, d, depthX, depthY, edgeColor, fillColor);
}

void LayerPainter::exactStrip(double x1, double y1, double x2, double y2, int depthX, int depthY,
                              int color, double brightness1, double brightness2) {
    double a, b, c, d;
    map(x1, y1, &a, &b);
    map(x2, y2, &c, &d);
    canvas->gouraudTriangle(a, b, brightness1, c, d, brightness2, c + depthX, d + depthY,
                            brightness2, color);
    canvas->gouraudTriangle(a, b, brightness1, c + depthX, d + depthY, brightness2, a + depthX,
                            b + depthY, brightness1, color);
}

void LayerPainter::vFill(double x1, double y1, double x2, double y2, double base, int color) {
    const double x[4] = {x1, x2, x2, x1};
    const double y[4] = {y1, y2, base, base};
    polygon(x, y, 4, color, color);
}

void LayerPainter::pushClipRect(double x1, double y1, double x2, double y2) {
    Clip saved;
    canvas->getClipRect(&saved.left, &saved.top, &saved.right, &saved.bottom);
    clips.push_back(saved);
    double a, b, c, d;
    map(x1, y1, &a, &b);
    map(x2, y2, &c, &d);
    canvas->setClipRect(toPixel(std::min(a, c)), toPixel(std::min(b, d)), toPixel(std::max(a, c)),
                        toPixel(std::max(b, d)));
}

void LayerPainter::popClipRect() {
    if (clips.empty()) return;
    Clip c = clips.back();
    clips.pop_back();
    canvas->setClipRect(c.left, c.top, c.right, c.bottom);
}

bool LayerPainter::isDifferentColor(int a, int b) const {
    return a != b && canvas->getARGBColor(a) != canvas->getARGBColor(b);
}
