#pragma once

/* A chart made of other charts, each placed at an offset.  It does not own
   them: their creator destroys them, after the multi-chart's last output, and
   first tells them that they stand in no multi-chart any more
   (CBaseChart_setContainer with null) if they are to outlive it. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Destroyed through its base with CBaseChart_destroy. */
CMultiChart *CMultiChart_create(int width, int height, int bgColor, int edgeColor,
                                int raisedEffect);
CBaseChart *CMultiChart_toBaseChart(CMultiChart *m);
/* The multi-chart behind a chart handle; null if it is another kind. */
CMultiChart *CMultiChart_fromBaseChart(CBaseChart *c);

/* A null chart is ignored. */
void CMultiChart_addChart(CMultiChart *m, int x, int y, CBaseChart *chart);
/* -1 is the main chart; null out of range. */
CBaseChart *CMultiChart_getChart(CMultiChart *m, int index);
int CMultiChart_getChartCount(CMultiChart *m);
void CMultiChart_setMainChart(CMultiChart *m, CBaseChart *chart);
/* The offset of a placed chart in the outermost picture; 0 for others. */
int CMultiChart_getAbsOffsetX(CMultiChart *m, CBaseChart *chart);
int CMultiChart_getAbsOffsetY(CMultiChart *m, CBaseChart *chart);

#ifdef __cplusplus
}
#endif
