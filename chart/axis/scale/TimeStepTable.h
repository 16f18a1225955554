#pragma once

// The clock and calendar steps of date scales, in seconds.  A month counts as
// 30 days and a year as 360; the time tick generator turns such steps into
// calendar months and years.
namespace TimeStepTable {

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kDay = 86400;
constexpr double kMonth = 2592000;
constexpr double kYear = 31104000;

// Steps below this many seconds use the decimal rule.
constexpr double kSmallestStep = 15;
// Steps above this one are counted in years by the decimal rule.
constexpr double kLargestStep = 311040000;

struct Row {
    double major;
    // Ascending; 0 for none.
    double minors[3];
};

// The first row whose major is at or above step; null when step is beyond the table.
const Row *findRow(double step);

}  // namespace TimeStepTable
