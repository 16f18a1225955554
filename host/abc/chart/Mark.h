#pragma once

#include "api/chart/CMark.h"
#include "host/abc/chart/LineObj.h"
#include "host/abc/chart/TextBox.h"

namespace abc {

// A line across the plot at a value of an axis, with its label.  The wrapper
// belongs to its axis's wrapper; the wrapper of its line to it.
class Mark : public TextBox {
public:
    explicit Mark(CMark *handle) : TextBox(CMark_toTextBox(handle)), mark(handle), line(nullptr) {}
    ~Mark() override { delete line; }

    CMark *getHandle() const { return mark; }
    void setValue(double value) { CMark_setValue(mark, value); }
    void setMarkColor(int lineColor, int textColor, int tickColor) {
        CMark_setMarkColor(mark, lineColor, textColor, tickColor);
    }
    void setLineWidth(int width) { CMark_setLineWidth(mark, width); }
    void setDrawOnTop(bool onTop) { CMark_setDrawOnTop(mark, onTop); }
    LineObj *getLine() {
        if (!line) line = new LineObj(CMark_getLine(mark));
        return line->getHandle() ? line : nullptr;
    }

private:
    CMark *mark;
    LineObj *line;
};

}  // namespace abc
