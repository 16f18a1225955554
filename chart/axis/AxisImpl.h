#pragma once

#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/axis/AxisOrientation.h"
#include "chart/axis/label/LabelFormatList.h"
#include "chart/axis/label/TickMap.h"
#include "chart/axis/scale/ScaleMapping.h"
#include "chart/axis/scale/ScaleRecord.h"
#include "text/template/Formatter.h"

class TemplateFieldSource;
struct ScaleOutcome;

class AxisImpl : public Axis {
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
    DoubleArray getTicks() override;
    const char *getLabel(double value) const override;
    const char *getFormattedLabel(double value, const char *format) override;

    // What the chart, its plot area and the painter use.

    // The axis length in pixels, margins included.
    void setLength(int pixels) { length = pixels; }
    int getLength() const { return length; }
    void setOrientation(const AxisOrientation &o) { orientation = o; }
    const AxisOrientation &getOrientation() const { return orientation; }
    // What a chart kind or layer prefers where the caller set nothing.
    void setDefaultExtensions(double top, double bottom, double zeroAffinity);
    void setDefaultRounding(int roundMin, int roundMax);
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
    // Distance between the first two major ticks; 0 with fewer.
    double getTickStep() const { return tickStep; }
    // The pixels between major ticks the scale works with.
    int getTickSpacing() const;
    int getScaleMode() const { return scaleMode; }
    int getScaleType() const { return scaleType; }
    bool isReversed() const { return reversed; }
    bool isLogScale() const { return mapping.isLog(); }
    BaseChart *getOwner() const { return owner; }
    DrawArea *getDrawArea() const { return drawArea; }
    const Formatter *getFormatter() const { return formatter; }

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
    // Pixels the scale spreads over; wide enough that no length and margins overflow.
    long long usableLength() const { return (long long)length - marginTop - marginBottom; }
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
    bool layoutDone;

    AxisOrientation orientation;
    TemplateFieldSource *fieldSource;
    double dataMin;
    double dataMax;
    // Chained to the chart's: the label pass sets its own decimals here.
    Formatter labelFormatter;
    std::vector<double> tickValues;
    std::string scratchText;
};
