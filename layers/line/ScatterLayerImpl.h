#pragma once

#include "layers/line/LineLayerImpl.h"
#include "layers/line/ScatterLayer.h"

// A line layer whose lines have no width: its data sets show as symbols.
class ScatterLayerImpl : public ScatterLayer, public LineLayerImpl {
public:
    explicit ScatterLayerImpl(XYChartImpl *chart) : LineLayerImpl(chart) { setLineWidth(0); }
};
