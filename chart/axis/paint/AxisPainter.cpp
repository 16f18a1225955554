#include "chart/axis/paint/AxisPainter.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/paint/AxisDrawing.h"
#include "chart/axis/paint/AxisFrame.h"
#include "chart/axis/paint/AxisPlotPass.h"
#include "chart/axis/paint/MarkImpl.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

AxisPainter::AxisPainter(BoxContainer *container, DrawArea *canvas)
    : container(container),
      canvas(canvas),
      isHidden(false),
      x(0),
      y(0),
      offsetX(0),
      offsetY(0),
      angle(0),
      alignment(kCenter),
      axisOffsetX(kNoOffset),
      axisOffsetY(kNoOffset),
      axisColor(kLineColor),
      axisWidth(1),
      labelGap(1),
      titleGap(3),
      labelAlignment(0),
      minLabelSpace(0),
      tickOffset(0),
      labelOffset(0),
      labelStyle(container),
      title(container),
      titleBox(nullptr) {}

AxisPainter::~AxisPainter() {
    setTitleBox(nullptr);
    for (TextBoxImpl2 *box : markBoxes)
        if (box) box->release();
    for (MarkImpl *mark : marks) mark->release();
}

void AxisPainter::setPosition(int px, int py) {
    x = px;
    y = py;
}

void AxisPainter::setAngle(double a) {
    angle = std::isfinite(a) ? a : 0;
}

void AxisPainter::setColors(int axis, int label, int titleColor, int tickColor) {
    axisColor = axis;
    labelStyle.setFontColor(label);
    title.setFontColor(titleColor == -1 ? label : titleColor);
    ticks.setColor(tickColor == -1 ? axis : tickColor, ticks.getMinorColor());
}

void AxisPainter::setOffset(int ox, int oy) {
    axisOffsetX = ox;
    axisOffsetY = oy;
    offsetX = ox == kNoOffset ? 0 : ox;
    offsetY = oy == kNoOffset ? 0 : oy;
}

void AxisPainter::setTitlePos(int a, int gap) {
    title.setAlignment(a);
    titleGap = gap;
}

void AxisPainter::setLabelAlignment(int a, int space) {
    labelAlignment = a;
    minLabelSpace = space;
}

void AxisPainter::setTickOffset(double offset) {
    tickOffset = std::isfinite(offset) ? offset : 0;
}

void AxisPainter::setLabelOffset(double offset) {
    labelOffset = std::isfinite(offset) ? offset : 0;
}

TextBox *AxisPainter::setTitle(const char *text, const char *font, double fontSize, int fontColor) {
    title.setText(text);
    title.setFontStyle(font && *font ? font : "bold", 0);
    title.setFontSize(fontSize, 0);
    title.setFontColor(fontColor);
    return &title;
}

TextBox *AxisPainter::setLabelStyle(const char *font, double fontSize, int fontColor,
                                    double fontAngle) {
    labelStyle.setFontStyle(font, 0);
    labelStyle.setFontSize(fontSize, 0);
    labelStyle.setFontColor(fontColor);
    labelStyle.setFontAngle(fontAngle, false);
    return &labelStyle;
}

Mark *AxisPainter::addMark(double value, int lineColor, const char *text, const char *font,
                           double fontSize) {
    MarkImpl *mark = new MarkImpl(container, value, lineColor);
    mark->setText(text);
    mark->setFontStyle(font, 0);
    mark->setFontSize(fontSize, 0);
    marks.push_back(mark);
    markBoxes.push_back(nullptr);
    return mark;
}

void AxisPainter::addZone(double startValue, double endValue, int color) {
    zones.push_back({startValue, endValue, color});
}

TextBoxImpl2 *AxisPainter::getMarkBox(int i) const {
    return i >= 0 && i < (int)markBoxes.size() ? markBoxes[i] : nullptr;
}

void AxisPainter::setTitleBox(TextBoxImpl2 *box) {
    if (titleBox) titleBox->release();
    titleBox = box;
}

void AxisPainter::setMarkBox(int i, TextBoxImpl2 *box) {
    if (i < 0 || i >= (int)markBoxes.size()) {
        if (box) box->release();
        return;
    }
    if (markBoxes[i]) markBoxes[i]->release();
    markBoxes[i] = box;
}

// ---- Drawing ----

PaintExtent AxisPainter::run(const AxisFrame &frame, AxisScaleView &scale, DrawArea *target) {
    return AxisDrawing(*this, frame, scale, target).run();
}

PaintExtent AxisPainter::paintUpright(AxisScaleView &scale, DrawArea *target) {
    return run(AxisFrame::upright(alignment, (double)x + offsetX, (double)y + offsetY), scale,
               target);
}

PaintExtent AxisPainter::paintTurned(AxisScaleView &scale, DrawArea *target) {
    return run(AxisFrame::turned(angle, (double)x + offsetX, (double)y + offsetY), scale, target);
}

PaintExtent AxisPainter::paint(AxisScaleView &scale, DrawArea *target) {
    if (alignment == kBottom || alignment == kLeft || alignment == kRight || alignment == kTop)
        return paintUpright(scale, target);
    return paintTurned(scale, target);
}

int AxisPainter::getThickness(AxisScaleView &scale) {
    if (alignment != kBottom && alignment != kLeft && alignment != kRight && alignment != kTop)
        return 0;
    PaintExtent e = paintUpright(scale, nullptr);
    double t = 0;
    switch (alignment) {
        case kBottom:
            t = e.getBottom() - y;
            break;
        case kLeft:
            t = x - e.getLeft();
            break;
        case kRight:
            t = e.getRight() - x;
            break;
        default:
            t = y - e.getTop();
            break;
    }
    return (int)std::min(std::max(std::ceil(t), 0.0), (double)(1 << 28));
}

void AxisPainter::paintZones(AxisScaleView &scale, DrawArea *d, const PlotFrame &plot) {
    AxisPlotPass(*this, scale, plot).paintZones(d);
}

void AxisPainter::placeMarks(AxisScaleView &scale, const PlotFrame &plot) {
    AxisPlotPass(*this, scale, plot).placeMarks(-1);
}

void AxisPainter::paintMarks(AxisScaleView &scale, DrawArea *d, const PlotFrame &plot, bool onTop) {
    AxisPlotPass(*this, scale, plot).paintMarks(d, onTop);
}
