#pragma once

#include "text/box/TextBox.h"

class LineObj;

// A line across the plot area at a value of an axis, with a tick and a label.
// The box's text is the label; with no alignment set the label stands among
// the axis's labels, and with one it stands inside the plot area beside the
// line, at that end or side of it.
class Mark : public virtual TextBox {
public:
    virtual void setValue(double value) = 0;
    // A text or tick colour of -1 takes the line colour.
    virtual void setMarkColor(int lineColor, int textColor, int tickColor) = 0;
    virtual void setLineWidth(int width) = 0;
    // Above the layers (the default), or behind them.
    virtual void setDrawOnTop(bool onTop) = 0;
    virtual LineObj *getLine() = 0;
};
