#include "chart/axis/scale/DateScaler.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/scale/TickStep.h"
#include "chart/axis/scale/TimeStepTable.h"
#include "chart/axis/scale/TimeTickGenerator.h"
#include "foundation/DateTime.h"
#include "foundation/Numeric.h"

using namespace TimeStepTable;

namespace {

// Chart times whose calendar fields are computed; later ones anchor on whole steps.
const double kLatestCalendarTime = 3e14;

double extensionOrZero(double v) {
    return v == kNoValue ? 0 : v;
}

}  // namespace

bool DateScaler::prepare(double &lower, double &upper) const {
    lower = std::max(lower, 0.0);
    upper = std::max(upper, 0.0);
    return false;
}

void DateScaler::scaleAscending(double lower, double upper, int n, int m, ScaleOutcome &out) const {
    if (lower == upper) {
        upper += 60;
        lower -= 60;
        if (lower < 0) {
            lower = 0;
            upper = 120;
        }
    }
    extend(lower, upper);
    double range = upper - lower;
    TickStep step = chooseStep(range, n, m);
    TimeTickGenerator generator;

    Anchor anchor = findAnchor(lower, range, step.major);
    for (int i = 0; i < TickGenerator::kMaxTicks; ++i) {
        double next = generator.nextTick(anchor.time, step.major);
        if (!(next <= lower && next > anchor.time)) break;
        anchor.time = next;
    }
    if (rounds(record.getRoundMin(), record.bottomExtension)) {
        lower = anchor.time;
    } else if (anchor.time != lower && step.major > anchor.unit) {
        // The earliest grid point that one major step still carries to the data.
        for (int i = 0; i < TickGenerator::kMaxTicks; ++i) {
            double earlier = generator.nextTick(anchor.time, -anchor.unit);
            if (!(earlier < anchor.time) || generator.nextTick(earlier, step.major) < lower) break;
            anchor.time = earlier;
        }
    }
    if (rounds(record.getRoundMax(), record.topExtension)) {
        double end = anchor.time;
        for (int i = 0; end < upper && i < TickGenerator::kMaxTicks; ++i) {
            double next = generator.nextTick(end, step.major);
            if (!(next > end)) break;
            end = next;
        }
        upper = std::max(end, upper);
    }
    generator.generate(lower, upper, anchor.time, step.major, step.minor);
    out.lower = lower;
    out.upper = upper;
    takeTicks(generator, out);
}

void DateScaler::extend(double &lower, double &upper) const {
    double top = extensionOrZero(record.topExtension);
    double bottom = extensionOrZero(record.bottomExtension);
    if ((top == 0 && bottom == 0) || !(top + bottom < 1)) return;
    double room = 1 - top - bottom;
    upper += (upper - lower) * top / room;
    // Deliberately the range already grown at the top.
    lower = std::max(lower - (upper - lower) * bottom / room, 0.0);
}

TickStep DateScaler::chooseStep(double range, int n, int m) const {
    TickStep step = TickSteps::getTimeTickInc(range / n, m);
    // Long ranges read better on whole years, months and days.
    if (step.major == 15552000 && range >= 93312000) step.major = kYear;
    if ((step.major == 864000 || step.major == 1296000) && range >= 7776000) step.major = kMonth;
    if (step.major == 43200 && range >= 172800) step.major = kDay;
    if (step.major <= 0) step.major = range;

    double least = record.minTickInc;
    if (least > step.major) {
        step.major = TickSteps::getTimeTickInc(least, 1).major;
        step.minor = step.major;
    } else if (least > step.minor) {
        if (qlx::isDivisible(step.major, least, 0.0001)) {
            step.minor = least;
        } else {
            step.minor = TickSteps::getTimeTickInc(least, 1).major;
            if (!qlx::isDivisible(step.major, step.minor, 0.0001)) step.minor = step.major;
        }
    }
    return step;
}

DateScaler::Anchor DateScaler::findAnchor(double lower, double range, double major) {
    double whole = std::floor(lower + 0.5);
    if (major <= 1 || !(whole <= kLatestCalendarTime)) return {std::floor(lower), major};
    qlx::DateTime date((long long)whole);
    int y = date.getYear(), mo = date.getMonth(), d = date.getDay(), h = date.getHour();
    double startOfYear = (double)qlx::DateTime(y, 1, 1, 0, 0, 0).getTime();
    double startOfMonth = (double)qlx::DateTime(y, mo, 1, 0, 0, 0).getTime();
    double midnight = (double)qlx::DateTime(y, mo, d, 0, 0, 0).getTime();
    double startOfHour = (double)qlx::DateTime(y, mo, d, h, 0, 0).getTime();
    double startOfMinute = (double)qlx::DateTime(y, mo, d, h, date.getMinute(), 0).getTime();
    bool longRange = range >= 3 * major;
    if (major >= kYear) return {startOfYear, kYear};
    if (major >= kMonth)
        return longRange && range >= kYear ? Anchor{startOfYear, major}
                                           : Anchor{startOfMonth, kMonth};
    if (major >= kDay) return {midnight, kDay};
    if (major >= kHour)
        return longRange && range >= kDay ? Anchor{midnight, major} : Anchor{startOfHour, kHour};
    if (major >= kMinute)
        return longRange && range >= kHour ? Anchor{startOfHour, major}
                                           : Anchor{startOfMinute, kMinute};
    return {startOfMinute, major};
}

// Limits round when asked to, or when nothing was asked and an extension was set.
bool DateScaler::rounds(int rounding, double extension) {
    if (rounding == 1) return true;
    return rounding == -1 && extension != 0 && extension != kNoValue;
}
