#pragma once

#include "chart/axis/scale/TickGenerator.h"

// Walks chart time.  Steps of 29 days or more move by the calendar (a step of
// 2592000 seconds is one month, 31104000 one year), so that a month step from the
// 1st lands on the 1st; shorter steps add seconds, kept to four decimals.
class TimeTickGenerator : public TickGenerator {
public:
    double nextTick(double value, double step) const override;
    double firstTick(double value, double start, double step) const override;

private:
    static double calendarStep(double value, double step);
};
