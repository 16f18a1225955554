#pragma once

/* A layer that draws each point as a bar from the base line to its value.  The
   operations of CLayer apply to it through CBarLayer_toLayer. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CLayer *CBarLayer_toLayer(CBarLayer *b);
/* The bar layer behind a layer handle; null if it is another kind. */
CBarLayer *CBarLayer_fromLayer(CLayer *l);

/* kNoValue as subBarGap keeps the earlier one; kTouchBar makes bars touch. */
void CBarLayer_setBarGap(CBarLayer *b, double barGap, double subBarGap);
void CBarLayer_setBarWidth(CBarLayer *b, int barWidth, int subBarWidth);
void CBarLayer_setMinLabelSize(CBarLayer *b, int size);
void CBarLayer_setMinImageMapSize(CBarLayer *b, int size);
/* For every bar, the bars of a data group, or one bar (-1: all). */
void CBarLayer_setBarShape(CBarLayer *b, int shape, int dataGroup, int dataItem);
void CBarLayer_setBarShape2(CBarLayer *b, const int *shape, int len, int dataGroup, int dataItem);
void CBarLayer_setIconSize(CBarLayer *b, int height, int width);
void CBarLayer_setOverlapRatio(CBarLayer *b, double overlapRatio, bool firstOnTop);
/* An omitted radius is -2147483647. */
void CBarLayer_setRoundedCorners(CBarLayer *b, int r1, int r2, int r3, int r4);

#ifdef __cplusplus
}
#endif
