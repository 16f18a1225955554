#pragma once

/* A box with a text in it: titles, labels and legends.  The text is a template
   with inline mark-up. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CBox *CTextBox_toBox(CTextBox *t);
void CTextBox_setText(CTextBox *t, const char *text);
void CTextBox_setAlignment(CTextBox *t, int alignment);
void CTextBox_setFontStyle(CTextBox *t, const char *font, int fontIndex);
void CTextBox_setFontSize(CTextBox *t, double fontHeight, double fontWidth);
void CTextBox_setFontAngle(CTextBox *t, double angle, bool vertical);
void CTextBox_setFontColor(CTextBox *t, int color);
/* All four sides; -1 is automatic. */
void CTextBox_setMargin(CTextBox *t, int margin);
void CTextBox_setMargin2(CTextBox *t, int leftMargin, int rightMargin, int topMargin,
                         int bottomMargin);
void CTextBox_setWidth(CTextBox *t, int width);
void CTextBox_setHeight(CTextBox *t, int height);
void CTextBox_setMaxWidth(CTextBox *t, int width);
void CTextBox_setTruncate(CTextBox *t, int maxWidth, int maxLines);

#ifdef __cplusplus
}
#endif
