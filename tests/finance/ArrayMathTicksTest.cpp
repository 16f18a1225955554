#include <gtest/gtest.h>

#include "ArrayMathTestSupport.h"
#include "foundation/ChartStatics.h"

namespace {

using Values = std::vector<double>;
const double NV = kNoValue;
const double MINOR = kMinorTickOnly;

double at(int y, int m, int d, int h = 0, int mi = 0, int s = 0) {
    return Chart::chartTime(y, m, d, h, mi, s);
}

TEST(ArrayMathTicks, StartOfDayKeepsOneItemADay) {
    Values times;
    for (int d = 1; d <= 3; ++d) {
        times.push_back(at(2024, 3, d));
        times.push_back(at(2024, 3, d, 12));
    }
    ArrayMathPtr m = makeArrayMath(times);
    m->selectStartOfDay(1, 10800);
    EXPECT_EQ(valuesOf(*m), (Values{times[0], NV, times[2], NV, times[4], NV}));

    // A first item at noon is far past its day's start; one inside the
    // margin counts as the start.
    m = makeArrayMath({at(2024, 3, 1, 12), at(2024, 3, 2), at(2024, 3, 2, 6)});
    m->selectStartOfDay(1, 10800);
    EXPECT_EQ(valuesOf(*m), (Values{NV, at(2024, 3, 2), NV}));
    m = makeArrayMath({at(2024, 3, 1, 2, 59), at(2024, 3, 1, 6)});
    m->selectStartOfDay(1, 10800);
    EXPECT_EQ(valuesOf(*m), (Values{at(2024, 3, 1, 2, 59), NV}));
}

TEST(ArrayMathTicks, MajorStepMakesTheOthersMinorAndMarkersStay) {
    Values times;
    for (int d = 1; d <= 5; ++d) times.push_back(at(2024, 3, d));
    times.insert(times.begin() + 2, MINOR);
    times.insert(times.begin() + 4, NV);
    ArrayMathPtr m = makeArrayMath(times);
    m->selectStartOfDay(2, 10800);
    EXPECT_EQ(valuesOf(*m), (Values{times[0], MINOR, MINOR, times[3], NV, MINOR, times[6]}));
}

TEST(ArrayMathTicks, CalendarPeriods) {
    // 2024-01-01 is a Monday; weeks start on Sunday (the 7th and the 14th).
    Values days;
    for (int d = 1; d <= 14; ++d) days.push_back(at(2024, 1, d, 9));
    ArrayMathPtr m = makeArrayMath(days);
    m->selectStartOfWeek(2, 172800);
    Values expected(14, NV);
    expected[0] = days[0];
    expected[6] = MINOR;
    expected[13] = days[13];
    EXPECT_EQ(valuesOf(*m), expected);

    Values halves;
    for (int mo = 1; mo <= 4; ++mo) {
        halves.push_back(at(2024, mo, 1));
        halves.push_back(at(2024, mo, 15));
    }
    m = makeArrayMath(halves);
    m->selectStartOfMonth(1, 432000);
    EXPECT_EQ(valuesOf(*m), (Values{halves[0], NV, halves[2], NV, halves[4], NV, halves[6], NV}));
    m = makeArrayMath({at(2024, 1, 10), at(2024, 1, 31), at(2024, 2, 1)});
    m->selectStartOfMonth(1, 432000);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, at(2024, 2, 1)}));

    m = makeArrayMath({at(2023, 11, 1), at(2023, 12, 31), at(2024, 1, 1), at(2024, 7, 1)});
    m->selectStartOfYear(1, 5184000);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, at(2024, 1, 1), NV}));
}

TEST(ArrayMathTicks, ClockPeriodsRoundToWholeSeconds) {
    double t0 = at(2024, 5, 5, 10);
    ArrayMathPtr m = makeArrayMath({t0 + 0.4, t0 + 0.6, t0 + 1.2, t0 + 1.4});
    m->selectStartOfSecond(1, 0.1);
    EXPECT_EQ(valuesOf(*m), (Values{t0 + 0.4, t0 + 0.6, NV, NV}));

    m = makeArrayMath({t0 + 3, t0 + 59, t0 + 60, t0 + 125, t0 + 179.6});
    m->selectStartOfMinute(1, 5);
    EXPECT_EQ(valuesOf(*m), (Values{t0 + 3, NV, t0 + 60, t0 + 125, t0 + 179.6}));

    m = makeArrayMath({t0 + 400, t0 + 3599, t0 + 3600, t0 + 7300});
    m->selectStartOfHour(1, 300);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, t0 + 3600, t0 + 7300}));
}

TEST(ArrayMathTicks, RegularSpacing) {
    ArrayMathPtr m = makeArrayMath(Values(9, 1.0));
    m->selectRegularSpacing(4, 2, 1);
    // k = |i - 1|: 1 0 1 2 3 4 5 6 7
    EXPECT_EQ(valuesOf(*m), (Values{NV, 1, NV, MINOR, NV, 1, NV, MINOR, NV}));

    m = makeArrayMath(Values(5, 2.0));
    m->selectRegularSpacing(2, 0, 0);
    EXPECT_EQ(valuesOf(*m), (Values{2, NV, 2, NV, 2}));
    m = makeArrayMath(Values(4, 2.0));
    m->selectRegularSpacing(3, 1, 0);
    EXPECT_EQ(valuesOf(*m), (Values{2, MINOR, MINOR, 2}));
}

}  // namespace
