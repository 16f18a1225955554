#pragma once

#include "chart/xy/LayerMakers.h"

// The layer kinds of this folder as the XY chart's layer makers.  Whatever
// starts the engine (the flat interface, a program, a test) installs them
// once, as it installs the canvas's text service.
class LayerKinds : public LayerMakers {
public:
    static void install();

    BarLayer *makeBarLayer(XYChartImpl *chart, DoubleArray data, int color, const char *name,
                           int depth) override;
    BarLayer *makeBarLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) override;
    BarLayer *makeBarLayer3(XYChartImpl *chart, DoubleArray data, IntArray colors,
                            StringArray names, int depth) override;
    LineLayer *makeLineLayer(XYChartImpl *chart, DoubleArray data, int color, const char *name,
                             int depth) override;
    LineLayer *makeLineLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) override;
    AreaLayer *makeAreaLayer(XYChartImpl *chart, DoubleArray data, int color, const char *name,
                             int depth) override;
    AreaLayer *makeAreaLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) override;
    ScatterLayer *makeScatterLayer(XYChartImpl *chart, DoubleArray xData, DoubleArray yData,
                                   const char *name, int symbol, int symbolSize, int fillColor,
                                   int edgeColor) override;
};
