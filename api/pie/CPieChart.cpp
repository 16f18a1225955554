#include "api/pie/CPieChart.h"

#include "api/pie/PieHandles.h"
#include "families/pie/PieChart.h"
#include "families/pie/Sector.h"
#include "text/box/TextBox.h"

using vistrel_api::E;
using vistrel_api::H;

CPieChart *CPieChart_create(int width, int height, int bgColor, int edgeColor, int raisedEffect) {
    return H(PieChart::create(width, height, bgColor, edgeColor, raisedEffect));
}
CBaseChart *CPieChart_toBaseChart(CPieChart *c) {
    return c ? H(static_cast<BaseChart *>(E(c))) : nullptr;
}
CPieChart *CPieChart_fromBaseChart(CBaseChart *c) {
    return c ? H(dynamic_cast<PieChart *>(E(c))) : nullptr;
}

void CPieChart_setPieSize(CPieChart *c, int x, int y, int r) {
    if (c) E(c)->setPieSize(x, y, r);
}
void CPieChart_setDonutSize(CPieChart *c, int x, int y, int r, int r2) {
    if (c) E(c)->setDonutSize(x, y, r, r2);
}
void CPieChart_set3D(CPieChart *c, int depth, double angle, bool shadowMode) {
    if (c) E(c)->set3D(depth, angle, shadowMode);
}
void CPieChart_set3D2(CPieChart *c, const double *depths, int len, double angle, bool shadowMode) {
    if (c) E(c)->set3D2(DoubleArray(depths, len), angle, shadowMode);
}
void CPieChart_setData(CPieChart *c, const double *data, int len, const char *const *labels,
                       int labelCount) {
    if (c) E(c)->setData(DoubleArray(data, len), StringArray(labels, labelCount));
}
void CPieChart_setStartAngle(CPieChart *c, double startAngle, bool clockWise) {
    if (c) E(c)->setStartAngle(startAngle, clockWise);
}
void CPieChart_setExplode(CPieChart *c, int sectorNo, int distance) {
    if (c) E(c)->setExplode(sectorNo, distance);
}
void CPieChart_setExplodeGroup(CPieChart *c, int startSector, int endSector, int distance) {
    if (c) E(c)->setExplodeGroup(startSector, endSector, distance);
}
void CPieChart_setLabelFormat(CPieChart *c, const char *formatString) {
    if (c) E(c)->setLabelFormat(formatString ? formatString : "");
}
CTextBox *CPieChart_setLabelStyle(CPieChart *c, const char *font, double fontSize, int fontColor) {
    return c ? H(E(c)->setLabelStyle(font ? font : "", fontSize, fontColor)) : nullptr;
}
void CPieChart_setLabelPos(CPieChart *c, int pos, int joinLineColor) {
    if (c) E(c)->setLabelPos(pos, joinLineColor);
}
void CPieChart_setLabelLayout(CPieChart *c, int layoutMethod, int pos, int topBound,
                              int bottomBound) {
    if (c) E(c)->setLabelLayout(layoutMethod, pos, topBound, bottomBound);
}
void CPieChart_setJoinLine(CPieChart *c, int joinLineColor, int joinLineWidth) {
    if (c) E(c)->setJoinLine(joinLineColor, joinLineWidth);
}
void CPieChart_setLineColor(CPieChart *c, int edgeColor, int joinLineColor) {
    if (c) E(c)->setLineColor(edgeColor, joinLineColor);
}
void CPieChart_setSectorStyle(CPieChart *c, int shadingMethod, int edgeColor, int edgeWidth) {
    if (c) E(c)->setSectorStyle(shadingMethod, edgeColor, edgeWidth);
}
CSector *CPieChart_sector(CPieChart *c, int sectorNo) {
    return c ? H(E(c)->sector(sectorNo)) : nullptr;
}
