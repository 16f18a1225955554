#include "chart/base/LineImpl.h"

#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"

LineImpl::LineImpl() : x1(0), y1(0), x2(0), y2(0), color(kLineColor), lineWidth(1) {}

void LineImpl::setPos(int ax, int ay, int bx, int by) {
    x1 = ax;
    y1 = ay;
    x2 = bx;
    y2 = by;
}

void LineImpl::paint(DrawArea *d) {
    if (d) d->line(x1, y1, x2, y2, color, lineWidth);
}
