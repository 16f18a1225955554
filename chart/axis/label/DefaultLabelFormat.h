#pragma once

#include <vector>

// The value format of an axis that has no label format of its own.
namespace DefaultLabelFormat {

// Numbers take the decimals of the label pass (the formatter's context precision).
extern const char *const kNumber;

// The shortest date form that tells the values apart: the year alone when every
// value is a New Year, month and year when every value is a 1st, the day when not,
// and the time of day when any value has one (on two lines when the labels have
// room along the axis, wideSpacing).
const char *forDates(const std::vector<double> &values, bool wideSpacing);

}  // namespace DefaultLabelFormat
