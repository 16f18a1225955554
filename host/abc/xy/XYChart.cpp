#include "host/abc/xy/XYChart.h"

namespace abc {

namespace {

// A wrapper of the layer if it is of the kind W (whose handle the C function
// From finds behind a layer handle), else null.
template <class W, class H, H *(*From)(CLayer *)>
Layer *wrapAs(CLayer *layer, XYChart *chart) {
    H *h = From(layer);
    return h ? new W(h, chart) : nullptr;
}

// The layer kinds with a wrapper of their own, tried in order: a kind derived
// from another comes before it.  Any other layer gets a plain Layer.
Layer *(*const kLayerKinds[])(CLayer *, XYChart *) = {
    &wrapAs<BarLayer, CBarLayer, &CBarLayer_fromLayer>,
    &wrapAs<ScatterLayer, CScatterLayer, &CScatterLayer_fromLayer>,
    &wrapAs<LineLayer, CLineLayer, &CLineLayer_fromLayer>,
    &wrapAs<AreaLayer, CAreaLayer, &CAreaLayer_fromLayer>,
};

Layer *wrapLayer(CLayer *layer, XYChart *chart) {
    for (auto wrap : kLayerKinds)
        if (Layer *w = wrap(layer, chart)) return w;
    return new Layer(layer, chart);
}

}  // namespace

XYChart *XYChart::create(int width, int height, int bgColor, int edgeColor, int raisedEffect) {
    CXYChart *c = CXYChart_create(width, height, bgColor, edgeColor, raisedEffect);
    return c ? new XYChart(c) : nullptr;
}

Layer *XYChart::layerOf(CLayer *h) {
    return layers.get(h, [this](CLayer *layer) { return wrapLayer(layer, this); });
}

DataSet *XYChart::dataSetOf(CDataSet *h) {
    return dataSets.get(h, [this](CDataSet *set) { return new DataSet(set, this); });
}

}  // namespace abc
