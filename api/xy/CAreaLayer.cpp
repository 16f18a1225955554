#include "api/xy/CAreaLayer.h"

#include "api/xy/XYHandles.h"
#include "layers/area/AreaLayer.h"

using vistrel_api::E;
using vistrel_api::H;

CLayer *CAreaLayer_toLayer(CAreaLayer *a) {
    return a ? H(static_cast<Layer *>(E(a))) : nullptr;
}
CAreaLayer *CAreaLayer_fromLayer(CLayer *l) {
    return l ? H(dynamic_cast<AreaLayer *>(E(l))) : nullptr;
}

void CAreaLayer_setMinLabelSize(CAreaLayer *a, int size) {
    if (a) E(a)->setMinLabelSize(size);
}
void CAreaLayer_setGapColor(CAreaLayer *a, int fillColor) {
    if (a) E(a)->setGapColor(fillColor);
}
