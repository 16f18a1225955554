#pragma once

/* The root of every chart kind.  Setters only store; makeChart lays the chart
   out, paints it and gives the picture.  A null handle is ignored and reads as
   0.  Texts handed out live in the chart until its next call that returns text. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Destroys the chart and everything it handed out. */
void CBaseChart_destroy(CBaseChart *c);

void CBaseChart_enableVectorOutput(CBaseChart *c);
void CBaseChart_setSize(CBaseChart *c, int width, int height);
int CBaseChart_getWidth(CBaseChart *c);
int CBaseChart_getHeight(CBaseChart *c);
int CBaseChart_getWidthWithShadow(CBaseChart *c);
int CBaseChart_getHeightWithShadow(CBaseChart *c);
int CBaseChart_getAbsOffsetX(CBaseChart *c);
int CBaseChart_getAbsOffsetY(CBaseChart *c);

void CBaseChart_setBackground(CBaseChart *c, int color, int edgeColor, int raisedEffect);
void CBaseChart_setBorder(CBaseChart *c, int color);
void CBaseChart_setRoundedFrame(CBaseChart *c, int extColor, int r1, int r2, int r3, int r4);
void CBaseChart_setThickFrame(CBaseChart *c, int thickness, int frameColor, int outerEdgeColor,
                              int innerEdgeColor);
void CBaseChart_setWallpaper(CBaseChart *c, const char *path);
void CBaseChart_setBgImage(CBaseChart *c, const char *path, int align);
void CBaseChart_setDropShadow(CBaseChart *c, int color, int offsetX, int offsetY, int blurRadius);
void CBaseChart_setTransparentColor(CBaseChart *c, int color);
void CBaseChart_setAntiAlias(CBaseChart *c, bool shapeAntiAlias, int textAntiAlias);
void CBaseChart_setSearchPath(CBaseChart *c, const char *path);

CTextBox *CBaseChart_addTitle2(CBaseChart *c, int alignment, const char *text, const char *font,
                               double fontSize, int fontColor, int bgColor, int edgeColor);
CTextBox *CBaseChart_addTitle(CBaseChart *c, const char *text, const char *font, double fontSize,
                              int fontColor, int bgColor, int edgeColor);
CLegendBox *CBaseChart_addLegend(CBaseChart *c, int x, int y, bool vertical, const char *font,
                                 double fontSize);
CLegendBox *CBaseChart_addLegend2(CBaseChart *c, int x, int y, int noOfCols, const char *font,
                                  double fontSize);
CLegendBox *CBaseChart_getLegend(CBaseChart *c);
/* The chart's canvas, owned by the chart. */
CDrawArea *CBaseChart_getDrawArea(CBaseChart *c);
void CBaseChart_setResource(CBaseChart *c, const char *id, const char *data, int length);
void CBaseChart_setResource2(CBaseChart *c, const char *id, CDrawArea *d);
CDrawArea *CBaseChart_initDynamicLayer(CBaseChart *c);
void CBaseChart_removeDynamicLayer(CBaseChart *c);

CTextBox *CBaseChart_addText(CBaseChart *c, int x, int y, const char *text, const char *font,
                             double fontSize, int fontColor, int alignment, double angle,
                             bool vertical);
CLine *CBaseChart_addLine(CBaseChart *c, int x1, int y1, int x2, int y2, int color, int lineWidth);
CVSMLTable *CBaseChart_addTable(CBaseChart *c, int x, int y, int alignment, int cols, int rows);
void CBaseChart_addExtraField(CBaseChart *c, const char *const *texts, int len);
void CBaseChart_addExtraField2(CBaseChart *c, const double *numbers, int len);

void CBaseChart_setColor(CBaseChart *c, int paletteEntry, int color);
void CBaseChart_setColors(CBaseChart *c, const int *colors, int len);
void CBaseChart_setColors2(CBaseChart *c, int paletteEntry, const int *colors, int len);
int CBaseChart_getColor(CBaseChart *c, int paletteEntry);
int CBaseChart_halfColor(CBaseChart *c, int color);
int CBaseChart_adjustBrightness(CBaseChart *c, int color, double brightness);
int CBaseChart_autoColor(CBaseChart *c);
int CBaseChart_dashLineColor(CBaseChart *c, int color, int patternCode);
int CBaseChart_patternColor(CBaseChart *c, const int *colors, int len, int height, int startX,
                            int startY);
int CBaseChart_patternColor2(CBaseChart *c, const char *file, int startX, int startY);
int CBaseChart_gradientColor(CBaseChart *c, int startX, int startY, int endX, int endY,
                             int startColor, int endColor);
int CBaseChart_gradientColor2(CBaseChart *c, const int *colors, int len, double angle, double scale,
                              int startX, int startY);
int CBaseChart_linearGradientColor(CBaseChart *c, int startX, int startY, int endX, int endY,
                                   int startColor, int endColor, bool periodic);
int CBaseChart_linearGradientColor2(CBaseChart *c, int startX, int startY, int endX, int endY,
                                    const int *colors, int len, bool periodic);
int CBaseChart_radialGradientColor(CBaseChart *c, int cx, int cy, int rx, int ry, int startColor,
                                   int endColor, bool periodic);
int CBaseChart_radialGradientColor2(CBaseChart *c, int cx, int cy, int rx, int ry,
                                    const int *colors, int len, bool periodic);

void CBaseChart_setDefaultFonts(CBaseChart *c, const char *normal, const char *bold,
                                const char *italic, const char *boldItalic);
void CBaseChart_setFontTable(CBaseChart *c, int index, const char *font);
void CBaseChart_setNumberFormat(CBaseChart *c, char thousandSeparator, char decimalPointChar,
                                char signChar);
void CBaseChart_setMonthNames(CBaseChart *c, const char *const *names, int len);
void CBaseChart_setWeekDayNames(CBaseChart *c, const char *const *names, int len);
void CBaseChart_setAMPM(CBaseChart *c, const char *am, const char *pm);
const char *CBaseChart_formatValue(CBaseChart *c, double value, const char *formatString);

/* Each runs once. */
CLegendBox *CBaseChart_layoutLegend(CBaseChart *c);
void CBaseChart_layout(CBaseChart *c);
void CBaseChart_setOutputOptions(CBaseChart *c, const char *options);
/* By file extension; a null or empty path writes nothing and succeeds. */
bool CBaseChart_makeChart(CBaseChart *c, const char *path);
/* The picture in an image format; the bytes live in the chart's canvas until
   its next output. */
void CBaseChart_makeChart2(CBaseChart *c, int format, const char **data, int *len);
bool CBaseChart_makeChart3(CBaseChart *c, int format, const char **data, int *len);
/* The painted canvas, owned by the chart. */
CDrawArea *CBaseChart_makeChart4(CBaseChart *c);
const char *CBaseChart_getJsChartModel(CBaseChart *c, const char *options);
const char *CBaseChart_getHTMLImageMap(CBaseChart *c, const char *url, const char *queryFormat,
                                       const char *extraAttr, int offsetX, int offsetY);
int CBaseChart_getDynaMap(CBaseChart *c);
const char *CBaseChart_getChartMetrics(CBaseChart *c);
/* The multi-chart that places this chart, or null for none. */
void CBaseChart_setContainer(CBaseChart *c, CMultiChart *container);
int CBaseChart_getFrameThickness(CBaseChart *c);
CDrawArea *CBaseChart_getRawDrawArea(CBaseChart *c);
void CBaseChart_filterData(CBaseChart *c, const double *data, int len, const double **out,
                           int *outLen);
double CBaseChart_getProperty(CBaseChart *c, int code);

#ifdef __cplusplus
}
#endif
