#pragma once

#include "api/CArrayMath.h"
#include "host/abc/VSObject.h"
#include "host/abc/Views.h"

namespace abc {

// The array calculator; the wrapper owns the engine object.  Changing
// operations return this wrapper so that calls chain.
class ArrayMath : public VSObject {
public:
    explicit ArrayMath(CArrayMath *handle) : handle(handle) {}
    ~ArrayMath() override { CArrayMath_destroy(handle); }
    ArrayMath(const ArrayMath &) = delete;
    ArrayMath &operator=(const ArrayMath &) = delete;

    // Copies the numbers; null if the engine made nothing.
    static ArrayMath *create(DoubleArray a);

    CArrayMath *getHandle() const { return handle; }

    ArrayMath *add(DoubleArray b) { return chain(CArrayMath_add(handle, b.data, b.len)); }
    ArrayMath *add2(double b) { return chain(CArrayMath_add2(handle, b)); }
    ArrayMath *sub(DoubleArray b) { return chain(CArrayMath_sub(handle, b.data, b.len)); }
    ArrayMath *sub2(double b) { return chain(CArrayMath_sub2(handle, b)); }
    ArrayMath *mul(DoubleArray b) { return chain(CArrayMath_mul(handle, b.data, b.len)); }
    ArrayMath *mul2(double b) { return chain(CArrayMath_mul2(handle, b)); }
    ArrayMath *div(DoubleArray b) { return chain(CArrayMath_div(handle, b.data, b.len)); }
    ArrayMath *div2(double b) { return chain(CArrayMath_div2(handle, b)); }
    ArrayMath *financeDiv(DoubleArray b, double zeroByZeroValue) {
        return chain(CArrayMath_financeDiv(handle, b.data, b.len, zeroByZeroValue));
    }
    ArrayMath *shift(int offset, double fillValue) {
        return chain(CArrayMath_shift(handle, offset, fillValue));
    }
    ArrayMath *delta(int offset) { return chain(CArrayMath_delta(handle, offset)); }
    ArrayMath *rate(int offset) { return chain(CArrayMath_rate(handle, offset)); }
    ArrayMath *abs() { return chain(CArrayMath_abs(handle)); }
    ArrayMath *acc() { return chain(CArrayMath_acc(handle)); }

    ArrayMath *selectGTZ(DoubleArray d, double fill) {
        return chain(CArrayMath_selectGTZ(handle, d.data, d.len, fill));
    }
    ArrayMath *selectGEZ(DoubleArray d, double fill) {
        return chain(CArrayMath_selectGEZ(handle, d.data, d.len, fill));
    }
    ArrayMath *selectLTZ(DoubleArray d, double fill) {
        return chain(CArrayMath_selectLTZ(handle, d.data, d.len, fill));
    }
    ArrayMath *selectLEZ(DoubleArray d, double fill) {
        return chain(CArrayMath_selectLEZ(handle, d.data, d.len, fill));
    }
    ArrayMath *selectEQZ(DoubleArray d, double fill) {
        return chain(CArrayMath_selectEQZ(handle, d.data, d.len, fill));
    }
    ArrayMath *selectNEZ(DoubleArray d, double fill) {
        return chain(CArrayMath_selectNEZ(handle, d.data, d.len, fill));
    }
    ArrayMath *selectStartOfSecond(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfSecond(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectStartOfMinute(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfMinute(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectStartOfHour(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfHour(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectStartOfDay(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfDay(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectStartOfWeek(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfWeek(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectStartOfMonth(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfMonth(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectStartOfYear(int majorTickStep, double initialMargin) {
        return chain(CArrayMath_selectStartOfYear(handle, majorTickStep, initialMargin));
    }
    ArrayMath *selectRegularSpacing(int majorTickStep, int minorTickStep, int initialMargin) {
        return chain(
            CArrayMath_selectRegularSpacing(handle, majorTickStep, minorTickStep, initialMargin));
    }

    ArrayMath *trim(int startIndex, int len) {
        return chain(CArrayMath_trim(handle, startIndex, len));
    }
    ArrayMath *insert(DoubleArray values, int insertPoint) {
        return chain(CArrayMath_insert(handle, values.data, values.len, insertPoint));
    }
    ArrayMath *insert2(double value, int count, int insertPoint) {
        return chain(CArrayMath_insert2(handle, value, count, insertPoint));
    }
    ArrayMath *replace(double from, double to) {
        return chain(CArrayMath_replace(handle, from, to));
    }

    ArrayMath *movAvg(int interval) { return chain(CArrayMath_movAvg(handle, interval)); }
    ArrayMath *expAvg(double smoothingFactor) {
        return chain(CArrayMath_expAvg(handle, smoothingFactor));
    }
    ArrayMath *movMed(int interval) { return chain(CArrayMath_movMed(handle, interval)); }
    ArrayMath *movPercentile(int interval, double percentile) {
        return chain(CArrayMath_movPercentile(handle, interval, percentile));
    }
    ArrayMath *movMax(int interval) { return chain(CArrayMath_movMax(handle, interval)); }
    ArrayMath *movMin(int interval) { return chain(CArrayMath_movMin(handle, interval)); }
    ArrayMath *movStdDev(int interval) { return chain(CArrayMath_movStdDev(handle, interval)); }
    ArrayMath *movCorr(int interval, DoubleArray b) {
        return chain(CArrayMath_movCorr(handle, interval, b.data, b.len));
    }
    ArrayMath *lowess(double smoothness, int iteration) {
        return chain(CArrayMath_lowess(handle, smoothness, iteration));
    }
    ArrayMath *lowess2(DoubleArray x, double smoothness, int iteration) {
        return chain(CArrayMath_lowess2(handle, x.data, x.len, smoothness, iteration));
    }

    // Valid until the next changing call.
    DoubleArray result() {
        DoubleArray r = {0, nullptr};
        CArrayMath_result(handle, &r.data, &r.len);
        return r;
    }
    double max() { return CArrayMath_max(handle); }
    double min() { return CArrayMath_min(handle); }
    double avg() { return CArrayMath_avg(handle); }
    double sum() { return CArrayMath_sum(handle); }
    double stdDev() { return CArrayMath_stdDev(handle); }
    double med() { return CArrayMath_med(handle); }
    double percentile(double p) { return CArrayMath_percentile(handle, p); }
    int maxIndex() { return CArrayMath_maxIndex(handle); }
    int minIndex() { return CArrayMath_minIndex(handle); }
    int aggregate(double *src, int srcLen, int method, double param) {
        return CArrayMath_aggregate(handle, src, srcLen, method, param);
    }

private:
    // The engine hands back the same object; a null means it had none.
    ArrayMath *chain(CArrayMath *same) { return same ? this : nullptr; }

    CArrayMath *handle;
};

}  // namespace abc
