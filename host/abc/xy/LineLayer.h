#pragma once

#include "api/xy/CLineLayer.h"
#include "host/abc/Views.h"
#include "host/abc/chart/LineObj.h"
#include "host/abc/xy/Layer.h"

namespace abc {

// A layer of lines through the points, with symbols and labels at them.  The
// wrappers of its lines belong to it.
class LineLayer : public Layer {
public:
    LineLayer(CLineLayer *handle, XYChart *chart)
        : Layer(CLineLayer_toLayer(handle), chart), lineLayer(handle) {}

    CLineLayer *getLineHandle() const { return lineLayer; }
    void setGapColor(int lineColor, int lineWidth) {
        CLineLayer_setGapColor(lineLayer, lineColor, lineWidth);
    }
    void setFastLineMode(bool fast) { CLineLayer_setFastLineMode(lineLayer, fast); }
    void setImageMapWidth(int width) { CLineLayer_setImageMapWidth(lineLayer, width); }
    void setSymbolScale(DoubleArray zDataX, int scaleTypeX, DoubleArray zDataY, int scaleTypeY) {
        CLineLayer_setSymbolScale(lineLayer, zDataX.data, zDataX.len, scaleTypeX, zDataY.data,
                                  zDataY.len, scaleTypeY);
    }
    void setSymbolScale2(DoubleArray zData, int scaleType) {
        CLineLayer_setSymbolScale2(lineLayer, zData.data, zData.len, scaleType);
    }
    // The engine keeps one line per data set for the layer's life: one wrapper.
    LineObj *getLine(int dataSet) {
        return keepOnce(CLineLayer_getLine(lineLayer, dataSet), &LineObj::getHandle);
    }

private:
    CLineLayer *lineLayer;
};

}  // namespace abc
