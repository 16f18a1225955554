#pragma once

// A major tick step and the minor step that divides it.
struct TickStep {
    double major;
    double minor;
};

namespace TickSteps {

// The smallest of 1, 2 or 5 times a power of ten at or above step (with a tolerance
// of 1e-7 so that a step of exactly 0.2 stays 0.2).  Steps that are not positive
// numbers give 0, which makes no ticks.
double getTickInc(double step);

// The same major step and a minor step cutting it into about minorCount parts; a
// minorCount below 2 makes the minor equal to the major.
TickStep getTickInc(double step, int minorCount);

// Steps in seconds that fall on the clock and the calendar: 15 seconds up to ten
// years by a table, the decimal rule below 15 seconds and in years above.
TickStep getTimeTickInc(double step, int minorCount);

}  // namespace TickSteps
