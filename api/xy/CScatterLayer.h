#pragma once

/* A line layer without lines: the data sets show as their symbols alone.  The
   operations of CLineLayer and CLayer apply to it through the conversions. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CLineLayer *CScatterLayer_toLineLayer(CScatterLayer *s);
CLayer *CScatterLayer_toLayer(CScatterLayer *s);
/* The scatter layer behind a layer handle; null if it is another kind. */
CScatterLayer *CScatterLayer_fromLayer(CLayer *l);

#ifdef __cplusplus
}
#endif
