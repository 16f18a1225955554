#include "chart/xy/PlotGrid.h"

#include <cmath>

#include "chart/axis/AxisImpl.h"
#include "chart/axis/paint/PlotFrame.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace {

const int kDefaultGridColor = 0xE0E0E0;

}  // namespace

PlotGrid::PlotGrid()
    : hGridColor(kDefaultGridColor),
      vGridColor(kTransparent),
      minorHGridColor(-1),
      minorVGridColor(-1),
      hGridWidth(1),
      vGridWidth(1),
      minorHGridWidth(-1),
      minorVGridWidth(-1) {}

void PlotGrid::setColor(int h, int v, int minorH, int minorV) {
    hGridColor = h;
    vGridColor = v;
    minorHGridColor = minorH;
    minorVGridColor = minorV;
}

void PlotGrid::setWidth(int h, int v, int minorH, int minorV) {
    hGridWidth = h;
    vGridWidth = v == -1 ? h : v;
    minorHGridWidth = minorH;
    minorVGridWidth = minorV;
}

void PlotGrid::paint(DrawArea *d, const PlotFrame &plot, AxisImpl *axis) const {
    if (!d || !axis) return;
    int side = axis->getAlignment();
    bool horizontal = side == kLeft || side == kRight;
    if (!horizontal && side != kBottom && side != kTop) return;
    int majorColor = horizontal ? hGridColor : vGridColor;
    int minorColor = horizontal ? minorHGridColor : minorVGridColor;
    int majorWidth = horizontal ? hGridWidth : vGridWidth;
    int minorWidth = horizontal ? minorHGridWidth : minorVGridWidth;
    // Minor lines are drawn only in a colour of their own.
    if (minorColor == -1) minorColor = kTransparent;
    if (minorWidth == -1) minorWidth = majorWidth;
    int length = horizontal ? plot.height : plot.width;
    for (const auto &tick : axis->getTickMap()) {
        int flags = tick.second.flags;
        if (flags & AxisLabel::kNoTickMark) continue;
        bool minor = flags & AxisLabel::kMinorTick;
        double coor = axis->getCoor(tick.first);
        if (!std::isfinite(coor) || coor < -0.5 || coor > length + 0.5) continue;
        line(d, plot, horizontal, std::floor(coor + 0.5), minor ? minorColor : majorColor,
             minor ? minorWidth : majorWidth);
    }
}

void PlotGrid::line(DrawArea *d, const PlotFrame &plot, bool horizontal, double coor, int color,
                    int width) const {
    if (color == kTransparent || width <= 0) return;
    double dx = plot.depthX, dy = plot.depthY;
    if (horizontal) {
        double y = plot.bottom() - coor;
        d->line(plot.x + dx, y - dy, plot.right() + dx, y - dy, color, width);
        if (dx != 0 || dy != 0) d->line(plot.x, y, plot.x + dx, y - dy, color, width);
    } else {
        double x = plot.x + coor;
        d->line(x + dx, plot.y - dy, x + dx, plot.bottom() - dy, color, width);
        if (dx != 0 || dy != 0) d->line(x, plot.bottom(), x + dx, plot.bottom() - dy, color, width);
    }
}
