#include "chart/axis/paint/AxisPlotPass.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/paint/AxisPainter.h"
#include "chart/axis/paint/AxisScaleView.h"
#include "chart/axis/paint/LabelAnchor.h"
#include "chart/axis/paint/MarkImpl.h"
#include "chart/axis/paint/PlotFrame.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace {

// Pixels between a mark's line and its label in the plot.
const int kLabelGap = 2;

}  // namespace

AxisPlotPass::AxisPlotPass(AxisPainter &painter, AxisScaleView &scale, const PlotFrame &plot)
    : painter(painter),
      scale(scale),
      plot(plot),
      alongX(painter.getAlignment() == kBottom || painter.getAlignment() == kTop) {}

bool AxisPlotPass::isValid() const {
    int a = painter.getAlignment();
    return (a == kBottom || a == kTop || a == kLeft || a == kRight) && plot.width >= 0 &&
           plot.height >= 0;
}

bool AxisPlotPass::positionOf(double value, double *pos) const {
    double coor = scale.getCoor(value);
    int length = alongX ? plot.width : plot.height;
    if (!std::isfinite(coor) || coor < -0.5 || coor > length + 0.5) return false;
    coor = std::floor(std::min(std::max(coor, 0.0), (double)length) + 0.5);
    *pos = alongX ? plot.x + plot.depthX + coor : plot.bottom() - plot.depthY - coor;
    return true;
}

void AxisPlotPass::paintZones(DrawArea *d) {
    if (!d || !isValid()) return;
    int length = alongX ? plot.width : plot.height;
    for (const AxisZone &zone : painter.getZones()) {
        double a = scale.getCoor(zone.startValue), b = scale.getCoor(zone.endValue);
        if (!std::isfinite(a) || !std::isfinite(b) || zone.color == kTransparent) continue;
        double low = std::max(std::min(a, b), 0.0), high = std::min(std::max(a, b), (double)length);
        if (low > high) continue;
        low = std::floor(low + 0.5);
        high = std::floor(high + 0.5);
        int left = plot.x + plot.depthX, top = plot.y - plot.depthY;
        if (alongX)
            d->rect(left + low, top, left + high, top + plot.height, zone.color, zone.color, 0);
        else
            d->rect(left, top + plot.height - high, left + plot.width, top + plot.height - low,
                    zone.color, zone.color, 0);
    }
}

void AxisPlotPass::placeMarks(int pass) {
    if (!isValid()) return;
    const std::vector<MarkImpl *> &marks = painter.getMarks();
    for (size_t i = 0; i < marks.size(); ++i)
        placeMark((int)i, marks[i]->isInPlot() && (int)marks[i]->isDrawnOnTop() == pass);
}

void AxisPlotPass::placeMark(int index, bool withLabel) {
    MarkImpl *mark = painter.getMarks()[index];
    double pos;
    if (!positionOf(mark->getValue(), &pos)) {
        mark->clearLine();
        if (mark->isInPlot()) painter.setMarkBox(index, nullptr);
        return;
    }
    int left = plot.x + plot.depthX, top = plot.y - plot.depthY;
    if (alongX)
        mark->placeLine(pos, top, pos, top + plot.height);
    else
        mark->placeLine(left, pos, left + plot.width, pos);
    if (withLabel) painter.setMarkBox(index, placeLabel(mark, pos));
}

TextBoxImpl2 *AxisPlotPass::placeLabel(MarkImpl *mark, double pos) {
    if (!mark->hasLabel() || !painter.getCanvas()) return nullptr;
    int alignment = mark->getAlignment();
    int gap = kLabelGap + std::max(mark->getLineWidth(), 0) / 2;
    int left = plot.x + plot.depthX, top = plot.y - plot.depthY;
    int column = LabelAnchor::alongPart(alignment, true),
        row = LabelAnchor::alongPart(alignment, false);
    int x, y;
    if (alongX) {
        // A vertical line: the row picks the height, the column the side.
        x = (int)pos + column * gap;
        y = row > 0   ? top + kLabelGap
            : row < 0 ? top + plot.height - kLabelGap
                      : top + plot.height / 2;
    } else {
        x = column < 0   ? left + kLabelGap
            : column > 0 ? left + plot.width - kLabelGap
                         : left + plot.width / 2;
        y = (int)pos - row * gap;
    }
    TextBoxImpl2 *box = new TextBoxImpl2(painter.getContainer(), mark);
    box->setAlignment(LabelAnchor::besideLine(alignment, !alongX));
    box->setPos(x, y);
    box->layout(painter.getCanvas());
    if (box->getTextObject()) return box;
    box->release();
    return nullptr;
}

void AxisPlotPass::paintMarks(DrawArea *d, bool onTop) {
    if (!d || !isValid()) return;
    placeMarks(onTop ? 1 : 0);
    const std::vector<MarkImpl *> &marks = painter.getMarks();
    for (size_t i = 0; i < marks.size(); ++i) {
        MarkImpl *mark = marks[i];
        if (mark->isDrawnOnTop() != onTop) continue;
        DoubleArray line = mark->getPoints();
        if (line.len == 4 && mark->getLineWidth() > 0 && mark->getLineColor() != kTransparent)
            d->line(line.data[0], line.data[1], line.data[2], line.data[3], mark->getLineColor(),
                    mark->getLineWidth());
        TextBoxImpl2 *box = painter.getMarkBox((int)i);
        if (mark->isInPlot() && box) box->paint(d);
    }
}
