#pragma once

#include <string>

#include "foundation/ArrayViews.h"

// Turns one number into text by a number format ("2,.", "g", "e3", "p") or a date
// format ("mmm dd, yyyy").  Settings left unset here are looked up along the chain
// of default formatters, so a layer's formatter can override a few of its chart's.
class Formatter {
public:
    // Byte value of a separator, point or sign that this formatter leaves to its default.
    static constexpr unsigned char kNotSet = 255;
    // Date output stops at this many bytes.
    static constexpr int kMaxDateLength = 245;

    Formatter();
    Formatter(const Formatter &) = delete;
    Formatter &operator=(const Formatter &) = delete;

    // The text lives in this formatter until the next call.  Allocates nothing.
    const char *format(const char *formatString, double value);

    // Not owned, only read.  A default that would close a cycle is ignored.
    void setDefault(const Formatter *formatter);
    const Formatter *getDefault() const { return defaultFormatter; }
    // Returns the previous value.
    int setContextPrecision(int n);
    int getContextPrecision() const { return contextPrecision; }

    // "~" means none; kNotSet hands the choice back to the default formatter.
    void setNumberFormat(char thousandSeparator, char decimalPointChar, char signChar);
    char getThousandSeparator() const;
    char getDecimalPointChar() const;
    char getSignChar() const;

    void setAMPM(const char *am, const char *pm);
    void setWeekDayNames(const char *const *names, int count);
    void setMonthNames(const char *const *names, int count);
    StringArray getAMPM() const;
    StringArray getWeekDayNames() const;
    StringArray getMonthNames() const;

private:
    // Owned copies of a fixed number of names; unset until the first assignment.
    template <int N>
    struct NameList {
        bool isSet = false;
        std::string names[N];
        const char *views[N] = {};

        void assign(const char *const *source, int count);
        StringArray view() const { return StringArray(views, N); }
    };

    struct NumberFormat;
    class Sink;

    const Formatter *findSetting(unsigned char Formatter::*setting) const;
    template <int N>
    const NameList<N> *findNames(NameList<N> Formatter::*names) const;
    const char *monthName(int month) const;
    const char *weekDayName(int weekDay) const;
    const char *amPmWord(bool pm) const;

    void parseNumberFormat(const char *format, bool plain, NumberFormat &nf) const;
    void formatNumber(const char *format, bool plain, double value, Sink &out) const;
    void formatDate(const char *format, double value, Sink &out) const;

    unsigned char thousandSeparator;
    unsigned char decimalPoint;
    unsigned char signChar;
    int contextPrecision;
    NameList<2> amPm;
    NameList<7> weekDayNames;
    NameList<12> monthNames;
    const Formatter *defaultFormatter;

    // Room for the 309 digits of the largest double with separators, a long
    // fraction and an exponent.
    static constexpr int kBufferSize = 1024;
    char buffer[kBufferSize];
};
