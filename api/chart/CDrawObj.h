#pragma once

/* Anything a chart paints in z order: boxes, texts, lines, tables.  Objects of
   equal z order paint in the order they were added. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

void CDrawObj_setZOrder(CDrawObj *o, int z);
int CDrawObj_getZOrder(CDrawObj *o);

#ifdef __cplusplus
}
#endif
