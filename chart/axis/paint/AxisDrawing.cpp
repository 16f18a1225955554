#include "chart/axis/paint/AxisDrawing.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/label/TickMap.h"
#include "chart/axis/paint/AxisPainter.h"
#include "chart/axis/paint/AxisScaleView.h"
#include "chart/axis/paint/LabelAnchor.h"
#include "chart/axis/paint/MarkImpl.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "text/box/TextBoxImpl2.h"

namespace {

// Positions within this many pixels beyond the ends still count as on the axis.
const double kEndSlack = 0.5;

void releaseBox(TextBox *box) {
    box->release();
}

int roundToInt(double v) {
    const double limit = 1 << 28;
    return (int)std::floor(std::max(-limit, std::min(v, limit)) + 0.5);
}

// The default angle of a title: along the axis, read from the plot outward on
// the sides.
double titleAngleFor(int side) {
    if (side == kLeft) return 90;
    if (side == kRight) return 270;
    return 0;
}

}  // namespace

AxisDrawing::AxisDrawing(AxisPainter &painter, const AxisFrame &frame, AxisScaleView &scale,
                         DrawArea *target)
    : painter(painter),
      frame(frame),
      scale(scale),
      target(target),
      spans(painter.getMinLabelSpace()),
      labelDistance(painter.getLabelGap() + std::max(painter.getTickStyle().getLength(false), 0)),
      maxOutward(0) {}

PaintExtent AxisDrawing::run() {
    drawLine();
    drawMarks();
    drawTicks();
    drawTitle();
    return extent;
}

bool AxisDrawing::isOnAxis(double coor) const {
    return std::isfinite(coor) && coor >= -kEndSlack && coor <= scale.getLength() + kEndSlack;
}

void AxisDrawing::drawLine() {
    double length = std::max(scale.getLength(), 0);
    double x1 = frame.pointX(0, 0), y1 = frame.pointY(0, 0);
    double x2 = frame.pointX(length, 0), y2 = frame.pointY(length, 0);
    extent.addPoint(x1, y1);
    extent.addPoint(x2, y2);
    int color = painter.getAxisColor();
    if (target && !painter.getHidden() && color != kTransparent && painter.getAxisWidth() > 0)
        target->line(x1, y1, x2, y2, color, painter.getAxisWidth());
}

void AxisDrawing::drawTickMark(double coor, int length, int color, int width) {
    if (painter.getHidden() || length == 0 || color == kTransparent || width == 0) return;
    double x1 = frame.pointX(coor, 0), y1 = frame.pointY(coor, 0);
    double x2 = frame.pointX(coor, length), y2 = frame.pointY(coor, length);
    extent.addPoint(x2, y2);
    maxOutward = std::max(maxOutward, (double)length);
    if (target) target->line(x1, y1, x2, y2, color, width);
}

int AxisDrawing::labelAnchor(double fontAngle) const {
    return LabelAnchor::forLabel(frame, fontAngle, painter.getLabelAlignment());
}

TextBoxImpl2 *AxisDrawing::newBox(TextBoxImpl *parent) const {
    if (!painter.getCanvas()) return nullptr;
    return new TextBoxImpl2(painter.getContainer(), parent);
}

TextBoxImpl2 *AxisDrawing::place(TextBoxImpl2 *box, double coor, double distance, int anchor) {
    if (!box) return nullptr;
    box->setAlignment(anchor);
    box->setPos(roundToInt(frame.pointX(coor, distance)), roundToInt(frame.pointY(coor, distance)));
    box->layout(painter.getCanvas());
    if (box->getTextObject()) return box;
    box->release();
    return nullptr;
}

void AxisDrawing::spanOf(const TextBoxImpl2 *box, double *low, double *high) const {
    double l = box->getLeftX(), t = box->getTopY();
    double r = l + box->getWidth(), b = t + box->getHeight();
    double a[4] = {frame.along(l, t), frame.along(r, t), frame.along(l, b), frame.along(r, b)};
    *low = *std::min_element(a, a + 4);
    *high = *std::max_element(a, a + 4);
}

void AxisDrawing::include(TextBoxImpl2 *box) {
    double l = box->getLeftX(), t = box->getTopY();
    double r = l + box->getWidth(), b = t + box->getHeight();
    extent.addBox(l, t, box->getWidth(), box->getHeight());
    for (double o :
         {frame.outward(l, t), frame.outward(r, t), frame.outward(l, b), frame.outward(r, b)})
        maxOutward = std::max(maxOutward, o);
    if (target) box->paint(target);
}

// Marks come first: their labels take their room before the ticks' labels.
void AxisDrawing::drawMarks() {
    const TickStyle &style = painter.getTickStyle();
    const std::vector<MarkImpl *> &marks = painter.getMarks();
    for (size_t i = 0; i < marks.size(); ++i) {
        MarkImpl *mark = marks[i];
        double coor = scale.getCoor(mark->getValue());
        if (!isOnAxis(coor)) {
            if (!mark->isInPlot()) painter.setMarkBox((int)i, nullptr);
            continue;
        }
        drawTickMark(coor, style.getLength(false), mark->getTickColor(), style.getWidth(false));
        // A label in the plot is placed by the plot-area pass.
        if (mark->isInPlot()) continue;
        TextBoxImpl2 *box =
            place(newBox(mark), coor, labelDistance, labelAnchor(mark->getFontAngle()));
        painter.setMarkBox((int)i, box);
        if (!box) continue;
        double low, high;
        spanOf(box, &low, &high);
        spans.reserve(low, high);
        include(box);
    }
}

void AxisDrawing::drawTicks() {
    const TickStyle &style = painter.getTickStyle();
    for (auto &tick : scale.paintedTicks()) {
        AxisLabel &label = tick.second;
        bool minor = (label.flags & AxisLabel::kMinorTick) != 0;
        double coor = scale.getCoor(tick.first + painter.getTickOffset());
        if (!(label.flags & AxisLabel::kNoTickMark) && isOnAxis(coor))
            drawTickMark(coor, style.getLength(minor), style.getColor(minor),
                         style.getWidth(minor));
        drawLabel(tick.first, label);
    }
}

void AxisDrawing::drawLabel(double key, AxisLabel &label) {
    label.releaseTextBox();
    if ((label.flags & AxisLabel::kNoLabel) || label.text.empty()) return;
    double coor = scale.getCoor(key + painter.getLabelOffset());
    if (!isOnAxis(coor)) return;
    AxisLabelPrototype &style = painter.getLabelStyle();
    int anchor = style.isAutoAligned() ? labelAnchor(style.getFontAngle()) : style.getAlignment();
    TextBoxImpl2 *placed = newBox(&style);
    if (placed) placed->setText(label.text.c_str());
    placed = place(placed, coor, labelDistance, anchor);
    if (!placed) return;
    double low, high;
    spanOf(placed, &low, &high);
    if (!spans.accept(low, high)) {
        placed->release();
        return;
    }
    label.setTextBox(placed, releaseBox);
    include(placed);
}

void AxisDrawing::drawTitle() {
    AxisTitle &title = painter.getTitle();
    if (title.isEmpty()) {
        painter.setTitleBox(nullptr);
        return;
    }
    int part = LabelAnchor::alongPart(title.getAlignment(), frame.isHorizontal());
    double coor = (part + 1) * std::max(scale.getLength(), 0) / 2.0;
    double distance = maxOutward + painter.getTitleGap();
    TextBoxImpl2 *box = newBox(&title);
    if (box && !title.isAngleSet())
        box->setFontAngle(titleAngleFor(frame.getSide()), title.isVertical());
    box = place(box, coor, distance, LabelAnchor::forTitle(frame, part));
    painter.setTitleBox(box);
    if (box) include(box);
}
