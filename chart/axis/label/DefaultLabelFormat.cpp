#include "chart/axis/label/DefaultLabelFormat.h"

#include <cmath>

#include "foundation/DateTime.h"

namespace DefaultLabelFormat {

const char *const kNumber = "@";

namespace {

const double kLatestCalendarTime = 3e14;

}  // namespace

const char *forDates(const std::vector<double> &values, bool wideSpacing) {
    bool allNewYear = true, allFirst = true;
    for (double v : values) {
        if (!(v >= 0 && v <= kLatestCalendarTime)) continue;
        qlx::DateTime date((long long)v);
        if (date.getHour() || date.getMinute() || date.getSecond())
            return wideSpacing ? "mm/dd/yy\nhh:nn:ss" : "mm/dd/yy hh:nn:ss";
        allFirst = allFirst && date.getDay() == 1;
        allNewYear = allNewYear && date.getDay() == 1 && date.getMonth() == 1;
    }
    if (allNewYear) return "yyyy";
    if (allFirst) return "mm/yyyy";
    return "mm/dd/yyyy";
}

}  // namespace DefaultLabelFormat
