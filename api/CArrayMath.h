#pragma once

/* The array calculator.  Every changing operation returns its handle so that
   calls chain; a view from CArrayMath_result dies with the next changing call.
   A null handle is ignored and reads as 0 (null for the changing operations). */

#include "api/CTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CArrayMath *CArrayMath_create(const double *data, int len);
void CArrayMath_destroy(CArrayMath *a);
/* Largest and smallest item of a plain array, gaps skipped. */
double CArrayMath_max2(const double *data, int len);
double CArrayMath_min2(const double *data, int len);

CArrayMath *CArrayMath_add(CArrayMath *a, const double *b, int len);
CArrayMath *CArrayMath_add2(CArrayMath *a, double b);
CArrayMath *CArrayMath_sub(CArrayMath *a, const double *b, int len);
CArrayMath *CArrayMath_sub2(CArrayMath *a, double b);
CArrayMath *CArrayMath_mul(CArrayMath *a, const double *b, int len);
CArrayMath *CArrayMath_mul2(CArrayMath *a, double b);
CArrayMath *CArrayMath_div(CArrayMath *a, const double *b, int len);
CArrayMath *CArrayMath_div2(CArrayMath *a, double b);
CArrayMath *CArrayMath_financeDiv(CArrayMath *a, const double *b, int len, double zeroByZeroValue);
CArrayMath *CArrayMath_shift(CArrayMath *a, int offset, double fillValue);
CArrayMath *CArrayMath_delta(CArrayMath *a, int offset);
CArrayMath *CArrayMath_rate(CArrayMath *a, int offset);
CArrayMath *CArrayMath_abs(CArrayMath *a);
CArrayMath *CArrayMath_acc(CArrayMath *a);

CArrayMath *CArrayMath_selectGTZ(CArrayMath *a, const double *decision, int len, double fillValue);
CArrayMath *CArrayMath_selectGEZ(CArrayMath *a, const double *decision, int len, double fillValue);
CArrayMath *CArrayMath_selectLTZ(CArrayMath *a, const double *decision, int len, double fillValue);
CArrayMath *CArrayMath_selectLEZ(CArrayMath *a, const double *decision, int len, double fillValue);
CArrayMath *CArrayMath_selectEQZ(CArrayMath *a, const double *decision, int len, double fillValue);
CArrayMath *CArrayMath_selectNEZ(CArrayMath *a, const double *decision, int len, double fillValue);
CArrayMath *CArrayMath_selectStartOfSecond(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectStartOfMinute(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectStartOfHour(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectStartOfDay(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectStartOfWeek(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectStartOfMonth(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectStartOfYear(CArrayMath *a, int majorTickStep, double initialMargin);
CArrayMath *CArrayMath_selectRegularSpacing(CArrayMath *a, int majorTickStep, int minorTickStep,
                                            int initialMargin);

CArrayMath *CArrayMath_trim(CArrayMath *a, int startIndex, int len);
CArrayMath *CArrayMath_insert(CArrayMath *a, const double *values, int len, int insertPoint);
CArrayMath *CArrayMath_insert2(CArrayMath *a, double value, int count, int insertPoint);
CArrayMath *CArrayMath_replace(CArrayMath *a, double from, double to);

CArrayMath *CArrayMath_movAvg(CArrayMath *a, int interval);
CArrayMath *CArrayMath_expAvg(CArrayMath *a, double smoothingFactor);
CArrayMath *CArrayMath_movMed(CArrayMath *a, int interval);
CArrayMath *CArrayMath_movPercentile(CArrayMath *a, int interval, double percentile);
CArrayMath *CArrayMath_movMax(CArrayMath *a, int interval);
CArrayMath *CArrayMath_movMin(CArrayMath *a, int interval);
CArrayMath *CArrayMath_movStdDev(CArrayMath *a, int interval);
CArrayMath *CArrayMath_movCorr(CArrayMath *a, int interval, const double *b, int len);
CArrayMath *CArrayMath_lowess(CArrayMath *a, double smoothness, int iteration);
CArrayMath *CArrayMath_lowess2(CArrayMath *a, const double *x, int len, double smoothness,
                               int iteration);

void CArrayMath_result(CArrayMath *a, const double **data, int *len);
double CArrayMath_max(CArrayMath *a);
double CArrayMath_min(CArrayMath *a);
double CArrayMath_avg(CArrayMath *a);
double CArrayMath_sum(CArrayMath *a);
double CArrayMath_stdDev(CArrayMath *a);
double CArrayMath_med(CArrayMath *a);
double CArrayMath_percentile(CArrayMath *a, double p);
int CArrayMath_maxIndex(CArrayMath *a);
int CArrayMath_minIndex(CArrayMath *a);
/* Reduces src in place, one result per group of a's keys; returns its new length. */
int CArrayMath_aggregate(CArrayMath *a, double *src, int srcLen, int method, double param);

#ifdef __cplusplus
}
#endif
