#include "api/chart/CAxis.h"

#include "api/chart/ChartHandles.h"
#include "chart/axis/Axis.h"
#include "chart/axis/paint/Mark.h"
#include "text/box/TextBox.h"

using vistrel_api::E;
using vistrel_api::H;
using vistrel_api::putView;

void CAxis_setLinearScale(CAxis *a, double lowerLimit, double upperLimit, double majorTickInc,
                          double minorTickInc) {
    if (a) E(a)->setLinearScale(lowerLimit, upperLimit, majorTickInc, minorTickInc);
}
void CAxis_setLogScale(CAxis *a, double lowerLimit, double upperLimit, double majorTickInc,
                       double minorTickInc) {
    if (a) E(a)->setLogScale(lowerLimit, upperLimit, majorTickInc, minorTickInc);
}
void CAxis_setDateScale(CAxis *a, double lowerLimit, double upperLimit, double majorTickInc,
                        double minorTickInc) {
    if (a) E(a)->setDateScale(lowerLimit, upperLimit, majorTickInc, minorTickInc);
}
void CAxis_setLinearScale2(CAxis *a, double lowerLimit, double upperLimit,
                           const char *const *labels, int len) {
    if (a) E(a)->setLinearScale2(lowerLimit, upperLimit, StringArray(labels, len));
}
void CAxis_setLogScale2(CAxis *a, double lowerLimit, double upperLimit, const char *const *labels,
                        int len) {
    if (a) E(a)->setLogScale2(lowerLimit, upperLimit, StringArray(labels, len));
}
void CAxis_setDateScale2(CAxis *a, double lowerLimit, double upperLimit, const char *const *labels,
                         int len) {
    if (a) E(a)->setDateScale2(lowerLimit, upperLimit, StringArray(labels, len));
}
void CAxis_setLinearScale3(CAxis *a, const char *formatString) {
    if (a) E(a)->setLinearScale3(formatString ? formatString : "");
}
void CAxis_setLogScale3(CAxis *a, const char *formatString) {
    if (a) E(a)->setLogScale3(formatString ? formatString : "");
}
void CAxis_setDateScale3(CAxis *a, const char *formatString) {
    if (a) E(a)->setDateScale3(formatString ? formatString : "");
}
void CAxis_setAutoScale(CAxis *a, double topExtension, double bottomExtension,
                        double zeroAffinity) {
    if (a) E(a)->setAutoScale(topExtension, bottomExtension, zeroAffinity);
}
void CAxis_setRounding(CAxis *a, bool roundMin, bool roundMax) {
    if (a) E(a)->setRounding(roundMin, roundMax);
}
void CAxis_setTickDensity(CAxis *a, int majorTickSpacing, int minorTickSpacing) {
    if (a) E(a)->setTickDensity(majorTickSpacing, minorTickSpacing);
}
void CAxis_setMinTickInc(CAxis *a, double inc) {
    if (a) E(a)->setMinTickInc(inc);
}
void CAxis_setReverse(CAxis *a, bool reverse) {
    if (a) E(a)->setReverse(reverse);
}
void CAxis_setMargin(CAxis *a, int topMargin, int bottomMargin) {
    if (a) E(a)->setMargin(topMargin, bottomMargin);
}
void CAxis_setIndent(CAxis *a, bool indent) {
    if (a) E(a)->setIndent(indent);
}
void CAxis_setLabelStep(CAxis *a, int majorTickStep, int minorTickStep, int majorTickOffset,
                        int minorTickOffset) {
    if (a) E(a)->setLabelStep(majorTickStep, minorTickStep, majorTickOffset, minorTickOffset);
}
void CAxis_syncAxis(CAxis *a, CAxis *other, double slope, double intercept) {
    if (a) E(a)->syncAxis(E(other), slope, intercept);
}
void CAxis_syncScale(CAxis *a, CAxis *other, double slope, double intercept) {
    if (a) E(a)->syncScale(E(other), slope, intercept);
}
void CAxis_copyAxis(CAxis *a, CAxis *other) {
    if (a) E(a)->copyAxis(E(other));
}
void CAxis_setLabels(CAxis *a, const char *const *labels, int len) {
    if (a) E(a)->setLabels(StringArray(labels, len));
}
void CAxis_setLabels2(CAxis *a, const double *values, int len, const char *formatString) {
    if (a) E(a)->setLabels2(DoubleArray(values, len), formatString ? formatString : "");
}
void CAxis_setLabelFormat(CAxis *a, const char *formatString) {
    if (a) E(a)->setLabelFormat(formatString ? formatString : "");
}
void CAxis_setMultiFormat(CAxis *a, int filter1, const char *format1, int filter2,
                          const char *format2, int labelSpan, bool promoteFirst) {
    if (a)
        E(a)->setMultiFormat(filter1, format1 ? format1 : "", filter2, format2 ? format2 : "",
                             labelSpan, promoteFirst);
}
void CAxis_setMultiFormat2(CAxis *a, int filter, const char *format, int labelSpan,
                           bool promoteFirst) {
    if (a) E(a)->setMultiFormat2(filter, format ? format : "", labelSpan, promoteFirst);
}
void CAxis_setFormatCondition(CAxis *a, const char *condition, double operand) {
    if (a) E(a)->setFormatCondition(condition ? condition : "", operand);
}
void CAxis_addLabel(CAxis *a, double pos, const char *label) {
    if (a) E(a)->addLabel(pos, label ? label : "");
}

double CAxis_getMinValue(CAxis *a) {
    return a ? E(a)->getMinValue() : 0;
}
double CAxis_getMaxValue(CAxis *a) {
    return a ? E(a)->getMaxValue() : 0;
}
double CAxis_getCoor(CAxis *a, double value) {
    return a ? E(a)->getCoor(value) : 0;
}
void CAxis_getTicks(CAxis *a, const double **data, int *len) {
    putView(a ? E(a)->getTicks() : DoubleArray(), data, len);
}
const char *CAxis_getLabel(CAxis *a, double value) {
    return a ? E(a)->getLabel(value) : nullptr;
}
const char *CAxis_getFormattedLabel(CAxis *a, double value, const char *format) {
    return a ? E(a)->getFormattedLabel(value, format ? format : "") : nullptr;
}

void CAxis_setColors(CAxis *a, int axisColor, int labelColor, int titleColor, int tickColor) {
    if (a) E(a)->setColors(axisColor, labelColor, titleColor, tickColor);
}
CTextBox *CAxis_setTitle(CAxis *a, const char *text, const char *font, double fontSize,
                         int fontColor) {
    return a ? H(E(a)->setTitle(text ? text : "", font ? font : "", fontSize, fontColor)) : nullptr;
}
void CAxis_setTitlePos(CAxis *a, int alignment, int titleGap) {
    if (a) E(a)->setTitlePos(alignment, titleGap);
}
CTextBox *CAxis_setLabelStyle(CAxis *a, const char *font, double fontSize, int fontColor,
                              double fontAngle) {
    return a ? H(E(a)->setLabelStyle(font ? font : "", fontSize, fontColor, fontAngle)) : nullptr;
}
void CAxis_setLabelGap(CAxis *a, int gap) {
    if (a) E(a)->setLabelGap(gap);
}
void CAxis_setLabelAlignment(CAxis *a, int alignment, int minLabelSpace) {
    if (a) E(a)->setLabelAlignment(alignment, minLabelSpace);
}
void CAxis_setTickLength(CAxis *a, int majorTickLength) {
    if (a) E(a)->setTickLength(majorTickLength);
}
void CAxis_setTickLength2(CAxis *a, int majorTickLength, int minorTickLength) {
    if (a) E(a)->setTickLength2(majorTickLength, minorTickLength);
}
void CAxis_setTickColor(CAxis *a, int majorTickColor, int minorTickColor) {
    if (a) E(a)->setTickColor(majorTickColor, minorTickColor);
}
void CAxis_setTickWidth(CAxis *a, int majorTickWidth, int minorTickWidth) {
    if (a) E(a)->setTickWidth(majorTickWidth, minorTickWidth);
}
void CAxis_setWidth(CAxis *a, int width) {
    if (a) E(a)->setWidth(width);
}
void CAxis_setOffset(CAxis *a, int x, int y) {
    if (a) E(a)->setOffset(x, y);
}
void CAxis_setTickOffset(CAxis *a, double offset) {
    if (a) E(a)->setTickOffset(offset);
}
void CAxis_setLabelOffset(CAxis *a, double offset) {
    if (a) E(a)->setLabelOffset(offset);
}
CMark *CAxis_addMark(CAxis *a, double value, int lineColor, const char *text, const char *font,
                     double fontSize) {
    return a ? H(E(a)->addMark(value, lineColor, text ? text : "", font ? font : "", fontSize))
             : nullptr;
}
void CAxis_addZone(CAxis *a, double startValue, double endValue, int color) {
    if (a) E(a)->addZone(startValue, endValue, color);
}
int CAxis_getAlignment(CAxis *a) {
    return a ? E(a)->getAlignment() : 0;
}
