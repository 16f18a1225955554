#include "chart/axis/AxisImpl.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "chart/axis/label/LabelPass.h"
#include "chart/axis/label/LabelTemplate.h"
#include "chart/axis/label/LabelText.h"
#include "chart/axis/scale/DateScaler.h"
#include "chart/axis/scale/LinearScaler.h"
#include "chart/axis/scale/LinearTickGenerator.h"
#include "chart/axis/scale/LogScaler.h"
#include "chart/axis/scale/LogTickGenerator.h"
#include "chart/axis/scale/TimeTickGenerator.h"
#include "chart/base/BaseChart.h"
#include "foundation/Constants.h"
#include "text/template/TemplateHelpers.h"

namespace {

// The offset setLabelStep reads as "the same as the major offset".
const int kSameOffset = -2147483647;
// Equal limits of a fixed scale move this far apart.
const double kLinearGap = 1e-5;
// setIndent's states: not said, on, off.
enum { kIndentUnset = 0, kIndentOn = 1, kIndentOff = 2 };
// Chart times of 1800-01-01 and 2200-01-01: the span where getFormattedLabel
// takes a bare value for a date.
const double kFirstDate = 56770934400.0;
const double kLastDate = 69393715200.0;

// Limits and steps that are no numbers count as not given.
double given(double v) {
    return std::isfinite(v) ? v : kNoValue;
}

bool isLogSentinel(double step) {
    return step == kLogTick || step == kLinearTick;
}

bool isEmptyText(const char *s) {
    return !s || !*s;
}

bool runScaler(int type, const ScaleRecord &record, double lower, double upper, int n, int m,
               ScaleOutcome &outcome) {
    if (type == AxisImpl::kLogScale) return LogScaler(record).scale(lower, upper, n, m, outcome);
    if (type == AxisImpl::kDateScale) return DateScaler(record).scale(lower, upper, n, m, outcome);
    return LinearScaler(record).scale(lower, upper, n, m, outcome);
}

}  // namespace

AxisImpl::AxisImpl(BaseChart *owner, DrawArea *drawArea, const Formatter *formatter)
    : owner(owner),
      drawArea(drawArea),
      formatter(formatter),
      scaleMode(kNothingSet),
      scaleType(kUndecided),
      upperLimit(kNoValue),
      lowerLimit(kNoValue),
      reversed(false),
      majorTickSpacing(-1),
      minorTickSpacing(-1),
      tickStep(0),
      syncTarget(nullptr),
      syncSlope(1),
      syncIntercept(0),
      syncScaleOnly(false),
      inSync(false),
      length(100),
      marginTop(0),
      marginBottom(0),
      indentMode(kIndentUnset),
      defaultIndent(false),
      labelled(false),
      layoutDone(false),
      fieldSource(nullptr),
      dataMin(kNoValue),
      dataMax(kNoValue),
      painter(owner, drawArea) {
    labelFormatter.setDefault(formatter);
    painter.setAlignment(orientation.alignment);
}

void AxisImpl::destroy() {
    delete this;
}

// Scale setters.

void AxisImpl::setLinearScale(double lower, double upper, double major, double minor) {
    setScale(kLinearScale, lower, upper, major, minor);
}

void AxisImpl::setLogScale(double lower, double upper, double major, double minor) {
    setScale(kLogScale, lower, upper, major, minor);
}

void AxisImpl::setDateScale(double lower, double upper, double major, double minor) {
    setScale(kDateScale, lower, upper, major, minor);
}

void AxisImpl::setScale(int type, double lower, double upper, double major, double minor) {
    lower = given(lower);
    upper = given(upper);
    if (std::isnan(major)) major = 0;
    if (lower != kNoValue && upper != kNoValue && major != 0) {
        if (type == kLogScale) {
            fixLogScale(lower, upper, major, minor);
        } else {
            fixLinearScale(type, lower, upper, major, minor);
        }
        return;
    }
    if (lower != kNoValue && upper != kNoValue && lower > upper) {
        std::swap(lower, upper);
        reversed = !reversed;
    }
    lowerLimit = lower;
    upperLimit = upper;
    scaleMode = kAutomatic;
    scaleType = type;
    pinEnds(lower, upper);
}

// A pinned end gets no extension; a pinned end on one side of zero keeps the
// scale from reaching over to zero.
void AxisImpl::pinEnds(double lower, double upper) {
    bool lowerPinned = lower != kNoValue, upperPinned = upper != kNoValue;
    scale.setExtensions(upperPinned ? 0 : kNoValue, lowerPinned ? 0 : kNoValue);
    if (lowerPinned && upperPinned) {
        scale.zeroAffinity = 0;
    } else if ((lowerPinned && lower >= 0) || (upperPinned && upper <= 0)) {
        scale.zeroAffinity = 0;
    }
}

void AxisImpl::setMapping(int type, double lower, double upper) {
    if (type == kLogScale) {
        mapping.setLog(lower, upper);
        scaleMode = kFixedLog;
    } else {
        mapping.setLinear(lower, upper);
        scaleMode = type == kDateScale ? kFixedDate : kFixedLinear;
    }
    scaleType = type;
    labelled = false;
}

void AxisImpl::fixLinearScale(int type, double lower, double upper, double major, double minor) {
    if (lower == upper) {
        lower -= kLinearGap;
        upper += kLinearGap;
    }
    setMapping(type, lower, upper);
    ticks.removeScaleTicks();
    tickStep = 0;
    if (major == kNoValue) return;
    double start = scale.roundMin == 0 ? lower - std::fmod(lower, major) : lower;
    LinearTickGenerator linear;
    TimeTickGenerator time;
    TickGenerator *generator = type == kDateScale ? static_cast<TickGenerator *>(&time) : &linear;
    generator->generate(lower, upper, start, major, minor);
    ScaleOutcome outcome;
    outcome.lower = lower;
    outcome.upper = upper;
    outcome.majorTicks = generator->getMajorTicks();
    outcome.minorTicks = generator->getMinorTicks();
    outcome.linearSteps = type == kLinearScale;
    enterTicks(outcome);
}

void AxisImpl::fixLogScale(double lower, double upper, double major, double minor) {
    if (!(lower * upper > 0)) return;
    if (lower == upper) {
        upper *= 1.00001;
        lower *= 0.99999;
    }
    setMapping(kLogScale, lower, upper);
    ticks.removeScaleTicks();
    tickStep = 0;
    if (!(major > 0) || major == kNoValue) return;
    // Negative limits walk as their mirror image, in the same direction.
    bool mirrored = lower < 0;
    if (mirrored) {
        lower = -lower;
        upper = -upper;
        std::swap(lower, upper);
    }
    if (!(minor > 0)) minor = 0;
    double majorLog = isLogSentinel(major) ? major : std::log10(major);
    double minorLog = isLogSentinel(minor) || minor == 0 ? minor : std::log10(minor);
    double ll = std::log10(lower), lu = std::log10(upper);
    double start = ll;
    if (isLogSentinel(major)) {
        start = std::floor(ll);
    } else if (scale.roundMin == 0) {
        start = ll - std::fmod(ll, majorLog);
    }
    LogTickGenerator generator;
    generator.generate(ll, lu, start, majorLog, minorLog);
    ScaleOutcome outcome;
    double sign = mirrored ? -1 : 1;
    for (double v : generator.getMajorTicks())
        outcome.majorTicks.push_back(sign * LogTickGenerator::powerOfTen(v));
    for (double v : generator.getMinorTicks())
        outcome.minorTicks.push_back(sign * LogTickGenerator::powerOfTen(v));
    enterTicks(outcome);
}

void AxisImpl::setLinearScale2(double lower, double upper, StringArray labels) {
    setLabelledScale(kLinearScale, lower, upper, labels);
}

void AxisImpl::setLogScale2(double lower, double upper, StringArray labels) {
    setLabelledScale(kLogScale, lower, upper, labels);
}

void AxisImpl::setDateScale2(double lower, double upper, StringArray labels) {
    setLabelledScale(kDateScale, lower, upper, labels);
}

void AxisImpl::setLabelledScale(int type, double lower, double upper, StringArray labels) {
    if (!std::isfinite(lower) || !std::isfinite(upper)) return;
    if (type == kLogScale && !(lower * upper > 0)) return;
    double mappedLower = lower, mappedUpper = upper;
    if (lower == upper) {
        if (type == kLogScale) {
            mappedLower *= 0.99999;
            mappedUpper *= 1.00001;
        } else {
            mappedLower -= kLinearGap;
            mappedUpper += kLinearGap;
        }
    }
    setMapping(type, mappedLower, mappedUpper);
    labelled = true;
    ticks.clear();
    int n = std::max(labels.len, 0);
    double step = (upper - lower) / std::max(n - 1, 1);
    tickStep = n > 1 ? std::fabs(step) : 0;
    std::string shown;
    for (int i = 0; i < n; ++i) {
        if (isEmptyText(labels.data[i])) continue;
        double pos = lower + i * step;
        int flags = LabelText::readMarks(labels.data[i], shown);
        ticks.put(pos, AxisLabel(pos, shown, flags));
    }
}

void AxisImpl::setLinearScale3(const char *formatString) {
    scaleType = kLinearScale;
    if (!isEmptyText(formatString)) setLabelFormat(formatString);
}

void AxisImpl::setLogScale3(const char *formatString) {
    scaleType = kLogScale;
    if (!isEmptyText(formatString)) setLabelFormat(formatString);
}

void AxisImpl::setDateScale3(const char *formatString) {
    scaleType = kDateScale;
    if (!isEmptyText(formatString)) setLabelFormat(formatString);
}

void AxisImpl::setAutoScale(double top, double bottom, double zero) {
    scale.setExtensions(top, bottom);
    scale.setZeroAffinity(zero);
    scaleMode = kAutomatic;
}

void AxisImpl::setRounding(bool roundMin, bool roundMax) {
    scale.roundMin = roundMin ? 1 : 0;
    scale.roundMax = roundMax ? 1 : 0;
}

void AxisImpl::setTickDensity(int major, int minor) {
    majorTickSpacing = major > 0 ? major : -1;
    minorTickSpacing = minor > 0 ? minor : -1;
}

void AxisImpl::setMinTickInc(double inc) {
    scale.minTickInc = std::isfinite(inc) ? inc : 0;
}

void AxisImpl::setReverse(bool b) {
    reversed = b;
}

void AxisImpl::setMargin(int top, int bottom) {
    marginTop = top;
    marginBottom = bottom;
}

void AxisImpl::setIndent(bool indent) {
    indentMode = indent ? kIndentOn : kIndentOff;
}

bool AxisImpl::isIndented() const {
    if (indentMode == kIndentUnset) return defaultIndent && labelled;
    return indentMode == kIndentOn;
}

int AxisImpl::lowEndMargin() const {
    bool vertical = orientation.alignment == kLeft || orientation.alignment == kRight;
    return vertical ? marginBottom : marginTop;
}

void AxisImpl::setLabelStep(int majorStep, int minorStep, int majorOffset, int minorOffset) {
    ticks.thin(majorStep, minorStep, majorOffset,
               minorOffset == kSameOffset ? majorOffset : minorOffset);
}

void AxisImpl::setDefaultExtensions(double top, double bottom, double zeroAffinity) {
    scale.defaultTopExtension = top;
    scale.defaultBottomExtension = bottom;
    scale.defaultZeroAffinity = zeroAffinity;
}

void AxisImpl::setDefaultRounding(int roundMin, int roundMax) {
    scale.defaultRoundMin = roundMin;
    scale.defaultRoundMax = roundMax;
}

// Synchronised axes.

void AxisImpl::setSyncTarget(Axis *axis, double slope, double intercept, int mode) {
    if (!axis || axis == this) {
        syncTarget = nullptr;
        scaleMode = kAutomatic;
        return;
    }
    syncTarget = axis;
    syncSlope = std::isfinite(slope) ? slope : 1;
    syncIntercept = std::isfinite(intercept) ? intercept : 0;
    syncScaleOnly = false;
    scaleMode = mode;
}

void AxisImpl::syncAxis(Axis *axis, double slope, double intercept) {
    setSyncTarget(axis, slope, intercept, kSynchronised);
}

void AxisImpl::syncScale(Axis *axis, double slope, double intercept) {
    setSyncTarget(axis, slope, intercept, kSynchronised);
    syncScaleOnly = syncTarget != nullptr;
}

void AxisImpl::copyAxis(Axis *axis) {
    setSyncTarget(axis, 1, 0, kCopied);
}

// Labels.

void AxisImpl::setLabels(StringArray labels) {
    setLinearScale2(0, std::max(labels.len, 1) - 1, labels);
}

void AxisImpl::setLabels2(DoubleArray values, const char *formatString) {
    setMapping(kLinearScale, 0, std::max(values.len, 1) - 1);
    if (values.len <= 1) mapping.setLinear(-kLinearGap, kLinearGap);
    labelled = true;
    ticks.clear();
    tickStep = values.len > 1 ? 1 : 0;
    for (int i = 0; i < values.len; ++i) {
        double v = given(values.data[i]);
        if (v == kNoValue) continue;
        if (v == kMinorTickOnly || v == kMicroTickOnly) {
            ticks.put(i, AxisLabel(kNoValue, std::string(),
                                   AxisLabel::kScaleTick | AxisLabel::kMinorTick));
        } else {
            ticks.put(i, AxisLabel(v, std::string(), AxisLabel::kScaleTick));
        }
    }
    if (!isEmptyText(formatString)) setLabelFormat(formatString);
}

void AxisImpl::setLabelFormat(const char *formatString) {
    formats.setLabelFormat(formatString);
}

void AxisImpl::setMultiFormat(int filter1, const char *format1, int filter2, const char *format2,
                              int labelSpan, bool promoteFirst) {
    formats.addFormat(filter1, format1, labelSpan, promoteFirst);
    formats.addFormat(filter2, format2, labelSpan, promoteFirst);
}

void AxisImpl::setMultiFormat2(int filter, const char *format, int labelSpan, bool promoteFirst) {
    formats.addFormat(filter, format, labelSpan, promoteFirst);
}

void AxisImpl::setFormatCondition(const char *condition, double operand) {
    formats.addCondition(condition, operand);
}

void AxisImpl::addLabel(double pos, const char *label) {
    std::string shown;
    int flags = LabelText::readMarks(label, shown);
    ticks.put(pos, AxisLabel(pos, shown, flags));
}

// Reading the scale.

double AxisImpl::getCoor(double value) const {
    if (syncTarget && syncSlope != 0) {
        if (inSync) return 0;
        inSync = true;
        double coor = syncTarget->getCoor((value - syncIntercept) / syncSlope);
        inSync = false;
        return coor;
    }
    double f = mapping.toFraction(value);
    if (reversed) f = 1 - f;
    if (isIndented()) {
        double span = std::fabs(mapping.getUpper() - mapping.getLower());
        f = (f * span + 0.5) / (span + 1);
    }
    return (double)usableLength() * f + lowEndMargin();
}

double AxisImpl::getValue(double coor) const {
    if (!std::isfinite(coor)) return kNoValue;
    if (syncTarget && syncSlope != 0) {
        if (inSync) return kNoValue;
        inSync = true;
        double v = of(syncTarget)->getValue(coor);
        inSync = false;
        return v == kNoValue ? kNoValue : syncSlope * v + syncIntercept;
    }
    long long usable = usableLength();
    if (usable == 0) return kNoValue;
    double f = (coor - lowEndMargin()) / (double)usable;
    if (isIndented()) {
        double span = std::fabs(mapping.getUpper() - mapping.getLower());
        f = f * (span + 1) / (span == 0 ? 1 : span) - 0.5 / (span == 0 ? 1 : span);
    }
    if (reversed) f = 1 - f;
    return mapping.fromFraction(f);
}

DoubleArray AxisImpl::getTicks() {
    tickValues = ticks.keys();
    return DoubleArray(tickValues.data(), (int)tickValues.size());
}

const char *AxisImpl::getLabel(double value) const {
    const AxisLabel *label = ticks.find(value);
    return label ? label->text.c_str() : nullptr;
}

const char *AxisImpl::getFormattedLabel(double value, const char *format) {
    if (isEmptyText(format)) {
        format = "";
        if (value >= kFirstDate && value <= kLastDate)
            format = std::fmod(value, 86400) == 0 ? "mmm dd, yyyy" : "mmm dd, yyyy hh:nn:ss";
    }
    if (strchr(format, '{')) {
        LabelTemplate filler(&labelFormatter, fieldSource);
        scratchText = filler.fill(format, AxisLabel(value), "", tickStep, -1);
    } else {
        scratchText = labelFormatter.format(format, value);
    }
    return scratchText.c_str();
}

int AxisImpl::getTickSpacing() const {
    return majorTickSpacing > 0 ? majorTickSpacing : orientation.defaultTickSpacing();
}

// Painting settings.

void AxisImpl::setOrientation(const AxisOrientation &o) {
    orientation = o;
    painter.setAlignment(o.alignment);
    painter.setAngle(o.angle);
}

void AxisImpl::setAlignment(int alignment) {
    orientation.alignment = alignment;
    painter.setAlignment(alignment);
}

void AxisImpl::setAngle(double angle) {
    orientation.angle = std::isfinite(angle) ? angle : 0;
    painter.setAngle(angle);
}

void AxisImpl::setColors(int axisColor, int labelColor, int titleColor, int tickColor) {
    painter.setColors(axisColor, labelColor, titleColor, tickColor);
}

TextBox *AxisImpl::setTitle(const char *text, const char *font, double fontSize, int fontColor) {
    return painter.setTitle(text, font, fontSize, fontColor);
}

void AxisImpl::setTitlePos(int alignment, int titleGap) {
    painter.setTitlePos(alignment, titleGap);
}

TextBox *AxisImpl::setLabelStyle(const char *font, double fontSize, int fontColor,
                                 double fontAngle) {
    TextBox *style = painter.setLabelStyle(font, fontSize, fontColor, fontAngle);
    takeLabelAngle();
    return style;
}

void AxisImpl::setLabelAlignment(int alignment, int minLabelSpace) {
    painter.setLabelAlignment(alignment, minLabelSpace);
}

void AxisImpl::setTickLength(int majorTickLength) {
    painter.getTickStyle().setLength(majorTickLength);
}

void AxisImpl::setTickLength2(int majorTickLength, int minorTickLength) {
    painter.getTickStyle().setLength(majorTickLength, minorTickLength);
}

void AxisImpl::setTickColor(int majorTickColor, int minorTickColor) {
    painter.getTickStyle().setColor(majorTickColor, minorTickColor);
}

void AxisImpl::setTickWidth(int majorTickWidth, int minorTickWidth) {
    painter.getTickStyle().setWidth(majorTickWidth, minorTickWidth);
}

Mark *AxisImpl::addMark(double value, int lineColor, const char *text, const char *font,
                        double fontSize) {
    return painter.addMark(value, lineColor, text, font, fontSize);
}

void AxisImpl::addZone(double startValue, double endValue, int color) {
    painter.addZone(startValue, endValue, color);
}

void AxisImpl::takeLabelAngle() {
    AxisLabelPrototype &style = painter.getLabelStyle();
    if (style.isStyleSet(BoxImpl::kFontAngleStyle)) orientation.labelAngle = style.getFontAngle();
}

// Layout.

void AxisImpl::layoutScale(double min, double max) {
    dataMin = given(min);
    dataMax = given(max);
    layoutScale();
}

void AxisImpl::layoutScale() {
    takeLabelAngle();
    if (scaleMode == kSynchronised || scaleMode == kCopied) {
        synchronise();
    } else if (scaleMode == kNothingSet || scaleMode == kAutomatic) {
        layoutAutomatic();
    }
    runLabelPass();
}

int AxisImpl::majorTickCount() const {
    // Beyond a million ticks the walks stop anyway.
    return (int)std::min(std::max(usableLength() / getTickSpacing(), 1LL), 1000000LL);
}

int AxisImpl::minorTicksPerMajor(int majors) const {
    if (minorTickSpacing <= 0) return 1;
    return (int)std::min(std::max(usableLength() / majors / minorTickSpacing, 1LL), 1000000LL);
}

void AxisImpl::layoutAutomatic() {
    double lower = lowerLimit != kNoValue ? lowerLimit : dataMin;
    double upper = upperLimit != kNoValue ? upperLimit : dataMax;
    if (lower == kNoValue || upper == kNoValue || lower > upper) return;
    if (scaleType == kUndecided)
        scaleType = lookLikeDate(lower) && lookLikeDate(upper) ? kDateScale : kLinearScale;
    int n = majorTickCount();
    ScaleOutcome outcome;
    if (!runScaler(scaleType, scale, lower, upper, n, minorTicksPerMajor(n), outcome)) return;
    if (scaleType != kLogScale && outcome.lower == outcome.upper) {
        outcome.lower -= kLinearGap;
        outcome.upper += kLinearGap;
    }
    setMapping(scaleType, outcome.lower, outcome.upper);
    ticks.removeScaleTicks();
    enterTicks(outcome);
}

// A linear scale of two ticks around zero gets zero as a third when there is
// room for it.
void AxisImpl::enterTicks(const ScaleOutcome &outcome) {
    tickStep = outcome.tickStep();
    const std::vector<double> &majors = outcome.majorTicks;
    if (outcome.linearSteps && majors.size() == 2 && outcome.minorTicks.empty() &&
        majors[0] * majors[1] < 0) {
        double lower = std::min(outcome.lower, outcome.upper);
        double upper = std::max(outcome.lower, outcome.upper);
        double range = upper - lower;
        double nearerEnd = (double)usableLength() * std::min(upper / range, -lower / range);
        if (nearerEnd >= getTickSpacing()) {
            ticks.enterScaleTicks({majors[0], 0, majors[1]}, outcome.minorTicks);
            return;
        }
    }
    ticks.enterScaleTicks(majors, outcome.minorTicks);
}

void AxisImpl::synchronise() {
    if (layoutDone) return;
    layoutDone = true;
    AxisImpl &target = *of(syncTarget);
    target.layoutScale();
    if (scaleMode == kCopied) {
        mapping = target.mapping;
        tickStep = target.tickStep;
        for (const auto &tick : target.ticks)
            if (!ticks.find(tick.first)) ticks.put(tick.first, tick.second.copy());
        return;
    }
    double lower = syncSlope * target.getMinValue() + syncIntercept;
    double upper = syncSlope * target.getMaxValue() + syncIntercept;
    if (target.isLogScale() && lower * upper > 0) {
        mapping.setLog(lower, upper);
    } else {
        mapping.setLinear(lower, upper);
    }
    if (!syncScaleOnly && scale.getRoundMin() != 0) {
        followTicks(target);
    } else {
        makeOwnTicks(target);
    }
}

// The target's scale ticks, carried over by slope and intercept.
void AxisImpl::followTicks(const AxisImpl &target) {
    double lower = std::min(mapping.getLower(), mapping.getUpper());
    double upper = std::max(mapping.getLower(), mapping.getUpper());
    double eps = (upper - lower) * 1e-7;
    tickStep = std::fabs(syncSlope) * target.tickStep;
    for (const auto &tick : target.ticks) {
        const AxisLabel &label = tick.second;
        if (!(label.flags & AxisLabel::kScaleTick) || label.value == kNoValue) continue;
        double v = syncSlope * tick.first + syncIntercept;
        if (!(v >= lower - eps && v <= upper + eps)) continue;
        AxisLabel mapped = label.copy();
        mapped.value = v;
        mapped.flags &= ~AxisLabel::kFinalText;
        ticks.put(v, std::move(mapped));
    }
}

// Ticks of this axis's own choosing within the range it shares with the target.
void AxisImpl::makeOwnTicks(const AxisImpl &target) {
    ScaleRecord exact;
    exact.setExtensions(0, 0);
    exact.zeroAffinity = 0;
    exact.roundMin = 0;
    exact.roundMax = 0;
    exact.minTickInc = scale.minTickInc;
    int type = kLinearScale;
    if (target.isLogScale()) {
        type = kLogScale;
    } else if (lookLikeDate(target.getMinValue()) && lookLikeDate(target.getMaxValue())) {
        type = kDateScale;
    }
    int n = majorTickCount();
    ScaleOutcome outcome;
    bool made = runScaler(type, exact, mapping.getLower(), mapping.getUpper(), n,
                          minorTicksPerMajor(n), outcome);
    ticks.removeScaleTicks();
    if (made) enterTicks(outcome);
}

void AxisImpl::runLabelPass() {
    LabelPass::Context context = {&labelFormatter, fieldSource, &formats, tickStep,
                                  orientation.defaultTickSpacing() > 20};
    LabelPass(context).run(ticks);
}
