#include "chart/xy/XYChartImpl.h"

#include <string>

#include "chart/axis/AxisImpl.h"
#include "chart/xy/LayerMakers.h"
#include "chart/xy/PlotLayer.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace {

const int kPlotAreaProperty = 0x200;
// BaseChartImpl::paint leaves objects above this z order for after the legend.
const int kLastPlotObjectZ = 0xFFFE;

}  // namespace

XYChart *XYChart::create(int width, int height, int bgColor, int edgeColor, int raisedEffect) {
    XYChartImpl *chart = new XYChartImpl();
    chart->initChart(width, height, bgColor, edgeColor, raisedEffect);
    return chart;
}

XYChartImpl::XYChartImpl() : plotArea(this, getRawDrawArea(), getFormatter(), getExtraFields()) {}

Axis *XYChartImpl::addAxis(int alignment, int offset) {
    return plotArea.addAxis(alignment, offset);
}

Axis *XYChartImpl::yAxis() {
    return plotArea.yAxis();
}

Axis *XYChartImpl::yAxis2() {
    return plotArea.yAxis2();
}

Axis *XYChartImpl::xAxis() {
    return plotArea.xAxis();
}

Axis *XYChartImpl::xAxis2() {
    return plotArea.xAxis2();
}

void XYChartImpl::syncYAxis(double slope, double intercept) {
    plotArea.yAxis2()->syncAxis(plotArea.yAxis(), slope, intercept);
}

void XYChartImpl::setAxisAtOrigin(int originMode, int symmetryMode) {
    plotArea.setAxisAtOrigin(originMode, symmetryMode);
}

AxisImpl *XYChartImpl::yAxisOrDefault(Axis *axis) {
    return axis ? AxisImpl::of(axis) : plotArea.yAxis();
}

double XYChartImpl::getXCoor(double value) {
    return plotArea.pixelOf(plotArea.xAxis(), value);
}

double XYChartImpl::getYCoor(double value, Axis *axis) {
    return plotArea.pixelOf(yAxisOrDefault(axis), value);
}

double XYChartImpl::getXValue(double coor) {
    return plotArea.valueAt(plotArea.xAxis(), coor);
}

double XYChartImpl::getYValue(double coor, Axis *axis) {
    return plotArea.valueAt(yAxisOrDefault(axis), coor);
}

int XYChartImpl::xZoneColor(double threshold, int belowColor, int aboveColor) {
    return plotArea.zoneColor(plotArea.xAxis(), threshold, belowColor, aboveColor);
}

int XYChartImpl::yZoneColor(double threshold, int belowColor, int aboveColor, Axis *axis) {
    return plotArea.zoneColor(yAxisOrDefault(axis), threshold, belowColor, aboveColor);
}

PlotArea *XYChartImpl::setPlotArea(int x, int y, int width, int height, int bgColor, int altBgColor,
                                   int edgeColor, int hGridColor, int vGridColor) {
    plotArea.setPlotRect(x, y, width, height);
    plotArea.setBackground(bgColor, altBgColor, edgeColor);
    plotArea.setGridColor(hGridColor, vGridColor, -1, -1);
    return &plotArea;
}

void XYChartImpl::packPlotArea(int leftX, int topY, int rightX, int bottomY, int minWidth,
                               int minHeight) {
    plotArea.packPlotArea(leftX, topY, rightX, bottomY, minWidth, minHeight);
}

BarLayer *XYChartImpl::addBarLayer(DoubleArray data, int color, const char *name, int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeBarLayer(this, data, color, name, depth) : nullptr;
}

BarLayer *XYChartImpl::addBarLayer2(int dataCombineMethod, int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeBarLayer2(this, dataCombineMethod, depth) : nullptr;
}

BarLayer *XYChartImpl::addBarLayer3(DoubleArray data, IntArray colors, StringArray names,
                                    int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeBarLayer3(this, data, colors, names, depth) : nullptr;
}

LineLayer *XYChartImpl::addLineLayer(DoubleArray data, int color, const char *name, int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeLineLayer(this, data, color, name, depth) : nullptr;
}

LineLayer *XYChartImpl::addLineLayer2(int dataCombineMethod, int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeLineLayer2(this, dataCombineMethod, depth) : nullptr;
}

AreaLayer *XYChartImpl::addAreaLayer(DoubleArray data, int color, const char *name, int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeAreaLayer(this, data, color, name, depth) : nullptr;
}

AreaLayer *XYChartImpl::addAreaLayer2(int dataCombineMethod, int depth) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeAreaLayer2(this, dataCombineMethod, depth) : nullptr;
}

ScatterLayer *XYChartImpl::addScatterLayer(DoubleArray xData, DoubleArray yData,
                                           const char *name, int symbol, int symbolSize,
                                           int fillColor, int edgeColor) {
    LayerMakers *makers = LayerMakers::get();
    return makers ? makers->makeScatterLayer(this, xData, yData, name, symbol, symbolSize,
                                             fillColor, edgeColor)
                  : nullptr;
}

TemplateFieldSource *XYChartImpl::getChartFields() {
    return getExtraFields();
}

Layer *XYChartImpl::getLayer(int i) {
    PlotLayer *layer = plotArea.getLayer(i);
    return layer ? layer->getLayer() : nullptr;
}

// The last layer added paints first, so it is the bottom one.
Layer *XYChartImpl::getLayerByZ(int i) {
    return getLayer(plotArea.getLayerCount() - 1 - i);
}

double XYChartImpl::getProperty(int code) {
    if ((code & ~0xFF) != kPlotAreaProperty) return BaseChartImpl::getProperty(code);
    switch (code & 0xFF) {
        case kLeft:
            return plotArea.getLeftX();
        case kTop:
            return plotArea.getTopY();
        case kRight:
            return plotArea.getRightX();
        case kBottom:
            return plotArea.getBottomY();
        default:
            return 0;
    }
}

void XYChartImpl::onLayoutLegend() {
    plotArea.layoutLegend();
}

void XYChartImpl::onLayoutChart() {
    plotArea.prepareLayers();
    if (!plotArea.isPlotRectSet()) {
        int left, top, right, bottom;
        getFreeArea(&left, &top, &right, &bottom);
        plotArea.packPlotArea(left + kAutoPlotMargin, top + kAutoPlotMargin,
                              right - kAutoPlotMargin, bottom - kAutoPlotMargin, 0, 0);
    } else if (!plotArea.areAxesLaidOut()) {
        plotArea.layoutAxes();
    }
    plotArea.layoutLayers();
}

void XYChartImpl::onPaint() {
    plotArea.paintBackdrop();
    paintObjects(kLastPlotObjectZ);
    plotArea.paintLayers();
    plotArea.paintFront();
}

// The first layer added stands on top, so its areas come first.
const char *XYChartImpl::onGetHTMLImageMap(const char *url, const char *queryFormat,
                                           const char *extraAttr, int offsetX, int offsetY) {
    layout();
    imageMap.clear();
    for (int i = 0; i < plotArea.getLayerCount(); ++i) {
        const char *map =
            plotArea.getLayer(i)->getHTMLImageMap(url, queryFormat, extraAttr, offsetX, offsetY);
        if (map) imageMap += map;
    }
    return imageMap.c_str();
}
