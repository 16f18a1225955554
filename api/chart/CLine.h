#pragma once

/* A free line on a chart, painted in z order with the chart's other objects. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CDrawObj *CLine_toDrawObj(CLine *l);
void CLine_setPos(CLine *l, int x1, int y1, int x2, int y2);
void CLine_setColor(CLine *l, int color);
void CLine_setWidth(CLine *l, int lineWidth);

#ifdef __cplusplus
}
#endif
