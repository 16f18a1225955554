#pragma once

#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/axis/AxisOrientation.h"
#include "chart/axis/label/LabelFormatList.h"
#include "chart/axis/label/TickMap.h"
#include "chart/axis/paint/AxisPainter.h"
#include "chart/axis/paint/AxisScaleView.h"
#include "chart/axis/scale/ScaleMapping.h"
#include "chart/axis/scale/ScaleRecord.h"
#include "text/template/Formatter.h"

class TemplateFieldSource;
struct PlotFrame;
struct ScaleOutcome;

class AxisImpl : public Axis, public AxisScaleView {
public:
    // How the scale came to be.
    enum ScaleMode {
        kNothingSet = 0,
        kAutomatic = 1,
        kFixedLinear = 3,
        kFixedLog = 4,
        kFixedDate = 5,
        kSynchronised = 6,
        kCopied = 7,
    };
    enum ScaleType { kUndecided = 0, kLinearScale = 1, kDateScale = 2, kLogScale = 3 };

    AxisImpl(BaseChart *owner, DrawArea *drawArea, const Formatter *formatter);
    AxisImpl(const AxisImpl &) = delete;
    AxisImpl &operator=(const AxisImpl &) = delete;

    // Every Axis of the engine is an AxisImpl.
    static AxisImpl *of(Axis *axis) { return static_cast<AxisImpl *>(axis); }

    void destroy() override;

    void setLinearScale(double lowerLimit, double upperLimit, double majorTickInc,
                        double minorTickInc) override;
    void setLogScale(double lowerLimit, double upperLimit, double majorTickInc,
                     double minorTickInc) override;
    void setDateScale(double lowerLimit, double upperLimit, double majorTickInc,
                      double minorTickInc) override;
    void setLinearScale2(double lowerLimit, double upperLimit, StringArray labels) override;
    void setLogScale2(double lowerLimit, double upperLimit, StringArray labels) override;
    void setDateScale2(double lowerLimit, double upperLimit, StringArray labels) override;
    void setLinearScale3(const char *formatString) override;
    void setLogScale3(const char *formatString) override;
    void setDateScale3(const char *formatString) override;

    void setAutoScale(double topExtension, double bottomExtension, double zeroAffinity) override;
    void setRounding(bool roundMin, bool roundMax) override;
    void setTickDensity(int majorTickSpacing, int minorTickSpacing) override;
    void setMinTickInc(double inc) override;
    void setReverse(bool b) override;
    void setMargin(int topMargin, int bottomMargin) override;
    void setIndent(bool indent) override;
    void setLabelStep(int majorTickStep, int minorTickStep, int majorTickOffset,
                      int minorTickOffset) override;

    void syncAxis(Axis *axis, double slope, double intercept) override;
    void syncScale(Axis *axis, double slope, double intercept) override;
    void copyAxis(Axis *axis) override;

    void setLabels(StringArray labels) override;
    void setLabels2(DoubleArray values, const char *formatString) override;
    void setLabelFormat(const char *formatString) override;
    void setMultiFormat(int filter1, const char *format1, int filter2, const char *format2,
                        int labelSpan, bool promoteFirst) override;
    void setMultiFormat2(int filter, const char *format, int labelSpan, bool promoteFirst) override;
    void setFormatCondition(const char *condition, double operand) override;
    void addLabel(double pos, const char *label) override;

    double getMinValue() const override { return mapping.getLower(); }
    double getMaxValue() const override { return mapping.getUpper(); }
    double getCoor(double value) const override;
    // The value at a pixel offset from the low end: the inverse of getCoor;
    // kNoValue where there is none.
    double getValue(double coor) const;
    DoubleArray getTicks() override;
    const char *getLabel(double value) const override;
    const char *getFormattedLabel(double value, const char *format) override;

    void setColors(int axisColor, int labelColor, int titleColor, int tickColor) override;
    TextBox *setTitle(const char *text, const char *font, double fontSize, int fontColor) override;
    void setTitlePos(int alignment, int titleGap) override;
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor,
                           double fontAngle) override;
    void setLabelGap(int gap) override { painter.setLabelGap(gap); }
    void setLabelAlignment(int alignment, int minLabelSpace) override;
    void setTickLength(int majorTickLength) override;
    void setTickLength2(int majorTickLength, int minorTickLength) override;
    void setTickColor(int majorTickColor, int minorTickColor) override;
    void setTickWidth(int majorTickWidth, int minorTickWidth) override;
    void setWidth(int width) override { painter.setWidth(width); }
    void setOffset(int x, int y) override { painter.setOffset(x, y); }
    void setTickOffset(double offset) override { painter.setTickOffset(offset); }
    void setLabelOffset(double offset) override { painter.setLabelOffset(offset); }
    Mark *addMark(double value, int lineColor, const char *text, const char *font,
                  double fontSize) override;
    void addZone(double startValue, double endValue, int color) override;
    int getAlignment() const override { return orientation.alignment; }

    // What the chart, its plot area and the painter use.

    // The axis length in pixels, margins included.
    void setLength(int pixels) { length = pixels; }
    int getLength() const override { return length; }
    // The side, the angle of a turned axis and the labels' angle; the painter
    // takes the side and angle too.
    void setOrientation(const AxisOrientation &o);
    const AxisOrientation &getOrientation() const { return orientation; }
    // kBottom, kLeft, kRight, kTop, or kCenter for an axis turned by its angle.
    void setAlignment(int alignment);
    void setAngle(double angle);
    // What a chart kind or layer prefers where the caller set nothing.
    void setDefaultExtensions(double top, double bottom, double zeroAffinity);
    void setDefaultRounding(int roundMin, int roundMax);
    // Whether a scale of labels gives each label a slot of its own when the
    // caller has not said: the layers that draw a category as a block ask for it.
    void setDefaultIndent(bool indent) { defaultIndent = indent; }
    bool isIndented() const;
    // The chart's extra fields, for "{fieldN}" in label formats; not owned.
    void setFieldSource(TemplateFieldSource *fields) { fieldSource = fields; }

    // The plot area's entry, once the layers have reported their data.  Takes the
    // data's smallest and largest value (kNoValue for an axis without data) and
    // lays the scale out on the length given by setLength: an automatic axis
    // chooses limits and ticks (only once: it is then fixed); a synchronised axis
    // lays its target out first and follows it; every axis then writes the labels
    // its ticks still lack.  Without data and limits an automatic axis keeps the
    // mapping of 0 to 100 and makes no ticks.
    void layoutScale(double dataMin, double dataMax);
    // The same with the data range of the last call.
    void layoutScale();

    const TickMap &getTickMap() const { return ticks; }
    TickMap &paintedTicks() override { return ticks; }
    // Distance between the first two major ticks; 0 with fewer.
    double getTickStep() const { return tickStep; }
    // The pixels between major ticks the scale works with.
    int getTickSpacing() const;
    int getScaleMode() const { return scaleMode; }
    int getScaleType() const { return scaleType; }
    bool isReversed() const { return reversed; }
    bool isLogScale() const { return mapping.isLog(); }
    // Whether the axis maps values through another one (syncAxis).
    bool isSynced() const { return syncTarget && syncSlope != 0; }
    BaseChart *getOwner() const { return owner; }
    DrawArea *getDrawArea() const { return drawArea; }
    const Formatter *getFormatter() const { return formatter; }

    // Painting, for the chart: the painter's place, measures and passes.
    AxisPainter &getPainter() { return painter; }
    // Pixels the axis takes outward of its place; see AxisPainter.
    int getThickness() { return painter.getThickness(*this); }
    // Line, ticks, labels and title; the box of what was drawn.
    PaintExtent paintAxis(DrawArea *d) { return painter.paint(*this, d); }
    void paintZones(DrawArea *d, const PlotFrame &plot) { painter.paintZones(*this, d, plot); }
    void placeMarks(const PlotFrame &plot) { painter.placeMarks(*this, plot); }
    void paintMarks(DrawArea *d, const PlotFrame &plot, bool onTop) {
        painter.paintMarks(*this, d, plot, onTop);
    }

private:
    ~AxisImpl() override = default;

    void setScale(int type, double lower, double upper, double major, double minor);
    void pinEnds(double lower, double upper);
    void fixLinearScale(int type, double lower, double upper, double major, double minor);
    void fixLogScale(double lower, double upper, double major, double minor);
    void setLabelledScale(int type, double lower, double upper, StringArray labels);
    void setMapping(int type, double lower, double upper);
    void setSyncTarget(Axis *axis, double slope, double intercept, int mode);

    void layoutAutomatic();
    void synchronise();
    void followTicks(const AxisImpl &target);
    void makeOwnTicks(const AxisImpl &target);
    void enterTicks(const ScaleOutcome &outcome);
    void runLabelPass();
    // The labels' angle follows the label style once it is set there.
    void takeLabelAngle();
    // Pixels the scale spreads over; wide enough that no length and margins overflow.
    long long usableLength() const { return (long long)length - marginTop - marginBottom; }
    // The margin at the end where the scale starts: the left of a horizontal
    // axis, the bottom of a vertical one.
    int lowEndMargin() const;
    int majorTickCount() const;
    int minorTicksPerMajor(int majors) const;

    BaseChart *owner;
    DrawArea *drawArea;
    const Formatter *formatter;
    int scaleMode;
    ScaleMapping mapping;
    int scaleType;
    ScaleRecord scale;
    double upperLimit;
    double lowerLimit;
    bool reversed;
    int majorTickSpacing;
    int minorTickSpacing;
    double tickStep;
    Axis *syncTarget;
    double syncSlope;
    double syncIntercept;
    bool syncScaleOnly;
    mutable bool inSync;
    TickMap ticks;
    LabelFormatList formats;
    int length;
    int marginTop;
    int marginBottom;
    int indentMode;
    bool defaultIndent;
    // The scale was made from labels (setLabels and its kin).
    bool labelled;
    bool layoutDone;

    AxisOrientation orientation;
    TemplateFieldSource *fieldSource;
    double dataMin;
    double dataMax;
    // Chained to the chart's: the label pass sets its own decimals here.
    Formatter labelFormatter;
    std::vector<double> tickValues;
    std::string scratchText;
    AxisPainter painter;
};
