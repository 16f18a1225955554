#include <gtest/gtest.h>

#include "foundation/ChartStatics.h"
#include "foundation/DateTime.h"

using qlx::DateTime;

TEST(DateTime, FixedPointsOfTheCalendar) {
    EXPECT_EQ(Chart::chartTime(1, 1, 1, 0, 0, 0), 0.0);
    EXPECT_EQ(Chart::getChartWeekDay(0), 1);  // a Monday
    EXPECT_EQ(Chart::chartTime(2000, 3, 1, 0, 0, 0) - Chart::chartTime(2000, 2, 28, 0, 0, 0),
              2 * 86400.0);
    EXPECT_EQ(Chart::chartTime(1900, 3, 1, 0, 0, 0) - Chart::chartTime(1900, 2, 28, 0, 0, 0),
              86400.0);
    // 2026-11-23 is a Monday.
    EXPECT_EQ(Chart::getChartWeekDay(Chart::chartTime(2026, 11, 23, 12, 0, 0)), 1);
    EXPECT_EQ(Chart::getChartYMD(Chart::chartTime(2024, 2, 29, 23, 59, 59) + 0.999), 20240229);
    EXPECT_EQ(Chart::getChartYMD(Chart::chartTime(1970, 1, 1, 0, 0, 0)), 19700101);
}

// Walks day by day with a naive calendar and checks both directions.
TEST(DateTime, RoundTripsEveryDayOverCenturyRules) {
    int y = 1599, m = 1, d = 1;
    long long t = DateTime(y, m, d, 0, 0, 0).getTime();
    for (int i = 0; i < 365 * 810; ++i) {
        DateTime fields(t + 86399);
        ASSERT_EQ(fields.getYear(), y) << t;
        ASSERT_EQ(fields.getMonth(), m) << t;
        ASSERT_EQ(fields.getDay(), d) << t;
        ASSERT_EQ(fields.getHour(), 23);
        ASSERT_EQ(fields.getSecond(), 59);
        ASSERT_EQ(DateTime(y, m, d, 0, 0, 0).getTime(), t);
        t += 86400;
        bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
        int length = m == 2 ? (leap ? 29 : 28) : (m == 4 || m == 6 || m == 9 || m == 11) ? 30 : 31;
        if (++d > length) {
            d = 1;
            if (++m > 12) {
                m = 1;
                ++y;
            }
        }
    }
    EXPECT_GT(y, 2400);
}

static void expectFields(const DateTime &t, int y, int m, int d, int h, int mi, int s) {
    EXPECT_EQ(t.getYear(), y);
    EXPECT_EQ(t.getMonth(), m);
    EXPECT_EQ(t.getDay(), d);
    EXPECT_EQ(t.getHour(), h);
    EXPECT_EQ(t.getMinute(), mi);
    EXPECT_EQ(t.getSecond(), s);
}

TEST(DateTime, AddCarriesInOrder) {
    DateTime t(1999, 12, 31, 0, 0, 0);
    t.add(0, 0, 1, 0, 0, 0);
    expectFields(t, 2000, 1, 1, 0, 0, 0);

    DateTime endOfJanuary(2001, 1, 31, 0, 0, 0);
    endOfJanuary.add(0, 1, 0, 0, 0, 0);  // day 31 of February rolls into March
    expectFields(endOfJanuary, 2001, 3, 3, 0, 0, 0);

    DateTime clock(2000, 12, 31, 23, 59, 59);
    clock.add(0, 0, 0, 0, 0, 1);
    expectFields(clock, 2001, 1, 1, 0, 0, 0);

    DateTime months(2000, 11, 15, 0, 0, 0);
    months.add(1, 14, 0, 0, 0, 0);
    expectFields(months, 2003, 1, 15, 0, 0, 0);

    DateTime hours(2000, 2, 28, 20, 0, 0);
    hours.add(0, 0, 0, 30, 0, 0);
    expectFields(hours, 2000, 3, 1, 2, 0, 0);
}

TEST(DateTime, SubBorrowsInOrder) {
    DateTime t(2000, 1, 1, 0, 0, 0);
    t.sub(0, 0, 1, 0, 0, 0);
    expectFields(t, 1999, 12, 31, 0, 0, 0);

    DateTime clock(2000, 3, 1, 0, 0, 0);
    clock.sub(0, 0, 0, 0, 0, 1);
    expectFields(clock, 2000, 2, 29, 23, 59, 59);

    DateTime months(2001, 2, 10, 0, 0, 0);
    months.sub(1, 14, 0, 0, 0, 0);
    expectFields(months, 1998, 12, 10, 0, 0, 0);

    DateTime days(2001, 3, 5, 0, 0, 0);
    days.sub(0, 0, 40, 0, 0, 0);
    expectFields(days, 2001, 1, 24, 0, 0, 0);

    DateTime minutes(2001, 3, 5, 1, 10, 0);
    minutes.sub(0, 0, 0, 0, 130, 0);
    expectFields(minutes, 2001, 3, 4, 23, 0, 0);
}

TEST(DateTime, UnixTimeAndPackedSizes) {
    // Negative stamps are raised to 0, which is 1970-01-01 in local time.
    EXPECT_EQ(Chart::chartTime2(-5), Chart::chartTime2(0));
    EXPECT_EQ(Chart::getChartYMD(Chart::chartTime2(86400 * 2)) / 10000, 1970);

    int packed = Chart::xySize(640, 480);
    EXPECT_EQ((unsigned)packed >> 30, 3u);
    EXPECT_EQ(Chart::getWidthFromWH(packed), 640);
    EXPECT_EQ(Chart::getHeightFromWH(packed), 480);
    EXPECT_EQ(Chart::getWidthFromWH(300), 300);
    EXPECT_EQ(Chart::getHeightFromWH(300), 300);
    EXPECT_EQ(Chart::getWidthFromWH(0x40000000), 0x40000000);  // one top bit is not a pair
}
