#pragma once

#include "api/xy/CScatterLayer.h"
#include "host/abc/xy/LineLayer.h"

namespace abc {

// A line layer whose data sets show as their symbols alone.
class ScatterLayer : public LineLayer {
public:
    ScatterLayer(CScatterLayer *handle, XYChart *chart)
        : LineLayer(CScatterLayer_toLineLayer(handle), chart), scatterLayer(handle) {}

    CScatterLayer *getScatterHandle() const { return scatterLayer; }

private:
    CScatterLayer *scatterLayer;
};

}  // namespace abc
