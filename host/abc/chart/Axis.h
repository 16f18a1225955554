#pragma once

#include "api/chart/CAxis.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/VSObject.h"
#include "host/abc/Views.h"
#include "host/abc/chart/Mark.h"

namespace abc {

// The scale and the look of a chart axis.  The engine axis belongs to its
// chart; the wrapper to the chart wrapper, which hands out one wrapper per
// axis.  The wrappers of its title, label style and marks belong to it.
class Axis : public VSObject, public GarbageContainer {
public:
    explicit Axis(CAxis *handle) : handle(handle) {}

    CAxis *getHandle() const { return handle; }
    static CAxis *handleOf(const Axis *a) { return a ? a->handle : nullptr; }

    void setLinearScale(double lowerLimit, double upperLimit, double majorTickInc,
                        double minorTickInc) {
        CAxis_setLinearScale(handle, lowerLimit, upperLimit, majorTickInc, minorTickInc);
    }
    void setLogScale(double lowerLimit, double upperLimit, double majorTickInc,
                     double minorTickInc) {
        CAxis_setLogScale(handle, lowerLimit, upperLimit, majorTickInc, minorTickInc);
    }
    void setDateScale(double lowerLimit, double upperLimit, double majorTickInc,
                      double minorTickInc) {
        CAxis_setDateScale(handle, lowerLimit, upperLimit, majorTickInc, minorTickInc);
    }
    void setLinearScale2(double lowerLimit, double upperLimit, StringArray labels) {
        CAxis_setLinearScale2(handle, lowerLimit, upperLimit, labels.data, labels.len);
    }
    void setLogScale2(double lowerLimit, double upperLimit, StringArray labels) {
        CAxis_setLogScale2(handle, lowerLimit, upperLimit, labels.data, labels.len);
    }
    void setDateScale2(double lowerLimit, double upperLimit, StringArray labels) {
        CAxis_setDateScale2(handle, lowerLimit, upperLimit, labels.data, labels.len);
    }
    void setLinearScale3(const char *formatString) { CAxis_setLinearScale3(handle, formatString); }
    void setLogScale3(const char *formatString) { CAxis_setLogScale3(handle, formatString); }
    void setDateScale3(const char *formatString) { CAxis_setDateScale3(handle, formatString); }
    void setAutoScale(double topExtension, double bottomExtension, double zeroAffinity) {
        CAxis_setAutoScale(handle, topExtension, bottomExtension, zeroAffinity);
    }
    void setRounding(bool roundMin, bool roundMax) {
        CAxis_setRounding(handle, roundMin, roundMax);
    }
    void setTickDensity(int majorTickSpacing, int minorTickSpacing) {
        CAxis_setTickDensity(handle, majorTickSpacing, minorTickSpacing);
    }
    void setMinTickInc(double inc) { CAxis_setMinTickInc(handle, inc); }
    void setReverse(bool reverse) { CAxis_setReverse(handle, reverse); }
    void setMargin(int topMargin, int bottomMargin) {
        CAxis_setMargin(handle, topMargin, bottomMargin);
    }
    void setIndent(bool indent) { CAxis_setIndent(handle, indent); }
    void setLabelStep(int majorTickStep, int minorTickStep, int majorTickOffset,
                      int minorTickOffset) {
        CAxis_setLabelStep(handle, majorTickStep, minorTickStep, majorTickOffset, minorTickOffset);
    }
    void syncAxis(Axis *other, double slope, double intercept) {
        CAxis_syncAxis(handle, handleOf(other), slope, intercept);
    }
    void syncScale(Axis *other, double slope, double intercept) {
        CAxis_syncScale(handle, handleOf(other), slope, intercept);
    }
    void copyAxis(Axis *other) { CAxis_copyAxis(handle, handleOf(other)); }
    void setLabels(StringArray labels) { CAxis_setLabels(handle, labels.data, labels.len); }
    void setLabels2(DoubleArray values, const char *formatString) {
        CAxis_setLabels2(handle, values.data, values.len, formatString);
    }
    void setLabelFormat(const char *formatString) { CAxis_setLabelFormat(handle, formatString); }
    void setMultiFormat(int filter1, const char *format1, int filter2, const char *format2,
                        int labelSpan, bool promoteFirst) {
        CAxis_setMultiFormat(handle, filter1, format1, filter2, format2, labelSpan, promoteFirst);
    }
    void setMultiFormat2(int filter, const char *format, int labelSpan, bool promoteFirst) {
        CAxis_setMultiFormat2(handle, filter, format, labelSpan, promoteFirst);
    }
    void setFormatCondition(const char *condition, double operand) {
        CAxis_setFormatCondition(handle, condition, operand);
    }
    void addLabel(double pos, const char *label) { CAxis_addLabel(handle, pos, label); }
    double getMinValue() { return CAxis_getMinValue(handle); }
    double getMaxValue() { return CAxis_getMaxValue(handle); }
    double getCoor(double value) { return CAxis_getCoor(handle, value); }
    // Valid until the axis changes.
    DoubleArray getTicks() {
        DoubleArray t = {0, nullptr};
        CAxis_getTicks(handle, &t.data, &t.len);
        return t;
    }
    const char *getLabel(double value) { return CAxis_getLabel(handle, value); }
    const char *getFormattedLabel(double value, const char *format) {
        return CAxis_getFormattedLabel(handle, value, format);
    }

    void setColors(int axisColor, int labelColor, int titleColor, int tickColor) {
        CAxis_setColors(handle, axisColor, labelColor, titleColor, tickColor);
    }
    TextBox *setTitle(const char *text, const char *font, double fontSize, int fontColor) {
        return keepOnce(CAxis_setTitle(handle, text, font, fontSize, fontColor),
                        &TextBox::getTextBoxHandle);
    }
    void setTitlePos(int alignment, int titleGap) {
        CAxis_setTitlePos(handle, alignment, titleGap);
    }
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor, double fontAngle) {
        return keepOnce(CAxis_setLabelStyle(handle, font, fontSize, fontColor, fontAngle),
                        &TextBox::getTextBoxHandle);
    }
    void setLabelGap(int gap) { CAxis_setLabelGap(handle, gap); }
    void setLabelAlignment(int alignment, int minLabelSpace) {
        CAxis_setLabelAlignment(handle, alignment, minLabelSpace);
    }
    void setTickLength(int majorTickLength) { CAxis_setTickLength(handle, majorTickLength); }
    void setTickLength2(int majorTickLength, int minorTickLength) {
        CAxis_setTickLength2(handle, majorTickLength, minorTickLength);
    }
    void setTickColor(int majorTickColor, int minorTickColor) {
        CAxis_setTickColor(handle, majorTickColor, minorTickColor);
    }
    void setTickWidth(int majorTickWidth, int minorTickWidth) {
        CAxis_setTickWidth(handle, majorTickWidth, minorTickWidth);
    }
    void setWidth(int width) { CAxis_setWidth(handle, width); }
    void setOffset(int x, int y) { CAxis_setOffset(handle, x, y); }
    void setTickOffset(double offset) { CAxis_setTickOffset(handle, offset); }
    void setLabelOffset(double offset) { CAxis_setLabelOffset(handle, offset); }
    // Each call makes a mark of its own.
    Mark *addMark(double value, int lineColor, const char *text, const char *font,
                  double fontSize) {
        CMark *m = CAxis_addMark(handle, value, lineColor, text, font, fontSize);
        return m ? addGarbage(new Mark(m)) : nullptr;
    }
    void addZone(double startValue, double endValue, int color) {
        CAxis_addZone(handle, startValue, endValue, color);
    }
    int getAlignment() { return CAxis_getAlignment(handle); }

private:
    CAxis *handle;
};

}  // namespace abc
