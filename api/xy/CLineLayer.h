#pragma once

/* A layer that joins the points of each data set by a line and draws the data
   set's symbol and label at each point; kNoValue in the data leaves a gap.  The
   operations of CLayer apply to it through CLineLayer_toLayer. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CLayer *CLineLayer_toLayer(CLineLayer *l);
/* The line layer behind a layer handle (a scatter layer is one); null if it is
   another kind. */
CLineLayer *CLineLayer_fromLayer(CLayer *l);

/* The line across a gap: kTransparent leaves it open, kSameAsMainColor bridges
   it in the data colour; a width of -1 is the data set's. */
void CLineLayer_setGapColor(CLineLayer *l, int lineColor, int lineWidth);
void CLineLayer_setFastLineMode(CLineLayer *l, bool fast);
void CLineLayer_setImageMapWidth(CLineLayer *l, int width);
/* Symbol sizes per point, read as the scale types say (kPixelScale,
   kXAxisScale, kYAxisScale); a size missing in one direction takes the
   other's. */
void CLineLayer_setSymbolScale(CLineLayer *l, const double *zDataX, int lenX, int scaleTypeX,
                               const double *zDataY, int lenY, int scaleTypeY);
/* One size per point for both directions. */
void CLineLayer_setSymbolScale2(CLineLayer *l, const double *zData, int len, int scaleType);
/* A data set's line, empty until the chart is laid out; null for a set the
   layer doesn't have. */
CLineObj *CLineLayer_getLine(CLineLayer *l, int dataSet);

#ifdef __cplusplus
}
#endif
