#include "chart/axis/label/FormatCondition.h"

#include <strings.h>

#include <cmath>

#include "chart/axis/scale/TimeStepTable.h"
#include "foundation/DateTime.h"

namespace {

const double kLatestCalendarTime = 3e14;

bool isStartOfMonth(double value, bool january) {
    if (!(value >= 0 && value <= kLatestCalendarTime) || value != std::floor(value)) return false;
    qlx::DateTime date((long long)value);
    return date.getDay() == 1 && date.getHour() == 0 && date.getMinute() == 0 &&
           date.getSecond() == 0 && (!january || date.getMonth() == 1);
}

}  // namespace

FormatCondition::FormatCondition(const std::string &word, double operand)
    : kind(kFalse), operand(operand) {
    const char *w = word.c_str();
    if (strcasecmp(w, "align") == 0) {
        kind = kAlign;
    } else if (strcasecmp(w, "else") == 0) {
        kind = kElse;
    } else if (strcasecmp(w, "true") == 0) {
        kind = kTrue;
    }
}

bool FormatCondition::holds(double value, bool previous) const {
    switch (kind) {
        case kAlign:
            return isAligned(value, operand);
        case kElse:
            return !previous;
        case kTrue:
            return true;
        case kFalse:
            break;
    }
    return false;
}

bool FormatCondition::isAligned(double value, double operand) {
    if (operand == TimeStepTable::kMonth) return isStartOfMonth(value, false);
    if (operand == TimeStepTable::kYear) return isStartOfMonth(value, true);
    double remainder = std::fmod(value, operand);
    if (std::isnan(remainder)) return false;
    if (operand == std::floor(operand)) return remainder == 0;
    double tolerance = std::fabs(operand) / 1e8;
    return std::fabs(remainder) <= tolerance ||
           std::fabs(std::fabs(remainder) - std::fabs(operand)) <= tolerance;
}
