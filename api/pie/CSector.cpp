#include "api/pie/CSector.h"

#include "api/pie/PieHandles.h"
#include "families/pie/Sector.h"
#include "text/box/TextBox.h"

using vistrel_api::E;
using vistrel_api::H;

void CSector_setStyle(CSector *s, int shadingMethod, int edgeColor, int edgeWidth) {
    if (s) E(s)->setStyle(shadingMethod, edgeColor, edgeWidth);
}
void CSector_setLabelFormat(CSector *s, const char *formatString) {
    if (s) E(s)->setLabelFormat(formatString ? formatString : "");
}
CTextBox *CSector_setLabelStyle(CSector *s, const char *font, double fontSize, int fontColor) {
    return s ? H(E(s)->setLabelStyle(font ? font : "", fontSize, fontColor)) : nullptr;
}
void CSector_setExplode(CSector *s, int distance) {
    if (s) E(s)->setExplode(distance);
}
void CSector_setLabelPos(CSector *s, int pos, int joinLineColor) {
    if (s) E(s)->setLabelPos(pos, joinLineColor);
}
void CSector_setLabelLayout(CSector *s, int layoutMethod, int pos) {
    if (s) E(s)->setLabelLayout(layoutMethod, pos);
}
void CSector_setJoinLine(CSector *s, int joinLineColor, int joinLineWidth) {
    if (s) E(s)->setJoinLine(joinLineColor, joinLineWidth);
}
void CSector_setColor(CSector *s, int color, int edgeColor, int joinLineColor) {
    if (s) E(s)->setColor(color, edgeColor, joinLineColor);
}
const char *CSector_getImageCoor(CSector *s, int offsetX, int offsetY) {
    return s ? E(s)->getImageCoor(offsetX, offsetY) : nullptr;
}
const char *CSector_getLabelCoor(CSector *s, int offsetX, int offsetY) {
    return s ? E(s)->getLabelCoor(offsetX, offsetY) : nullptr;
}
