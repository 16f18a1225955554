#pragma once

/* One sector of a pie chart.  Settings left unset (-1, or an empty format)
   take the chart's.  Texts handed out live until the sector's next call that
   returns text. */

#include "api/pie/CPieTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

void CSector_setStyle(CSector *s, int shadingMethod, int edgeColor, int edgeWidth);
void CSector_setLabelFormat(CSector *s, const char *formatString);
CTextBox *CSector_setLabelStyle(CSector *s, const char *font, double fontSize, int fontColor);
void CSector_setExplode(CSector *s, int distance);
void CSector_setLabelPos(CSector *s, int pos, int joinLineColor);
void CSector_setLabelLayout(CSector *s, int layoutMethod, int pos);
void CSector_setJoinLine(CSector *s, int joinLineColor, int joinLineWidth);
void CSector_setColor(CSector *s, int color, int edgeColor, int joinLineColor);
/* After layout: the image-map shape of the sector, and of its label; "" when
   there is none. */
const char *CSector_getImageCoor(CSector *s, int offsetX, int offsetY);
const char *CSector_getLabelCoor(CSector *s, int offsetX, int offsetY);

#ifdef __cplusplus
}
#endif
