#include "api/chart/CTextBox.h"

#include "api/chart/ChartHandles.h"
#include "text/box/TextBox.h"

using vistrel_api::E;
using vistrel_api::H;

CBox *CTextBox_toBox(CTextBox *t) {
    return t ? H(static_cast<Box *>(E(t))) : nullptr;
}
void CTextBox_setText(CTextBox *t, const char *text) {
    if (t) E(t)->setText(text ? text : "");
}
void CTextBox_setAlignment(CTextBox *t, int alignment) {
    if (t) E(t)->setAlignment(alignment);
}
void CTextBox_setFontStyle(CTextBox *t, const char *font, int fontIndex) {
    if (t) E(t)->setFontStyle(font ? font : "", fontIndex);
}
void CTextBox_setFontSize(CTextBox *t, double fontHeight, double fontWidth) {
    if (t) E(t)->setFontSize(fontHeight, fontWidth);
}
void CTextBox_setFontAngle(CTextBox *t, double angle, bool vertical) {
    if (t) E(t)->setFontAngle(angle, vertical);
}
void CTextBox_setFontColor(CTextBox *t, int color) {
    if (t) E(t)->setFontColor(color);
}
void CTextBox_setMargin(CTextBox *t, int margin) {
    if (t) E(t)->setMargin(margin);
}
void CTextBox_setMargin2(CTextBox *t, int leftMargin, int rightMargin, int topMargin,
                         int bottomMargin) {
    if (t) E(t)->setMargin2(leftMargin, rightMargin, topMargin, bottomMargin);
}
void CTextBox_setWidth(CTextBox *t, int width) {
    if (t) E(t)->setWidth(width);
}
void CTextBox_setHeight(CTextBox *t, int height) {
    if (t) E(t)->setHeight(height);
}
void CTextBox_setMaxWidth(CTextBox *t, int width) {
    if (t) E(t)->setMaxWidth(width);
}
void CTextBox_setTruncate(CTextBox *t, int maxWidth, int maxLines) {
    if (t) E(t)->setTruncate(maxWidth, maxLines);
}
