#pragma once

/* Opaque handles of XY charts: the chart, its plot area, its layers of each
   kind and their data sets.  The chart owns every one of them. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct CXYChart CXYChart;
typedef struct CPlotArea CPlotArea;
typedef struct CLayer CLayer;
typedef struct CDataSet CDataSet;
typedef struct CBarLayer CBarLayer;
typedef struct CLineLayer CLineLayer;
typedef struct CScatterLayer CScatterLayer;
typedef struct CAreaLayer CAreaLayer;

#ifdef __cplusplus
}
#endif
