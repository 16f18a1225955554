#pragma once

#include "chart/axis/paint/LineObj.h"
#include "chart/axis/paint/Mark.h"
#include "text/box/TextBoxImpl2.h"

// A mark: its settings, the box its label is made from, and the line as last
// laid out.
class MarkImpl : public Mark, public TextBoxImpl2, public LineObj {
public:
    MarkImpl(BoxContainer *container, double value, int lineColor);

    void setValue(double v) override { value = v; }
    void setMarkColor(int lineColor, int textColor, int tickColor) override;
    void setLineWidth(int width) override { lineWidth = width; }
    void setDrawOnTop(bool onTop) override { drawOnTop = onTop; }
    LineObj *getLine() override { return this; }
    DoubleArray getPoints() override;

    double getValue() const { return value; }
    int getLineColor() const { return lineColor; }
    int getTickColor() const { return tickColor; }
    int getLineWidth() const { return lineWidth; }
    bool isDrawnOnTop() const { return drawOnTop; }
    // The caller gave the label an alignment: it stands in the plot area.
    bool isInPlot() const { return isStyleSet(kAlignmentStyle); }
    bool hasLabel() const { return !getText().empty(); }

    // Where the line runs on the canvas.
    void placeLine(double x1, double y1, double x2, double y2);
    void clearLine() { lineLength = 0; }

private:
    double value;
    int lineColor;
    int tickColor;
    int lineWidth;
    bool drawOnTop;
    double line[4];
    int lineLength;
};
