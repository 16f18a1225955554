#include "chart/axis/scale/LogScaler.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/scale/LinearScaler.h"
#include "chart/axis/scale/LogTickGenerator.h"
#include "foundation/Constants.h"

namespace {

const double kLog2 = 0.3010299956639812;
const double kLog5 = 0.6989700043360189;

}  // namespace

double LogScaler::oneTwoFiveDown(double x) {
    double decade = std::floor(x);
    double f = x - decade;
    if (f > 0.999999) return decade + 1;
    if (f > 0.6989690043360188) return decade + kLog5;
    if (f > 0.3010289956639812) return decade + kLog2;
    return decade;
}

double LogScaler::oneTwoFiveUp(double x) {
    double decade = std::floor(x);
    double f = x - decade;
    if (f > 0.6989710043360189) return decade + 1;
    if (f > 0.30103099566398117) return decade + kLog5;
    if (f > 1e-6) return decade + kLog2;
    return decade;
}

double LogScaler::nextDigitUp(double x) {
    double decade = std::floor(x);
    return decade + std::log10(std::ceil(std::pow(10.0, x - decade - 1e-6)));
}

bool LogScaler::prepare(double &lower, double &upper) const {
    // A log scale cannot cross zero: the end nearer zero moves to the far end's side.
    if ((lower < 0 && upper > 0) || (lower > 0 && upper < 0)) {
        if (std::fabs(lower) < std::fabs(upper)) {
            lower = upper / 10000;
        } else {
            upper = lower / 10000;
        }
    }
    if (lower <= 0 && upper <= 0 && (lower < 0 || upper < 0)) {
        lower = -lower;
        upper = -upper;
        return true;
    }
    return false;
}

void LogScaler::scaleAscending(double lower, double upper, int n, int m, ScaleOutcome &out) const {
    spreadEqualLimits(lower, upper);
    if (lower <= 0) lower = upper / 10000;
    double top = record.getTopExtension();
    double bottom = record.getBottomExtension();
    if ((top != 0 || bottom != 0) && top + bottom < 1) {
        double decades = std::log(upper) - std::log(lower);
        double room = 1 - top - bottom;
        upper = std::exp(std::log(upper) + top * decades / room);
        lower = std::exp(std::log(lower) - bottom * decades / room);
    }
    double lu = std::log10(upper);
    double ll = std::log10(lower);
    double span = lu - ll;
    if (!std::isfinite(span)) {
        // Extended beyond the doubles: no scale.
        out.lower = out.upper = NAN;
        return;
    }
    if (span < 0.8) {
        LinearScaler(record).chooseTicks(lower, upper, n, m, out);
        if (out.lower > 0) {
            out.linearSteps = false;
            return;
        }
        out = ScaleOutcome();
    }

    Plan p = plan(ll, span / n, m);
    if (record.roundsMin()) ll = p.start;
    if (record.roundsMax()) lu = roundUpLog(p, lu);
    LogTickGenerator generator;
    generator.generate(ll, lu, p.start, p.major, p.minor);
    out.lower = LogTickGenerator::powerOfTen(ll);
    out.upper = LogTickGenerator::powerOfTen(lu);
    if (!record.roundsMin()) out.lower = lower;
    if (!record.roundsMax()) out.upper = upper;
    takeTicks(generator, out);
    for (double &v : out.majorTicks) v = LogTickGenerator::powerOfTen(v);
    for (double &v : out.minorTicks) v = LogTickGenerator::powerOfTen(v);
}

LogScaler::Plan LogScaler::plan(double ll, double per, int m) const {
    double least = record.minTickInc > 0 ? std::log10(record.minTickInc) : -HUGE_VAL;
    if (per < 0.05) {
        double decade = std::floor(ll);
        double start = decade + std::log10(std::trunc(std::pow(10.0, ll - decade + 1e-6)));
        if (least > start) start = nextDigitUp(least);
        return {start, kLinearTick, 0};
    }
    if (per < 0.3) {
        double start = oneTwoFiveDown(ll);
        if (least > start) start = oneTwoFiveUp(least);
        return {start, kLogTick, m * 0.3 / per >= 6.0 ? kLinearTick : 0};
    }
    double major = std::ceil(per);
    double start = std::floor(ll);
    if (record.minTickInc > 0) start = std::max(start, std::ceil(least - 1e-6));
    if (major > 1) return {start, major, minorDecades(major, m)};
    double ratio = m / per;
    double minor = 1;
    if (ratio >= 20) {
        minor = kLinearTick;
    } else if (ratio >= 3 && m >= 2) {
        minor = kLogTick;
    }
    return {start, major, minor};
}

// The finest whole number of decades that cuts the major step into fewer than m parts.
double LogScaler::minorDecades(double major, int m) {
    for (double d = 1; d < major / 2; ++d) {
        double parts = major / d;
        if (std::fabs(parts - std::round(parts)) <= 1e-5 && parts < m) return d;
    }
    return major;
}

double LogScaler::roundUpLog(const Plan &p, double lu) {
    if (p.major == kLogTick) return oneTwoFiveUp(lu);
    if (p.major == kLinearTick) return nextDigitUp(lu);
    return std::ceil((lu - p.start) / p.major) * p.major + p.start;
}
