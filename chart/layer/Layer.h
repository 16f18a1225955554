#pragma once

#include "foundation/ArrayViews.h"

class Axis;
class DataSet;
class TextBox;

// How a layer's keys go into the legend (setLegend, setLegendOrder).
enum LegendMode { kNormalLegend = 0, kReverseLegend = 1, kNoLegend = 2 };

// One way of drawing data on an XY chart: bars, lines, areas and the other
// kinds.  A layer holds data sets, the x positions they share and the rule by
// which the sets combine (kOverlay, kStack, kDepth, kSide, kPercentage); it
// maps values to pixels through its chart's axes.  Layers belong to their
// chart and die with it.
class Layer {
public:
    // A 3D depth in pixels (-1: chosen from the plot's size) and the gap
    // between the data sets of a kDepth layer.
    virtual void set3D(int depth, int zGap) = 0;
    virtual void setLineWidth(int width) = 0;
    // The border of the layer's shapes (-1 none, kSameAsMainColor the data
    // colour) and an effect word for their fill (Chart::barLighting, ...).
    virtual void setBorderColor(int color, int lightingEffect) = 0;
    virtual void setLegend(int legendMode) = 0;
    // The order of the layer's keys and, when not -1, the layer's place
    // among the layers in the legend.
    virtual void setLegendOrder(int dataSetOrder, int layerOrder) = 0;
    // The key of a data set as mark-up that texts can show.
    virtual const char *getLegendIcon(int dataSetNo) = 0;
    // Puts this layer in front of (or behind) the other one; null means all.
    virtual void moveFront(Layer *layer) = 0;
    virtual void moveBack(Layer *layer) = 0;

    virtual void setDataCombineMethod(int method) = 0;
    // A colour of -1 takes the next data colour of the chart's palette.
    virtual DataSet *addDataSet(DoubleArray data, int color, const char *name) = 0;
    // Sets added after it stack together, beside the sets of other groups.
    virtual void addDataGroup(const char *name) = 0;
    // Columns for "{fieldN}" and its kin in this layer's labels.
    virtual void addExtraField(StringArray texts) = 0;
    virtual void addExtraField2(DoubleArray numbers) = 0;
    virtual DataSet *getDataSet(int dataSet) = 0;
    // By z order: 0 is the set painted first.
    virtual DataSet *getDataSetByZ(int z) = 0;
    virtual int getDataSetCount() = 0;
    virtual void setUseYAxis2(bool useYAxis2) = 0;
    virtual void setUseYAxis(Axis *axis) = 0;

    // The x positions of the points: the values given, or minValue to
    // maxValue spread evenly; without either, the index.
    virtual void setXData(DoubleArray xData) = 0;
    virtual void setXData2(double minValue, double maxValue) = 0;
    virtual double getXPosition(int dataItem) = 0;
    virtual double getNearestXValue(double target) = 0;
    // The index of the point at x within the tolerance, -1 if none.
    virtual int getXIndexOf(double x, double tolerance) = 0;
    // Places this layer's points at the x centres of another layer's bars
    // of the data set.
    virtual void alignLayer(Layer *layer, int dataSet) = 0;
    // The value bars and areas start at.
    virtual void setBaseLine(double baseLine) = 0;

    // Canvas pixels of values, with the layer's 3D shift.
    virtual int getXCoor(double value) = 0;
    virtual int getYCoor(double value, Axis *yAxis) = 0;
    virtual int getYCoor2(double value, bool useYAxis2) = 0;
    virtual int xZoneColor(double threshold, int belowColor, int aboveColor) = 0;
    virtual int yZoneColor(double threshold, int belowColor, int aboveColor, Axis *yAxis) = 0;
    virtual int yZoneColor2(double threshold, int belowColor, int aboveColor, bool useYAxis2) = 0;

    // The hot spot of a point as area attributes ("shape=... coords=..."), and
    // that of all the layer's shapes at an x position; empty if none.
    virtual const char *getImageCoor(int dataSet, int dataItem, int offsetX, int offsetY) = 0;
    virtual const char *getImageCoor2(int dataItem, int offsetX, int offsetY) = 0;
    virtual const char *getHTMLImageMap(const char *url, const char *queryFormat,
                                        const char *extraAttr, int offsetX, int offsetY) = 0;
    // Templates that replace those the chart's getHTMLImageMap is given;
    // "{disable}" as url leaves the layer out.
    virtual void setHTMLImageMap(const char *url, const char *queryFormat,
                                 const char *extraAttr) = 0;

    // Data labels at each point, aggregate labels at the end of each stack.
    virtual void setDataLabelFormat(const char *formatString) = 0;
    virtual TextBox *setDataLabelStyle(const char *font, double fontSize, int fontColor,
                                       double fontAngle) = 0;
    virtual void setAggregateLabelFormat(const char *formatString) = 0;
    virtual TextBox *setAggregateLabelStyle(const char *font, double fontSize, int fontColor,
                                            double fontAngle) = 0;
    // A label of its own for one point, one stack at an x position, or the
    // stack of one data group there.
    virtual TextBox *addCustomDataLabel(int dataSet, int dataItem, const char *label,
                                        const char *font, double fontSize, int fontColor,
                                        double fontAngle) = 0;
    virtual TextBox *addCustomAggregateLabel(int dataItem, const char *label, const char *font,
                                             double fontSize, int fontColor, double fontAngle) = 0;
    virtual TextBox *addCustomGroupLabel(int dataGroup, int dataItem, const char *label,
                                         const char *font, double fontSize, int fontColor,
                                         double fontAngle) = 0;

protected:
    virtual ~Layer() {}
};
