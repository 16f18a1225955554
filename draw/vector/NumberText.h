#pragma once

#include <string>

// Numbers as the vector outputs write them: fixed point in the C locale,
// never an exponent, trailing zeros dropped ("12.5", "-3", "0.125").
class NumberText {
public:
    // Room for any result, the terminator included.
    static const int kMaxLength = 40;
    static const int kMaxDecimals = 10;
    // Magnitudes beyond this are clamped: no coordinate gets there.
    static constexpr double kLimit = 1e15;

    // Writes v with at most `decimals` digits after the point; returns the
    // length.  A NaN or infinity is written as 0.
    static int format(char *buf, double v, int decimals);
    // The same through printf and the C-locale conversion, slower: format falls
    // back to it where its own rounding can't be sure.
    static int formatSlow(char *buf, double v, int decimals);
    static int formatInt(char *buf, long long v);

    static void append(std::string &out, double v, int decimals) {
        char buf[kMaxLength];
        out.append(buf, format(buf, v, decimals));
    }
    static void appendInt(std::string &out, long long v) {
        char buf[kMaxLength];
        out.append(buf, formatInt(buf, v));
    }
};
