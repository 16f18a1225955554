#include "layers/area/AreaSides.h"

#include <cmath>

#include "chart/symbol/LayerPainter.h"
#include "draw/pixel/ColorWords.h"

AreaSides::AreaSides(LayerPainter &painter, const LineRibbon::Look &look, bool swapped,
                     int endColor)
    : painter(painter), look(look), swapped(swapped), endColor(endColor) {}

void AreaSides::outerEdge(const std::vector<double> &x, const std::vector<double> &top,
                          const std::vector<double> &base, std::vector<double> &edgeX,
                          std::vector<double> &edgeY) const {
    edgeX.clear();
    edgeY.clear();
    for (size_t k = 0; k < x.size(); ++k) {
        if (k > 0) {
            double a = outward(top[k - 1], base[k - 1]), b = outward(top[k], base[k]);
            double dy = top[k] - top[k - 1];
            if (((a > 0 && b < 0) || (a < 0 && b > 0)) && dy != 0) {
                // The crossing, from the previous point, on whole pixels.
                double dx = x[k] - x[k - 1];
                edgeX.push_back(x[k - 1] + std::floor(dx * (base[k] - top[k - 1]) / dy + 0.5));
                edgeY.push_back(base[k]);
            }
        }
        edgeX.push_back(x[k]);
        edgeY.push_back(outward(top[k], base[k]) > 0 ? top[k] : base[k]);
    }
}

void AreaSides::paintRun(const std::vector<double> &x, const std::vector<double> &top,
                         const std::vector<double> &base) {
    if (look.depth <= 0 || x.size() < 2) return;
    std::vector<double> edgeX, edgeY;
    outerEdge(x, top, base, edgeX, edgeY);
    // The end the depth leads to: the right one, or on a chart with swapped
    // axes the upper one.
    size_t end = x.size() - 1;
    double a, b, c, d;
    painter.map(x[0], top[0], &a, &b);
    painter.map(x[end], top[end], &c, &d);
    bool lastLeads = swapped ? d < b : c > a;
    size_t k = lastLeads ? end : 0;
    double edgeEnd = lastLeads ? edgeY.back() : edgeY.front();
    painter.surface(x[k], edgeEnd, x[k], base[k], look.depth, -look.depth, look.edgeColor,
                    endColor);
    LineRibbon(painter, look).paintRun(edgeX, edgeY);
}
