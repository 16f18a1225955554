#pragma once

#include <vector>

#include "chart/axis/paint/PlotFrame.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/PlotBackground.h"
#include "chart/xy/PlotGrid.h"

class AxisImpl;
class BaseChart;
class DrawArea;
class Formatter;
class PlotLayer;
class TemplateFieldSource;

// The state of an XY chart: its axes, layers, plot rectangle and its look.
// It lays out the axes from the layers' data, packs the plot between the
// axes, maps values to pixels and paints the plot in its passes.  Owns the
// axes and the layers.
class PlotAreaImpl : public PlotArea {
public:
    // The standard axes, by the side they stand on.
    enum StandardAxis { kBottomAxis = 0, kTopAxis = 1, kLeftAxis = 2, kRightAxis = 3 };
    static constexpr int kNoClipping = 0x7FFFFFFF;

    PlotAreaImpl(BaseChart *chart, DrawArea *drawArea, const Formatter *formatter,
                 TemplateFieldSource *fields);
    ~PlotAreaImpl() override;
    PlotAreaImpl(const PlotAreaImpl &) = delete;
    PlotAreaImpl &operator=(const PlotAreaImpl &) = delete;

    void setBackground(int color, int altBgColor, int edgeColor) override;
    void setBackground2(const char *path, int align) override;
    void set4QBgColor(int q1Color, int q2Color, int q3Color, int q4Color, int edgeColor) override;
    void setAltBgColor(bool horizontal, int color1, int color2, int edgeColor) override;
    void setGridColor(int hGridColor, int vGridColor, int minorHGridColor,
                      int minorVGridColor) override;
    void setGridWidth(int hGridWidth, int vGridWidth, int minorHGridWidth,
                      int minorVGridWidth) override;
    void setGridAxis(Axis *xGridAxis, Axis *yGridAxis) override;
    void moveGridBefore(Layer *layer) override;
    int getLeftX() const override { return x; }
    int getTopY() const override { return y; }
    int getWidth() const override { return width; }
    int getHeight() const override { return height; }
    int getRightX() const override { return x + width; }
    int getBottomY() const override { return y + height; }

    // Axes.
    AxisImpl *xAxis() const { return standard(true, true); }
    AxisImpl *xAxis2() const { return standard(true, false); }
    AxisImpl *yAxis() const { return standard(false, true); }
    AxisImpl *yAxis2() const { return standard(false, false); }
    AxisImpl *getAxis(int i) const;
    int getAxisCount() const { return (int)axes.size(); }
    // Null for an alignment other than kBottom, kLeft, kRight, kTop.
    AxisImpl *addAxis(int alignment, int offset);
    void setYAxisOnRight(bool onRight) { yAxisOnRight = onRight; }
    void setXAxisOnTop(bool onTop) { xAxisOnTop = onTop; }
    void setSwapXY(bool swap) { swapXY = swap; }
    bool isSwapped() const { return swapXY; }
    void setAxisAtOrigin(int originMode, int symmetryMode);

    // The rectangle.
    void setPlotRect(int x, int y, int width, int height);
    bool isPlotRectSet() const { return plotRectSet; }
    void setClipping(int margin) { clipMargin = margin; }
    // kNoClipping unless setClipping was called.
    int getClipMargin() const { return clipMargin; }
    void setTrimData(int startPos, int len);
    int getTrimStart() const { return trimStart; }
    int getTrimLength() const { return trimLength; }
    PlotFrame getFrame() const;

    // Layers, owned from here on.
    void addLayer(PlotLayer *layer);
    int getLayerCount() const { return (int)layers.size(); }
    PlotLayer *getLayer(int i) const;
    // The place of the layer in the list; -1 if it is none of the chart's.
    int indexOfLayer(const PlotLayer *layer) const;
    // Moves the layer just in front of (before in the list) or behind the
    // other one; with no other one, to the front or the back of all.
    void moveLayer(PlotLayer *layer, PlotLayer *other, bool front);

    // Layout.
    void layoutLegend();
    // The layers' preLayout, once.
    void prepareLayers();
    // Layers' sizes, the axes' scales and places; again on every call.
    void layoutAxes();
    bool areAxesLaidOut() const { return axesLaidOut; }
    void layoutLayers();
    void packPlotArea(int leftX, int topY, int rightX, int bottomY, int minWidth, int minHeight);

    // Canvas pixels of axis values along the axis's direction (x for an axis at
    // the top or bottom, y for one at a side), and back.
    double pixelOf(const AxisImpl *axis, double value) const;
    double valueAt(const AxisImpl *axis, double pixel) const;
    // A colour that changes where the axis has the threshold.
    int zoneColor(AxisImpl *axis, double threshold, int belowColor, int aboveColor);
    double getNearestXValue(double coor);

    // Painting, in the chart's order: background, zones, grid and marks behind;
    // then, after the chart's objects, the layers; then the edge, the axes and
    // the marks on top.
    void paintBackdrop();
    void paintLayers();
    void paintFront();

private:
    // The standard axis of the x or the y role, the first or the second.
    AxisImpl *standard(bool xRole, bool primary) const;
    AxisImpl *makeAxis(int alignment);
    // Where the axes of a side stand before any offset or move to the origin.
    int edgeOf(int side) const;
    void placeAxes();
    void placeAtOrigin(AxisImpl *axis, const AxisImpl *across);
    void layoutScales();
    void dataRange(AxisImpl *axis, double *min, double *max) const;
    // Pixels the axes on a side need outward of the plot edge.
    int sideNeed(int side);
    AxisImpl *gridAxis(bool horizontalLines) const;
    std::vector<double> bandEdges() const;
    int gridOffset() const;
    void paintGrid(DrawArea *d, const PlotFrame &plot);
    // The axes in the order of the plot-area passes: added ones last to first,
    // then the four standard ones.
    std::vector<AxisImpl *> passOrder() const;

    BaseChart *chart;
    DrawArea *drawArea;
    const Formatter *formatter;
    TemplateFieldSource *fields;
    std::vector<AxisImpl *> axes;
    bool yAxisOnRight;
    bool xAxisOnTop;
    bool swapXY;
    int axisAtOrigin;
    int symmetryMode;
    std::vector<PlotLayer *> layers;
    int x;
    int y;
    int width;
    int height;
    bool plotRectSet;
    int depthX;
    int depthY;
    int clipMargin;
    int trimStart;
    int trimLength;
    PlotBackground background;
    PlotGrid grid;
    Axis *xGridAxis;
    Axis *yGridAxis;
    bool gridMoved;
    Layer *gridBefore;
    bool layersPrepared;
    bool axesLaidOut;
};
