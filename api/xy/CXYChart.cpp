#include "api/xy/CXYChart.h"

#include "api/xy/XYHandles.h"
#include "chart/axis/Axis.h"
#include "chart/layer/Layer.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/XYChart.h"
#include "layers/LayerKinds.h"
#include "layers/area/AreaLayer.h"
#include "layers/bar/BarLayer.h"
#include "layers/line/ScatterLayer.h"

using vistrel_api::E;
using vistrel_api::H;

CXYChart *CXYChart_create(int width, int height, int bgColor, int edgeColor, int raisedEffect) {
    // The chart's layer makers are the layer kinds, plugged in once.
    LayerKinds::install();
    return H(XYChart::create(width, height, bgColor, edgeColor, raisedEffect));
}
CBaseChart *CXYChart_toBaseChart(CXYChart *c) {
    return c ? H(static_cast<BaseChart *>(E(c))) : nullptr;
}
CXYChart *CXYChart_fromBaseChart(CBaseChart *c) {
    return c ? H(dynamic_cast<XYChart *>(E(c))) : nullptr;
}

CAxis *CXYChart_addAxis(CXYChart *c, int alignment, int offset) {
    return c ? H(E(c)->addAxis(alignment, offset)) : nullptr;
}
CAxis *CXYChart_yAxis(CXYChart *c) {
    return c ? H(E(c)->yAxis()) : nullptr;
}
CAxis *CXYChart_yAxis2(CXYChart *c) {
    return c ? H(E(c)->yAxis2()) : nullptr;
}
void CXYChart_syncYAxis(CXYChart *c, double slope, double intercept) {
    if (c) E(c)->syncYAxis(slope, intercept);
}
void CXYChart_setYAxisOnRight(CXYChart *c, bool onRight) {
    if (c) E(c)->setYAxisOnRight(onRight);
}
CAxis *CXYChart_xAxis(CXYChart *c) {
    return c ? H(E(c)->xAxis()) : nullptr;
}
CAxis *CXYChart_xAxis2(CXYChart *c) {
    return c ? H(E(c)->xAxis2()) : nullptr;
}
void CXYChart_setXAxisOnTop(CXYChart *c, bool onTop) {
    if (c) E(c)->setXAxisOnTop(onTop);
}
void CXYChart_swapXY(CXYChart *c, bool swap) {
    if (c) E(c)->swapXY(swap);
}
void CXYChart_setAxisAtOrigin(CXYChart *c, int originMode, int symmetryMode) {
    if (c) E(c)->setAxisAtOrigin(originMode, symmetryMode);
}

double CXYChart_getXCoor(CXYChart *c, double value) {
    return c ? E(c)->getXCoor(value) : 0;
}
double CXYChart_getYCoor(CXYChart *c, double value, CAxis *yAxis) {
    return c ? E(c)->getYCoor(value, E(yAxis)) : 0;
}
double CXYChart_getXValue(CXYChart *c, double coor) {
    return c ? E(c)->getXValue(coor) : 0;
}
double CXYChart_getYValue(CXYChart *c, double coor, CAxis *yAxis) {
    return c ? E(c)->getYValue(coor, E(yAxis)) : 0;
}
int CXYChart_xZoneColor(CXYChart *c, double threshold, int belowColor, int aboveColor) {
    return c ? E(c)->xZoneColor(threshold, belowColor, aboveColor) : 0;
}
int CXYChart_yZoneColor(CXYChart *c, double threshold, int belowColor, int aboveColor,
                        CAxis *yAxis) {
    return c ? E(c)->yZoneColor(threshold, belowColor, aboveColor, E(yAxis)) : 0;
}

CPlotArea *CXYChart_setPlotArea(CXYChart *c, int x, int y, int width, int height, int bgColor,
                                int altBgColor, int edgeColor, int hGridColor, int vGridColor) {
    return c ? H(E(c)->setPlotArea(x, y, width, height, bgColor, altBgColor, edgeColor, hGridColor,
                                   vGridColor))
             : nullptr;
}
CPlotArea *CXYChart_getPlotArea(CXYChart *c) {
    return c ? H(E(c)->getPlotArea()) : nullptr;
}
void CXYChart_setClipping(CXYChart *c, int margin) {
    if (c) E(c)->setClipping(margin);
}
void CXYChart_setTrimData(CXYChart *c, int startPos, int len) {
    if (c) E(c)->setTrimData(startPos, len);
}

CBarLayer *CXYChart_addBarLayer(CXYChart *c, const double *data, int len, int color,
                                const char *name, int depth) {
    return c ? H(E(c)->addBarLayer(DoubleArray(data, len), color, name ? name : "", depth))
             : nullptr;
}
CBarLayer *CXYChart_addBarLayer2(CXYChart *c, int dataCombineMethod, int depth) {
    return c ? H(E(c)->addBarLayer2(dataCombineMethod, depth)) : nullptr;
}
CBarLayer *CXYChart_addBarLayer3(CXYChart *c, const double *data, int len, const int *colors,
                                 int colorCount, const char *const *names, int nameCount,
                                 int depth) {
    return c ? H(E(c)->addBarLayer3(DoubleArray(data, len), IntArray(colors, colorCount),
                                    StringArray(names, nameCount), depth))
             : nullptr;
}

CLineLayer *CXYChart_addLineLayer(CXYChart *c, const double *data, int len, int color,
                                  const char *name, int depth) {
    return c ? H(E(c)->addLineLayer(DoubleArray(data, len), color, name ? name : "", depth))
             : nullptr;
}
CLineLayer *CXYChart_addLineLayer2(CXYChart *c, int dataCombineMethod, int depth) {
    return c ? H(E(c)->addLineLayer2(dataCombineMethod, depth)) : nullptr;
}
CAreaLayer *CXYChart_addAreaLayer(CXYChart *c, const double *data, int len, int color,
                                  const char *name, int depth) {
    return c ? H(E(c)->addAreaLayer(DoubleArray(data, len), color, name ? name : "", depth))
             : nullptr;
}
CAreaLayer *CXYChart_addAreaLayer2(CXYChart *c, int dataCombineMethod, int depth) {
    return c ? H(E(c)->addAreaLayer2(dataCombineMethod, depth)) : nullptr;
}
CScatterLayer *CXYChart_addScatterLayer(CXYChart *c, const double *xData, int xLen,
                                        const double *yData, int yLen, const char *name, int symbol,
                                        int symbolSize, int fillColor, int edgeColor) {
    return c ? H(E(c)->addScatterLayer(DoubleArray(xData, xLen), DoubleArray(yData, yLen),
                                       name ? name : "", symbol, symbolSize, fillColor, edgeColor))
             : nullptr;
}

CLayer *CXYChart_getLayer(CXYChart *c, int i) {
    return c ? H(E(c)->getLayer(i)) : nullptr;
}
CLayer *CXYChart_getLayerByZ(CXYChart *c, int i) {
    return c ? H(E(c)->getLayerByZ(i)) : nullptr;
}
int CXYChart_getLayerCount(CXYChart *c) {
    return c ? E(c)->getLayerCount() : 0;
}
double CXYChart_getNearestXValue(CXYChart *c, double xCoor) {
    return c ? E(c)->getNearestXValue(xCoor) : 0;
}

void CXYChart_layoutAxes(CXYChart *c) {
    if (c) E(c)->layoutAxes();
}
void CXYChart_packPlotArea(CXYChart *c, int leftX, int topY, int rightX, int bottomY, int minWidth,
                           int minHeight) {
    if (c) E(c)->packPlotArea(leftX, topY, rightX, bottomY, minWidth, minHeight);
}
