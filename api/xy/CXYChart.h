#pragma once

/* A chart with a rectangular plot area, four standard axes and any number of
   added ones, and layers that draw the data.  Which standard axis is the x axis
   and which the y axis follows swapXY, setXAxisOnTop and setYAxisOnRight at
   each use.  Axes, the plot area, layers and their data sets belong to the
   chart. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Destroyed through its base with CBaseChart_destroy. */
CXYChart *CXYChart_create(int width, int height, int bgColor, int edgeColor, int raisedEffect);
CBaseChart *CXYChart_toBaseChart(CXYChart *c);
/* The XY chart behind a chart handle; null if it is another kind. */
CXYChart *CXYChart_fromBaseChart(CBaseChart *c);

/* An axis on a side (kBottom, kLeft, kRight, kTop; null for any other),
   standing offset pixels out from the plot. */
CAxis *CXYChart_addAxis(CXYChart *c, int alignment, int offset);
CAxis *CXYChart_yAxis(CXYChart *c);
CAxis *CXYChart_yAxis2(CXYChart *c);
void CXYChart_syncYAxis(CXYChart *c, double slope, double intercept);
void CXYChart_setYAxisOnRight(CXYChart *c, bool onRight);
CAxis *CXYChart_xAxis(CXYChart *c);
CAxis *CXYChart_xAxis2(CXYChart *c);
void CXYChart_setXAxisOnTop(CXYChart *c, bool onTop);
void CXYChart_swapXY(CXYChart *c, bool swap);
void CXYChart_setAxisAtOrigin(CXYChart *c, int originMode, int symmetryMode);

/* A null yAxis is the chart's own. */
double CXYChart_getXCoor(CXYChart *c, double value);
double CXYChart_getYCoor(CXYChart *c, double value, CAxis *yAxis);
double CXYChart_getXValue(CXYChart *c, double coor);
double CXYChart_getYValue(CXYChart *c, double coor, CAxis *yAxis);
int CXYChart_xZoneColor(CXYChart *c, double threshold, int belowColor, int aboveColor);
int CXYChart_yZoneColor(CXYChart *c, double threshold, int belowColor, int aboveColor,
                        CAxis *yAxis);

CPlotArea *CXYChart_setPlotArea(CXYChart *c, int x, int y, int width, int height, int bgColor,
                                int altBgColor, int edgeColor, int hGridColor, int vGridColor);
CPlotArea *CXYChart_getPlotArea(CXYChart *c);
void CXYChart_setClipping(CXYChart *c, int margin);
void CXYChart_setTrimData(CXYChart *c, int startPos, int len);

/* A bar layer of one data set; one that combines the sets added to it by the
   method; one with a colour and a legend name for each bar. */
CBarLayer *CXYChart_addBarLayer(CXYChart *c, const double *data, int len, int color,
                                const char *name, int depth);
CBarLayer *CXYChart_addBarLayer2(CXYChart *c, int dataCombineMethod, int depth);
CBarLayer *CXYChart_addBarLayer3(CXYChart *c, const double *data, int len, const int *colors,
                                 int colorCount, const char *const *names, int nameCount,
                                 int depth);

/* A line layer of one data set, or one that combines the sets added to it by
   the method; a depth above 0 draws the lines as 3D ribbons. */
CLineLayer *CXYChart_addLineLayer(CXYChart *c, const double *data, int len, int color,
                                  const char *name, int depth);
CLineLayer *CXYChart_addLineLayer2(CXYChart *c, int dataCombineMethod, int depth);
/* The same with areas filled down to the base line. */
CAreaLayer *CXYChart_addAreaLayer(CXYChart *c, const double *data, int len, int color,
                                  const char *name, int depth);
CAreaLayer *CXYChart_addAreaLayer2(CXYChart *c, int dataCombineMethod, int depth);
/* Symbols without lines at (xData[i], yData[i]): a symbol (kSquareSymbol, ...)
   of the size, filled with fillColor (-1 the next data colour), edged with
   edgeColor (-1 none). */
CScatterLayer *CXYChart_addScatterLayer(CXYChart *c, const double *xData, int xLen,
                                        const double *yData, int yLen, const char *name, int symbol,
                                        int symbolSize, int fillColor, int edgeColor);

/* In the order of adding, or by z (0 the bottom one); null out of range. */
CLayer *CXYChart_getLayer(CXYChart *c, int i);
CLayer *CXYChart_getLayerByZ(CXYChart *c, int i);
int CXYChart_getLayerCount(CXYChart *c);
double CXYChart_getNearestXValue(CXYChart *c, double xCoor);

void CXYChart_layoutAxes(CXYChart *c);
void CXYChart_packPlotArea(CXYChart *c, int leftX, int topY, int rightX, int bottomY, int minWidth,
                           int minHeight);

#ifdef __cplusplus
}
#endif
