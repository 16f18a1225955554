#include "api/xy/CScatterLayer.h"

#include "api/xy/XYHandles.h"
#include "layers/line/ScatterLayer.h"

using vistrel_api::E;
using vistrel_api::H;

CLineLayer *CScatterLayer_toLineLayer(CScatterLayer *s) {
    return s ? H(static_cast<LineLayer *>(E(s))) : nullptr;
}
CLayer *CScatterLayer_toLayer(CScatterLayer *s) {
    return s ? H(static_cast<Layer *>(E(s))) : nullptr;
}
CScatterLayer *CScatterLayer_fromLayer(CLayer *l) {
    return l ? H(dynamic_cast<ScatterLayer *>(E(l))) : nullptr;
}
