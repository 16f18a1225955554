#pragma once

#include <string>
#include <vector>

#include "chart/layer/HotSpot.h"
#include "chart/layer/LabelSettings.h"
#include "chart/layer/LabelSpot.h"
#include "chart/layer/Layer.h"
#include "chart/layer/StackedValues.h"
#include "chart/layer/XPositions.h"
#include "chart/xy/PlotLayer.h"
#include "text/template/ExtraFields.h"

class AxisImpl;
class DataSetImpl;
class DataLabels;
class DrawArea;
class DrawObj;
class LayerPainter;
class LegendIcon;
class VSParser;
class XYChartImpl;

// The framework of every layer kind: the data sets and their groups, the x
// positions, how sets combine, the extremes the axes need, the value-to-pixel
// mapping through the layer's axes, labels, legend keys and hot spots.  A
// concrete layer draws in onPaint and reports where its labels and hot spots
// are.  The chart owns the layer through PlotLayer.
class LayerImpl : public virtual Layer, public PlotLayer {
public:
    // Objects up to this z order paint before the layer's data.
    static constexpr int kBelowDataZ = 0x1FFF;

    explicit LayerImpl(XYChartImpl *chart);
    ~LayerImpl() override;
    LayerImpl(const LayerImpl &) = delete;
    LayerImpl &operator=(const LayerImpl &) = delete;

    // Every Layer of the engine is a LayerImpl.
    static LayerImpl *of(Layer *layer) { return dynamic_cast<LayerImpl *>(layer); }

    // ---- Layer ----
    void set3D(int depth, int zGap) override;
    void setLineWidth(int width) override { lineWidth = width; }
    void setBorderColor(int color, int lightingEffect) override;
    void setLegend(int mode) override { legendMode = validLegendMode(mode); }
    void setLegendOrder(int dataSetOrder, int layerOrder) override;
    const char *getLegendIcon(int dataSetNo) override;
    void moveFront(Layer *layer) override;
    void moveBack(Layer *layer) override;
    void setDataCombineMethod(int method) override;
    DataSet *addDataSet(DoubleArray data, int color, const char *name) override;
    void addDataGroup(const char *name) override;
    void addExtraField(StringArray texts) override { extraFields.addExtraField(texts); }
    void addExtraField2(DoubleArray numbers) override { extraFields.addExtraField(numbers); }
    DataSet *getDataSet(int dataSet) override;
    DataSet *getDataSetByZ(int z) override;
    int getDataSetCount() override { return (int)dataSets.size(); }
    void setUseYAxis2(bool useYAxis2) override;
    void setUseYAxis(Axis *axis) override { yAxis = axis; }
    void setXData(DoubleArray xData) override { xPositions.setValues(xData); }
    void setXData2(double minValue, double maxValue) override;
    double getXPosition(int dataItem) override { return xValue(dataItem); }
    // The x value of the point nearest to a pixel along the x axis.
    double getNearestXValue(double coor) override;
    int getXIndexOf(double x, double tolerance) override;
    void alignLayer(Layer *layer, int dataSet) override;
    void setBaseLine(double baseLine) override;
    int getXCoor(double value) override;
    int getYCoor(double value, Axis *yAxis) override;
    int getYCoor2(double value, bool useYAxis2) override;
    int xZoneColor(double threshold, int belowColor, int aboveColor) override;
    int yZoneColor(double threshold, int belowColor, int aboveColor, Axis *yAxis) override;
    int yZoneColor2(double threshold, int belowColor, int aboveColor, bool useYAxis2) override;
    const char *getImageCoor(int dataSet, int dataItem, int offsetX, int offsetY) override;
    const char *getImageCoor2(int dataItem, int offsetX, int offsetY) override;
    const char *getHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                int offsetX, int offsetY) override;
    void setHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr) override;
    void setDataLabelFormat(const char *formatString) override;
    TextBox *setDataLabelStyle(const char *font, double fontSize, int fontColor,
                               double fontAngle) override;
    void setAggregateLabelFormat(const char *formatString) override;
    TextBox *setAggregateLabelStyle(const char *font, double fontSize, int fontColor,
                                    double fontAngle) override;
    TextBox *addCustomDataLabel(int dataSet, int dataItem, const char *label, const char *font,
                                double fontSize, int fontColor, double fontAngle) override;
    TextBox *addCustomAggregateLabel(int dataItem, const char *label, const char *font,
                                     double fontSize, int fontColor, double fontAngle) override;
    TextBox *addCustomGroupLabel(int dataGroup, int dataItem, const char *label, const char *font,
                                 double fontSize, int fontColor, double fontAngle) override;

    // ---- PlotLayer ----
    void release() override { delete this; }
    Layer *getLayer() override { return this; }
    void layoutLegend() override;
    void preLayout(int length) override;
    void setSize(int x, int y, int width, int height, bool swapXY) override;
    int getDepthX() const override { return totalDepth(); }
    int getDepthY() const override { return totalDepth(); }
    void foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) override;
    void layoutChart() override;
    // The layer's objects below the data, the data, then the objects above.
    void paint() override;
    void paintAbove() override {}
    bool hasXData() const override { return dataCount > 0; }

    // A data set's data changed: the point count follows.
    void dataChanged();

    // ---- What concrete layers, labels and hot spots read ----
    XYChartImpl *getChart() const { return chart; }
    DrawArea *getDrawArea() const;
    int getDataCount() const { return dataCount; }
    DataSetImpl *dataSetAt(int i) const;
    int getGroupCount() const { return (int)dataGroups.size(); }
    int countDataSets() const { return (int)dataSets.size(); }
    const std::string &getGroupName(int g) const;
    const StackedValues &getStacks() const { return stacks; }
    int getCombineMethod() const { return dataCombineMethod; }
    double getBaseLine() const { return baseLine; }
    int getLineWidth() const { return lineWidth; }
    int getBorderColor() const { return borderColor; }
    int getLightingEffect() const { return lightingEffect; }
    const LabelSettings &getLabels() const { return labels; }
    // The 3D depth of one data set's slice, settled by setSize, and the shift
    // of the slice of set k (0 for all but kDepth layers).
    int getDepth() const { return resolvedDepth; }
    int sliceShift(int dataSet) const;
    bool isSwapped() const { return swapped; }
    // The window of points the chart draws: from firstPoint to endPoint - 1.
    int firstPoint() const;
    int endPoint() const;
    double xValue(int i) const { return xPositions.at(i, dataCount); }
    // The x values given one by one; empty when positions are a range or the index.
    const std::vector<double> &getXValues() const { return xPositions.getValues(); }
    // The smallest and largest x of points from to to - 1; kNoValue if none.
    void xRange(int from, int to, double *min, double *max) const {
        xPositions.range(from, to, dataCount, min, max);
    }
    bool isXEnumerated() const { return xPositions.isEnumerated(); }
    AxisImpl *xAxisImpl() const;
    // The y axis of the layer, and that of a data set.
    AxisImpl *layerYAxis() const;
    AxisImpl *axisOf(int dataSet) const;
    // The axis that bars and areas take their base line from.
    AxisImpl *getDefaultBaseLineAxis() const;
    // 1 if bars of a value equal to the base line grow towards higher pixels of
    // the value axis, else 0.
    int getZeroDirection(AxisImpl *axis) const;
    // Layer coordinates: x along the x axis, y along the value axis, in canvas
    // pixels before the 3D shift; LayerPainter turns them into canvas points.
    double xPixel(double x) const;
    double yPixel(double value, const AxisImpl *axis) const;
    // The x pixel of point i, where an aligned layer puts it.
    double pointXPixel(int i) const;
    // Whether the points stand where another layer's bars do (alignLayer).
    bool isAligned() const { return alignedLayer != nullptr; }
    // The shift of the layer's front on the canvas.
    int getOffsetX() const { return offsetX; }
    int getOffsetY() const { return offsetY; }
    // The plot rectangle on the canvas.
    void getPlotRect(int *left, int *top, int *right, int *bottom) const;
    // The place of the layer among the chart's layers.
    int getLayerIndex() const;
    // The points of a data set in the window that get data labels: all of
    // them when the set or the layer asks for labels, else those with labels
    // of their own.
    std::vector<int> labelledPoints(int dataSet) const;
    // The value a data set's point shows on its axis: its value, or the top
    // of its part of a stack.
    double positionOf(int dataSet, int i) const;
    // Where a point's part starts on its axis: the top of the parts below it
    // in a stack (kStack, kPercentage), else the base line; kNoValue for a gap.
    double floorOf(int dataSet, int i) const;
    // A template filled with the attributes of a point (flags: the parser's
    // escaping), and with those of a data set as its legend key shows it.
    std::string fillTemplate(const char *text, int flags, const LabelSpot &point);
    std::string fillSetTemplate(int dataSet, const char *text, int flags);
    // Keeps an object in the layer, painted below the data up to z 0x1FFF and
    // above it from 0x2000; the layer releases it.
    void addDrawObj(DrawObj *obj);

protected:
    // Draws the data.  The painter shifts by the layer's 3D offset and swaps.
    virtual void onPaint(LayerPainter &painter) = 0;
    // Gets the layer's shapes ready for painting, labels and hot spots; runs
    // before onPaint and before the hot spots are asked for.
    virtual void onPrepare() {}
    // The places of labels and of hot spots, once prepared.
    virtual void collectLabelSpots(std::vector<LabelSpot> &) {}
    virtual void collectHotSpots(std::vector<HotSpot> &) {}
    // The key of a data set; null draws the legend's colour patch.
    virtual LegendIcon *makeLegendIcon(int) { return nullptr; }
    // The width of the line a data set's key shows, when the legend shows
    // lines; 0 or less for none.
    virtual int keyLineWidth(int dataSet) const;
    // The centre pixel of a point of the data set as this layer draws it.
    virtual bool alignedXPixel(int, int, double *) { return false; }
    // The default query of the layer's hot spots.
    virtual const char *getDefaultQueryString() const;
    // Runs onPrepare once after each change of the layout.
    void ensurePrepared();

private:
    static int validLegendMode(int mode);
    int totalDepth() const;
    void foldYRange(AxisImpl *axis, double *min, double *max) const;
    void assignColors();
    void addLegendKeys();
    // The canvas pixel of a value along the axis, 3D shift included.
    double canvasPixel(const AxisImpl *axis, double value) const;
    const HotSpot *findHotSpot(int dataSet, int dataItem);
    std::string coordsText(const HotSpot &spot, int offsetX, int offsetY) const;

    XYChartImpl *chart;
    Axis *yAxis;
    std::vector<std::string> dataGroups;
    std::vector<DataSetImpl *> dataSets;
    StackedValues stacks;
    int dataCombineMethod;
    XPositions xPositions;
    int dataCount;
    double baseLine;
    std::vector<DrawObj *> drawObjs;
    int depth;
    int resolvedDepth;
    int zGap;
    int plotX;
    int plotY;
    int plotWidth;
    int plotHeight;
    bool swapped;
    int offsetX;
    int offsetY;
    int lineWidth;
    int borderColor;
    int lightingEffect;
    int legendMode;
    int layerLegendOrder;
    ExtraFields extraFields;
    LabelSettings labels;
    LayerImpl *alignedLayer;
    int alignedDataSet;
    std::string mapUrl;
    std::string mapQuery;
    std::string mapExtra;
    bool mapSet;
    bool prepared;
    std::vector<HotSpot> hotSpots;
    DataLabels *dataLabels;
    std::string scratch;
};
