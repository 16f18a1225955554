#include "foundation/ChartStatics.h"

#include <ctime>

#include "foundation/BSearch.h"
#include "foundation/DateTime.h"

namespace Chart {

double chartTime(int y, int m, int d, int h, int mi, int s) {
    return (double)qlx::DateTime(y, m, d, h, mi, s).getTime();
}

double chartTime2(int unixTime) {
    time_t t = unixTime < 0 ? 0 : unixTime;
    struct tm fields;
    if (!localtime_r(&t, &fields)) return 0;
    return chartTime(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour,
                     fields.tm_min, fields.tm_sec);
}

int getChartYMD(double t) {
    return qlx::DateTime::getYMD((long long)t);
}

int getChartWeekDay(double t) {
    return qlx::DateTime::getWeekDay((long long)t);
}

int xySize(int w, int h) {
    return (int)((unsigned)(h & 0x7FFF) | ((unsigned)(w & 0x7FFF) << 15) | 0xC0000000u);
}

static bool isPackedSize(int v) {
    return ((unsigned)v & 0xC0000000u) == 0xC0000000u;
}

int getWidthFromWH(int v) {
    return isPackedSize(v) ? (int)(((unsigned)v >> 15) & 0x7FFF) : v;
}

int getHeightFromWH(int v) {
    return isPackedSize(v) ? (v & 0x7FFF) : v;
}

double bSearch(DoubleArray a, double v) {
    return qlx::bSearch(a.data, a.len, v);
}

}  // namespace Chart
