#pragma once

/* A laid-out text made by one of the CDrawArea_text forms.  Sizes are pixels,
   rotation included.  A null handle is ignored and reads as 0. */

#include "api/CTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

void CTTFText_destroy(CTTFText *t);
int CTTFText_getWidth(CTTFText *t);
int CTTFText_getHeight(CTTFText *t);
int CTTFText_getBaseline(CTTFText *t);
int CTTFText_getLineHeight(CTTFText *t);
int CTTFText_getLineDistance(CTTFText *t);
int CTTFText_getAscent(CTTFText *t);
int CTTFText_getDescent(CTTFText *t);
/* Lays the text out again from startX; true when everything fitted. */
bool CTTFText_layout(CTTFText *t, int startX, int maxWidth, int maxLines);
/* What did not fit on the line, owned by t; null when everything fitted. */
CTTFText *CTTFText_nextLine(CTTFText *t);
void CTTFText_draw(CTTFText *t, int x, int y, int color, int alignment);

#ifdef __cplusplus
}
#endif
