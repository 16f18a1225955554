#include "text/template/Formatter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "foundation/ChartStatics.h"
#include "foundation/Constants.h"

namespace {

std::string fmt(Formatter &f, const char *format, double v) {
    return f.format(format, v);
}

// printf's fixed form with the sign dropped when no digit but 0 remains and commas
// every three digits: what a "N,." number format must give.
std::string referenceFixed(double v, int decimals) {
    char text[512];
    snprintf(text, sizeof(text), "%.*f", decimals, v);
    std::string s = text;
    if (s[0] == '-' && s.find_first_of("123456789") == std::string::npos) s.erase(0, 1);
    size_t digitsBegin = s[0] == '-' ? 1 : 0;
    size_t digitsEnd = s.find('.');
    if (digitsEnd == std::string::npos) digitsEnd = s.size();
    for (long i = (long)digitsEnd - 3; i > (long)digitsBegin; i -= 3) s.insert(i, ",");
    return s;
}

}  // namespace

TEST(Formatter, FixedNumbers) {
    Formatter f;
    EXPECT_EQ(fmt(f, "2,.", 1234567.891), "1,234,567.89");
    EXPECT_EQ(fmt(f, "0", 0.4), "0");
    EXPECT_EQ(fmt(f, "0", 0.5), "1");
    EXPECT_EQ(fmt(f, "2", -0.001), "0.00");
    EXPECT_EQ(fmt(f, "2", -0.006), "-0.01");
    EXPECT_EQ(fmt(f, "", 0.1), "0.1");
    EXPECT_EQ(fmt(f, "", -2.5), "-2.5");
    EXPECT_EQ(fmt(f, "", 1.0 / 3), "0.333333");
    EXPECT_EQ(fmt(f, "", 0.9999999), "1");
    EXPECT_EQ(fmt(f, "", 100000000.5), "100000001");
    EXPECT_EQ(fmt(f, "", 99999999.5), "100000000");
    EXPECT_EQ(fmt(f, "", 12345.5), "12345.5");
    EXPECT_EQ(fmt(f, "", 0), "0");
    EXPECT_EQ(fmt(f, "", -0.0), "0");
    EXPECT_EQ(fmt(f, "3", 2), "2.000");
    EXPECT_EQ(fmt(f, "1", 9.96), "10.0");
    EXPECT_EQ(fmt(f, "", kNoValue), "");
    EXPECT_EQ(fmt(f, "2,.", kNoValue), "");
    // Separator, point and sign of the format; "~" is none, "?" keeps the formatter's.
    EXPECT_EQ(fmt(f, "2.,", 1234.5), "1.234,50");
    EXPECT_EQ(fmt(f, "0~", 1234567), "1234567");
    EXPECT_EQ(fmt(f, "2~~", 1234.5), "1234.50");
    EXPECT_EQ(fmt(f, "2 ,(", -1234.5), "(1 234,50");
    EXPECT_EQ(fmt(f, "2,.~", -1234.5), "1,234.50");
    EXPECT_EQ(fmt(f, "2,.-$", -1234.5), "-$1,234.50");
    EXPECT_EQ(fmt(f,
                  "0?"
                  "?-\xE2\x82\xAC",
                  12),
              "\xE2\x82\xAC"
              "12");
    EXPECT_EQ(fmt(f, "0,.-$", -0.2), "$0");
    EXPECT_EQ(fmt(f, "0,", 1e21), "1,000,000,000,000,000,000,000");
    EXPECT_EQ(fmt(f, "0", 1e300).size(), 301u);
}

TEST(Formatter, TypeLetters) {
    Formatter f;
    EXPECT_EQ(fmt(f, "g", 0.00001), "1e-5");
    EXPECT_EQ(fmt(f, "G", 0.00001), "1E-5");
    EXPECT_EQ(fmt(f, "g", 123456), "1.235e5");
    EXPECT_EQ(fmt(f, "g", 1234.5), "1235");
    EXPECT_EQ(fmt(f, "g3", 1234.5), "1.23e3");
    EXPECT_EQ(fmt(f, "g", 123.456), "123.5");
    EXPECT_EQ(fmt(f, "g", 100), "100");
    EXPECT_EQ(fmt(f, "g", 0.0123456), "0.0123");
    EXPECT_EQ(fmt(f, "g", 0), "0");
    EXPECT_EQ(fmt(f, "g6", 0.5), "0.5");
    EXPECT_EQ(fmt(f, "g", -99999.7), "-1e5");
    EXPECT_EQ(fmt(f, "e", 1500), "1.500e+3");
    EXPECT_EQ(fmt(f, "E2", 0.000123), "1.23E-4");
    EXPECT_EQ(fmt(f, "e", 0), "0.000e+0");
    EXPECT_EQ(fmt(f, "e1", 9.96), "1.0e+1");
    EXPECT_EQ(fmt(f, "e1", -9.96e-7), "-1.0e-6");
    EXPECT_EQ(fmt(f, "e0", 1e300), "1e+300");
    EXPECT_EQ(fmt(f, "e", 5e-324), "4.941e-324");
    EXPECT_EQ(fmt(f, "p3", 123.456), "123.5");
    EXPECT_EQ(fmt(f, "p", 123.456), "123.5");
    EXPECT_EQ(fmt(f, "p3", 0.5), "0.5");
    EXPECT_EQ(fmt(f, "P3", 12345.6), "12346");
    EXPECT_EQ(fmt(f, "p3", 2), "2");
    EXPECT_EQ(fmt(f, "p2,", 1234567.8), "1,234,568");
}

TEST(Formatter, PlainModeAndContextPrecision) {
    Formatter f;
    f.setNumberFormat(',', '.', '-');
    EXPECT_EQ(fmt(f, "", 1234567), "1,234,567");
    // Plain numbers are read back: no separator, "." as point, integers exact.
    EXPECT_EQ(fmt(f, "\x01", 1234567), "1234567");
    EXPECT_EQ(fmt(f, "\x01", -5), "-5");
    EXPECT_EQ(fmt(f, "\x01", 0.256).substr(0, 16), "2.56000000000000");
    EXPECT_EQ(fmt(f, "\x01", 0.256).substr(20), "E-1");
    EXPECT_EQ(fmt(f,
                  "\x01"
                  "2",
                  0.256),
              "0.26");
    EXPECT_EQ(fmt(f, "\x01", 1e26), "1.000000000000000000E+26");

    EXPECT_EQ(f.setContextPrecision(3), -1);
    EXPECT_EQ(fmt(f, "@", 1.5), "1.500");
    EXPECT_EQ(f.setContextPrecision(-1), 3);
    EXPECT_EQ(fmt(f, "@", 1.5), "1.5");

    // Plain output survives a round trip through strtod at every magnitude.
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> mantissa(1, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        double v = mantissa(rng) * pow(10.0, exponent(rng)) * (i % 2 ? -1 : 1);
        if (i % 5 == 0) v = floor(v);
        double back = strtod(f.format("\x01", v), nullptr);
        ASSERT_NEAR(back, v, fabs(v) * 1e-15) << f.format("\x01", v);
    }
}

TEST(Formatter, MatchesPrintfOnRandomNumbers) {
    Formatter f;
    std::mt19937_64 rng(11);
    std::uniform_real_distribution<double> value(-1e7, 1e7);
    for (int i = 0; i < 20000; ++i) {
        double v = value(rng) / (i % 3 ? 1 : 1e6);
        int decimals = i % 7;
        std::string format = std::to_string(decimals) + ",.";
        ASSERT_EQ(fmt(f, format.c_str(), v), referenceFixed(v, decimals)) << v;
    }
    // Whole numbers beyond 64 bits come out digit for digit.
    std::uniform_int_distribution<int> power(64, 1023);
    for (int i = 0; i < 2000; ++i) {
        double v = ldexp(1.0 + value(rng) / 2e7 + 0.5, power(rng));
        char expected[400];
        snprintf(expected, sizeof(expected), "%.0f", v);
        ASSERT_EQ(fmt(f, "0", v), expected);
    }
}

TEST(Formatter, ChainedDefaults) {
    Formatter chart, layer;
    EXPECT_EQ(layer.getThousandSeparator(), 0);
    EXPECT_EQ(layer.getDecimalPointChar(), '.');
    EXPECT_EQ(layer.getSignChar(), '-');
    EXPECT_STREQ(layer.getMonthNames().data[11], "Dec");
    EXPECT_STREQ(layer.getWeekDayNames().data[0], "Sun");
    EXPECT_STREQ(layer.getAMPM().data[1], "pm");

    layer.setDefault(&chart);
    chart.setNumberFormat('.', ',', '~');
    const char *months[] = {"Januar", "Februar", nullptr};
    chart.setMonthNames(months, 3);
    EXPECT_EQ(layer.getThousandSeparator(), '.');
    EXPECT_EQ(layer.getDecimalPointChar(), ',');
    EXPECT_EQ(fmt(layer, "2", -1234.5), "1.234,50");
    EXPECT_STREQ(layer.getMonthNames().data[1], "Februar");
    EXPECT_STREQ(layer.getMonthNames().data[2], "");
    EXPECT_EQ(layer.getMonthNames().len, 12);

    // Only unset values fall through; a cycle is refused.
    layer.setNumberFormat(Formatter::kNotSet, Formatter::kNotSet, '-');
    EXPECT_EQ(fmt(layer, "2", -1234.5), "-1.234,50");
    chart.setDefault(&layer);
    EXPECT_EQ(chart.getDefault(), nullptr);
    layer.setDefault(&layer);
    EXPECT_EQ(layer.getDefault(), &chart);

    // A "~" decimal point keeps the point the digits were written with.
    Formatter tilde;
    tilde.setNumberFormat('~', '~', '-');
    EXPECT_EQ(fmt(tilde, "2", 1234.5), "1234.50");

    const char *days[] = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "extra"};
    layer.setWeekDayNames(days, 8);
    layer.setAMPM("AM", nullptr);
    EXPECT_STREQ(layer.getWeekDayNames().data[6], "Sa");
    EXPECT_STREQ(layer.getAMPM().data[1], "");
}

TEST(Formatter, Dates) {
    Formatter f;
    double t = Chart::chartTime(2024, 3, 9, 13, 5, 7);
    EXPECT_EQ(fmt(f, "mm/dd/yyyy", t), "03/09/2024");
    EXPECT_EQ(fmt(f, "mmm dd, yyyy", t), "Mar 09, 2024");
    EXPECT_EQ(fmt(f, "mmm dd, yyyy hh:nn:ss", t), "Mar 09, 2024 13:05:07");
    EXPECT_EQ(fmt(f, "h:nna", t), "1:05pm");
    EXPECT_EQ(fmt(f, "hh", t), "13");
    EXPECT_EQ(fmt(f, "hh 'a'", t), "13 a");
    EXPECT_EQ(fmt(f, "hh \\a", t), "13 a");
    EXPECT_EQ(fmt(f, "d/m/y yy yyy yyyyy", t), "9/3/2024 24 024 20242024");
    EXPECT_EQ(fmt(f, "mmmm", t), "Mar3");
    EXPECT_EQ(fmt(f, "M MM MMM MMMM", t), "M MA MAR MARM");
    EXPECT_EQ(fmt(f, "ddd w", t), "099 Sat");
    EXPECT_EQ(fmt(f, "d \"dd\" H 'h", t), "9 dd H h");
    EXPECT_EQ(fmt(f, "mmm dd, yyyy", kNoValue), "");
    EXPECT_EQ(fmt(f, "yyyy", Chart::chartTime(33, 1, 1, 0, 0, 0)), "0033");

    double midnight = Chart::chartTime(2024, 3, 9, 0, 0, 0);
    EXPECT_EQ(fmt(f, "h a", midnight), "12 am");
    EXPECT_EQ(fmt(f, "h a", midnight + 12 * 3600), "12 pm");
    EXPECT_EQ(fmt(f, "h a", midnight + 11 * 3600), "11 am");
    EXPECT_EQ(fmt(f, "ss.fff ss.ff ss.f", midnight + 5.12345), "05.123 05.12 05.1");
    EXPECT_EQ(fmt(f, "ss.ffff", midnight + 5.99996), "05.9999");

    const char *months[] = {"", "", "Mrz"};
    f.setMonthNames(months, 3);
    f.setAMPM("vorm.", "nachm.");
    EXPECT_EQ(fmt(f, "mmm h a", t), "Mrz 1 nachm.");

    // Output is bounded whatever the names and the format ask for.
    std::string longName(300, 'x');
    const char *longMonths[] = {longName.c_str(), longName.c_str(), longName.c_str()};
    f.setMonthNames(longMonths, 3);
    EXPECT_EQ(fmt(f, "mmm", t).size(), size_t(Formatter::kMaxDateLength));
    EXPECT_EQ(fmt(f, std::string(400, 'y').c_str(), t).size(), size_t(Formatter::kMaxDateLength));
    // Out of the calendar's range: no crash, some text.
    EXPECT_FALSE(fmt(f, "yyyy-mm-dd", -1e300).empty());
    EXPECT_FALSE(fmt(f, "yyyy-mm-dd", 1e300).empty());
}
