#include "chart/axis/scale/TickStep.h"

#include <cmath>

#include "chart/axis/scale/TimeStepTable.h"

namespace TickSteps {

namespace {

// Major step by the 1-2-5 rule; fromFive tells that the mantissa was rounded to 5.
double decimalStep(double step, bool *fromFive) {
    *fromFive = false;
    if (!(step > 0)) return 0;
    if (std::isinf(step)) return step;
    double exponent = std::floor(std::log10(step));
    double mantissa = std::pow(10.0, std::log10(step) - exponent);
    double base = 10;
    if (mantissa <= 1.0000001) {
        base = 1;
    } else if (mantissa <= 2.0000001) {
        base = 2;
    } else if (mantissa <= 5.0000001) {
        base = 5;
        *fromFive = true;
    }
    return std::pow(10.0, exponent) * base;
}

}  // namespace

double getTickInc(double step) {
    bool fromFive;
    return decimalStep(step, &fromFive);
}

TickStep getTickInc(double step, int minorCount) {
    bool fromFive;
    double major = decimalStep(step, &fromFive);
    if (minorCount < 2) return {major, major};
    if (fromFive && minorCount < 5) return {major, major / 2};
    return {major, getTickInc(major / minorCount)};
}

TickStep getTimeTickInc(double step, int minorCount) {
    if (!(step >= TimeStepTable::kSmallestStep)) return getTickInc(step, minorCount);
    if (step > TimeStepTable::kLargestStep) {
        TickStep years = getTickInc(step / TimeStepTable::kYear, minorCount);
        return {years.major * TimeStepTable::kYear, years.minor * TimeStepTable::kYear};
    }
    const TimeStepTable::Row *row = TimeStepTable::findRow(step);
    if (!row) return {step, step};
    TickStep result = {row->major, row->major};
    double target = step / (minorCount < 1 ? 1 : minorCount);
    for (double candidate : row->minors) {
        if (candidate != 0 && candidate > target) {
            result.minor = candidate;
            break;
        }
    }
    return result;
}

}  // namespace TickSteps
