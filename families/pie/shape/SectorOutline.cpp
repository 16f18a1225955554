#include "families/pie/shape/SectorOutline.h"

#include <algorithm>
#include <cmath>

#include "families/pie/shape/SectorGeometry.h"

namespace {

// Longest arc piece between two outline points: 5 degrees.
const double kArcStep = kPi / 36;

}  // namespace

void SectorOutline::arc(const SectorGeometry &g, double rx, double ry, bool reversed,
                        std::vector<double> &x, std::vector<double> &y) {
    double span = std::min(std::max(g.span, 0.0), PieAngle::kFullCircle);
    int pieces = std::max((int)std::ceil(span / kArcStep), 1);
    for (int i = 0; i <= pieces; ++i) {
        double t = g.start + span * (reversed ? pieces - i : i) / pieces;
        x.push_back(g.pointX(t, rx));
        y.push_back(g.pointY(t, ry));
    }
}

void SectorOutline::closed(const SectorGeometry &g, double rx, double ry, double innerRx,
                           double innerRy, std::vector<double> &x, std::vector<double> &y) {
    arc(g, rx, ry, false, x, y);
    if (g.isWhole()) return;
    if (innerRx > 0 && innerRy > 0) {
        arc(g, innerRx, innerRy, true, x, y);
    } else {
        x.push_back(g.x);
        y.push_back(g.y);
    }
    x.push_back(x.front());
    y.push_back(y.front());
}
