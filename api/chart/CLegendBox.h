#pragma once

/* The keys of a chart: each an icon (a colour patch, a line, an image) and a
   text.  Its text is the template of the key texts. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CTextBox *CLegendBox_toTextBox(CLegendBox *l);
/* icon, when not null, is drawn instead of the colour patch. */
void CLegendBox_addKey(CLegendBox *l, const char *text, int color, int lineWidth, CDrawArea *icon);
void CLegendBox_addKey2(CLegendBox *l, int pos, const char *text, int color, int lineWidth,
                        CDrawArea *icon);
void CLegendBox_addText(CLegendBox *l, const char *text);
void CLegendBox_addText2(CLegendBox *l, int pos, const char *text);
void CLegendBox_setCols(CLegendBox *l, int cols);
void CLegendBox_setReverse(CLegendBox *l, bool reverse);
void CLegendBox_setLineStyleKey(CLegendBox *l, bool lineStyle);
/* -1 leaves a value automatic. */
void CLegendBox_setKeySize(CLegendBox *l, int width, int height, int gap);
void CLegendBox_setKeySpacing(CLegendBox *l, int keySpacing, int lineSpacing);
void CLegendBox_setKeyBorder(CLegendBox *l, int edgeColor, int raisedEffect);
/* Valid until the next call that returns text. */
const char *CLegendBox_getImageCoor2(CLegendBox *l, int dataItem, int offsetX, int offsetY);
const char *CLegendBox_getHTMLImageMap(CLegendBox *l, const char *url, const char *queryFormat,
                                       const char *extraAttr, int offsetX, int offsetY);

#ifdef __cplusplus
}
#endif
