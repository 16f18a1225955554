#pragma once

#include "api/xy/CBarLayer.h"
#include "host/abc/Views.h"
#include "host/abc/xy/Layer.h"

namespace abc {

// A layer of bars.
class BarLayer : public Layer {
public:
    BarLayer(CBarLayer *handle, XYChart *chart)
        : Layer(CBarLayer_toLayer(handle), chart), barLayer(handle) {}

    CBarLayer *getBarHandle() const { return barLayer; }
    void setBarGap(double barGap, double subBarGap) {
        CBarLayer_setBarGap(barLayer, barGap, subBarGap);
    }
    void setBarWidth(int barWidth, int subBarWidth) {
        CBarLayer_setBarWidth(barLayer, barWidth, subBarWidth);
    }
    void setMinLabelSize(int size) { CBarLayer_setMinLabelSize(barLayer, size); }
    void setMinImageMapSize(int size) { CBarLayer_setMinImageMapSize(barLayer, size); }
    void setBarShape(int shape, int dataGroup, int dataItem) {
        CBarLayer_setBarShape(barLayer, shape, dataGroup, dataItem);
    }
    void setBarShape2(IntArray shape, int dataGroup, int dataItem) {
        CBarLayer_setBarShape2(barLayer, shape.data, shape.len, dataGroup, dataItem);
    }
    void setIconSize(int height, int width) { CBarLayer_setIconSize(barLayer, height, width); }
    void setOverlapRatio(double overlapRatio, bool firstOnTop) {
        CBarLayer_setOverlapRatio(barLayer, overlapRatio, firstOnTop);
    }
    void setRoundedCorners(int r1, int r2, int r3, int r4) {
        CBarLayer_setRoundedCorners(barLayer, r1, r2, r3, r4);
    }

private:
    CBarLayer *barLayer;
};

}  // namespace abc
