#include "api/xy/CBarLayer.h"

#include "api/xy/XYHandles.h"
#include "layers/bar/BarLayer.h"

using vistrel_api::E;
using vistrel_api::H;

CLayer *CBarLayer_toLayer(CBarLayer *b) {
    return b ? H(static_cast<Layer *>(E(b))) : nullptr;
}
CBarLayer *CBarLayer_fromLayer(CLayer *l) {
    return l ? H(dynamic_cast<BarLayer *>(E(l))) : nullptr;
}

void CBarLayer_setBarGap(CBarLayer *b, double barGap, double subBarGap) {
    if (b) E(b)->setBarGap(barGap, subBarGap);
}
void CBarLayer_setBarWidth(CBarLayer *b, int barWidth, int subBarWidth) {
    if (b) E(b)->setBarWidth(barWidth, subBarWidth);
}
void CBarLayer_setMinLabelSize(CBarLayer *b, int size) {
    if (b) E(b)->setMinLabelSize(size);
}
void CBarLayer_setMinImageMapSize(CBarLayer *b, int size) {
    if (b) E(b)->setMinImageMapSize(size);
}
void CBarLayer_setBarShape(CBarLayer *b, int shape, int dataGroup, int dataItem) {
    if (b) E(b)->setBarShape(shape, dataGroup, dataItem);
}
void CBarLayer_setBarShape2(CBarLayer *b, const int *shape, int len, int dataGroup, int dataItem) {
    if (b) E(b)->setBarShape2(IntArray(shape, len), dataGroup, dataItem);
}
void CBarLayer_setIconSize(CBarLayer *b, int height, int width) {
    if (b) E(b)->setIconSize(height, width);
}
void CBarLayer_setOverlapRatio(CBarLayer *b, double overlapRatio, bool firstOnTop) {
    if (b) E(b)->setOverlapRatio(overlapRatio, firstOnTop);
}
void CBarLayer_setRoundedCorners(CBarLayer *b, int r1, int r2, int r3, int r4) {
    if (b) E(b)->setRoundedCorners(r1, r2, r3, r4);
}
