#include "draw/vector/VectorPath.h"

#include <cmath>

namespace {

const double kTwoPi = 6.283185307179586;

PathSegment step(PathSegment::Kind kind, double x, double y) {
    return PathSegment{kind, x, y, 0, 0, 0, 0, 0, 0};
}

}  // namespace

void VectorPath::moveTo(double x, double y) {
    // A second figure makes any simpler form a general outline.
    if (!steps.empty()) form = kGeneral;
    steps.push_back(step(PathSegment::kMove, x, y));
    curX = startX = x, curY = startY = y;
}

void VectorPath::lineTo(double x, double y) {
    if (steps.empty()) return moveTo(x, y);
    steps.push_back(step(PathSegment::kLine, x, y));
    curX = x, curY = y;
}

void VectorPath::halfArcTo(double cx, double cy, double rx, double ry, double x, double y,
                           bool leftHalf) {
    rx = std::fabs(rx), ry = std::fabs(ry);
    if (steps.empty()) moveTo(x, y);
    if (!(rx > 0) || !(ry > 0) || (x == curX && y == curY)) return lineTo(x, y);
    double a1 = std::atan2((curY - cy) / ry, (curX - cx) / rx);
    double a2 = std::atan2((y - cy) / ry, (x - cx) / rx);
    double sweep = std::fmod(a2 - a1 + 2 * kTwoPi, kTwoPi);
    // The way round whose middle lies on the named half.
    if ((std::cos(a1 + sweep / 2) < 0) != leftHalf) sweep -= kTwoPi;
    if (!std::isfinite(sweep)) return lineTo(x, y);
    PathSegment s = step(PathSegment::kArc, x, y);
    s.cx = cx, s.cy = cy, s.rx = rx, s.ry = ry, s.startAngle = a1, s.sweep = sweep;
    steps.push_back(s);
    curX = x, curY = y;
}

void VectorPath::close() {
    if (steps.empty() || steps.back().kind == PathSegment::kClose) return;
    steps.push_back(step(PathSegment::kClose, startX, startY));
    curX = startX, curY = startY;
}

void VectorPath::clear() {
    steps.clear();
    form = kGeneral;
    cornerRadius = 0;
}

void VectorPath::append(const VectorPath &other) {
    form = kGeneral;
    for (const PathSegment &s : other.steps) {
        steps.push_back(s);
        if (s.kind == PathSegment::kMove) startX = s.x, startY = s.y;
    }
    if (!other.steps.empty()) curX = other.curX, curY = other.curY;
}

VectorPath VectorPath::rect(const VectorBox &b, double r) {
    VectorPath p;
    r = std::max(0.0, std::min(r, std::min(b.width(), b.height()) / 2));
    if (r <= 0) {
        p.moveTo(b.left, b.top);
        p.lineTo(b.right, b.top);
        p.lineTo(b.right, b.bottom);
        p.lineTo(b.left, b.bottom);
    } else {
        p.moveTo(b.left + r, b.top);
        p.lineTo(b.right - r, b.top);
        p.halfArcTo(b.right - r, b.top + r, r, r, b.right, b.top + r, false);
        p.lineTo(b.right, b.bottom - r);
        p.halfArcTo(b.right - r, b.bottom - r, r, r, b.right - r, b.bottom, false);
        p.lineTo(b.left + r, b.bottom);
        p.halfArcTo(b.left + r, b.bottom - r, r, r, b.left, b.bottom - r, true);
        p.lineTo(b.left, b.top + r);
        p.halfArcTo(b.left + r, b.top + r, r, r, b.left + r, b.top, true);
    }
    p.close();
    p.form = kRect;
    p.cornerRadius = r;
    return p;
}

VectorBox VectorPath::bounds() const {
    VectorBox box = VectorBox::none();
    for (const PathSegment &s : steps) {
        box.add(s.x, s.y);
        if (s.kind != PathSegment::kArc) continue;
        // The ellipse's extreme points that the arc passes.
        for (int k = -6; k <= 6; ++k) {
            double a = k * kTwoPi / 4;
            double lo = std::min(s.startAngle, s.startAngle + s.sweep);
            double hi = std::max(s.startAngle, s.startAngle + s.sweep);
            if (a > lo && a < hi) box.add(s.cx + s.rx * std::cos(a), s.cy + s.ry * std::sin(a));
        }
    }
    return box;
}
