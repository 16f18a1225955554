#include "api/xy/CPlotArea.h"

#include "api/xy/XYHandles.h"
#include "chart/xy/PlotArea.h"

using vistrel_api::E;

void CPlotArea_setBackground(CPlotArea *p, int color, int altBgColor, int edgeColor) {
    if (p) E(p)->setBackground(color, altBgColor, edgeColor);
}
void CPlotArea_setBackground2(CPlotArea *p, const char *path, int align) {
    if (p) E(p)->setBackground2(path ? path : "", align);
}
void CPlotArea_set4QBgColor(CPlotArea *p, int q1Color, int q2Color, int q3Color, int q4Color,
                            int edgeColor) {
    if (p) E(p)->set4QBgColor(q1Color, q2Color, q3Color, q4Color, edgeColor);
}
void CPlotArea_setAltBgColor(CPlotArea *p, bool horizontal, int color1, int color2, int edgeColor) {
    if (p) E(p)->setAltBgColor(horizontal, color1, color2, edgeColor);
}
void CPlotArea_setGridColor(CPlotArea *p, int hGridColor, int vGridColor, int minorHGridColor,
                            int minorVGridColor) {
    if (p) E(p)->setGridColor(hGridColor, vGridColor, minorHGridColor, minorVGridColor);
}
void CPlotArea_setGridWidth(CPlotArea *p, int hGridWidth, int vGridWidth, int minorHGridWidth,
                            int minorVGridWidth) {
    if (p) E(p)->setGridWidth(hGridWidth, vGridWidth, minorHGridWidth, minorVGridWidth);
}
void CPlotArea_setGridAxis(CPlotArea *p, CAxis *xGridAxis, CAxis *yGridAxis) {
    if (p) E(p)->setGridAxis(E(xGridAxis), E(yGridAxis));
}
void CPlotArea_moveGridBefore(CPlotArea *p, CLayer *layer) {
    if (p) E(p)->moveGridBefore(E(layer));
}
int CPlotArea_getLeftX(CPlotArea *p) {
    return p ? E(p)->getLeftX() : 0;
}
int CPlotArea_getTopY(CPlotArea *p) {
    return p ? E(p)->getTopY() : 0;
}
int CPlotArea_getWidth(CPlotArea *p) {
    return p ? E(p)->getWidth() : 0;
}
int CPlotArea_getHeight(CPlotArea *p) {
    return p ? E(p)->getHeight() : 0;
}
int CPlotArea_getRightX(CPlotArea *p) {
    return p ? E(p)->getRightX() : 0;
}
int CPlotArea_getBottomY(CPlotArea *p) {
    return p ? E(p)->getBottomY() : 0;
}
