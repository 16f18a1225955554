#include "api/chart/CLegendBox.h"

#include "api/chart/ChartHandles.h"
#include "chart/legend/LegendBox.h"

using vistrel_api::D;
using vistrel_api::E;
using vistrel_api::H;

CTextBox *CLegendBox_toTextBox(CLegendBox *l) {
    return l ? H(static_cast<TextBox *>(E(l))) : nullptr;
}
void CLegendBox_addKey(CLegendBox *l, const char *text, int color, int lineWidth, CDrawArea *icon) {
    if (l) E(l)->addKey(text ? text : "", color, lineWidth, D(icon));
}
void CLegendBox_addKey2(CLegendBox *l, int pos, const char *text, int color, int lineWidth,
                        CDrawArea *icon) {
    if (l) E(l)->addKey2(pos, text ? text : "", color, lineWidth, D(icon));
}
void CLegendBox_addText(CLegendBox *l, const char *text) {
    if (l) E(l)->addText(text ? text : "");
}
void CLegendBox_addText2(CLegendBox *l, int pos, const char *text) {
    if (l) E(l)->addText2(pos, text ? text : "");
}
void CLegendBox_setCols(CLegendBox *l, int cols) {
    if (l) E(l)->setCols(cols);
}
void CLegendBox_setReverse(CLegendBox *l, bool reverse) {
    if (l) E(l)->setReverse(reverse);
}
void CLegendBox_setLineStyleKey(CLegendBox *l, bool lineStyle) {
    if (l) E(l)->setLineStyleKey(lineStyle);
}
void CLegendBox_setKeySize(CLegendBox *l, int width, int height, int gap) {
    if (l) E(l)->setKeySize(width, height, gap);
}
void CLegendBox_setKeySpacing(CLegendBox *l, int keySpacing, int lineSpacing) {
    if (l) E(l)->setKeySpacing(keySpacing, lineSpacing);
}
void CLegendBox_setKeyBorder(CLegendBox *l, int edgeColor, int raisedEffect) {
    if (l) E(l)->setKeyBorder(edgeColor, raisedEffect);
}
const char *CLegendBox_getImageCoor2(CLegendBox *l, int dataItem, int offsetX, int offsetY) {
    return l ? E(l)->getImageCoor2(dataItem, offsetX, offsetY) : nullptr;
}
const char *CLegendBox_getHTMLImageMap(CLegendBox *l, const char *url, const char *queryFormat,
                                       const char *extraAttr, int offsetX, int offsetY) {
    return l ? E(l)->getHTMLImageMap(url ? url : "", queryFormat ? queryFormat : "",
                                     extraAttr ? extraAttr : "", offsetX, offsetY)
             : nullptr;
}
