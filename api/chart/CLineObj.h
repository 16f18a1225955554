#pragma once

/* A line that a chart lays out and draws, such as a mark's line across the
   plot.  It belongs to its chart. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The pixel points in drawing order as x0, y0, x1, y1 ...; empty until the
   chart has laid the line out, and valid until it lays it out again. */
void CLineObj_getPoints(CLineObj *l, const double **data, int *len);

#ifdef __cplusplus
}
#endif
