#include "chart/axis/label/LabelFilter.h"

#include <algorithm>
#include <cmath>

#include "finance/ArrayMathTicks.h"
#include "foundation/Constants.h"

namespace {

const int kMarginScale = 4095;

enum Rule { kPeriodRule, kRegularRule, kAllRule, kNoneRule, kItemRule };

struct FilterKind {
    int tag;
    Rule rule;
    ArrayMathTicks::Period period;
};

const FilterKind kKinds[] = {
    {kStartOfHourFilter, kPeriodRule, ArrayMathTicks::kHourPeriod},
    {kStartOfDayFilter, kPeriodRule, ArrayMathTicks::kDayPeriod},
    {kStartOfWeekFilter, kPeriodRule, ArrayMathTicks::kWeekPeriod},
    {kStartOfMonthFilter, kPeriodRule, ArrayMathTicks::kMonthPeriod},
    {kStartOfYearFilter, kPeriodRule, ArrayMathTicks::kYearPeriod},
    {kRegularSpacingFilter, kRegularRule, ArrayMathTicks::kSecondPeriod},
    {kAllPassFilter, kAllRule, ArrayMathTicks::kSecondPeriod},
    {kNonePassFilter, kNoneRule, ArrayMathTicks::kSecondPeriod},
    {kSelectItemFilter, kItemRule, ArrayMathTicks::kSecondPeriod},
    {kStartOfMinuteFilter, kPeriodRule, ArrayMathTicks::kMinutePeriod},
    {kStartOfSecondFilter, kPeriodRule, ArrayMathTicks::kSecondPeriod},
};

// A plain format entry (tag 0) passes every tick; unknown tags pass none.
const FilterKind kPlainFormat = {0, kAllRule, ArrayMathTicks::kSecondPeriod};
const FilterKind kUnknown = {-1, kNoneRule, ArrayMathTicks::kSecondPeriod};

const FilterKind &kindOf(int tag) {
    if (tag == 0) return kPlainFormat;
    for (const FilterKind &kind : kKinds)
        if (kind.tag == tag) return kind;
    return kUnknown;
}

LabelFilter::Choice choiceOf(double marked) {
    if (marked == kNoValue) return LabelFilter::kSkipped;
    if (marked == kMinorTickOnly) return LabelFilter::kMinorOnly;
    return LabelFilter::kSelected;
}

}  // namespace

namespace Chart {

int encodeFilter(int tag, int labelStep, double initialMargin) {
    double margin = initialMargin > 0 ? std::min(initialMargin, 1.0) : 0;
    unsigned code = ((unsigned)tag & 15u) << 28;
    code |= ((unsigned)std::floor(margin * kMarginScale + 0.5) & 0xFFFu) << 16;
    code |= (unsigned)labelStep & 0xFFFFu;
    return (int)code;
}

}  // namespace Chart

LabelFilter::LabelFilter(int code)
    : tag((int)(((unsigned)code >> 28) & 15u)),
      labelStep(code & 0xFFFF),
      marginCode((code >> 16) & 0xFFF) {}

std::vector<LabelFilter::Choice> LabelFilter::select(const std::vector<double> &values,
                                                     double labelSpan) const {
    const FilterKind &kind = kindOf(tag);
    std::vector<double> marked(values);
    double *a = marked.data();
    int len = (int)marked.size();
    switch (kind.rule) {
        case kPeriodRule: {
            double margin = (double)marginCode / kMarginScale * labelSpan;
            ArrayMathTicks::selectStartOfPeriod(a, len, kind.period, labelStep, margin);
            break;
        }
        case kRegularRule:
            ArrayMathTicks::selectRegularSpacing(a, len, labelStep, 0, marginCode);
            break;
        case kAllRule:
            break;
        case kNoneRule:
            std::fill(marked.begin(), marked.end(), kNoValue);
            break;
        case kItemRule:
            for (int i = 0; i < len; ++i)
                if (i != labelStep) a[i] = kNoValue;
            break;
    }
    std::vector<Choice> choices(marked.size());
    std::transform(marked.begin(), marked.end(), choices.begin(), choiceOf);
    return choices;
}
