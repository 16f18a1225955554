#pragma once

#include <string>

// A test that decides, tick by tick, whether the format entries after it may
// label the tick: "align" (the value is a multiple of the operand; for a month or
// a year of chart time, its start), "else" (the preceding test failed), "true"
// and "false".  Words are read without regard to case; unknown words never hold.
class FormatCondition {
public:
    FormatCondition(const std::string &word, double operand);

    bool holds(double value, bool previous) const;

private:
    enum Kind { kAlign, kElse, kTrue, kFalse };
    static bool isAligned(double value, double operand);

    Kind kind;
    double operand;
};
