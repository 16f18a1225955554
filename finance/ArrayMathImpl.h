#pragma once

#include "finance/ArrayMath.h"

class ArrayMathImpl : public ArrayMath {
public:
    explicit ArrayMathImpl(DoubleArray a);
    ~ArrayMathImpl() override;
    ArrayMathImpl(const ArrayMathImpl &) = delete;
    ArrayMathImpl &operator=(const ArrayMathImpl &) = delete;

    void destroy() override;

    ArrayMath *add(DoubleArray b) override;
    ArrayMath *add2(double b) override;
    ArrayMath *sub(DoubleArray b) override;
    ArrayMath *sub2(double b) override;
    ArrayMath *mul(DoubleArray b) override;
    ArrayMath *mul2(double b) override;
    ArrayMath *div(DoubleArray b) override;
    ArrayMath *div2(double b) override;
    ArrayMath *financeDiv(DoubleArray b, double zeroByZeroValue) override;
    ArrayMath *shift(int offset, double fillValue) override;
    ArrayMath *delta(int offset) override;
    ArrayMath *rate(int offset) override;
    ArrayMath *abs() override;
    ArrayMath *acc() override;

    ArrayMath *selectGTZ(DoubleArray decision, double fillValue) override;
    ArrayMath *selectGEZ(DoubleArray decision, double fillValue) override;
    ArrayMath *selectLTZ(DoubleArray decision, double fillValue) override;
    ArrayMath *selectLEZ(DoubleArray decision, double fillValue) override;
    ArrayMath *selectEQZ(DoubleArray decision, double fillValue) override;
    ArrayMath *selectNEZ(DoubleArray decision, double fillValue) override;

    ArrayMath *selectStartOfSecond(int majorTickStep, double initialMargin) override;
    ArrayMath *selectStartOfMinute(int majorTickStep, double initialMargin) override;
    ArrayMath *selectStartOfHour(int majorTickStep, double initialMargin) override;
    ArrayMath *selectStartOfDay(int majorTickStep, double initialMargin) override;
    ArrayMath *selectStartOfWeek(int majorTickStep, double initialMargin) override;
    ArrayMath *selectStartOfMonth(int majorTickStep, double initialMargin) override;
    ArrayMath *selectStartOfYear(int majorTickStep, double initialMargin) override;
    ArrayMath *selectRegularSpacing(int majorTickStep, int minorTickStep,
                                    int initialMargin) override;

    ArrayMath *trim(int startIndex, int len) override;
    ArrayMath *insert(DoubleArray values, int insertPoint) override;
    ArrayMath *insert2(double value, int count, int insertPoint) override;
    ArrayMath *replace(double a, double b) override;

    ArrayMath *movAvg(int interval) override;
    ArrayMath *expAvg(double smoothingFactor) override;
    ArrayMath *movMed(int interval) override;
    ArrayMath *movPercentile(int interval, double percentile) override;
    ArrayMath *movMax(int interval) override;
    ArrayMath *movMin(int interval) override;
    ArrayMath *movStdDev(int interval) override;
    ArrayMath *movCorr(int interval, DoubleArray b) override;
    ArrayMath *lowess(double smoothness, int iteration) override;
    ArrayMath *lowess2(DoubleArray x, double smoothness, int iteration) override;

    DoubleArray result() const override;
    double max() const override;
    double min() const override;
    double avg() const override;
    double sum() const override;
    double stdDev() const override;
    double med() const override;
    double percentile(double p) const override;
    int maxIndex() const override;
    int minIndex() const override;

    int aggregate(double *src, int srcLen, int method, double param) const override;

private:
    template <class Op>
    ArrayMath *combine(DoubleArray b, Op op);
    template <class Op>
    ArrayMath *combineScalar(double b, Op op);
    template <class Test>
    ArrayMath *select(DoubleArray decision, double fillValue, Test test);
    // Grows the array by count uninitialised items at insertPoint (the end
    // when out of range) and returns where they start.
    double *openGap(int insertPoint, int count);
    void gapsForNaN();

    double *data;
    int len;
};
