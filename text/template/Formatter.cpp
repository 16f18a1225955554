#include "text/template/Formatter.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "foundation/Constants.h"
#include "foundation/DateTime.h"

namespace {

const char *const kDefaultAmPm[2] = {"am", "pm"};
const char *const kDefaultWeekDays[7] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
const char *const kDefaultMonths[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// Longer fractions than this carry no information a double could hold.
constexpr int kMaxDecimals = 340;
// Every power up to 1e22 is exact in a double.
const double kPow10[19] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                           1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
// Dates outside year 1 to about year 31 million are clamped: the calendar has no
// negative years and the year must fit in an int.
constexpr double kMaxDateTime = 1e15;

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isTypeLetter(char c) {
    return c && strchr("eEgGpP", c) != nullptr;
}

bool isDateFormat(char c) {
    return isAsciiLetter(c) && !isTypeLetter(c);
}

// Bytes of a UTF-8 character taken from its first byte alone.
int utf8Length(unsigned char lead) {
    if (lead < 0xC0) return 1;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    if (lead < 0xF8) return 4;
    if (lead < 0xFC) return 5;
    return 6;
}

// floor(log10(v)) for v > 0, corrected where log10 rounds across a power of ten.
int decimalExponent(double v) {
    if (v <= 0) return 0;
    int e = (int)floor(log10(v));
    if (pow(10.0, e) > v) --e;
    if (pow(10.0, e + 1) <= v) ++e;
    return e;
}

// v / 10^e without the power underflowing for subnormal v.
double scaleDown(double v, int e) {
    if (e < -300) return v * 1e300 / pow(10.0, e + 300);
    return v / pow(10.0, e);
}

// True if rounding the fraction to d decimals carries into the integer part.
bool roundsUp(double fraction, int d) {
    if (d <= 18) return fraction * kPow10[d] + 0.5 >= kPow10[d];
    return fraction + 0.5 * pow(10.0, -d) >= 1.0;
}

// The first d decimals of the fraction, rounded at the last one; no terminator.
void fractionDigits(double fraction, int d, char *digits) {
    if (d <= 18) {
        uint64_t u = (uint64_t)(fraction * kPow10[d] + 0.5);
        if (u >= (uint64_t)kPow10[d]) u = (uint64_t)kPow10[d] - 1;
        for (int i = d - 1; i >= 0; --i, u /= 10) digits[i] = (char)('0' + u % 10);
        return;
    }
    double f = fraction + 0.5 * pow(10.0, -d);
    for (int i = 0; i < d; ++i) {
        f *= 10;
        int digit = (int)f;
        if (digit > 9) digit = 9;
        digits[i] = (char)('0' + digit);
        f -= digit;
    }
}

// Exact decimal digits of a whole, non-negative double; returns their count.
int integerDigits(double whole, char *digits) {
    char reversed[320];
    int n = 0;
    if (whole < 18446744073709551616.0) {
        uint64_t u = (uint64_t)whole;
        do {
            reversed[n++] = (char)('0' + u % 10);
            u /= 10;
        } while (u);
    } else {
        // Mantissa times a power of two, multiplied out in base 1e9 limbs.
        const uint32_t kBase = 1000000000;
        uint32_t limbs[40];
        int count = 0;
        int e;
        uint64_t mantissa = (uint64_t)ldexp(frexp(whole, &e), 53);
        for (; mantissa; mantissa /= kBase) limbs[count++] = (uint32_t)(mantissa % kBase);
        for (int shift = e - 53; shift > 0;) {
            int s = shift < 28 ? shift : 28;
            uint64_t carry = 0;
            for (int i = 0; i < count; ++i) {
                uint64_t x = ((uint64_t)limbs[i] << s) + carry;
                limbs[i] = (uint32_t)(x % kBase);
                carry = x / kBase;
            }
            for (; carry; carry /= kBase) limbs[count++] = (uint32_t)(carry % kBase);
            shift -= s;
        }
        for (int i = 0; i < count; ++i) {
            uint32_t limb = limbs[i];
            bool top = i == count - 1;
            for (int k = 0; k < 9 && (!top || limb); ++k, limb /= 10)
                reversed[n++] = (char)('0' + limb % 10);
        }
    }
    for (int i = 0; i < n; ++i) digits[i] = reversed[n - 1 - i];
    return n;
}

}  // namespace

// Bounded writer over a caller's buffer; silently drops what does not fit.
class Formatter::Sink {
public:
    Sink(char *buf, int capacity) : start(buf), cursor(buf), last(buf + capacity - 1) {}

    void put(char c) {
        if (cursor < last) *cursor++ = c;
    }
    void put(const char *s, int n) {
        for (int i = 0; i < n && s[i]; ++i) put(s[i]);
    }
    void put(const char *s) {
        while (*s && cursor < last) *cursor++ = *s++;
    }
    // Writes n with at least minDigits digits.
    void putNumber(long long n, int minDigits) {
        if (n < 0) {
            put('-');
            n = -n;
        }
        char digits[24];
        int count = 0;
        do {
            digits[count++] = (char)('0' + n % 10);
            n /= 10;
        } while (n && count < 24);
        while (count < minDigits--) put('0');
        while (count) put(digits[--count]);
    }
    int length() const { return (int)(cursor - start); }
    char *at(int i) { return start + i; }
    void erase(int i) {
        memmove(start + i, start + i + 1, cursor - start - i - 1);
        --cursor;
    }
    const char *finish() {
        *cursor = 0;
        return start;
    }

private:
    char *start;
    char *cursor;
    char *last;
};

struct Formatter::NumberFormat {
    char type = 0;
    int decimals = -1;
    char separator = 0;
    char point = '.';
    char sign = '-';
    const char *prefix = "";
    int prefixLength = 0;
};

template <int N>
void Formatter::NameList<N>::assign(const char *const *source, int count) {
    isSet = true;
    for (int i = 0; i < N; ++i) {
        const char *name = source && i < count ? source[i] : nullptr;
        names[i] = name ? name : "";
        views[i] = names[i].c_str();
    }
}

Formatter::Formatter()
    : thousandSeparator(kNotSet),
      decimalPoint(kNotSet),
      signChar(kNotSet),
      contextPrecision(-1),
      defaultFormatter(nullptr) {
    buffer[0] = 0;
}

void Formatter::setDefault(const Formatter *formatter) {
    for (const Formatter *f = formatter; f; f = f->defaultFormatter)
        if (f == this) return;
    defaultFormatter = formatter;
}

int Formatter::setContextPrecision(int n) {
    int previous = contextPrecision;
    contextPrecision = n;
    return previous;
}

void Formatter::setNumberFormat(char separator, char point, char sign) {
    thousandSeparator = (unsigned char)separator;
    decimalPoint = (unsigned char)point;
    signChar = (unsigned char)sign;
}

const Formatter *Formatter::findSetting(unsigned char Formatter::*setting) const {
    for (const Formatter *f = this; f; f = f->defaultFormatter)
        if (f->*setting != kNotSet) return f;
    return nullptr;
}

char Formatter::getThousandSeparator() const {
    const Formatter *f = findSetting(&Formatter::thousandSeparator);
    return f ? (char)f->thousandSeparator : 0;
}

char Formatter::getDecimalPointChar() const {
    const Formatter *f = findSetting(&Formatter::decimalPoint);
    return f ? (char)f->decimalPoint : '.';
}

char Formatter::getSignChar() const {
    const Formatter *f = findSetting(&Formatter::signChar);
    return f ? (char)f->signChar : '-';
}

template <int N>
const Formatter::NameList<N> *Formatter::findNames(NameList<N> Formatter::*names) const {
    for (const Formatter *f = this; f; f = f->defaultFormatter)
        if ((f->*names).isSet) return &(f->*names);
    return nullptr;
}

void Formatter::setAMPM(const char *am, const char *pm) {
    const char *words[2] = {am, pm};
    amPm.assign(words, 2);
}

void Formatter::setWeekDayNames(const char *const *names, int count) {
    weekDayNames.assign(names, count);
}

void Formatter::setMonthNames(const char *const *names, int count) {
    monthNames.assign(names, count);
}

StringArray Formatter::getAMPM() const {
    const NameList<2> *list = findNames(&Formatter::amPm);
    return list ? list->view() : StringArray(kDefaultAmPm, 2);
}

StringArray Formatter::getWeekDayNames() const {
    const NameList<7> *list = findNames(&Formatter::weekDayNames);
    return list ? list->view() : StringArray(kDefaultWeekDays, 7);
}

StringArray Formatter::getMonthNames() const {
    const NameList<12> *list = findNames(&Formatter::monthNames);
    return list ? list->view() : StringArray(kDefaultMonths, 12);
}

const char *Formatter::monthName(int month) const {
    return month >= 1 && month <= 12 ? getMonthNames().data[month - 1] : "";
}

const char *Formatter::weekDayName(int weekDay) const {
    return weekDay >= 0 && weekDay < 7 ? getWeekDayNames().data[weekDay] : "";
}

const char *Formatter::amPmWord(bool pm) const {
    return getAMPM().data[pm ? 1 : 0];
}

const char *Formatter::format(const char *formatString, double value) {
    const char *f = formatString ? formatString : "";
    // A leading byte 1 asks for a number the expression reader can read back.
    bool plain = *f == 1;
    if (plain) ++f;
    if (isDateFormat(*f)) {
        Sink out(buffer, kMaxDateLength + 1);
        formatDate(f, value, out);
        return out.finish();
    }
    Sink out(buffer, kBufferSize);
    formatNumber(f, plain, value, out);
    return out.finish();
}

// ---- numbers ----

void Formatter::parseNumberFormat(const char *p, bool plain, NumberFormat &nf) const {
    if (isTypeLetter(*p)) nf.type = *p++;
    if (*p == '@') {
        nf.decimals = contextPrecision;
        ++p;
    } else if (isDigit(*p)) {
        int d = 0;
        for (; isDigit(*p); ++p)
            if (d <= kMaxDecimals) d = d * 10 + (*p - '0');
        nf.decimals = d;
    }
    if (nf.decimals < -1) nf.decimals = -1;
    if (nf.decimals > kMaxDecimals) nf.decimals = kMaxDecimals;

    // Plain numbers are read back by the expression reader: no local separators.
    nf.separator = plain ? 0 : getThousandSeparator();
    nf.point = plain ? '.' : getDecimalPointChar();
    nf.sign = getSignChar();
    char *const settings[3] = {&nf.separator, &nf.point, &nf.sign};
    for (char *setting : settings) {
        if (!*p) break;
        if (*p != '?') *setting = *p;
        ++p;
    }
    if (*p && *p != '?' && *p != '~') {
        nf.prefix = p;
        nf.prefixLength = (int)strnlen(p, utf8Length((unsigned char)*p));
    }

    if (nf.separator == '~') nf.separator = 0;
    if (nf.point == '~' || nf.point == 0) nf.point = '.';
    if (nf.sign == '~') nf.sign = 0;
}

void Formatter::formatNumber(const char *format, bool plain, double value, Sink &out) const {
    if (value == kNoValue || std::isnan(value)) return;
    if (std::isinf(value)) value = value < 0 ? -DBL_MAX : DBL_MAX;

    NumberFormat nf;
    parseNumberFormat(format, plain, nf);
    bool negative = value < 0;
    double v = fabs(value);
    char type = nf.type;
    int decimals = nf.decimals;

    if (!type && plain && decimals < 0) {
        if (v == floor(v) && v <= 1e25) {
            decimals = 0;
        } else {
            type = 'E';
            decimals = 18;
        }
    }

    bool exponential = false;
    bool stripZeros = false;
    bool plusSign = false;
    char letter = 0;
    int exponent = type ? decimalExponent(v) : 0;
    switch (type) {
        case 'g':
        case 'G': {
            int p = decimals < 0 ? 4 : decimals;
            stripZeros = true;
            if (exponent >= p || exponent < -3) {
                exponential = true;
                letter = type == 'g' ? 'e' : 'E';
                decimals = p > 0 ? p - 1 : 0;
            } else if (exponent < 0) {
                decimals = decimals > 4 ? decimals : 4;
            } else {
                decimals = p - 1 - exponent;
            }
            break;
        }
        case 'e':
        case 'E':
            exponential = true;
            plusSign = true;
            letter = type;
            if (decimals < 0) decimals = 3;
            break;
        case 'p':
        case 'P': {
            int given = decimals < 0 ? 3 : decimals;
            decimals = given - exponent;
            if (decimals < 0) decimals = 0;
            if (decimals > given) decimals = given;
            stripZeros = true;
            break;
        }
        default:
            break;
    }
    if (exponential) v = scaleDown(v, exponent);

    double whole = floor(v);
    double fraction = v - whole;
    if (fraction > 0.999999999999) {
        whole += 1;
        fraction = 0;
    } else if (fraction < 1e-12) {
        fraction = 0;
    } else {
        // Large numbers drop a fraction their digits could not show.
        if (decimals < 0 && whole >= 1e8 * fraction) decimals = 0;
        if (roundsUp(fraction, decimals < 0 ? 6 : decimals)) {
            whole += 1;
            fraction = 0;
        }
    }
    if (exponential && whole >= 10) {
        ++exponent;
        fraction /= 10;
        whole = 1;
    }

    int signAt = out.length();
    bool writeSign = negative && nf.sign && (whole != 0 || fraction != 0);
    if (writeSign) out.put(nf.sign);
    out.put(nf.prefix, nf.prefixLength);

    char digits[kMaxDecimals + 1];
    int n = integerDigits(whole, digits);
    for (int i = 0; i < n; ++i) {
        out.put(digits[i]);
        int left = n - 1 - i;
        if (nf.separator && left > 0 && left % 3 == 0) out.put(nf.separator);
    }

    int count = 0;
    bool strip = stripZeros;
    if (decimals < 0) {
        if (fraction > 0) {
            count = 6;
            strip = true;
        }
    } else if (decimals >= 1 && !(stripZeros && fraction == 0)) {
        count = decimals;
    }
    if (count > 0) {
        fractionDigits(fraction, count, digits);
        if (strip)
            while (count > 0 && digits[count - 1] == '0') --count;
        if (count > 0) {
            out.put(nf.point);
            out.put(digits, count);
        }
    }

    // "-0.00" is written "0.00".
    if (writeSign) {
        bool nonZero = false;
        for (int i = signAt + 1; i < out.length() && !nonZero; ++i)
            nonZero = *out.at(i) >= '1' && *out.at(i) <= '9';
        if (!nonZero) out.erase(signAt);
    }

    if (exponential) {
        out.put(letter);
        if (plusSign && exponent >= 0) out.put('+');
        out.putNumber(exponent, 1);
    }
}

// ---- dates ----

namespace {

// How many repeats of a letter one date pattern takes; 0 for plain text.
struct DatePattern {
    char letter;
    int maxRun;
};
const DatePattern kDatePatterns[] = {{'d', 2}, {'h', 2}, {'n', 2}, {'s', 2}, {'m', 3},
                                     {'M', 3}, {'y', 4}, {'w', 1}, {'a', 1}, {'f', 3}};

int patternRun(const char *p) {
    for (const DatePattern &pattern : kDatePatterns) {
        if (pattern.letter != *p) continue;
        int run = 1;
        while (run < pattern.maxRun && p[run] == *p) ++run;
        return run;
    }
    return 0;
}

// Skips a quoted run starting at p; returns the position behind the closing quote.
const char *skipQuoted(const char *p) {
    const char *close = strchr(p + 1, *p);
    return close ? close + 1 : p + strlen(p);
}

// An "a" outside quotes and escapes switches the hours to the 12-hour clock.
bool hasAmPmPattern(const char *p) {
    while (*p) {
        if (*p == '\\') {
            p += p[1] ? 2 : 1;
        } else if (*p == '\'' || *p == '"') {
            p = skipQuoted(p);
        } else if (*p++ == 'a') {
            return true;
        }
    }
    return false;
}

}  // namespace

void Formatter::formatDate(const char *format, double value, Sink &out) const {
    if (value == kNoValue || std::isnan(value) || !*format) return;
    if (value < 0) value = 0;
    if (value > kMaxDateTime) value = kMaxDateTime;

    long long seconds = (long long)value;
    int ticks = (int)floor((value - (double)seconds) * 10000 + 0.5);
    if (ticks < 0) ticks = 0;
    if (ticks > 9999) ticks = 9999;
    qlx::DateTime date(seconds);
    int hour = date.getHour();
    int shownHour = hasAmPmPattern(format) ? (hour + 11) % 12 + 1 : hour;

    const char *p = format;
    while (*p && out.length() < kMaxDateLength) {
        if (*p == '\\') {
            if (p[1]) out.put(p[1]);
            p += p[1] ? 2 : 1;
            continue;
        }
        if (*p == '\'' || *p == '"') {
            const char *close = strchr(p + 1, *p);
            const char *runEnd = close ? close : p + strlen(p);
            out.put(p + 1, (int)(runEnd - p - 1));
            p = close ? close + 1 : runEnd;
            continue;
        }
        int run = patternRun(p);
        if (!run) {
            out.put(*p++);
            continue;
        }
        switch (*p) {
            case 'd':
                out.putNumber(date.getDay(), run);
                break;
            case 'h':
                out.putNumber(shownHour, run);
                break;
            case 'n':
                out.putNumber(date.getMinute(), run);
                break;
            case 's':
                out.putNumber(date.getSecond(), run);
                break;
            case 'm':
                if (run == 3)
                    out.put(monthName(date.getMonth()));
                else
                    out.putNumber(date.getMonth(), run);
                break;
            case 'M': {
                const char *name = monthName(date.getMonth());
                for (int i = 0; i < run && name[i]; ++i)
                    out.put(name[i] >= 'a' && name[i] <= 'z' ? (char)(name[i] - 32) : name[i]);
                break;
            }
            case 'y': {
                int year = date.getYear();
                if (run == 1) out.putNumber(year, 1);
                if (run == 2) out.putNumber(year % 100, 2);
                if (run == 3) out.putNumber(year % 1000, 3);
                if (run == 4) out.putNumber(year, 4);
                break;
            }
            case 'w':
                out.put(weekDayName(qlx::DateTime::getWeekDay(seconds)));
                break;
            case 'a':
                out.put(amPmWord(hour > 11));
                break;
            case 'f': {
                static const int kDivisors[4] = {0, 1000, 100, 10};
                out.putNumber(ticks / kDivisors[run], run);
                break;
            }
        }
        p += run;
    }
}
