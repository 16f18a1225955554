#pragma once

#include "chart/base/BaseChart.h"

class AreaLayer;
class Axis;
class BarLayer;
class Layer;
class LineLayer;
class PlotArea;
class ScatterLayer;

// A chart with a rectangular plot area, four standard axes (bottom, top, left
// and right) and any number of added ones, and a list of layers that draw the
// data.  Which standard axis is the x axis and which the y axis follows
// swapXY, setXAxisOnTop and setYAxisOnRight at each use.
class XYChart : public virtual BaseChart {
public:
    static XYChart *create(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    // An axis on a side (kBottom, kLeft, kRight, kTop; null for any other),
    // standing offset pixels out from the plot.
    virtual Axis *addAxis(int alignment, int offset) = 0;
    virtual Axis *yAxis() = 0;
    virtual Axis *yAxis2() = 0;
    // The second y axis follows the first: its value = slope * y + intercept.
    virtual void syncYAxis(double slope, double intercept) = 0;
    virtual void setYAxisOnRight(bool onRight) = 0;
    virtual Axis *xAxis() = 0;
    virtual Axis *xAxis2() = 0;
    virtual void setXAxisOnTop(bool onTop) = 0;
    // The x axis runs up the side and the y axis along the bottom.
    virtual void swapXY(bool swap) = 0;
    // kXAxisAtOrigin 1, kYAxisAtOrigin 2, kXYAxisAtOrigin 3: the axis stands at
    // the other axis's 0.  symmetryMode, of kXAxisSymmetric 1,
    // kXAxisSymmetricIfNeeded 2, kYAxisSymmetric 4, kYAxisSymmetricIfNeeded 8,
    // kXYAxisSymmetric 16, kXYAxisSymmetricIfNeeded 32, centres scales on 0.
    virtual void setAxisAtOrigin(int originMode, int symmetryMode) = 0;

    // Canvas pixels of values, and values of pixels; the y axis is the chart's
    // own when null.  They read the layout: see layoutAxes.
    virtual double getXCoor(double value) = 0;
    virtual double getYCoor(double value, Axis *yAxis) = 0;
    virtual double getXValue(double coor) = 0;
    virtual double getYValue(double coor, Axis *yAxis) = 0;
    // Colours that change at a value of the x or y axis.
    virtual int xZoneColor(double threshold, int belowColor, int aboveColor) = 0;
    virtual int yZoneColor(double threshold, int belowColor, int aboveColor, Axis *yAxis) = 0;

    virtual PlotArea *setPlotArea(int x, int y, int width, int height, int bgColor, int altBgColor,
                                  int edgeColor, int hGridColor, int vGridColor) = 0;
    virtual PlotArea *getPlotArea() = 0;
    // Layers draw only within the plot enlarged by the margin.
    virtual void setClipping(int margin) = 0;
    // The window of data indices the layers draw.
    virtual void setTrimData(int startPos, int len) = 0;

    // Layer makers; the chart owns what they make.  A bar layer of one data
    // set; a bar layer without data that combines the sets added to it by the
    // method (kSide, kStack, ...); a bar layer with a colour and a legend
    // name for each bar.  A depth above 0 draws the bars in 3D.
    virtual BarLayer *addBarLayer(DoubleArray data, int color, const char *name, int depth) = 0;
    virtual BarLayer *addBarLayer2(int dataCombineMethod, int depth) = 0;
    virtual BarLayer *addBarLayer3(DoubleArray data, IntArray colors, StringArray names,
                                   int depth) = 0;
    // A line layer of one data set, or without data and combining the sets
    // added to it by the method (kOverlay, kStack, ...); a depth above 0
    // draws the lines as 3D ribbons.
    virtual LineLayer *addLineLayer(DoubleArray data, int color, const char *name, int depth) = 0;
    virtual LineLayer *addLineLayer2(int dataCombineMethod, int depth) = 0;
    // The same with areas filled down to the base line.
    virtual AreaLayer *addAreaLayer(DoubleArray data, int color, const char *name, int depth) = 0;
    virtual AreaLayer *addAreaLayer2(int dataCombineMethod, int depth) = 0;
    // Symbols without lines at the points (xData[i], yData[i]): a shape word
    // (kSquareSymbol, ...) of the size, filled with fillColor (-1 the next
    // data colour), edged with edgeColor (-1 none).
    virtual ScatterLayer *addScatterLayer(DoubleArray xData, DoubleArray yData, const char *name,
                                          int symbol, int symbolSize, int fillColor,
                                          int edgeColor) = 0;

    // Layers in the order of adding; by z, 0 is the bottom one.  Null out of range.
    virtual Layer *getLayer(int i) = 0;
    virtual Layer *getLayerByZ(int i) = 0;
    virtual int getLayerCount() = 0;
    virtual double getNearestXValue(double xCoor) = 0;

    // Lays the axes out now, so that coordinates can be asked before output;
    // setPlotArea after it lays them out again.
    virtual void layoutAxes() = 0;
    // Fits the plot in the box so that the axes with their labels and titles
    // just fit; the box grows where they need more than it has.
    virtual void packPlotArea(int leftX, int topY, int rightX, int bottomY, int minWidth,
                              int minHeight) = 0;

protected:
    ~XYChart() override {}
};
