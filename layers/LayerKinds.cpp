#include "layers/LayerKinds.h"

#include <algorithm>
#include <vector>

#include "chart/layer/DataSet.h"
#include "chart/xy/XYChartImpl.h"
#include "foundation/Constants.h"
#include "layers/bar/BarLayerImpl.h"

namespace {

BarLayerImpl *newBarLayer(XYChartImpl *chart, int dataCombineMethod, int depth) {
    BarLayerImpl *layer = new BarLayerImpl(chart);
    chart->addLayer(layer);
    layer->set3D(depth, 0);
    layer->setDataCombineMethod(dataCombineMethod);
    return layer;
}

}  // namespace

void LayerKinds::install() {
    static LayerKinds kinds;
    LayerMakers::install(&kinds);
}

BarLayer *LayerKinds::makeBarLayer(XYChartImpl *chart, DoubleArray data, int color,
                                   const char *name, int depth) {
    BarLayerImpl *layer = newBarLayer(chart, kSide, depth);
    layer->addDataSet(data, color, name);
    return layer;
}

BarLayer *LayerKinds::makeBarLayer2(XYChartImpl *chart, int dataCombineMethod, int depth) {
    return newBarLayer(chart, dataCombineMethod, depth);
}

// Each bar is a data set of its own, with its colour and its legend name.
BarLayer *LayerKinds::makeBarLayer3(XYChartImpl *chart, DoubleArray data, IntArray colors,
                                    StringArray names, int depth) {
    BarLayerImpl *layer = newBarLayer(chart, kOverlay, depth);
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
