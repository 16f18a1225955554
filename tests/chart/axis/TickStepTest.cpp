#include "chart/axis/scale/TickStep.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "chart/axis/scale/TimeStepTable.h"

using TickSteps::getTickInc;
using TickSteps::getTimeTickInc;

TEST(TickStep, DecimalRuleRoundsUpToOneTwoFive) {
    EXPECT_EQ(getTickInc(20), 20);
    EXPECT_EQ(getTickInc(22.2), 50);
    EXPECT_EQ(getTickInc(0.3), 0.5);
    EXPECT_EQ(getTickInc(1000), 1000);
    EXPECT_EQ(getTickInc(5.00000005), 5);
    EXPECT_EQ(getTickInc(6), 10);
    EXPECT_DOUBLE_EQ(getTickInc(0.013), 0.02);
    // Steps that are not positive numbers make no ticks.
    EXPECT_EQ(getTickInc(0), 0);
    EXPECT_EQ(getTickInc(-3), 0);
    EXPECT_EQ(getTickInc(NAN), 0);

    // Minors: a 5 split in two below five minors, else the rule on major / count.
    TickStep s = getTickInc(4, 2);
    EXPECT_EQ(s.major, 5);
    EXPECT_EQ(s.minor, 2.5);
    s = getTickInc(4, 5);
    EXPECT_EQ(s.minor, 1);
    s = getTickInc(20, 4);
    EXPECT_EQ(s.minor, 5);
    s = getTickInc(20, 1);
    EXPECT_EQ(s.minor, 20);
}

TEST(TickStep, EveryDecimalStepIsOneTwoFiveAndCoversTheWish) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> exponent(-12, 12);
    for (int i = 0; i < 2000; ++i) {
        double wish = std::pow(10.0, exponent(rng));
        double step = getTickInc(wish);
        double mantissa = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
        EXPECT_TRUE(std::fabs(mantissa - 1) < 1e-9 || std::fabs(mantissa - 2) < 1e-9 ||
                    std::fabs(mantissa - 5) < 1e-9)
            << wish;
        EXPECT_GE(step, wish * (1 - 1e-7));
        EXPECT_LT(step, wish * 2.5 + 1e-300);
    }
}

TEST(TickStep, TimeStepsFollowTheClockAndCalendar) {
    // Below 15 seconds: the decimal rule.
    EXPECT_EQ(getTimeTickInc(7, 1).major, 10);
    // The table: the first major at or above the wish.
    EXPECT_EQ(getTimeTickInc(16, 1).major, 20);
    EXPECT_EQ(getTimeTickInc(777600, 1).major, 864000);
    EXPECT_EQ(getTimeTickInc(86400, 1).major, 86400);
    EXPECT_EQ(getTimeTickInc(311040000, 1).major, 311040000);
    // The minor is the first candidate above wish / count.
    TickStep s = getTimeTickInc(50000, 5);
    EXPECT_EQ(s.major, 86400);
    EXPECT_EQ(s.minor, 10800);
    s = getTimeTickInc(80000, 1);
    EXPECT_EQ(s.minor, 86400);
    s = getTimeTickInc(250, 10);
    EXPECT_EQ(s.major, 300);
    EXPECT_EQ(s.minor, 60);
    // Beyond ten years: the decimal rule in years of 360 days.
    s = getTimeTickInc(40 * TimeStepTable::kYear, 4);
    EXPECT_EQ(s.major, 50 * TimeStepTable::kYear);
    EXPECT_EQ(s.minor, 25 * TimeStepTable::kYear);
}
