#pragma once

#include "foundation/ArrayViews.h"

// The moving and lagged operations, in place on a[0..len). Gaps keep their
// cell and never advance a window; a real value whose window is not yet full
// becomes kNoValue.
namespace ArrayMathWindows {

// Windows of `interval` real values; an interval below 2 changes nothing.
void movAvg(double *a, int len, int interval);
void movStdDev(double *a, int len, int interval);
void movMax(double *a, int len, int interval);
void movMin(double *a, int len, int interval);
void movPercentile(double *a, int len, int interval, double percentile);
// Pearson correlation with b, or with the index sequence when b is empty.
void movCorr(double *a, int len, int interval, DoubleArray b);

void expAvg(double *a, int len, double smoothingFactor);

// Compare each real value with the one `offset` real places back; an offset
// below 1 changes nothing.
void delta(double *a, int len, int offset);
void rate(double *a, int len, int offset);
void shift(double *a, int len, int offset, double fillValue);

}  // namespace ArrayMathWindows
