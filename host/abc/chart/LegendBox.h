#pragma once

#include "api/chart/CLegendBox.h"
#include "host/abc/DrawArea.h"
#include "host/abc/chart/TextBox.h"

namespace abc {

class LegendBox : public TextBox {
public:
    explicit LegendBox(CLegendBox *handle)
        : TextBox(CLegendBox_toTextBox(handle)), legend(handle) {}

    CLegendBox *getHandle() const { return legend; }
    void addKey(const char *text, int color, int lineWidth, DrawArea *icon) {
        CLegendBox_addKey(legend, text, color, lineWidth, DrawArea::handleOf(icon));
    }
    void addKey2(int pos, const char *text, int color, int lineWidth, DrawArea *icon) {
        CLegendBox_addKey2(legend, pos, text, color, lineWidth, DrawArea::handleOf(icon));
    }
    void addText(const char *text) { CLegendBox_addText(legend, text); }
    void addText2(int pos, const char *text) { CLegendBox_addText2(legend, pos, text); }
    void setCols(int cols) { CLegendBox_setCols(legend, cols); }
    void setReverse(bool reverse) { CLegendBox_setReverse(legend, reverse); }
    void setLineStyleKey(bool lineStyle) { CLegendBox_setLineStyleKey(legend, lineStyle); }
    void setKeySize(int width, int height, int gap) {
        CLegendBox_setKeySize(legend, width, height, gap);
    }
    void setKeySpacing(int keySpacing, int lineSpacing) {
        CLegendBox_setKeySpacing(legend, keySpacing, lineSpacing);
    }
    void setKeyBorder(int edgeColor, int raisedEffect) {
        CLegendBox_setKeyBorder(legend, edgeColor, raisedEffect);
    }
    const char *getImageCoor2(int dataItem, int offsetX, int offsetY) {
        return CLegendBox_getImageCoor2(legend, dataItem, offsetX, offsetY);
    }
    const char *getHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                int offsetX, int offsetY) {
        return CLegendBox_getHTMLImageMap(legend, url, queryFormat, extraAttr, offsetX, offsetY);
    }

private:
    CLegendBox *legend;
};

}  // namespace abc
