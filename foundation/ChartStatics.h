#pragma once

#include "foundation/ArrayViews.h"

// Statics of the public Chart class that need nothing but the foundation.
namespace Chart {

double chartTime(int y, int m, int d, int h, int mi, int s);
// Unix time stamp read as local civil time; negative stamps are raised to 0.
double chartTime2(int unixTime);
int getChartYMD(double t);
int getChartWeekDay(double t);

// Width and height packed into one int with the two top bits set.
int xySize(int w, int h);
int getWidthFromWH(int v);
int getHeightFromWH(int v);

// Fractional index of v in an ascending array; -1 when empty.
double bSearch(DoubleArray a, double v);

}  // namespace Chart
