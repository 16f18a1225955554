#pragma once

#include <vector>

// Tags of the label filters of multi-format axes.
enum LabelFilterTag {
    kStartOfHourFilter = 1,
    kStartOfDayFilter = 2,
    kStartOfWeekFilter = 3,
    kStartOfMonthFilter = 4,
    kStartOfYearFilter = 5,
    kRegularSpacingFilter = 6,
    kAllPassFilter = 7,
    kNonePassFilter = 8,
    kSelectItemFilter = 9,
    kStartOfMinuteFilter = 10,
    kStartOfSecondFilter = 11,
};

namespace Chart {

// One 32-bit filter code: the tag in bits 28 to 31, 4095 * initialMargin (held
// to 0 to 1) in bits 16 to 27 and labelStep in bits 0 to 15.
int encodeFilter(int tag, int labelStep, double initialMargin);

}  // namespace Chart

// A decoded filter code that picks which ticks of an axis a format labels.
class LabelFilter {
public:
    enum Choice { kSkipped, kMinorOnly, kSelected };

    explicit LabelFilter(int code);

    // Choices for ticks at the given values.  labelSpan is the distance of values
    // one label covers: a period that starts less than the margin's share of it
    // before the first tick still labels that tick.
    std::vector<Choice> select(const std::vector<double> &values, double labelSpan) const;

    int getTag() const { return tag; }
    int getLabelStep() const { return labelStep; }
    int getMarginCode() const { return marginCode; }

private:
    int tag;
    int labelStep;
    int marginCode;
};
