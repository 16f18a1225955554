#pragma once

#include <cstdint>
#include <vector>

// One argument handed to the record writer.  The letter of the format string
// at its place says how it is stored; the kind must fit that letter.  `Color`
// words and arrays are registered (translated, dynamic colours defined) before
// they are stored; `Word` ones are stored as they are.
struct RecordArg {
    enum Kind : char {
        kBool,
        kInt,
        kColor,
        kWord,
        kDouble,
        kString,
        kWide,
        kDoubles,
        kInts,
        kColors,
        kWords
    };
    Kind kind;
    int n;
    int i;
    double d;
    const void *p;

    static RecordArg boolean(bool b) { return {kBool, 0, b ? 1 : 0, 0, nullptr}; }
    static RecordArg integer(int v) { return {kInt, 0, v, 0, nullptr}; }
    static RecordArg color(int c) { return {kColor, 0, c, 0, nullptr}; }
    static RecordArg word(int c) { return {kWord, 0, c, 0, nullptr}; }
    static RecordArg number(double v) { return {kDouble, 0, 0, v, nullptr}; }
    static RecordArg string(const char *s, int len) { return {kString, s ? len : 0, 0, 0, s}; }
    static RecordArg wide(const uint16_t *s, int len) { return {kWide, s ? len : 0, 0, 0, s}; }
    static RecordArg doubles(const double *v, int len) { return {kDoubles, v ? len : 0, 0, 0, v}; }
    static RecordArg ints(const int *v, int len) { return {kInts, v ? len : 0, 0, 0, v}; }
    static RecordArg colors(const int *v, int len) { return {kColors, v ? len : 0, 0, 0, v}; }
    static RecordArg words(const int *v, int len) { return {kWords, v ? len : 0, 0, 0, v}; }
};

// Appends the arguments in the layout of `format`.  False (and nothing
// written past the last good argument) when an argument doesn't fit its
// letter or the counts differ: a programming error.
bool encodeRecordArgs(std::vector<int> &out, const char *format, const RecordArg *args, int count);
