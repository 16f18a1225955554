#pragma once

#include "api/xy/CAreaLayer.h"
#include "host/abc/xy/Layer.h"

namespace abc {

// A layer of areas filled between each data set's line and its base.
class AreaLayer : public Layer {
public:
    AreaLayer(CAreaLayer *handle, XYChart *chart)
        : Layer(CAreaLayer_toLayer(handle), chart), areaLayer(handle) {}

    CAreaLayer *getAreaHandle() const { return areaLayer; }
    void setMinLabelSize(int size) { CAreaLayer_setMinLabelSize(areaLayer, size); }
    void setGapColor(int fillColor) { CAreaLayer_setGapColor(areaLayer, fillColor); }

private:
    CAreaLayer *areaLayer;
};

}  // namespace abc
