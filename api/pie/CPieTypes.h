#pragma once

/* Opaque handles of pie charts and their sectors.  The chart owns its
   sectors. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct CPieChart CPieChart;
typedef struct CSector CSector;

#ifdef __cplusplus
}
#endif
