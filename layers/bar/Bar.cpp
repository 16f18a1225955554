#include "layers/bar/Bar.h"

#include <algorithm>
#include <cmath>

#include "chart/symbol/LayerPainter.h"
#include "foundation/Constants.h"

Bar::Bar(int dataItem, int dataGroup, int low, int high, int base, int zeroDirection, int shift)
    : dataItem(dataItem),
      dataGroup(dataGroup),
      low(std::min(low, high)),
      high(std::max(low, high)),
      base(base),
      zeroDirection(zeroDirection),
      shift(shift) {}

// On each side of the base, the part that reaches furthest is the outer end
// and the one that starts at the base touches it.
void Bar::markEnds(bool stacked) {
    if (!stacked) {
        for (Segment &s : segments) s.touchesBase = s.outermost = true;
        return;
    }
    int farUp = -1, farDown = -1;
    for (size_t k = 0; k < segments.size(); ++k) {
        Segment &s = segments[k];
        s.touchesBase = s.start == base;
        s.outermost = false;
        int d = directionOf(s);
        int &far = d ? farUp : farDown;
        if (far < 0 || std::abs(s.end - base) >= std::abs(segments[far].end - base)) far = (int)k;
    }
    if (farUp >= 0) segments[farUp].outermost = true;
    if (farDown >= 0) segments[farDown].outermost = true;
}

bool Bar::isFlat() const {
    for (const Segment &s : segments)
        if (s.start != s.end) return false;
    return true;
}

int Bar::directionOf(const Segment &s) const {
    if (s.end != s.start) return s.end > s.start ? 1 : 0;
    return zeroDirection;
}

int Bar::endSideOf(const Segment &s, bool swapped) const {
    bool higher = directionOf(s) == 1;
    if (swapped) return higher ? kRight : kLeft;
    return higher ? kBottom : kTop;
}

void Bar::span(int a, int b, const LayerPainter &painter, int *x1, int *y1, int *x2,
               int *y2) const {
    double ax, ay, bx, by;
    painter.map(low, std::min(a, b), &ax, &ay);
    painter.map(high, std::max(a, b), &bx, &by);
    *x1 = (int)std::min(ax, bx) + shift;
    *x2 = (int)std::max(ax, bx) + shift;
    *y1 = (int)std::min(ay, by) - shift;
    *y2 = (int)std::max(ay, by) - shift;
}

bool Bar::box(const Segment &s, const LayerPainter &painter, bool flatLine, int *x1, int *y1,
              int *x2, int *y2) const {
    int step = directionOf(s) ? 1 : -1;
    if (s.start == s.end) {
        if (!flatLine) return false;
        span(s.start + step, s.start + step, painter, x1, y1, x2, y2);
        return true;
    }
    span(s.start + step, s.end, painter, x1, y1, x2, y2);
    return true;
}
