#pragma once

#include "foundation/ArrayViews.h"

class AreaLayer;
class BarLayer;
class LineLayer;
class ScatterLayer;
class XYChartImpl;

// Makes the layer kinds for an XY chart.  The kinds sit above the chart, so
// they plug their maker in here; until one is installed the chart's layer
// makers give null.  Each maker adds the layer to the chart, which owns it.
class LayerMakers {
public:
    static void install(LayerMakers *makers);
    static LayerMakers *get();

    // The forms of XYChart::addBarLayer: one data set; none, with a data
    // combine method; one data set of a colour and a name per bar.
    virtual BarLayer *makeBarLayer(XYChartImpl *chart, DoubleArray data, int color,
                                   const char *name, int depth) = 0;
    virtual BarLayer *makeBarLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) = 0;
    virtual BarLayer *makeBarLayer3(XYChartImpl *chart, DoubleArray data, IntArray colors,
                                    StringArray names, int depth) = 0;
    // The forms of addLineLayer and addAreaLayer: one data set, or none with
    // a data combine method.
    virtual LineLayer *makeLineLayer(XYChartImpl *chart, DoubleArray data, int color,
                                     const char *name, int depth) = 0;
    virtual LineLayer *makeLineLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) = 0;
    virtual AreaLayer *makeAreaLayer(XYChartImpl *chart, DoubleArray data, int color,
                                     const char *name, int depth) = 0;
    virtual AreaLayer *makeAreaLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) = 0;
    // Symbols at the points (x, y) of one data set.
    virtual ScatterLayer *makeScatterLayer(XYChartImpl *chart, DoubleArray xData,
                                           DoubleArray yData, const char *name, int symbol,
                                           int symbolSize, int fillColor, int edgeColor) = 0;

protected:
    virtual ~LayerMakers() {}
};
