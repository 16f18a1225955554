#pragma once

/* One way of drawing data on an XY chart: its data sets, their x positions and
   the rule by which they combine.  Layers belong to their chart.  Texts handed
   out live until the layer's next call that returns text. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

void CLayer_set3D(CLayer *l, int depth, int zGap);
void CLayer_setLineWidth(CLayer *l, int width);
void CLayer_setBorderColor(CLayer *l, int color, int lightingEffect);
void CLayer_setLegend(CLayer *l, int legendMode);
void CLayer_setLegendOrder(CLayer *l, int dataSetOrder, int layerOrder);
const char *CLayer_getLegendIcon(CLayer *l, int dataSetNo);
/* In front of (or behind) the other layer; null means all of them. */
void CLayer_moveFront(CLayer *l, CLayer *layer);
void CLayer_moveBack(CLayer *l, CLayer *layer);

void CLayer_setDataCombineMethod(CLayer *l, int method);
/* A colour of -1 takes the next data colour of the chart's palette. */
CDataSet *CLayer_addDataSet(CLayer *l, const double *data, int len, int color, const char *name);
void CLayer_addDataGroup(CLayer *l, const char *name);
void CLayer_addExtraField(CLayer *l, const char *const *texts, int len);
void CLayer_addExtraField2(CLayer *l, const double *numbers, int len);
/* Null out of range. */
CDataSet *CLayer_getDataSet(CLayer *l, int dataSet);
CDataSet *CLayer_getDataSetByZ(CLayer *l, int z);
int CLayer_getDataSetCount(CLayer *l);
void CLayer_setUseYAxis2(CLayer *l, bool useYAxis2);
void CLayer_setUseYAxis(CLayer *l, CAxis *axis);

void CLayer_setXData(CLayer *l, const double *xData, int len);
void CLayer_setXData2(CLayer *l, double minValue, double maxValue);
double CLayer_getXPosition(CLayer *l, int dataItem);
double CLayer_getNearestXValue(CLayer *l, double target);
/* -1 when no point stands within the tolerance. */
int CLayer_getXIndexOf(CLayer *l, double x, double tolerance);
void CLayer_alignLayer(CLayer *l, CLayer *layer, int dataSet);
void CLayer_setBaseLine(CLayer *l, double baseLine);

int CLayer_getXCoor(CLayer *l, double value);
int CLayer_getYCoor(CLayer *l, double value, CAxis *yAxis);
int CLayer_getYCoor2(CLayer *l, double value, bool useYAxis2);
int CLayer_xZoneColor(CLayer *l, double threshold, int belowColor, int aboveColor);
int CLayer_yZoneColor(CLayer *l, double threshold, int belowColor, int aboveColor, CAxis *yAxis);
int CLayer_yZoneColor2(CLayer *l, double threshold, int belowColor, int aboveColor, bool useYAxis2);

const char *CLayer_getImageCoor(CLayer *l, int dataSet, int dataItem, int offsetX, int offsetY);
const char *CLayer_getImageCoor2(CLayer *l, int dataItem, int offsetX, int offsetY);
const char *CLayer_getHTMLImageMap(CLayer *l, const char *url, const char *queryFormat,
                                   const char *extraAttr, int offsetX, int offsetY);
void CLayer_setHTMLImageMap(CLayer *l, const char *url, const char *queryFormat,
                            const char *extraAttr);

/* The label boxes live with the chart; a second custom label for the same
   place gives the box of the first. */
void CLayer_setDataLabelFormat(CLayer *l, const char *formatString);
CTextBox *CLayer_setDataLabelStyle(CLayer *l, const char *font, double fontSize, int fontColor,
                                   double fontAngle);
void CLayer_setAggregateLabelFormat(CLayer *l, const char *formatString);
CTextBox *CLayer_setAggregateLabelStyle(CLayer *l, const char *font, double fontSize, int fontColor,
                                        double fontAngle);
CTextBox *CLayer_addCustomDataLabel(CLayer *l, int dataSet, int dataItem, const char *label,
                                    const char *font, double fontSize, int fontColor,
                                    double fontAngle);
CTextBox *CLayer_addCustomAggregateLabel(CLayer *l, int dataItem, const char *label,
                                         const char *font, double fontSize, int fontColor,
                                         double fontAngle);
CTextBox *CLayer_addCustomGroupLabel(CLayer *l, int dataGroup, int dataItem, const char *label,
                                     const char *font, double fontSize, int fontColor,
                                     double fontAngle);

#ifdef __cplusplus
}
#endif
