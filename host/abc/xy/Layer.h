#pragma once

#include "api/xy/CLayer.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/Views.h"
#include "host/abc/chart/Axis.h"
#include "host/abc/chart/TextBox.h"

namespace abc {

class DataSet;
class XYChart;

// One way of drawing data on an XY chart.  The wrapper belongs to its chart's
// wrapper, which it asks for the wrappers of data sets; the wrappers of its
// label boxes belong to it.  A layer kind derives from it.
class Layer : public GarbageContainer {
public:
    Layer(CLayer *handle, XYChart *chart) : handle(handle), chart(chart) {}

    CLayer *getHandle() const { return handle; }
    static CLayer *handleOf(const Layer *l) { return l ? l->handle : nullptr; }

    void set3D(int depth, int zGap) { CLayer_set3D(handle, depth, zGap); }
    void setLineWidth(int width) { CLayer_setLineWidth(handle, width); }
    void setBorderColor(int color, int lightingEffect) {
        CLayer_setBorderColor(handle, color, lightingEffect);
    }
    void setLegend(int legendMode) { CLayer_setLegend(handle, legendMode); }
    void setLegendOrder(int dataSetOrder, int layerOrder) {
        CLayer_setLegendOrder(handle, dataSetOrder, layerOrder);
    }
    const char *getLegendIcon(int dataSetNo) { return CLayer_getLegendIcon(handle, dataSetNo); }
    void moveFront(Layer *layer) { CLayer_moveFront(handle, handleOf(layer)); }
    void moveBack(Layer *layer) { CLayer_moveBack(handle, handleOf(layer)); }

    void setDataCombineMethod(int method) { CLayer_setDataCombineMethod(handle, method); }
    DataSet *addDataSet(DoubleArray data, int color, const char *name);
    void addDataGroup(const char *name) { CLayer_addDataGroup(handle, name); }
    void addExtraField(StringArray texts) { CLayer_addExtraField(handle, texts.data, texts.len); }
    void addExtraField2(DoubleArray numbers) {
        CLayer_addExtraField2(handle, numbers.data, numbers.len);
    }
    DataSet *getDataSet(int dataSet);
    DataSet *getDataSetByZ(int z);
    int getDataSetCount() { return CLayer_getDataSetCount(handle); }
    void setUseYAxis2(bool useYAxis2) { CLayer_setUseYAxis2(handle, useYAxis2); }
    void setUseYAxis(Axis *axis) { CLayer_setUseYAxis(handle, Axis::handleOf(axis)); }

    void setXData(DoubleArray xData) { CLayer_setXData(handle, xData.data, xData.len); }
    void setXData2(double minValue, double maxValue) {
        CLayer_setXData2(handle, minValue, maxValue);
    }
    double getXPosition(int dataItem) { return CLayer_getXPosition(handle, dataItem); }
    double getNearestXValue(double target) { return CLayer_getNearestXValue(handle, target); }
    int getXIndexOf(double x, double tolerance) { return CLayer_getXIndexOf(handle, x, tolerance); }
    void alignLayer(Layer *layer, int dataSet) {
        CLayer_alignLayer(handle, handleOf(layer), dataSet);
    }
    void setBaseLine(double baseLine) { CLayer_setBaseLine(handle, baseLine); }

    int getXCoor(double value) { return CLayer_getXCoor(handle, value); }
    int getYCoor(double value, Axis *yAxis) {
        return CLayer_getYCoor(handle, value, Axis::handleOf(yAxis));
    }
    int getYCoor2(double value, bool useYAxis2) {
        return CLayer_getYCoor2(handle, value, useYAxis2);
    }
    int xZoneColor(double threshold, int belowColor, int aboveColor) {
        return CLayer_xZoneColor(handle, threshold, belowColor, aboveColor);
    }
    int yZoneColor(double threshold, int belowColor, int aboveColor, Axis *yAxis) {
        return CLayer_yZoneColor(handle, threshold, belowColor, aboveColor, Axis::handleOf(yAxis));
    }
    int yZoneColor2(double threshold, int belowColor, int aboveColor, bool useYAxis2) {
        return CLayer_yZoneColor2(handle, threshold, belowColor, aboveColor, useYAxis2);
    }

    const char *getImageCoor(int dataSet, int dataItem, int offsetX, int offsetY) {
        return CLayer_getImageCoor(handle, dataSet, dataItem, offsetX, offsetY);
    }
    const char *getImageCoor2(int dataItem, int offsetX, int offsetY) {
        return CLayer_getImageCoor2(handle, dataItem, offsetX, offsetY);
    }
    const char *getHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                int offsetX, int offsetY) {
        return CLayer_getHTMLImageMap(handle, url, queryFormat, extraAttr, offsetX, offsetY);
    }
    void setHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr) {
        CLayer_setHTMLImageMap(handle, url, queryFormat, extraAttr);
    }

    void setDataLabelFormat(const char *formatString) {
        CLayer_setDataLabelFormat(handle, formatString);
    }
    TextBox *setDataLabelStyle(const char *font, double fontSize, int fontColor, double fontAngle) {
        return box(CLayer_setDataLabelStyle(handle, font, fontSize, fontColor, fontAngle));
    }
    void setAggregateLabelFormat(const char *formatString) {
        CLayer_setAggregateLabelFormat(handle, formatString);
    }
    TextBox *setAggregateLabelStyle(const char *font, double fontSize, int fontColor,
                                    double fontAngle) {
        return box(CLayer_setAggregateLabelStyle(handle, font, fontSize, fontColor, fontAngle));
    }
    TextBox *addCustomDataLabel(int dataSet, int dataItem, const char *label, const char *font,
                                double fontSize, int fontColor, double fontAngle) {
        return box(CLayer_addCustomDataLabel(handle, dataSet, dataItem, label, font, fontSize,
                                             fontColor, fontAngle));
    }
    TextBox *addCustomAggregateLabel(int dataItem, const char *label, const char *font,
                                     double fontSize, int fontColor, double fontAngle) {
        return box(CLayer_addCustomAggregateLabel(handle, dataItem, label, font, fontSize,
                                                  fontColor, fontAngle));
    }
    TextBox *addCustomGroupLabel(int dataGroup, int dataItem, const char *label, const char *font,
                                 double fontSize, int fontColor, double fontAngle) {
        return box(CLayer_addCustomGroupLabel(handle, dataGroup, dataItem, label, font, fontSize,
                                              fontColor, fontAngle));
    }

private:
    // A label box is handed out again for the same place: one wrapper.
    TextBox *box(CTextBox *h) { return keepOnce(h, &TextBox::getTextBoxHandle); }

    CLayer *handle;
    XYChart *chart;
};

}  // namespace abc
