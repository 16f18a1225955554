#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "AxisTestSupport.h"
#include "chart/axis/scale/LinearTickGenerator.h"
#include "chart/axis/scale/LogTickGenerator.h"
#include "chart/axis/scale/TimeTickGenerator.h"
#include "foundation/Constants.h"

namespace {

std::vector<double> raised(const std::vector<double> &logs) {
    std::vector<double> v;
    for (double x : logs) v.push_back(LogTickGenerator::powerOfTen(x));
    return v;
}

}  // namespace

TEST(TickGenerator, LinearWalks) {
    LinearTickGenerator g;
    g.generate(0, 10, 0, 2, 1);
    EXPECT_EQ(g.getMajorTicks(), (Values{0, 2, 4, 6, 8, 10}));
    EXPECT_EQ(g.getMinorTicks(), (Values{1, 3, 5, 7, 9}));

    // The start moves down to the lower limit by whole steps.
    g.generate(1, 9, 7, 4, 0);
    EXPECT_EQ(g.getMajorTicks(), (Values{3, 7}));

    // A step against the direction of the range gives nothing; a descending range
    // with a negative step is walked upward.
    g.generate(10, 0, 10, 2, 0);
    EXPECT_TRUE(g.getMajorTicks().empty());
    g.generate(0, 10, 0, -2, 0);
    EXPECT_TRUE(g.getMajorTicks().empty());
    g.generate(10, 0, 10, -5, 0);
    EXPECT_EQ(g.getMajorTicks(), (Values{0, 5, 10}));
    g.generate(0, 10, 0, 0, 0);
    EXPECT_TRUE(g.getMajorTicks().empty());

    // A minor too close to the next major is left out: 2 * (5 - 4) is not above 4 - 2.
    g.generate(0, 5, 0, 5, 2);
    EXPECT_EQ(g.getMinorTicks(), (Values{2}));

    // Near zero is zero, near a limit is the limit.
    g.generate(-0.3, 0.3, -0.3, 0.1, 0);
    ASSERT_EQ(g.getMajorTicks().size(), 7u);
    EXPECT_EQ(g.getMajorTicks()[3], 0);
    EXPECT_EQ(g.getMajorTicks()[6], 0.3);
}

TEST(TickGenerator, TinyStepsStopAtTheLimit) {
    LinearTickGenerator g;
    g.generate(0, 1, 0, 1e-9, 1e-12);
    EXPECT_LE(g.getMajorTicks().size() + g.getMinorTicks().size(),
              (size_t)TickGenerator::kMaxTicks + 2);
    // A step lost in the rounding of the values does not hang.
    g.generate(1e17, 1e17 + 64, 1e17, 1, 0);
    EXPECT_LE(g.getMajorTicks().size(), (size_t)TickGenerator::kMaxTicks + 1);
    g.generate(0, 1e300, -1e300, 1, 0);
    EXPECT_TRUE(g.getMajorTicks().size() <= (size_t)TickGenerator::kMaxTicks + 1);
}

TEST(TickGenerator, LogSentinels) {
    LogTickGenerator g;
    g.generate(0, 2, 0, kLogTick, 0);
    EXPECT_EQ(raised(g.getMajorTicks()), (Values{1, 2, 5, 10, 20, 50, 100}));
    g.generate(-1, 0, -1, kLinearTick, 0);
    EXPECT_EQ(raised(g.getMajorTicks()), (Values{0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1}));
    // 1-2-5 majors with every digit as minors; no minor sits on a major.
    g.generate(0, 1, 0, kLogTick, kLinearTick);
    EXPECT_EQ(raised(g.getMajorTicks()), (Values{1, 2, 5, 10}));
    EXPECT_EQ(raised(g.getMinorTicks()), (Values{3, 4, 6, 7, 8, 9}));
    // Sentinel steps start at the whole decade below.
    EXPECT_EQ(g.firstTick(1.7, 5, kLogTick), 1);
    EXPECT_EQ(g.firstTick(1.7, 5, 2), 1);
}

TEST(TickGenerator, TimeStepsByTheCalendar) {
    TimeTickGenerator g;
    // A month step from the 1st lands on the 1st, whatever the month's length.
    g.generate(at(2024, 1, 1), at(2024, 6, 1), at(2024, 1, 1), 2592000, 0);
    EXPECT_EQ(g.getMajorTicks(), (Values{at(2024, 1, 1), at(2024, 2, 1), at(2024, 3, 1),
                                         at(2024, 4, 1), at(2024, 5, 1), at(2024, 6, 1)}));
    // Years, and a start moved back by calendar steps.
    g.generate(at(2001, 6, 1), at(2005, 1, 1), at(2010, 1, 1), 31104000, 0);
    EXPECT_EQ(g.getMajorTicks(),
              (Values{at(2002, 1, 1), at(2003, 1, 1), at(2004, 1, 1), at(2005, 1, 1)}));
    // Short steps are plain seconds, kept to four decimals.
    EXPECT_EQ(g.nextTick(at(2024, 1, 1), 86400), at(2024, 1, 2));
    EXPECT_EQ(g.nextTick(0.1, 0.2), 0.3);
    // Two months and ten days in one step.
    EXPECT_EQ(g.nextTick(at(2024, 1, 1), 2 * 2592000 + 10 * 86400), at(2024, 3, 11));
    EXPECT_EQ(g.nextTick(at(2024, 3, 1), -2592000), at(2024, 2, 1));
}

TEST(TickGenerator, MinorWalksStopPastTheLimit) {
    // Minors a hundred orders of magnitude finer than the majors, on a range
    // far smaller than either.
    LinearTickGenerator g;
    g.generate(1.4e-321, 6.2e-317, 1.4e-321, 4e-87, 1e-309);
    EXPECT_EQ(g.getMajorTicks().size(), 1u);
    // A start far below the range with fine minors ends too.
    g.generate(1e6, 1e6 + 1, 0, 1, 1e-3);
    EXPECT_TRUE(g.getMajorTicks().empty());
}
