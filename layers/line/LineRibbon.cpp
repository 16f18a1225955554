#include "layers/line/LineRibbon.h"

#include <algorithm>
#include <cmath>

#include "chart/symbol/LayerPainter.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"

namespace {

// Ribbon corners become integers in the records of some outputs.
const double kFarPixel = 1073741823.0;

double clampPixel(double v) {
    return std::max(-kFarPixel, std::min(v, kFarPixel));
}

}  // namespace

LineRibbon::LineRibbon(LayerPainter &painter, const Look &look)
    : painter(painter),
      look(look),
      edged(painter.getDrawArea()->getARGBColor(look.edgeColor) != kTransparent) {}

bool LineRibbon::showsTop(double dx, double dy, int depth) {
    // The upward normal of the face is seen when the segment, read from left
    // to right, rises slower than the depth does.
    return depth > 0 && (dx + dy) * dx > 0;
}

double LineRibbon::brightness(double dx, double dy) const {
    if (dx < 0) dx = -dx, dy = -dy;
    double length = std::sqrt(2 * (dx * dx + dy * dy));
    double c = length > 0 ? std::max((dx + dy) / length, 0.0) : 0;
    return look.lighting[0] + look.lighting[1] * c + look.lighting[2] * std::pow(c, look.lighting[3]);
}

void LineRibbon::paintRun(const std::vector<double> &x, const std::vector<double> &y) {
    size_t n = std::min(x.size(), y.size());
    if (n < 2) return;
    std::vector<double> lx(n), ly(n), cx(n), cy(n);
    for (size_t i = 0; i < n; ++i) {
        lx[i] = clampPixel(x[i]), ly[i] = clampPixel(y[i]);
        painter.map(lx[i], ly[i], &cx[i], &cy[i]);
    }
    std::vector<double> shade(n - 1);
    for (size_t k = 0; k + 1 < n; ++k) shade[k] = brightness(cx[k + 1] - cx[k], cy[k + 1] - cy[k]);
    int d = look.depth;
    edge(cx[0], cy[0], cx[0] + d, cy[0] - d);
    int sideStart = 0;
    bool lastTop = showsTop(cx[1] - cx[0], cy[1] - cy[0], d);
    for (size_t k = 0; k + 1 < n; ++k) {
        bool top = showsTop(cx[k + 1] - cx[k], cy[k + 1] - cy[k], d);
        if (top != lastTop) {
            backOutline(cx, cy, sideStart, (int)k);
            sideStart = (int)k;
            lastTop = top;
        }
        // A joint takes the mean of the faces that meet there.
        double b1 = k > 0 ? (shade[k - 1] + shade[k]) / 2 : shade[k];
        double b2 = k + 2 < n ? (shade[k] + shade[k + 1]) / 2 : shade[k];
        paintFace(lx[k], ly[k], lx[k + 1], ly[k + 1], top, b1, b2);
        edge(cx[k], cy[k], cx[k + 1], cy[k + 1]);
    }
    backOutline(cx, cy, sideStart, (int)n - 1);
}

void LineRibbon::paintFace(double x1, double y1, double x2, double y2, bool top, double b1,
                           double b2) {
    int d = look.depth;
    if (look.lit)
        painter.exactStrip(x1, y1, x2, y2, d, -d, look.color, b1, b2);
    else
        painter.surface(x1, y1, x2, y2, d, -d, kTransparent, top ? look.topColor : look.color);
}

void LineRibbon::edge(double x1, double y1, double x2, double y2) {
    if (edged) painter.getDrawArea()->line(x1, y1, x2, y2, look.edgeColor, 1);
}

void LineRibbon::backOutline(const std::vector<double> &cx, const std::vector<double> &cy,
                             int from, int to) {
    int d = look.depth;
    for (int k = from; k < to; ++k) edge(cx[k] + d, cy[k] - d, cx[k + 1] + d, cy[k + 1] - d);
    edge(cx[to], cy[to], cx[to] + d, cy[to] - d);
}
