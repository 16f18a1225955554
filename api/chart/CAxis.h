#pragma once

/* The scale of a chart axis: its limits, the mapping of values to pixels, and
   the ticks with their labels.  Axes belong to their chart. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

void CAxis_setLinearScale(CAxis *a, double lowerLimit, double upperLimit, double majorTickInc,
                          double minorTickInc);
void CAxis_setLogScale(CAxis *a, double lowerLimit, double upperLimit, double majorTickInc,
                       double minorTickInc);
void CAxis_setDateScale(CAxis *a, double lowerLimit, double upperLimit, double majorTickInc,
                        double minorTickInc);
void CAxis_setLinearScale2(CAxis *a, double lowerLimit, double upperLimit,
                           const char *const *labels, int len);
void CAxis_setLogScale2(CAxis *a, double lowerLimit, double upperLimit, const char *const *labels,
                        int len);
void CAxis_setDateScale2(CAxis *a, double lowerLimit, double upperLimit, const char *const *labels,
                         int len);
void CAxis_setLinearScale3(CAxis *a, const char *formatString);
void CAxis_setLogScale3(CAxis *a, const char *formatString);
void CAxis_setDateScale3(CAxis *a, const char *formatString);
void CAxis_setAutoScale(CAxis *a, double topExtension, double bottomExtension, double zeroAffinity);
void CAxis_setRounding(CAxis *a, bool roundMin, bool roundMax);
void CAxis_setTickDensity(CAxis *a, int majorTickSpacing, int minorTickSpacing);
void CAxis_setMinTickInc(CAxis *a, double inc);
void CAxis_setReverse(CAxis *a, bool reverse);
void CAxis_setMargin(CAxis *a, int topMargin, int bottomMargin);
void CAxis_setIndent(CAxis *a, bool indent);
void CAxis_setLabelStep(CAxis *a, int majorTickStep, int minorTickStep, int majorTickOffset,
                        int minorTickOffset);
/* Null, or the axis itself, makes the axis automatic again. */
void CAxis_syncAxis(CAxis *a, CAxis *other, double slope, double intercept);
void CAxis_syncScale(CAxis *a, CAxis *other, double slope, double intercept);
void CAxis_copyAxis(CAxis *a, CAxis *other);
void CAxis_setLabels(CAxis *a, const char *const *labels, int len);
void CAxis_setLabels2(CAxis *a, const double *values, int len, const char *formatString);
void CAxis_setLabelFormat(CAxis *a, const char *formatString);
void CAxis_setMultiFormat(CAxis *a, int filter1, const char *format1, int filter2,
                          const char *format2, int labelSpan, bool promoteFirst);
void CAxis_setMultiFormat2(CAxis *a, int filter, const char *format, int labelSpan,
                           bool promoteFirst);
void CAxis_setFormatCondition(CAxis *a, const char *condition, double operand);
void CAxis_addLabel(CAxis *a, double pos, const char *label);

double CAxis_getMinValue(CAxis *a);
double CAxis_getMaxValue(CAxis *a);
double CAxis_getCoor(CAxis *a, double value);
/* Valid until the axis changes. */
void CAxis_getTicks(CAxis *a, const double **data, int *len);
/* Null when there is no tick at value. */
const char *CAxis_getLabel(CAxis *a, double value);
const char *CAxis_getFormattedLabel(CAxis *a, double value, const char *format);

/* The look: line, ticks, labels, title, marks and zones.  A titleColor of -1
   takes the label colour, a tickColor of -1 the axis colour. */
void CAxis_setColors(CAxis *a, int axisColor, int labelColor, int titleColor, int tickColor);
/* The title's box and the prototype of every label's box; they live with the
   chart. */
CTextBox *CAxis_setTitle(CAxis *a, const char *text, const char *font, double fontSize,
                         int fontColor);
void CAxis_setTitlePos(CAxis *a, int alignment, int titleGap);
CTextBox *CAxis_setLabelStyle(CAxis *a, const char *font, double fontSize, int fontColor,
                              double fontAngle);
void CAxis_setLabelGap(CAxis *a, int gap);
void CAxis_setLabelAlignment(CAxis *a, int alignment, int minLabelSpace);
/* Minor ticks half as long. */
void CAxis_setTickLength(CAxis *a, int majorTickLength);
void CAxis_setTickLength2(CAxis *a, int majorTickLength, int minorTickLength);
void CAxis_setTickColor(CAxis *a, int majorTickColor, int minorTickColor);
void CAxis_setTickWidth(CAxis *a, int majorTickWidth, int minorTickWidth);
void CAxis_setWidth(CAxis *a, int width);
void CAxis_setOffset(CAxis *a, int x, int y);
void CAxis_setTickOffset(CAxis *a, double offset);
void CAxis_setLabelOffset(CAxis *a, double offset);
CMark *CAxis_addMark(CAxis *a, double value, int lineColor, const char *text, const char *font,
                     double fontSize);
void CAxis_addZone(CAxis *a, double startValue, double endValue, int color);
/* kBottom, kLeft, kRight or kTop. */
int CAxis_getAlignment(CAxis *a);

#ifdef __cplusplus
}
#endif
