#include "api/xy/CLayer.h"

#include "api/xy/XYHandles.h"
#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "chart/layer/Layer.h"
#include "text/box/TextBox.h"

using vistrel_api::E;
using vistrel_api::H;

namespace {

const char *text(const char *s) {
    return s ? s : "";
}

}  // namespace

void CLayer_set3D(CLayer *l, int depth, int zGap) {
    if (l) E(l)->set3D(depth, zGap);
}
void CLayer_setLineWidth(CLayer *l, int width) {
    if (l) E(l)->setLineWidth(width);
}
void CLayer_setBorderColor(CLayer *l, int color, int lightingEffect) {
    if (l) E(l)->setBorderColor(color, lightingEffect);
}
void CLayer_setLegend(CLayer *l, int legendMode) {
    if (l) E(l)->setLegend(legendMode);
}
void CLayer_setLegendOrder(CLayer *l, int dataSetOrder, int layerOrder) {
    if (l) E(l)->setLegendOrder(dataSetOrder, layerOrder);
}
const char *CLayer_getLegendIcon(CLayer *l, int dataSetNo) {
    return l ? E(l)->getLegendIcon(dataSetNo) : nullptr;
}
void CLayer_moveFront(CLayer *l, CLayer *layer) {
    if (l) E(l)->moveFront(E(layer));
}
void CLayer_moveBack(CLayer *l, CLayer *layer) {
    if (l) E(l)->moveBack(E(layer));
}

void CLayer_setDataCombineMethod(CLayer *l, int method) {
    if (l) E(l)->setDataCombineMethod(method);
}
CDataSet *CLayer_addDataSet(CLayer *l, const double *data, int len, int color, const char *name) {
    return l ? H(E(l)->addDataSet(DoubleArray(data, len), color, text(name))) : nullptr;
}
void CLayer_addDataGroup(CLayer *l, const char *name) {
    if (l) E(l)->addDataGroup(text(name));
}
void CLayer_addExtraField(CLayer *l, const char *const *texts, int len) {
    if (l) E(l)->addExtraField(StringArray(texts, len));
}
void CLayer_addExtraField2(CLayer *l, const double *numbers, int len) {
    if (l) E(l)->addExtraField2(DoubleArray(numbers, len));
}
CDataSet *CLayer_getDataSet(CLayer *l, int dataSet) {
    return l ? H(E(l)->getDataSet(dataSet)) : nullptr;
}
CDataSet *CLayer_getDataSetByZ(CLayer *l, int z) {
    return l ? H(E(l)->getDataSetByZ(z)) : nullptr;
}
int CLayer_getDataSetCount(CLayer *l) {
    return l ? E(l)->getDataSetCount() : 0;
}
void CLayer_setUseYAxis2(CLayer *l, bool useYAxis2) {
    if (l) E(l)->setUseYAxis2(useYAxis2);
}
void CLayer_setUseYAxis(CLayer *l, CAxis *axis) {
    if (l) E(l)->setUseYAxis(E(axis));
}

void CLayer_setXData(CLayer *l, const double *xData, int len) {
    if (l) E(l)->setXData(DoubleArray(xData, len));
}
void CLayer_setXData2(CLayer *l, double minValue, double maxValue) {
    if (l) E(l)->setXData2(minValue, maxValue);
}
double CLayer_getXPosition(CLayer *l, int dataItem) {
    return l ? E(l)->getXPosition(dataItem) : 0;
}
double CLayer_getNearestXValue(CLayer *l, double target) {
    return l ? E(l)->getNearestXValue(target) : 0;
}
int CLayer_getXIndexOf(CLayer *l, double x, double tolerance) {
    return l ? E(l)->getXIndexOf(x, tolerance) : -1;
}
void CLayer_alignLayer(CLayer *l, CLayer *layer, int dataSet) {
    if (l) E(l)->alignLayer(E(layer), dataSet);
}
void CLayer_setBaseLine(CLayer *l, double baseLine) {
    if (l) E(l)->setBaseLine(baseLine);
}

int CLayer_getXCoor(CLayer *l, double value) {
    return l ? E(l)->getXCoor(value) : 0;
}
int CLayer_getYCoor(CLayer *l, double value, CAxis *yAxis) {
    return l ? E(l)->getYCoor(value, E(yAxis)) : 0;
}
int CLayer_getYCoor2(CLayer *l, double value, bool useYAxis2) {
    return l ? E(l)->getYCoor2(value, useYAxis2) : 0;
}
int CLayer_xZoneColor(CLayer *l, double threshold, int belowColor, int aboveColor) {
    return l ? E(l)->xZoneColor(threshold, belowColor, aboveColor) : 0;
}
int CLayer_yZoneColor(CLayer *l, double threshold, int belowColor, int aboveColor, CAxis *yAxis) {
    return l ? E(l)->yZoneColor(threshold, belowColor, aboveColor, E(yAxis)) : 0;
}
int CLayer_yZoneColor2(CLayer *l, double threshold, int belowColor, int aboveColor,
                       bool useYAxis2) {
    return l ? E(l)->yZoneColor2(threshold, belowColor, aboveColor, useYAxis2) : 0;
}

const char *CLayer_getImageCoor(CLayer *l, int dataSet, int dataItem, int offsetX, int offsetY) {
    return l ? E(l)->getImageCoor(dataSet, dataItem, offsetX, offsetY) : nullptr;
}
const char *CLayer_getImageCoor2(CLayer *l, int dataItem, int offsetX, int offsetY) {
    return l ? E(l)->getImageCoor2(dataItem, offsetX, offsetY) : nullptr;
}
const char *CLayer_getHTMLImageMap(CLayer *l, const char *url, const char *queryFormat,
                                   const char *extraAttr, int offsetX, int offsetY) {
    return l ? E(l)->getHTMLImageMap(text(url), text(queryFormat), text(extraAttr), offsetX,
                                     offsetY)
             : nullptr;
}
void CLayer_setHTMLImageMap(CLayer *l, const char *url, const char *queryFormat,
                            const char *extraAttr) {
    if (l) E(l)->setHTMLImageMap(text(url), text(queryFormat), text(extraAttr));
}

void CLayer_setDataLabelFormat(CLayer *l, const char *formatString) {
    if (l) E(l)->setDataLabelFormat(text(formatString));
}
CTextBox *CLayer_setDataLabelStyle(CLayer *l, const char *font, double fontSize, int fontColor,
                                   double fontAngle) {
    return l ? H(E(l)->setDataLabelStyle(text(font), fontSize, fontColor, fontAngle)) : nullptr;
}
void CLayer_setAggregateLabelFormat(CLayer *l, const char *formatString) {
    if (l) E(l)->setAggregateLabelFormat(text(formatString));
}
CTextBox *CLayer_setAggregateLabelStyle(CLayer *l, const char *font, double fontSize, int fontColor,
                                        double fontAngle) {
    return l ? H(E(l)->setAggregateLabelStyle(text(font), fontSize, fontColor, fontAngle))
             : nullptr;
}
CTextBox *CLayer_addCustomDataLabel(CLayer *l, int dataSet, int dataItem, const char *label,
                                    const char *font, double fontSize, int fontColor,
                                    double fontAngle) {
    return l ? H(E(l)->addCustomDataLabel(dataSet, dataItem, text(label), text(font), fontSize,
                                          fontColor, fontAngle))
             : nullptr;
}
CTextBox *CLayer_addCustomAggregateLabel(CLayer *l, int dataItem, const char *label,
                                         const char *font, double fontSize, int fontColor,
                                         double fontAngle) {
    return l ? H(E(l)->addCustomAggregateLabel(dataItem, text(label), text(font), fontSize,
                                               fontColor, fontAngle))
             : nullptr;
}
CTextBox *CLayer_addCustomGroupLabel(CLayer *l, int dataGroup, int dataItem, const char *label,
                                     const char *font, double fontSize, int fontColor,
                                     double fontAngle) {
    return l ? H(E(l)->addCustomGroupLabel(dataGroup, dataItem, text(label), text(font), fontSize,
                                           fontColor, fontAngle))
             : nullptr;
}
