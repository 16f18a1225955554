#include "api/chart/CBaseChart.h"

#include "api/chart/ChartHandles.h"
#include "chart/base/BaseChart.h"
#include "chart/base/Line.h"
#include "chart/base/MultiChart.h"
#include "chart/legend/LegendBox.h"
#include "draw/canvas/DrawArea.h"
#include "text/box/TextBox.h"
#include "text/box/VSMLTable.h"

using vistrel_api::D;
using vistrel_api::E;
using vistrel_api::H;
using vistrel_api::putView;

void CBaseChart_destroy(CBaseChart *c) {
    if (c) E(c)->destroy();
}

void CBaseChart_enableVectorOutput(CBaseChart *c) {
    if (c) E(c)->enableVectorOutput();
}
void CBaseChart_setSize(CBaseChart *c, int width, int height) {
    if (c) E(c)->setSize(width, height);
}
int CBaseChart_getWidth(CBaseChart *c) {
    return c ? E(c)->getWidth() : 0;
}
int CBaseChart_getHeight(CBaseChart *c) {
    return c ? E(c)->getHeight() : 0;
}
int CBaseChart_getWidthWithShadow(CBaseChart *c) {
    return c ? E(c)->getWidthWithShadow() : 0;
}
int CBaseChart_getHeightWithShadow(CBaseChart *c) {
    return c ? E(c)->getHeightWithShadow() : 0;
}
int CBaseChart_getAbsOffsetX(CBaseChart *c) {
    return c ? E(c)->getAbsOffsetX() : 0;
}
int CBaseChart_getAbsOffsetY(CBaseChart *c) {
    return c ? E(c)->getAbsOffsetY() : 0;
}

void CBaseChart_setBackground(CBaseChart *c, int color, int edgeColor, int raisedEffect) {
    if (c) E(c)->setBackground(color, edgeColor, raisedEffect);
}
void CBaseChart_setBorder(CBaseChart *c, int color) {
    if (c) E(c)->setBorder(color);
}
void CBaseChart_setRoundedFrame(CBaseChart *c, int extColor, int r1, int r2, int r3, int r4) {
    if (c) E(c)->setRoundedFrame(extColor, r1, r2, r3, r4);
}
void CBaseChart_setThickFrame(CBaseChart *c, int thickness, int frameColor, int outerEdgeColor,
                              int innerEdgeColor) {
    if (c) E(c)->setThickFrame(thickness, frameColor, outerEdgeColor, innerEdgeColor);
}
void CBaseChart_setWallpaper(CBaseChart *c, const char *path) {
    if (c) E(c)->setWallpaper(path ? path : "");
}
void CBaseChart_setBgImage(CBaseChart *c, const char *path, int align) {
    if (c) E(c)->setBgImage(path ? path : "", align);
}
void CBaseChart_setDropShadow(CBaseChart *c, int color, int offsetX, int offsetY, int blurRadius) {
    if (c) E(c)->setDropShadow(color, offsetX, offsetY, blurRadius);
}
void CBaseChart_setTransparentColor(CBaseChart *c, int color) {
    if (c) E(c)->setTransparentColor(color);
}
void CBaseChart_setAntiAlias(CBaseChart *c, bool shapeAntiAlias, int textAntiAlias) {
    if (c) E(c)->setAntiAlias(shapeAntiAlias, textAntiAlias);
}
void CBaseChart_setSearchPath(CBaseChart *c, const char *path) {
    if (c) E(c)->setSearchPath(path ? path : "");
}

CTextBox *CBaseChart_addTitle2(CBaseChart *c, int alignment, const char *text, const char *font,
                               double fontSize, int fontColor, int bgColor, int edgeColor) {
    return c ? H(E(c)->addTitle2(alignment, text ? text : "", font ? font : "", fontSize, fontColor,
                                 bgColor, edgeColor))
             : nullptr;
}
CTextBox *CBaseChart_addTitle(CBaseChart *c, const char *text, const char *font, double fontSize,
                              int fontColor, int bgColor, int edgeColor) {
    return c ? H(E(c)->addTitle(text ? text : "", font ? font : "", fontSize, fontColor, bgColor,
                                edgeColor))
             : nullptr;
}
CLegendBox *CBaseChart_addLegend(CBaseChart *c, int x, int y, bool vertical, const char *font,
                                 double fontSize) {
    return c ? H(E(c)->addLegend(x, y, vertical, font ? font : "", fontSize)) : nullptr;
}
CLegendBox *CBaseChart_addLegend2(CBaseChart *c, int x, int y, int noOfCols, const char *font,
                                  double fontSize) {
    return c ? H(E(c)->addLegend2(x, y, noOfCols, font ? font : "", fontSize)) : nullptr;
}
CLegendBox *CBaseChart_getLegend(CBaseChart *c) {
    return c ? H(E(c)->getLegend()) : nullptr;
}
CDrawArea *CBaseChart_getDrawArea(CBaseChart *c) {
    return c ? H(E(c)->getDrawArea()) : nullptr;
}
void CBaseChart_setResource(CBaseChart *c, const char *id, const char *data, int length) {
    if (c && id) E(c)->setResource(id, data, length);
}
void CBaseChart_setResource2(CBaseChart *c, const char *id, CDrawArea *d) {
    if (c && id) E(c)->setResource2(id, D(d));
}
CDrawArea *CBaseChart_initDynamicLayer(CBaseChart *c) {
    return c ? H(E(c)->initDynamicLayer()) : nullptr;
}
void CBaseChart_removeDynamicLayer(CBaseChart *c) {
    if (c) E(c)->removeDynamicLayer();
}

CTextBox *CBaseChart_addText(CBaseChart *c, int x, int y, const char *text, const char *font,
                             double fontSize, int fontColor, int alignment, double angle,
                             bool vertical) {
    return c ? H(E(c)->addText(x, y, text ? text : "", font ? font : "", fontSize, fontColor,
                               alignment, angle, vertical))
             : nullptr;
}
CLine *CBaseChart_addLine(CBaseChart *c, int x1, int y1, int x2, int y2, int color, int lineWidth) {
    return c ? H(E(c)->addLine(x1, y1, x2, y2, color, lineWidth)) : nullptr;
}
CVSMLTable *CBaseChart_addTable(CBaseChart *c, int x, int y, int alignment, int cols, int rows) {
    return c ? H(E(c)->addTable(x, y, alignment, cols, rows)) : nullptr;
}
void CBaseChart_addExtraField(CBaseChart *c, const char *const *texts, int len) {
    if (c) E(c)->addExtraField(StringArray(texts, len));
}
void CBaseChart_addExtraField2(CBaseChart *c, const double *numbers, int len) {
    if (c) E(c)->addExtraField2(DoubleArray(numbers, len));
}

void CBaseChart_setColor(CBaseChart *c, int paletteEntry, int color) {
    if (c) E(c)->setColor(paletteEntry, color);
}
void CBaseChart_setColors(CBaseChart *c, const int *colors, int len) {
    if (c) E(c)->setColors(IntArray(colors, len));
}
void CBaseChart_setColors2(CBaseChart *c, int paletteEntry, const int *colors, int len) {
    if (c) E(c)->setColors2(paletteEntry, IntArray(colors, len));
}
int CBaseChart_getColor(CBaseChart *c, int paletteEntry) {
    return c ? E(c)->getColor(paletteEntry) : 0;
}
int CBaseChart_halfColor(CBaseChart *c, int color) {
    return c ? E(c)->halfColor(color) : 0;
}
int CBaseChart_adjustBrightness(CBaseChart *c, int color, double brightness) {
    return c ? E(c)->adjustBrightness(color, brightness) : 0;
}
int CBaseChart_autoColor(CBaseChart *c) {
    return c ? E(c)->autoColor() : 0;
}
int CBaseChart_dashLineColor(CBaseChart *c, int color, int patternCode) {
    return c ? E(c)->dashLineColor(color, patternCode) : 0;
}
int CBaseChart_patternColor(CBaseChart *c, const int *colors, int len, int height, int startX,
                            int startY) {
    return c ? E(c)->patternColor(IntArray(colors, len), height, startX, startY) : 0;
}
int CBaseChart_patternColor2(CBaseChart *c, const char *file, int startX, int startY) {
    return c ? E(c)->patternColor2(file ? file : "", startX, startY) : 0;
}
int CBaseChart_gradientColor(CBaseChart *c, int startX, int startY, int endX, int endY,
                             int startColor, int endColor) {
    return c ? E(c)->gradientColor(startX, startY, endX, endY, startColor, endColor) : 0;
}
int CBaseChart_gradientColor2(CBaseChart *c, const int *colors, int len, double angle, double scale,
                              int startX, int startY) {
    return c ? E(c)->gradientColor2(IntArray(colors, len), angle, scale, startX, startY) : 0;
}
int CBaseChart_linearGradientColor(CBaseChart *c, int startX, int startY, int endX, int endY,
                                   int startColor, int endColor, bool periodic) {
    return c ? E(c)->linearGradientColor(startX, startY, endX, endY, startColor, endColor, periodic)
             : 0;
}
int CBaseChart_linearGradientColor2(CBaseChart *c, int startX, int startY, int endX, int endY,
                                    const int *colors, int len, bool periodic) {
    return c ? E(c)->linearGradientColor2(startX, startY, endX, endY, IntArray(colors, len),
                                          periodic)
             : 0;
}
int CBaseChart_radialGradientColor(CBaseChart *c, int cx, int cy, int rx, int ry, int startColor,
                                   int endColor, bool periodic) {
    return c ? E(c)->radialGradientColor(cx, cy, rx, ry, startColor, endColor, periodic) : 0;
}
int CBaseChart_radialGradientColor2(CBaseChart *c, int cx, int cy, int rx, int ry,
                                    const int *colors, int len, bool periodic) {
    return c ? E(c)->radialGradientColor2(cx, cy, rx, ry, IntArray(colors, len), periodic) : 0;
}

void CBaseChart_setDefaultFonts(CBaseChart *c, const char *normal, const char *bold,
                                const char *italic, const char *boldItalic) {
    if (c)
        E(c)->setDefaultFonts(normal ? normal : "", bold ? bold : "", italic ? italic : "",
                              boldItalic ? boldItalic : "");
}
void CBaseChart_setFontTable(CBaseChart *c, int index, const char *font) {
    if (c) E(c)->setFontTable(index, font ? font : "");
}
void CBaseChart_setNumberFormat(CBaseChart *c, char thousandSeparator, char decimalPointChar,
                                char signChar) {
    if (c) E(c)->setNumberFormat(thousandSeparator, decimalPointChar, signChar);
}
void CBaseChart_setMonthNames(CBaseChart *c, const char *const *names, int len) {
    if (c) E(c)->setMonthNames(StringArray(names, len));
}
void CBaseChart_setWeekDayNames(CBaseChart *c, const char *const *names, int len) {
    if (c) E(c)->setWeekDayNames(StringArray(names, len));
}
void CBaseChart_setAMPM(CBaseChart *c, const char *am, const char *pm) {
    if (c) E(c)->setAMPM(am ? am : "", pm ? pm : "");
}
const char *CBaseChart_formatValue(CBaseChart *c, double value, const char *formatString) {
    return c ? E(c)->formatValue(value, formatString ? formatString : "") : nullptr;
}

CLegendBox *CBaseChart_layoutLegend(CBaseChart *c) {
    return c ? H(E(c)->layoutLegend()) : nullptr;
}
void CBaseChart_layout(CBaseChart *c) {
    if (c) E(c)->layout();
}
void CBaseChart_setOutputOptions(CBaseChart *c, const char *options) {
    if (c) E(c)->setOutputOptions(options ? options : "");
}
bool CBaseChart_makeChart(CBaseChart *c, const char *path) {
    return c && E(c)->makeChart(path);
}
void CBaseChart_makeChart2(CBaseChart *c, int format, const char **data, int *len) {
    putView(c ? E(c)->makeChart2(format) : MemBlock(), data, len);
}
bool CBaseChart_makeChart3(CBaseChart *c, int format, const char **data, int *len) {
    if (c) return E(c)->makeChart3(format, data, len);
    putView(MemBlock(), data, len);
    return false;
}
CDrawArea *CBaseChart_makeChart4(CBaseChart *c) {
    return c ? H(E(c)->makeChart()) : nullptr;
}
const char *CBaseChart_getJsChartModel(CBaseChart *c, const char *options) {
    return c ? E(c)->getJsChartModel(options ? options : "") : nullptr;
}
const char *CBaseChart_getHTMLImageMap(CBaseChart *c, const char *url, const char *queryFormat,
                                       const char *extraAttr, int offsetX, int offsetY) {
    return c ? E(c)->getHTMLImageMap(url ? url : "", queryFormat ? queryFormat : "",
                                     extraAttr ? extraAttr : "", offsetX, offsetY)
             : nullptr;
}
int CBaseChart_getDynaMap(CBaseChart *c) {
    return c ? E(c)->getDynaMap() : 0;
}
const char *CBaseChart_getChartMetrics(CBaseChart *c) {
    return c ? E(c)->getChartMetrics() : nullptr;
}
void CBaseChart_setContainer(CBaseChart *c, CMultiChart *container) {
    if (c) E(c)->setContainer(E(container));
}
int CBaseChart_getFrameThickness(CBaseChart *c) {
    return c ? E(c)->getFrameThickness() : 0;
}
CDrawArea *CBaseChart_getRawDrawArea(CBaseChart *c) {
    return c ? H(E(c)->getRawDrawArea()) : nullptr;
}
void CBaseChart_filterData(CBaseChart *c, const double *data, int len, const double **out,
                           int *outLen) {
    putView(c ? E(c)->filterData(DoubleArray(data, len)) : DoubleArray(), out, outLen);
}
double CBaseChart_getProperty(CBaseChart *c, int code) {
    return c ? E(c)->getProperty(code) : 0;
}
