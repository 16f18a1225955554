#include "api/xy/CLineLayer.h"

#include "api/xy/XYHandles.h"
#include "layers/line/LineLayer.h"

using vistrel_api::E;
using vistrel_api::H;

CLayer *CLineLayer_toLayer(CLineLayer *l) {
    return l ? H(static_cast<Layer *>(E(l))) : nullptr;
}
CLineLayer *CLineLayer_fromLayer(CLayer *l) {
    return l ? H(dynamic_cast<LineLayer *>(E(l))) : nullptr;
}

void CLineLayer_setGapColor(CLineLayer *l, int lineColor, int lineWidth) {
    if (l) E(l)->setGapColor(lineColor, lineWidth);
}
void CLineLayer_setFastLineMode(CLineLayer *l, bool fast) {
    if (l) E(l)->setFastLineMode(fast);
}
void CLineLayer_setImageMapWidth(CLineLayer *l, int width) {
    if (l) E(l)->setImageMapWidth(width);
}
void CLineLayer_setSymbolScale(CLineLayer *l, const double *zDataX, int lenX, int scaleTypeX,
                               const double *zDataY, int lenY, int scaleTypeY) {
    if (l)
        E(l)->setSymbolScale(DoubleArray(zDataX, lenX), scaleTypeX, DoubleArray(zDataY, lenY),
                             scaleTypeY);
}
void CLineLayer_setSymbolScale2(CLineLayer *l, const double *zData, int len, int scaleType) {
    if (l) E(l)->setSymbolScale2(DoubleArray(zData, len), scaleType);
}
CLineObj *CLineLayer_getLine(CLineLayer *l, int dataSet) {
    return l ? H(E(l)->getLine(dataSet)) : nullptr;
}
