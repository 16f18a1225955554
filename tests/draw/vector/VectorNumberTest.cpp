#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <random>
#include <string>

#include "draw/vector/NumberText.h"

namespace {

std::string fast(double v, int decimals) {
    char buf[NumberText::kMaxLength];
    return std::string(buf, NumberText::format(buf, v, decimals));
}

std::string slow(double v, int decimals) {
    char buf[NumberText::kMaxLength];
    return std::string(buf, NumberText::formatSlow(buf, v, decimals));
}

}  // namespace

TEST(VectorNumber, FixedPointWithoutTrailingZerosOrExponent) {
    EXPECT_EQ("12.5", fast(12.5, 3));
    EXPECT_EQ("-3", fast(-3.0, 3));
    EXPECT_EQ("0", fast(-0.0001, 3));  // no sign left on a zero
    EXPECT_EQ("0.001", fast(0.0005000001, 3));
    EXPECT_EQ("1000000000000000", fast(1e300, 3));  // clamped, never an exponent
    EXPECT_EQ("0", fast(-INFINITY, 2));
    EXPECT_EQ("0", fast(NAN, 3));
    EXPECT_EQ("0.1234567891", fast(0.12345678911, 99));  // decimals limited to 10
    EXPECT_EQ("3", fast(2.6, -4));
    // A tie goes the way the decimal value of the double says, as printf has it.
    EXPECT_EQ(slow(0.125, 2), fast(0.125, 2));
    EXPECT_EQ(slow(2.675, 2), fast(2.675, 2));
    char buf[NumberText::kMaxLength];
    NumberText::formatInt(buf, -9223372036854775807LL - 1);
    EXPECT_STREQ("-9223372036854775808", buf);
}

TEST(VectorNumber, FastPathAgreesWithPrintf) {
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> unit(-1, 1);
    std::uniform_int_distribution<int> exponent(-8, 16), digits(0, 10);
    for (int i = 0; i < 200000; ++i) {
        double v = unit(rng) * std::pow(10.0, exponent(rng));
        // Halves and quarters hit the ties a rounding could get wrong.
        if (i % 5 == 0) v = std::floor(v * 8) / 8;
        int d = digits(rng);
        ASSERT_EQ(slow(v, d), fast(v, d)) << v << " with " << d;
    }
}

TEST(VectorNumber, PointEvenUnderACommaLocale) {
    const char *old = std::setlocale(LC_NUMERIC, nullptr);
    std::string saved = old ? old : "C";
    if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) GTEST_SKIP() << "no de_DE.UTF-8 locale";
    EXPECT_EQ("12.25", fast(12.25, 3));
    EXPECT_EQ("12.25", slow(12.25, 3));
    EXPECT_EQ("-0.5", slow(-0.5, 6));
    std::setlocale(LC_NUMERIC, saved.c_str());
}
