#pragma once

// Tick tables from arrays of chart times, in place: a major tick keeps its
// time, a minor one becomes kMinorTickOnly and every other item kNoValue.
namespace ArrayMathTicks {

enum Period {
    kSecondPeriod,
    kMinutePeriod,
    kHourPeriod,
    kDayPeriod,
    kWeekPeriod,
    kMonthPeriod,
    kYearPeriod,
};

// Keeps the first time of each period, one in majorTickStep as major. A first
// time within initialMargin after a period's start counts as that start.
void selectStartOfPeriod(double *a, int len, Period period, int majorTickStep,
                         double initialMargin);

void selectRegularSpacing(double *a, int len, int majorTickStep, int minorTickStep,
                          int initialMargin);

}  // namespace ArrayMathTicks
