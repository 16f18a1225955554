#pragma once

namespace qlx {

// Calendar fields of a chart time: seconds since January 1 of year 1 of the
// proleptic Gregorian calendar (a Monday), no time zone.  Fields are not checked.
class DateTime {
public:
    DateTime(int y, int m, int d, int h, int mi, int s)
        : year(y), month(m), day(d), hour(h), minute(mi), second(s) {}
    explicit DateTime(long long t);

    int getYear() const { return year; }
    int getMonth() const { return month; }
    int getDay() const { return day; }
    int getHour() const { return hour; }
    int getMinute() const { return minute; }
    int getSecond() const { return second; }

    long long getTime() const;
    int getWeekDay() const { return getWeekDay(getTime()); }
    // 0 for Sunday to 6 for Saturday.
    static int getWeekDay(long long t);
    // year * 10000 + month * 100 + day.
    static int getYMD(long long t);

    // Moves forward; only positive amounts are normalised.
    void add(int y, int mo, int d, int h, int mi, int s);
    // Moves back, the mirror of add().
    void sub(int y, int mo, int d, int h, int mi, int s);

    static bool isLeapYear(int y) { return y % 400 == 0 || (y % 4 == 0 && y % 100 != 0); }
    static int daysInMonth(int y, int m);

private:
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
};

}  // namespace qlx
