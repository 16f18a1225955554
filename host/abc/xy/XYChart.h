#pragma once

#include "api/xy/CXYChart.h"
#include "host/abc/UniqueObjContainer.h"
#include "host/abc/Views.h"
#include "host/abc/chart/Axis.h"
#include "host/abc/chart/BaseChart.h"
#include "host/abc/xy/AreaLayer.h"
#include "host/abc/xy/BarLayer.h"
#include "host/abc/xy/DataSet.h"
#include "host/abc/xy/Layer.h"
#include "host/abc/xy/LineLayer.h"
#include "host/abc/xy/PlotArea.h"
#include "host/abc/xy/ScatterLayer.h"

namespace abc {

// An XY chart.  It keeps one wrapper for each of its axes, plot areas, layers
// and data sets; they die with it, after the engine chart.
class XYChart : public BaseChart {
public:
    // Takes the chart over.
    explicit XYChart(CXYChart *handle) : BaseChart(CXYChart_toBaseChart(handle)), xyChart(handle) {}
    // A new chart; null if the engine made none.
    static XYChart *create(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    CXYChart *getXYHandle() const { return xyChart; }

    Axis *addAxis(int alignment, int offset) {
        return axisOf(CXYChart_addAxis(xyChart, alignment, offset));
    }
    Axis *yAxis() { return axisOf(CXYChart_yAxis(xyChart)); }
    Axis *yAxis2() { return axisOf(CXYChart_yAxis2(xyChart)); }
    void syncYAxis(double slope, double intercept) {
        CXYChart_syncYAxis(xyChart, slope, intercept);
    }
    void setYAxisOnRight(bool onRight) { CXYChart_setYAxisOnRight(xyChart, onRight); }
    Axis *xAxis() { return axisOf(CXYChart_xAxis(xyChart)); }
    Axis *xAxis2() { return axisOf(CXYChart_xAxis2(xyChart)); }
    void setXAxisOnTop(bool onTop) { CXYChart_setXAxisOnTop(xyChart, onTop); }
    void swapXY(bool swap) { CXYChart_swapXY(xyChart, swap); }
    void setAxisAtOrigin(int originMode, int symmetryMode) {
        CXYChart_setAxisAtOrigin(xyChart, originMode, symmetryMode);
    }

    double getXCoor(double value) { return CXYChart_getXCoor(xyChart, value); }
    double getYCoor(double value, Axis *yAxis) {
        return CXYChart_getYCoor(xyChart, value, Axis::handleOf(yAxis));
    }
    double getXValue(double coor) { return CXYChart_getXValue(xyChart, coor); }
    double getYValue(double coor, Axis *yAxis) {
        return CXYChart_getYValue(xyChart, coor, Axis::handleOf(yAxis));
    }
    int xZoneColor(double threshold, int belowColor, int aboveColor) {
        return CXYChart_xZoneColor(xyChart, threshold, belowColor, aboveColor);
    }
    int yZoneColor(double threshold, int belowColor, int aboveColor, Axis *yAxis) {
        return CXYChart_yZoneColor(xyChart, threshold, belowColor, aboveColor,
                                   Axis::handleOf(yAxis));
    }

    PlotArea *setPlotArea(int x, int y, int width, int height, int bgColor, int altBgColor,
                          int edgeColor, int hGridColor, int vGridColor) {
        return plotAreas.get(CXYChart_setPlotArea(xyChart, x, y, width, height, bgColor, altBgColor,
                                                  edgeColor, hGridColor, vGridColor));
    }
    PlotArea *getPlotArea() { return plotAreas.get(CXYChart_getPlotArea(xyChart)); }
    void setClipping(int margin) { CXYChart_setClipping(xyChart, margin); }
    void setTrimData(int startPos, int len) { CXYChart_setTrimData(xyChart, startPos, len); }

    BarLayer *addBarLayer(DoubleArray data, int color, const char *name, int depth) {
        return kindOf<BarLayer>(
            CXYChart_addBarLayer(xyChart, data.data, data.len, color, name, depth));
    }
    BarLayer *addBarLayer2(int dataCombineMethod, int depth) {
        return kindOf<BarLayer>(CXYChart_addBarLayer2(xyChart, dataCombineMethod, depth));
    }
    BarLayer *addBarLayer3(DoubleArray data, IntArray colors, StringArray names, int depth) {
        return kindOf<BarLayer>(CXYChart_addBarLayer3(xyChart, data.data, data.len, colors.data,
                                                      colors.len, names.data, names.len, depth));
    }
    LineLayer *addLineLayer(DoubleArray data, int color, const char *name, int depth) {
        return kindOf<LineLayer>(
            CXYChart_addLineLayer(xyChart, data.data, data.len, color, name, depth));
    }
    LineLayer *addLineLayer2(int dataCombineMethod, int depth) {
        return kindOf<LineLayer>(CXYChart_addLineLayer2(xyChart, dataCombineMethod, depth));
    }
    AreaLayer *addAreaLayer(DoubleArray data, int color, const char *name, int depth) {
        return kindOf<AreaLayer>(
            CXYChart_addAreaLayer(xyChart, data.data, data.len, color, name, depth));
    }
    AreaLayer *addAreaLayer2(int dataCombineMethod, int depth) {
        return kindOf<AreaLayer>(CXYChart_addAreaLayer2(xyChart, dataCombineMethod, depth));
    }
    ScatterLayer *addScatterLayer(DoubleArray xData, DoubleArray yData, const char *name,
                                  int symbol, int symbolSize, int fillColor, int edgeColor) {
        return kindOf<ScatterLayer>(CXYChart_addScatterLayer(xyChart, xData.data, xData.len,
                                                             yData.data, yData.len, name, symbol,
                                                             symbolSize, fillColor, edgeColor));
    }

    Layer *getLayer(int i) { return layerOf(CXYChart_getLayer(xyChart, i)); }
    Layer *getLayerByZ(int i) { return layerOf(CXYChart_getLayerByZ(xyChart, i)); }
    int getLayerCount() { return CXYChart_getLayerCount(xyChart); }
    double getNearestXValue(double xCoor) { return CXYChart_getNearestXValue(xyChart, xCoor); }

    void layoutAxes() { CXYChart_layoutAxes(xyChart); }
    void packPlotArea(int leftX, int topY, int rightX, int bottomY, int minWidth, int minHeight) {
        CXYChart_packPlotArea(xyChart, leftX, topY, rightX, bottomY, minWidth, minHeight);
    }

    // The one wrapper of each part of the chart; null for a null handle.  A
    // layer's wrapper is of the layer's kind.
    Axis *axisOf(CAxis *h) { return axes.get(h); }
    Layer *layerOf(CLayer *h);
    DataSet *dataSetOf(CDataSet *h);

private:
    // The wrapper of a layer just made, of its kind W.
    template <class W, class H>
    W *kindOf(H *h) {
        return dynamic_cast<W *>(layerOf(layerHandleOf(h)));
    }
    static CLayer *layerHandleOf(CBarLayer *h) { return CBarLayer_toLayer(h); }
    static CLayer *layerHandleOf(CLineLayer *h) { return CLineLayer_toLayer(h); }
    static CLayer *layerHandleOf(CAreaLayer *h) { return CAreaLayer_toLayer(h); }
    static CLayer *layerHandleOf(CScatterLayer *h) { return CScatterLayer_toLayer(h); }

    CXYChart *xyChart;
    UniqueObjContainer<Axis> axes;
    UniqueObjContainer<PlotArea> plotAreas;
    UniqueObjContainer<Layer> layers;
    UniqueObjContainer<DataSet> dataSets;
};

}  // namespace abc
