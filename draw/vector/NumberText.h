#pragma once

#include <string>

struct Affine;

// Numbers as the vector outputs write them: fixed point in the C locale,
// never an exponent, trailing zeros dropped ("12.5", "-3", "0.125").
class NumberText {
public:
    // Room for any result, the terminator included.
    static constexpr int kMaxLength = 40;
    static constexpr int kMaxDecimals = 10;
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
    // The six numbers of a map in the order SVG's matrix() and PDF's arrays
    // take them: a b c d e f of x' = a x + c y + e, y' = b x + d y + f.
    static void appendMatrix(std::string &out, const Affine &map, int decimals);
    static void appendInt(std::string &out, long long v) {
        char buf[kMaxLength];
        out.append(buf, formatInt(buf, v));
    }
};
