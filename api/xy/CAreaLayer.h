#pragma once

/* A layer that fills the region between each data set's line and its base: the
   layer's base line, or under kStack and kPercentage the data set below.  The
   operations of CLayer apply to it through CAreaLayer_toLayer. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CLayer *CAreaLayer_toLayer(CAreaLayer *a);
/* The area layer behind a layer handle; null if it is another kind. */
CAreaLayer *CAreaLayer_fromLayer(CLayer *l);

/* Bands thinner than this many pixels get no data label; negative labels all. */
void CAreaLayer_setMinLabelSize(CAreaLayer *a, int size);
/* The fill across a gap: kSameAsMainColor bridges it in the data colour,
   kTransparent leaves a hole. */
void CAreaLayer_setGapColor(CAreaLayer *a, int fillColor);

#ifdef __cplusplus
}
#endif
