#pragma once

#include <string>

#include "chart/base/BaseChartImpl.h"
#include "chart/xy/PlotAreaImpl.h"
#include "chart/xy/XYChart.h"

class LegendBoxImpl;
class PlotLayer;
class TemplateFieldSource;

// An XY chart: the chart frame of BaseChartImpl with a plot area.  Its hooks
// lay out the layers and axes and paint the plot in its passes.  Without
// setPlotArea or packPlotArea, the plot is packed into the room the titles
// leave, less a margin.
class XYChartImpl : public XYChart, public BaseChartImpl {
public:
    // Space kept free around a plot that the chart packs by itself.
    static constexpr int kAutoPlotMargin = 10;

    XYChartImpl();

    Axis *addAxis(int alignment, int offset) override;
    Axis *yAxis() override;
    Axis *yAxis2() override;
    void syncYAxis(double slope, double intercept) override;
    void setYAxisOnRight(bool onRight) override { plotArea.setYAxisOnRight(onRight); }
    Axis *xAxis() override;
    Axis *xAxis2() override;
    void setXAxisOnTop(bool onTop) override { plotArea.setXAxisOnTop(onTop); }
    void swapXY(bool swap) override { plotArea.setSwapXY(swap); }
    void setAxisAtOrigin(int originMode, int symmetryMode) override;

    double getXCoor(double value) override;
    double getYCoor(double value, Axis *yAxis) override;
    double getXValue(double coor) override;
    double getYValue(double coor, Axis *yAxis) override;
    int xZoneColor(double threshold, int belowColor, int aboveColor) override;
    int yZoneColor(double threshold, int belowColor, int aboveColor, Axis *yAxis) override;

    PlotArea *setPlotArea(int x, int y, int width, int height, int bgColor, int altBgColor,
                          int edgeColor, int hGridColor, int vGridColor) override;
    PlotArea *getPlotArea() override { return &plotArea; }
    void setClipping(int margin) override { plotArea.setClipping(margin); }
    void setTrimData(int startPos, int len) override { plotArea.setTrimData(startPos, len); }

    BarLayer *addBarLayer(DoubleArray data, int color, const char *name, int depth) override;
    BarLayer *addBarLayer2(int dataCombineMethod, int depth) override;
    BarLayer *addBarLayer3(DoubleArray data, IntArray colors, StringArray names,
                           int depth) override;
    LineLayer *addLineLayer(DoubleArray data, int color, const char *name, int depth) override;
    LineLayer *addLineLayer2(int dataCombineMethod, int depth) override;
    AreaLayer *addAreaLayer(DoubleArray data, int color, const char *name, int depth) override;
    AreaLayer *addAreaLayer2(int dataCombineMethod, int depth) override;
    ScatterLayer *addScatterLayer(DoubleArray xData, DoubleArray yData, const char *name,
                                  int symbol, int symbolSize, int fillColor,
                                  int edgeColor) override;

    Layer *getLayer(int i) override;
    Layer *getLayerByZ(int i) override;
    int getLayerCount() override { return plotArea.getLayerCount(); }
    double getNearestXValue(double xCoor) override { return plotArea.getNearestXValue(xCoor); }

    void layoutAxes() override { plotArea.layoutAxes(); }
    void packPlotArea(int leftX, int topY, int rightX, int bottomY, int minWidth,
                      int minHeight) override;
    double getProperty(int code) override;

    // For the layer makers: the chart owns the layer from here on.
    void addLayer(PlotLayer *layer) { plotArea.addLayer(layer); }
    PlotAreaImpl &getPlotAreaImpl() { return plotArea; }
    // For the layers: the legend their keys go into, if the chart has one;
    // the chart's {fieldN} columns.
    LegendBoxImpl *getLegendForKeys() const { return existingLegend(); }
    TemplateFieldSource *getChartFields();

    using BaseChartImpl::initChart;

protected:
    void onLayoutLegend() override;
    void onLayoutChart() override;
    void onPaint() override;
    const char *onGetHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                  int offsetX, int offsetY) override;

private:
    AxisImpl *yAxisOrDefault(Axis *axis);

    PlotAreaImpl plotArea;
    std::string imageMap;
};
