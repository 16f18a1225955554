#include "api/CArrayMath.h"

#include "api/Handles.h"
#include "finance/ArrayMath.h"

using vistrel_api::A;
using vistrel_api::H;
using vistrel_api::putView;

CArrayMath *CArrayMath_create(const double *data, int len) {
    return H(ArrayMath::create(DoubleArray(data, len)));
}
void CArrayMath_destroy(CArrayMath *a) {
    if (a) A(a)->destroy();
}
double CArrayMath_max2(const double *data, int len) {
    return ArrayMath::max(DoubleArray(data, len));
}
double CArrayMath_min2(const double *data, int len) {
    return ArrayMath::min(DoubleArray(data, len));
}

CArrayMath *CArrayMath_add(CArrayMath *a, const double *b, int len) {
    return a ? H(A(a)->add(DoubleArray(b, len))) : nullptr;
}
CArrayMath *CArrayMath_add2(CArrayMath *a, double b) {
    return a ? H(A(a)->add2(b)) : nullptr;
}
CArrayMath *CArrayMath_sub(CArrayMath *a, const double *b, int len) {
    return a ? H(A(a)->sub(DoubleArray(b, len))) : nullptr;
}
CArrayMath *CArrayMath_sub2(CArrayMath *a, double b) {
    return a ? H(A(a)->sub2(b)) : nullptr;
}
CArrayMath *CArrayMath_mul(CArrayMath *a, const double *b, int len) {
    return a ? H(A(a)->mul(DoubleArray(b, len))) : nullptr;
}
CArrayMath *CArrayMath_mul2(CArrayMath *a, double b) {
    return a ? H(A(a)->mul2(b)) : nullptr;
}
CArrayMath *CArrayMath_div(CArrayMath *a, const double *b, int len) {
    return a ? H(A(a)->div(DoubleArray(b, len))) : nullptr;
}
CArrayMath *CArrayMath_div2(CArrayMath *a, double b) {
    return a ? H(A(a)->div2(b)) : nullptr;
}
CArrayMath *CArrayMath_financeDiv(CArrayMath *a, const double *b, int len, double zeroByZeroValue) {
    return a ? H(A(a)->financeDiv(DoubleArray(b, len), zeroByZeroValue)) : nullptr;
}
CArrayMath *CArrayMath_shift(CArrayMath *a, int offset, double fillValue) {
    return a ? H(A(a)->shift(offset, fillValue)) : nullptr;
}
CArrayMath *CArrayMath_delta(CArrayMath *a, int offset) {
    return a ? H(A(a)->delta(offset)) : nullptr;
}
CArrayMath *CArrayMath_rate(CArrayMath *a, int offset) {
    return a ? H(A(a)->rate(offset)) : nullptr;
}
CArrayMath *CArrayMath_abs(CArrayMath *a) {
    return a ? H(A(a)->abs()) : nullptr;
}
CArrayMath *CArrayMath_acc(CArrayMath *a) {
    return a ? H(A(a)->acc()) : nullptr;
}

CArrayMath *CArrayMath_selectGTZ(CArrayMath *a, const double *decision, int len, double fillValue) {
    return a ? H(A(a)->selectGTZ(DoubleArray(decision, len), fillValue)) : nullptr;
}
CArrayMath *CArrayMath_selectGEZ(CArrayMath *a, const double *decision, int len, double fillValue) {
    return a ? H(A(a)->selectGEZ(DoubleArray(decision, len), fillValue)) : nullptr;
}
CArrayMath *CArrayMath_selectLTZ(CArrayMath *a, const double *decision, int len, double fillValue) {
    return a ? H(A(a)->selectLTZ(DoubleArray(decision, len), fillValue)) : nullptr;
}
CArrayMath *CArrayMath_selectLEZ(CArrayMath *a, const double *decision, int len, double fillValue) {
    return a ? H(A(a)->selectLEZ(DoubleArray(decision, len), fillValue)) : nullptr;
}
CArrayMath *CArrayMath_selectEQZ(CArrayMath *a, const double *decision, int len, double fillValue) {
    return a ? H(A(a)->selectEQZ(DoubleArray(decision, len), fillValue)) : nullptr;
}
CArrayMath *CArrayMath_selectNEZ(CArrayMath *a, const double *decision, int len, double fillValue) {
    return a ? H(A(a)->selectNEZ(DoubleArray(decision, len), fillValue)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfSecond(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfSecond(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfMinute(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfMinute(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfHour(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfHour(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfDay(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfDay(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfWeek(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfWeek(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfMonth(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfMonth(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectStartOfYear(CArrayMath *a, int majorTickStep, double initialMargin) {
    return a ? H(A(a)->selectStartOfYear(majorTickStep, initialMargin)) : nullptr;
}
CArrayMath *CArrayMath_selectRegularSpacing(CArrayMath *a, int majorTickStep, int minorTickStep,
                                            int initialMargin) {
    return a ? H(A(a)->selectRegularSpacing(majorTickStep, minorTickStep, initialMargin)) : nullptr;
}

CArrayMath *CArrayMath_trim(CArrayMath *a, int startIndex, int len) {
    return a ? H(A(a)->trim(startIndex, len)) : nullptr;
}
CArrayMath *CArrayMath_insert(CArrayMath *a, const double *values, int len, int insertPoint) {
    return a ? H(A(a)->insert(DoubleArray(values, len), insertPoint)) : nullptr;
}
CArrayMath *CArrayMath_insert2(CArrayMath *a, double value, int count, int insertPoint) {
    return a ? H(A(a)->insert2(value, count, insertPoint)) : nullptr;
}
CArrayMath *CArrayMath_replace(CArrayMath *a, double from, double to) {
    return a ? H(A(a)->replace(from, to)) : nullptr;
}

CArrayMath *CArrayMath_movAvg(CArrayMath *a, int interval) {
    return a ? H(A(a)->movAvg(interval)) : nullptr;
}
CArrayMath *CArrayMath_expAvg(CArrayMath *a, double smoothingFactor) {
    return a ? H(A(a)->expAvg(smoothingFactor)) : nullptr;
}
CArrayMath *CArrayMath_movMed(CArrayMath *a, int interval) {
    return a ? H(A(a)->movMed(interval)) : nullptr;
}
CArrayMath *CArrayMath_movPercentile(CArrayMath *a, int interval, double percentile) {
    return a ? H(A(a)->movPercentile(interval, percentile)) : nullptr;
}
CArrayMath *CArrayMath_movMax(CArrayMath *a, int interval) {
    return a ? H(A(a)->movMax(interval)) : nullptr;
}
CArrayMath *CArrayMath_movMin(CArrayMath *a, int interval) {
    return a ? H(A(a)->movMin(interval)) : nullptr;
}
CArrayMath *CArrayMath_movStdDev(CArrayMath *a, int interval) {
    return a ? H(A(a)->movStdDev(interval)) : nullptr;
}
CArrayMath *CArrayMath_movCorr(CArrayMath *a, int interval, const double *b, int len) {
    return a ? H(A(a)->movCorr(interval, DoubleArray(b, len))) : nullptr;
}
CArrayMath *CArrayMath_lowess(CArrayMath *a, double smoothness, int iteration) {
    return a ? H(A(a)->lowess(smoothness, iteration)) : nullptr;
}
CArrayMath *CArrayMath_lowess2(CArrayMath *a, const double *x, int len, double smoothness,
                               int iteration) {
    return a ? H(A(a)->lowess2(DoubleArray(x, len), smoothness, iteration)) : nullptr;
}

void CArrayMath_result(CArrayMath *a, const double **data, int *len) {
    putView(a ? A(a)->result() : DoubleArray(), data, len);
}
double CArrayMath_max(CArrayMath *a) {
    return a ? A(a)->max() : 0;
}
double CArrayMath_min(CArrayMath *a) {
    return a ? A(a)->min() : 0;
}
double CArrayMath_avg(CArrayMath *a) {
    return a ? A(a)->avg() : 0;
}
double CArrayMath_sum(CArrayMath *a) {
    return a ? A(a)->sum() : 0;
}
double CArrayMath_stdDev(CArrayMath *a) {
    return a ? A(a)->stdDev() : 0;
}
double CArrayMath_med(CArrayMath *a) {
    return a ? A(a)->med() : 0;
}
double CArrayMath_percentile(CArrayMath *a, double p) {
    return a ? A(a)->percentile(p) : 0;
}
int CArrayMath_maxIndex(CArrayMath *a) {
    return a ? A(a)->maxIndex() : -1;
}
int CArrayMath_minIndex(CArrayMath *a) {
    return a ? A(a)->minIndex() : -1;
}
int CArrayMath_aggregate(CArrayMath *a, double *src, int srcLen, int method, double param) {
    if (!a || !src || srcLen <= 0) return src && srcLen > 0 ? srcLen : 0;
    return A(a)->aggregate(src, srcLen, method, param);
}
