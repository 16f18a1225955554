#include "finance/ArrayMathTicks.h"

#include <cmath>
#include <cstdlib>

#include "foundation/Constants.h"
#include "foundation/DateTime.h"

namespace ArrayMathTicks {

namespace {

// Whole seconds of a chart time, held to where the calendar stays in range.
long long wholeSeconds(double t) {
    const double kLimit = 6e16;
    if (!(t > -kLimit)) return t != t ? 0 : (long long)-kLimit;
    if (t > kLimit) return (long long)kLimit;
    return (long long)t;
}

double periodKey(Period period, double t) {
    const double kSecondsPerDay = 86400;
    switch (period) {
        case kSecondPeriod:
            return t;
        case kMinutePeriod:
            return std::floor(t / 60);
        case kHourPeriod:
            return std::floor(t / 3600);
        case kDayPeriod:
            return std::floor(t / kSecondsPerDay);
        case kWeekPeriod:
            // Chart time 0 is a Monday; weeks start on Sunday.
            return std::floor((std::floor(t / kSecondsPerDay) + 1) / 7);
        case kMonthPeriod: {
            qlx::DateTime date(wholeSeconds(t));
            return date.getYear() * 12.0 + date.getMonth();
        }
        case kYearPeriod:
            return qlx::DateTime(wholeSeconds(t)).getYear();
    }
    return t;
}

double roundedTime(double v) {
    return std::floor(v + 0.5);
}

}  // namespace

void selectStartOfPeriod(double *a, int len, Period period, int majorTickStep,
                         double initialMargin) {
    bool first = true;
    double previousKey = 0;
    long long starts = majorTickStep;
    for (int i = 0; i < len; ++i) {
        double v = a[i];
        if (v == kNoValue || v == kMinorTickOnly || v != v) continue;
        if (first) {
            previousKey = periodKey(period, roundedTime(v - initialMargin) - 1);
            first = false;
        }
        double key = periodKey(period, roundedTime(v));
        if (key == previousKey) {
            a[i] = kNoValue;
            continue;
        }
        previousKey = key;
        if (++starts >= majorTickStep) {
            starts = 0;
        } else {
            a[i] = kMinorTickOnly;
        }
    }
}

void selectRegularSpacing(double *a, int len, int majorTickStep, int minorTickStep,
                          int initialMargin) {
    // A step below 1 would divide by zero; it keeps every item instead.
    if (majorTickStep < 1) return;
    int minorStep = minorTickStep >= 1 ? minorTickStep : majorTickStep;
    for (int i = 0; i < len; ++i) {
        long long k = std::llabs((long long)i - initialMargin);
        if (k % majorTickStep == 0) continue;
        a[i] = k % minorStep == 0 ? kMinorTickOnly : kNoValue;
    }
}

}  // namespace ArrayMathTicks
