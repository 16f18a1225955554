#include "families/pie/SectorPlacer.h"

#include <algorithm>
#include <cmath>

#include "families/pie/PieSettings.h"
#include "families/pie/SectorImpl.h"

namespace {

// Spans stay this far from nothing and from the whole circle, so that every
// arc keeps a defined direction.
const double kMinSpan = 1e-9;

int limitPixels(double v) {
    if (!(v > -SectorPlacer::kMaxPixels)) return -SectorPlacer::kMaxPixels;
    return (int)std::min(v, (double)SectorPlacer::kMaxPixels);
}

}  // namespace

SectorPlacer::SectorPlacer(const PieSettings &pie) : pie(pie) {
    radius = std::max(limitPixels(pie.radius), 1);
    innerRadius = std::min(std::max(limitPixels(pie.donutRadius), 0), radius);
    theta = std::isfinite(pie.depthAngle) ? PieAngle::toRadians(pie.depthAngle) : 0;
    // A round pie keeps its radii; a tilted one is flattened by the tilt.
    double squash = pie.shadowMode ? 1 : std::fabs(std::cos(theta));
    radiusY = (int)(radius * squash);
    innerRadiusY = (int)(innerRadius * squash);
    clockwise = pie.isClockwise();
    double start = std::isfinite(pie.startAngle) ? pie.startAngle : 0;
    firstAngle = PieAngle::toRadians(clockwise ? start : start + 360);
}

PieView SectorPlacer::getView() const {
    return PieView(pie.shadowMode ? theta : kPi, pie.severalDepths);
}

void SectorPlacer::arc(double from, double span, double *start, double *mid) const {
    double s, e;
    if (clockwise) {
        s = PieAngle::normalise(firstAngle + from);
        e = PieAngle::normalise(firstAngle + from + span);
    } else {
        s = PieAngle::normalise(firstAngle - from - span);
        e = PieAngle::normalise(firstAngle - from);
    }
    *start = s;
    *mid = e > s ? (s + e) / 2 : PieAngle::normalise((s + e) / 2 + kPi);
}

void SectorPlacer::depthVector(double depth, int *dx, int *dy) const {
    double d = std::isfinite(depth) ? std::min(std::max(depth, 0.0), (double)kMaxPixels) : 0;
    if (pie.shadowMode) {
        // The bottom lies towards the depth angle, as a point of the pie at that angle.
        *dx = PieAngle::round(d * std::sin(theta));
        *dy = -PieAngle::round(d * std::cos(theta));
    } else {
        *dx = 0;
        *dy = PieAngle::round(d);
    }
}

int SectorPlacer::explodeDistance(int distance) const {
    return distance == -1 ? radius / 4 : limitPixels(distance);
}

void SectorPlacer::explodeShift(double mid, int distance, int *dx, int *dy) const {
    *dx = PieAngle::round(std::sin(mid) * distance);
    *dy = -PieAngle::round(std::cos(mid) * distance * radiusY / radius);
}

void SectorPlacer::place(const std::vector<SectorImpl *> &sectors) const {
    int n = (int)sectors.size();
    std::vector<double> from(n + 1, 0);
    for (int i = 0; i < n; ++i)
        from[i + 1] = from[i] + PieAngle::kFullCircle * sectors[i]->getFraction();
    for (int i = 0; i < n; ++i) {
        SectorGeometry &g = sectors[i]->getGeometry();
        g.rx = radius, g.ry = radiusY;
        g.innerRx = innerRadius, g.innerRy = innerRadiusY;
        g.span =
            std::min(std::max(from[i + 1] - from[i], kMinSpan), PieAngle::kFullCircle - kMinSpan);
        arc(from[i], g.span, &g.start, &g.mid);
        double depth = pie.depth;
        if (pie.severalDepths) depth = i < (int)pie.depths.size() ? pie.depths[i] : 0;
        depthVector(depth, &g.depthX, &g.depthY);
        g.x = limitPixels(pie.cx), g.y = limitPixels(pie.cy);
        // Sectors of their own depths stand on one bottom.
        if (pie.severalDepths) g.x -= g.depthX, g.y -= g.depthY;
    }
    std::vector<int> dx(n, 0), dy(n, 0);
    explodeGroups(sectors, from, dx, dy);
    for (int i = 0; i < n; ++i) {
        SectorImpl *s = sectors[i];
        SectorGeometry &g = s->getGeometry();
        if (s->getExplode() != 0)
            explodeShift(g.mid, explodeDistance(s->getExplode()), &dx[i], &dy[i]);
        g.x += dx[i], g.y += dy[i];
        s->setLaidOut();
    }
}

void SectorPlacer::explodeGroups(const std::vector<SectorImpl *> &sectors,
                                 const std::vector<double> &from, std::vector<int> &dx,
                                 std::vector<int> &dy) const {
    int n = (int)sectors.size();
    for (const PieSettings::ExplodeGroup &group : pie.explodeList) {
        int distance = explodeDistance(group.distance);
        if (group.startSector == -1 && group.endSector == -1) {
            for (int i = 0; i < n; ++i)
                explodeShift(sectors[i]->getGeometry().mid, distance, &dx[i], &dy[i]);
            continue;
        }
        int first = std::min(std::max(group.startSector, 0), n - 1);
        int last = std::min(std::max(group.endSector, 0), n - 1);
        if (last < first) last += n;
        // The whole pie moving out would just be the pie elsewhere.
        if (n == 0 || last - first + 1 >= n) continue;
        double span = 0;
        for (int k = first; k <= last; ++k) span += from[k % n + 1] - from[k % n];
        double start, mid;
        arc(from[first], std::max(span, kMinSpan), &start, &mid);
        int gx, gy;
        explodeShift(mid, distance, &gx, &gy);
        for (int k = first; k <= last; ++k) dx[k % n] = gx, dy[k % n] = gy;
    }
}
