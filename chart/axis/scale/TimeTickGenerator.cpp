#include "chart/axis/scale/TimeTickGenerator.h"

#include <cmath>

#include "chart/axis/scale/TimeStepTable.h"
#include "foundation/DateTime.h"

namespace {

// Steps at least this long go by the calendar.
const double kCalendarStep = 2505600;
// Chart times the calendar handles: from year 1 to far beyond any date a chart shows.
const double kLatestCalendarTime = 3e14;

}  // namespace

double TimeTickGenerator::nextTick(double value, double step) const {
    if (std::fabs(step) >= kCalendarStep) return calendarStep(value, step);
    return std::floor((value + step) * 10000 + 0.5) / 10000;
}

double TimeTickGenerator::firstTick(double value, double start, double step) const {
    for (int i = 0; start > value && i < kMaxTicks; ++i) {
        double earlier = nextTick(start, -step);
        if (!(earlier < start)) break;
        start = earlier;
    }
    return start;
}

double TimeTickGenerator::calendarStep(double value, double step) {
    double whole = std::floor(value + 0.5);
    double length = std::floor(std::fabs(step) + 0.5);
    if (!(whole >= 0 && whole <= kLatestCalendarTime) || length > kLatestCalendarTime)
        return value + step;
    long long seconds = (long long)length;
    int years = (int)(seconds / (long long)TimeStepTable::kYear);
    int months = (int)(seconds / (long long)TimeStepTable::kMonth % 12);
    int days = (int)(seconds / (long long)TimeStepTable::kDay % 30);
    int hours = (int)(seconds / 3600 % 24);
    int minutes = (int)(seconds / 60 % 60);
    int secs = (int)(seconds % 60);
    qlx::DateTime date((long long)whole);
    if (step > 0) {
        date.add(years, months, days, hours, minutes, secs);
    } else {
        date.sub(years, months, days, hours, minutes, secs);
    }
    double result = (double)date.getTime();
    // Before year 1 the calendar has no answer; plain seconds take over.
    return result >= 0 ? result : value + step;
}
