#pragma once

/* A grid of text boxes on a chart. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CDrawObj *CVSMLTable_toDrawObj(CVSMLTable *t);

#ifdef __cplusplus
}
#endif
