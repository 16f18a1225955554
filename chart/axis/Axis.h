#pragma once

#include "foundation/ArrayViews.h"

class BaseChart;
class DrawArea;
class Formatter;
class Mark;
class TextBox;

// The scale of a chart axis: its limits, the mapping of values to pixels, and
// the ticks with their labels; and its look: line, ticks, labels, title, marks
// and zones.  A scale is automatic (made from the data at layout), fixed by the
// caller, synchronised with another axis, or a text axis of labels.  Setters
// only store or fill the tick list; the automatic work runs when the chart lays
// out its axes.  Axes belong to their chart.
class Axis {
public:
    // The chart, its canvas and its formatter; none of them is owned.
    static Axis *create(BaseChart *owner, DrawArea *drawArea, const Formatter *formatter);

    virtual ~Axis() {}
    virtual void destroy() = 0;

    // Fixed when both limits are given and majorTickInc is not 0 (kNoValue fixes
    // the limits and leaves the ticks to addLabel); otherwise automatic with the
    // given ends pinned.
    virtual void setLinearScale(double lowerLimit, double upperLimit, double majorTickInc,
                                double minorTickInc) = 0;
    // Steps are factors (10 is a decade), or kLogTick for 1-2-5 and kLinearTick
    // for every digit of each decade.  Limits on both sides of zero are ignored.
    virtual void setLogScale(double lowerLimit, double upperLimit, double majorTickInc,
                             double minorTickInc) = 0;
    // Steps in seconds; 2592000 is a calendar month and 31104000 a year.
    virtual void setDateScale(double lowerLimit, double upperLimit, double majorTickInc,
                              double minorTickInc) = 0;
    // Labels at equal steps from lowerLimit to upperLimit.
    virtual void setLinearScale2(double lowerLimit, double upperLimit, StringArray labels) = 0;
    virtual void setLogScale2(double lowerLimit, double upperLimit, StringArray labels) = 0;
    virtual void setDateScale2(double lowerLimit, double upperLimit, StringArray labels) = 0;
    // The kind of scale, and a label format if the text is not empty.
    virtual void setLinearScale3(const char *formatString) = 0;
    virtual void setLogScale3(const char *formatString) = 0;
    virtual void setDateScale3(const char *formatString) = 0;

    // Shares of the axis left free above and below the data, and how near zero
    // must be (as a share of the far end) for the scale to start at zero.
    virtual void setAutoScale(double topExtension, double bottomExtension, double zeroAffinity) = 0;
    // Whether automatic limits move out to whole tick steps.
    virtual void setRounding(bool roundMin, bool roundMax) = 0;
    // Pixels between major and minor ticks; 0 or less means the default.
    virtual void setTickDensity(int majorTickSpacing, int minorTickSpacing) = 0;
    virtual void setMinTickInc(double inc) = 0;
    virtual void setReverse(bool b) = 0;
    // Pixels at the ends of the axis that the scale leaves free.
    virtual void setMargin(int topMargin, int bottomMargin) = 0;
    // Gives each label of a text axis a slot of its own, the label in its middle.
    virtual void setIndent(bool indent) = 0;

    // Labels every majorTickStep-th tick of those present; of the others, every
    // minorTickStep-th keeps a minor tick mark.  minorTickOffset -2147483647
    // takes majorTickOffset.
    virtual void setLabelStep(int majorTickStep, int minorTickStep, int majorTickOffset,
                              int minorTickOffset) = 0;

    // This value = slope * the other axis's value + intercept.  syncAxis takes the
    // other axis's ticks, syncScale only its range, copyAxis everything; null or
    // the axis itself makes the axis automatic again.
    virtual void syncAxis(Axis *axis, double slope, double intercept) = 0;
    virtual void syncScale(Axis *axis, double slope, double intercept) = 0;
    virtual void copyAxis(Axis *axis) = 0;

    // A text axis: label i at value i.  A text may begin with "~" (no tick mark),
    // "-" (minor tick), "~~" or "-~" (also no label), "\~" or "\-" (the character
    // itself); an empty text makes no tick.
    virtual void setLabels(StringArray labels) = 0;
    // A text axis whose label i shows values[i] by the format; kNoValue makes no
    // tick and kMinorTickOnly a minor tick.
    virtual void setLabels2(DoubleArray values, const char *formatString) = 0;
    // A template such as "{value|2}" for every label.
    virtual void setLabelFormat(const char *formatString) = 0;
    // Formats for the ticks that a filter (Chart::encodeFilter) picks; the first
    // entry that picks a tick labels it.
    virtual void setMultiFormat(int filter1, const char *format1, int filter2, const char *format2,
                                int labelSpan, bool promoteFirst) = 0;
    virtual void setMultiFormat2(int filter, const char *format, int labelSpan,
                                 bool promoteFirst) = 0;
    // Gates the formats added after it: "align", "else", "true", "false".
    virtual void setFormatCondition(const char *condition, double operand) = 0;
    // One tick with its own text (marks as in setLabels).
    virtual void addLabel(double pos, const char *label) = 0;

    virtual double getMinValue() const = 0;
    virtual double getMaxValue() const = 0;
    // Pixel offset of the value from the start of the axis.
    virtual double getCoor(double value) const = 0;
    // The tick values in ascending order; valid until the axis changes.
    virtual DoubleArray getTicks() = 0;
    // The label text of the tick at value; null if there is none.
    virtual const char *getLabel(double value) const = 0;
    // The value by a format or template; dates by "mmm dd, yyyy" when the format
    // is empty.  The text lives until the next call.
    virtual const char *getFormattedLabel(double value, const char *format) = 0;

    // The look.  Colours: a titleColor of -1 takes the label colour, a tickColor
    // of -1 the axis colour.
    virtual void setColors(int axisColor, int labelColor, int titleColor, int tickColor) = 0;
    // An empty font is "bold".  The title turns along a vertical axis unless its
    // box is given an angle.
    virtual TextBox *setTitle(const char *text, const char *font, double fontSize,
                              int fontColor) = 0;
    // Where along the axis the title stands (its alignment: the left, middle or
    // right part along a horizontal axis, the bottom, middle or top part along a
    // vertical one), and its gap from the labels.
    virtual void setTitlePos(int alignment, int titleGap) = 0;
    virtual TextBox *setLabelStyle(const char *font, double fontSize, int fontColor,
                                   double fontAngle) = 0;
    // Pixels between the ticks and the labels.
    virtual void setLabelGap(int gap) = 0;
    // The left (bottom) part puts each label's start at its tick, the right
    // (top) part its end; and the least room between labels, below which a
    // label is left out.
    virtual void setLabelAlignment(int alignment, int minLabelSpace) = 0;
    // Positive lengths point away from the plot.  The first form makes the
    // minor ticks half as long.
    virtual void setTickLength(int majorTickLength) = 0;
    virtual void setTickLength2(int majorTickLength, int minorTickLength) = 0;
    // A minor colour or width of -1 takes the major one.
    virtual void setTickColor(int majorTickColor, int minorTickColor) = 0;
    virtual void setTickWidth(int majorTickWidth, int minorTickWidth) = 0;
    // The width of the axis line.
    virtual void setWidth(int width) = 0;
    // Moves the axis from its place by pixels.
    virtual void setOffset(int x, int y) = 0;
    // Shift the tick marks, or the labels, along the axis by a value: 0.5 on a
    // text axis puts them between the labels.
    virtual void setTickOffset(double offset) = 0;
    virtual void setLabelOffset(double offset) = 0;
    // A line across the plot at the value, with a tick and a label.
    virtual Mark *addMark(double value, int lineColor, const char *text, const char *font,
                          double fontSize) = 0;
    // A band across the plot between two values, behind everything of the plot.
    virtual void addZone(double startValue, double endValue, int color) = 0;
    // kBottom, kLeft, kRight or kTop: the side of the plot the axis stands on.
    virtual int getAlignment() const = 0;
};
