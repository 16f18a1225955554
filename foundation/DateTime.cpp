#include "foundation/DateTime.h"

namespace qlx {

static const int kDaysInMonth[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
static const int kDaysBeforeMonth[12] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

static long long daysBeforeYear(long long y1) {
    return 365 * y1 + y1 / 4 - y1 / 100 + y1 / 400;
}

int DateTime::daysInMonth(int y, int m) {
    if (m < 1 || m > 12) return 31;
    return kDaysInMonth[m - 1] + (m == 2 && isLeapYear(y) ? 1 : 0);
}

DateTime::DateTime(long long t) {
    second = (int)(t % 60);
    minute = (int)(t / 60 % 60);
    hour = (int)(t / 3600 % 24);
    long long days = t / 86400;

    // The estimate can only fall short, and by one year at most.
    long long n = (long long)(days / 365.2425);
    year = (int)(n + 1);
    long long rest = days - daysBeforeYear(n);
    int yearLength = isLeapYear(year) ? 366 : 365;
    if (rest >= yearLength) {
        rest -= yearLength;
        ++year;
    }

    int leap = isLeapYear(year) ? 1 : 0;
    month = 1;
    for (int m = 11; m >= 0; --m) {
        int before = kDaysBeforeMonth[m] + (m >= 2 ? leap : 0);
        if (rest >= before) {
            month = m + 1;
            day = (int)(rest - before) + 1;
            break;
        }
    }
}

long long DateTime::getTime() const {
    long long y1 = year - 1;
    long long days = day - 1 + kDaysBeforeMonth[(month - 1 + 1200) % 12] +
                     (month > 2 && isLeapYear(year) ? 1 : 0) + daysBeforeYear(y1);
    return days * 86400 + hour * 3600LL + minute * 60LL + second;
}

int DateTime::getWeekDay(long long t) {
    return (int)((t / 86400 + 1) % 7);
}

int DateTime::getYMD(long long t) {
    DateTime d(t);
    return d.year * 10000 + d.month * 100 + d.day;
}

void DateTime::add(int y, int mo, int d, int h, int mi, int s) {
    month += mo;
    if (month > 12) {
        year += (month - 1) / 12;
        month = (month - 1) % 12 + 1;
    }
    year += y;

    second += s;
    if (second > 59) {
        minute += second / 60;
        second %= 60;
    }
    minute += mi;
    if (minute > 59) {
        hour += minute / 60;
        minute %= 60;
    }
    hour += h;
    if (hour >= 24) {
        day += hour / 24;
        hour %= 24;
    }

    day += d;
    while (day > daysInMonth(year, month)) {
        day -= daysInMonth(year, month);
        if (++month > 12) {
            month = 1;
            ++year;
        }
    }
}

// Subtracts amount from field, borrowing whole units from the next larger field.
static void borrow(int &field, int &larger, int amount, int unit) {
    field -= amount;
    if (field < 0) {
        int units = (-field + unit - 1) / unit;
        field += units * unit;
        larger -= units;
    }
}

void DateTime::sub(int y, int mo, int d, int h, int mi, int s) {
    borrow(second, minute, s, 60);
    borrow(minute, hour, mi, 60);
    borrow(hour, day, h, 24);

    day -= d;
    while (day <= 0) {
        if (--month < 1) {
            month = 12;
            --year;
        }
        day += daysInMonth(year, month);
    }

    month -= mo;
    if (month < 1) {
        int years = (12 - month) / 12;
        month += years * 12;
        year -= years;
    }
    year -= y;
}

}  // namespace qlx
