#include "chart/axis/scale/TickStep.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "AxisTestSupport.h"
#include "chart/axis/scale/TimeStepTable.h"

using TickSteps::getTickInc;
using TickSteps::getTimeTickInc;

namespace {

struct StepCase {
    double wish;
    int minorCount;
    double major;
    double minor;
};

}  // namespace

TEST(TickStep, DecimalRule) {
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
    const StepCase cases[] = {
        {4, 2, 5, 2.5}, {4, 5, 5, 1}, {20, 4, 20, 5}, {20, 1, 20, 20}, {0.7, 10, 1, 0.1},
    };
    for (const StepCase &c : cases) {
        TickStep s = getTickInc(c.wish, c.minorCount);
        EXPECT_EQ(s.major, c.major) << c.wish;
        EXPECT_EQ(s.minor, c.minor) << c.wish << " / " << c.minorCount;
    }
}

TEST(TickStep, EveryDecimalStepIsOneTwoFiveAndCoversTheWish) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> exponent(-12, 12);
    for (int i = 0; i < 2000; ++i) {
        double wish = std::pow(10.0, exponent(rng));
        double step = getTickInc(wish);
        EXPECT_TRUE(isOneTwoFive(step)) << wish;
        EXPECT_GE(step, wish * (1 - 1e-7));
        EXPECT_LT(step, wish * 2.5);
    }
}

TEST(TickStep, TimeStepsFollowTheClockAndCalendar) {
    const double kYear = TimeStepTable::kYear;
    const StepCase cases[] = {
        // Below 15 seconds: the decimal rule.
        {7, 1, 10, 10},
        // The table: the first major at or above the wish, the minor the first
        // candidate above wish / count.
        {16, 1, 20, 20},
        {777600, 1, 864000, 864000},
        {86400, 1, 86400, 86400},
        {311040000, 1, 311040000, 311040000},
        {50000, 5, 86400, 10800},
        {250, 10, 300, 60},
        // Beyond ten years: the decimal rule in years of 360 days.
        {40 * kYear, 4, 50 * kYear, 25 * kYear},
    };
    for (const StepCase &c : cases) {
        TickStep s = getTimeTickInc(c.wish, c.minorCount);
        EXPECT_EQ(s.major, c.major) << c.wish;
        EXPECT_EQ(s.minor, c.minor) << c.wish << " / " << c.minorCount;
    }
}
