#pragma once

/* A line across the plot area at a value of an axis, with a tick and a label;
   the box's text is the label.  Marks belong to their axis's chart. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CTextBox *CMark_toTextBox(CMark *m);
void CMark_setValue(CMark *m, double value);
/* A text or tick colour of -1 takes the line colour. */
void CMark_setMarkColor(CMark *m, int lineColor, int textColor, int tickColor);
void CMark_setLineWidth(CMark *m, int width);
/* Above the layers (the default), or behind them. */
void CMark_setDrawOnTop(CMark *m, bool onTop);
CLineObj *CMark_getLine(CMark *m);

#ifdef __cplusplus
}
#endif
