#pragma once

/* Opaque handles of the chart core: one type per engine class.  A chart owns
   every part it hands out (titles, texts, lines, tables, the legend, axes);
   parts die with their chart and are never destroyed by the caller. */

#include "api/CTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct CBaseChart CBaseChart;
typedef struct CMultiChart CMultiChart;
typedef struct CDrawObj CDrawObj;
typedef struct CBox CBox;
typedef struct CTextBox CTextBox;
typedef struct CLine CLine;
typedef struct CLegendBox CLegendBox;
typedef struct CVSMLTable CVSMLTable;
typedef struct CAxis CAxis;
typedef struct CMark CMark;
typedef struct CLineObj CLineObj;

#ifdef __cplusplus
}
#endif
