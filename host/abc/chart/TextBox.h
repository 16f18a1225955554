#pragma once

#include "api/chart/CTextBox.h"
#include "host/abc/chart/Box.h"

namespace abc {

class TextBox : public Box {
public:
    explicit TextBox(CTextBox *handle) : Box(CTextBox_toBox(handle)), textBox(handle) {}

    CTextBox *getTextBoxHandle() const { return textBox; }
    void setText(const char *text) { CTextBox_setText(textBox, text); }
    void setAlignment(int alignment) { CTextBox_setAlignment(textBox, alignment); }
    void setFontStyle(const char *font, int fontIndex) {
        CTextBox_setFontStyle(textBox, font, fontIndex);
    }
    void setFontSize(double fontHeight, double fontWidth) {
        CTextBox_setFontSize(textBox, fontHeight, fontWidth);
    }
    void setFontAngle(double angle, bool vertical) {
        CTextBox_setFontAngle(textBox, angle, vertical);
    }
    void setFontColor(int color) { CTextBox_setFontColor(textBox, color); }
    void setMargin(int margin) { CTextBox_setMargin(textBox, margin); }
    void setMargin2(int leftMargin, int rightMargin, int topMargin, int bottomMargin) {
        CTextBox_setMargin2(textBox, leftMargin, rightMargin, topMargin, bottomMargin);
    }
    void setWidth(int width) { CTextBox_setWidth(textBox, width); }
    void setHeight(int height) { CTextBox_setHeight(textBox, height); }
    void setMaxWidth(int width) { CTextBox_setMaxWidth(textBox, width); }
    void setTruncate(int maxWidth, int maxLines) {
        CTextBox_setTruncate(textBox, maxWidth, maxLines);
    }

private:
    CTextBox *textBox;
};

}  // namespace abc
