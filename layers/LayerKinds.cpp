#include "layers/LayerKinds.h"

#include <algorithm>
#include <vector>

#include "chart/layer/DataSet.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/area/AreaLayerImpl.h"
#include "layers/bar/BarLayerImpl.h"
#include "layers/line/LineLayerImpl.h"
#include "layers/line/ScatterLayerImpl.h"

namespace {

template <class Kind>
Kind *newLayer(XYChartImpl *chart, int dataCombineMethod, int depth) {
    Kind *layer = new Kind(chart);
    chart->addLayer(layer);
    layer->set3D(depth, 0);
    layer->setDataCombineMethod(dataCombineMethod);
    return layer;
}

template <class Kind>
Kind *newLayerOfOneSet(XYChartImpl *chart, DoubleArray data, int color, const char *name,
                       int depth, int dataCombineMethod) {
    Kind *layer = newLayer<Kind>(chart, dataCombineMethod, depth);
    layer->addDataSet(data, color, name);
    return layer;
}

}  // namespace

void LayerKinds::install() {
    static LayerKinds kinds;
    LayerMakers::install(&kinds);
}

BarLayer *LayerKinds::makeBarLayer(XYChartImpl *chart, DoubleArray data, int color,
                                   const char *name, int depth) {
    return newLayerOfOneSet<BarLayerImpl>(chart, data, color, name, depth, kSide);
}

BarLayer *LayerKinds::makeBarLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) {
    return newLayer<BarLayerImpl>(chart, dataCombineMethod, depth);
}

// Each bar is a data set of its own, with its colour and its legend name.
BarLayer *LayerKinds::makeBarLayer3(XYChartImpl *chart, DoubleArray data, IntArray colors,
                                    StringArray names, int depth) {
    BarLayerImpl *layer = newLayer<BarLayerImpl>(chart, kOverlay, depth);
    int n = std::max(data.len, 0);
    std::vector<double> one(n, kNoValue);
    for (int i = 0; i < n; ++i) {
        one[i] = data.data[i];
        int color = colors.len > 0 ? colors.data[i % colors.len] : -1;
        const char *name = i < names.len && names.data[i] ? names.data[i] : "";
        layer->addDataSet(DoubleArray(one.data(), n), color, name);
        one[i] = kNoValue;
    }
    return layer;
}

LineLayer *LayerKinds::makeLineLayer(XYChartImpl *chart, DoubleArray data, int color,
                                     const char *name, int depth) {
    return newLayerOfOneSet<LineLayerImpl>(chart, data, color, name, depth, kOverlay);
}

LineLayer *LayerKinds::makeLineLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) {
    return newLayer<LineLayerImpl>(chart, dataCombineMethod, depth);
}

AreaLayer *LayerKinds::makeAreaLayer(XYChartImpl *chart, DoubleArray data, int color,
                                     const char *name, int depth) {
    return newLayerOfOneSet<AreaLayerImpl>(chart, data, color, name, depth, kOverlay);
}

AreaLayer *LayerKinds::makeAreaLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) {
    return newLayer<AreaLayerImpl>(chart, dataCombineMethod, depth);
}

// The fill colour is the data set's colour; the symbol has an edge only when
// one is given.
ScatterLayer *LayerKinds::makeScatterLayer(XYChartImpl *chart, DoubleArray xData,
                                           DoubleArray yData, const char *name, int symbol,
                                           int symbolSize, int fillColor, int edgeColor) {
    ScatterLayerImpl *layer = newLayer<ScatterLayerImpl>(chart, kOverlay, 0);
    layer->setXData(xData);
    DataSet *set = layer->addDataSet(yData, fillColor, name);
    set->setDataSymbol(symbol, symbolSize, -1, edgeColor == -1 ? kTransparent : edgeColor, 1);
    return layer;
}
