#include "chart/axis/paint/MarkImpl.h"

MarkImpl::MarkImpl(BoxContainer *container, double value, int lineColor)
    : TextBoxImpl2(container, nullptr),
      value(value),
      lineColor(lineColor),
      tickColor(lineColor),
      lineWidth(1),
      drawOnTop(true),
      line{0, 0, 0, 0},
      lineLength(0) {
    setFontColor(lineColor);
    setMargin(0);
}

void MarkImpl::setMarkColor(int line, int text, int tick) {
    lineColor = line;
    setFontColor(text == -1 ? line : text);
    tickColor = tick == -1 ? line : tick;
}

void MarkImpl::placeLine(double x1, double y1, double x2, double y2) {
    line[0] = x1;
    line[1] = y1;
    line[2] = x2;
    line[3] = y2;
    lineLength = 4;
}

DoubleArray MarkImpl::getPoints() {
    return DoubleArray(line, lineLength);
}
