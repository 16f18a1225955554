#pragma once

#include "foundation/ArrayViews.h"

// How aggregate() reduces each group; numbers above kAggregateCount average.
enum AggregateMethod {
    kAggregateSum = 0,
    kAggregateAvg = 1,
    kAggregateStdDev = 2,
    kAggregateMin = 3,
    kAggregateMed = 4,
    kAggregateMax = 5,
    kAggregatePercentile = 6,
    kAggregateFirst = 7,
    kAggregateLast = 8,
    kAggregateCount = 9,
};

// A calculator on one owned series of doubles. kNoValue (and NaN) mark gaps:
// gaps never enter a sum and windows count only real values. Every changing
// operation works in place and returns this object so that calls chain; a view
// from result() dies with the next changing call.
class ArrayMath {
public:
    // Copies the view; NaN is stored as kNoValue.
    static ArrayMath *create(DoubleArray a);
    static double max(DoubleArray a);
    static double min(DoubleArray a);

    virtual ~ArrayMath() {}
    virtual void destroy() = 0;

    virtual ArrayMath *add(DoubleArray b) = 0;
    virtual ArrayMath *add2(double b) = 0;
    virtual ArrayMath *sub(DoubleArray b) = 0;
    virtual ArrayMath *sub2(double b) = 0;
    virtual ArrayMath *mul(DoubleArray b) = 0;
    virtual ArrayMath *mul2(double b) = 0;
    virtual ArrayMath *div(DoubleArray b) = 0;
    virtual ArrayMath *div2(double b) = 0;
    // As div, but x / 0 is a gap and 0 / 0 is zeroByZeroValue.
    virtual ArrayMath *financeDiv(DoubleArray b, double zeroByZeroValue) = 0;
    virtual ArrayMath *shift(int offset, double fillValue) = 0;
    virtual ArrayMath *delta(int offset) = 0;
    virtual ArrayMath *rate(int offset) = 0;
    virtual ArrayMath *abs() = 0;
    virtual ArrayMath *acc() = 0;

    // An empty decision array makes the series test itself.
    virtual ArrayMath *selectGTZ(DoubleArray decision, double fillValue) = 0;
    virtual ArrayMath *selectGEZ(DoubleArray decision, double fillValue) = 0;
    virtual ArrayMath *selectLTZ(DoubleArray decision, double fillValue) = 0;
    virtual ArrayMath *selectLEZ(DoubleArray decision, double fillValue) = 0;
    virtual ArrayMath *selectEQZ(DoubleArray decision, double fillValue) = 0;
    virtual ArrayMath *selectNEZ(DoubleArray decision, double fillValue) = 0;

    // Turn chart times into a tick table: major ticks keep their time, the
    // others become kMinorTickOnly or kNoValue.
    virtual ArrayMath *selectStartOfSecond(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectStartOfMinute(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectStartOfHour(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectStartOfDay(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectStartOfWeek(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectStartOfMonth(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectStartOfYear(int majorTickStep, double initialMargin) = 0;
    virtual ArrayMath *selectRegularSpacing(int majorTickStep, int minorTickStep,
                                            int initialMargin) = 0;

    virtual ArrayMath *trim(int startIndex, int len) = 0;
    virtual ArrayMath *insert(DoubleArray values, int insertPoint) = 0;
    virtual ArrayMath *insert2(double value, int count, int insertPoint) = 0;
    virtual ArrayMath *replace(double a, double b) = 0;

    virtual ArrayMath *movAvg(int interval) = 0;
    virtual ArrayMath *expAvg(double smoothingFactor) = 0;
    virtual ArrayMath *movMed(int interval) = 0;
    virtual ArrayMath *movPercentile(int interval, double percentile) = 0;
    virtual ArrayMath *movMax(int interval) = 0;
    virtual ArrayMath *movMin(int interval) = 0;
    virtual ArrayMath *movStdDev(int interval) = 0;
    // An empty b correlates with the index sequence.
    virtual ArrayMath *movCorr(int interval, DoubleArray b) = 0;
    virtual ArrayMath *lowess(double smoothness, int iteration) = 0;
    // Robust local regression of the series on an ascending x.
    virtual ArrayMath *lowess2(DoubleArray x, double smoothness, int iteration) = 0;

    virtual DoubleArray result() const = 0;
    virtual double max() const = 0;
    virtual double min() const = 0;
    virtual double avg() const = 0;
    virtual double sum() const = 0;
    virtual double stdDev() const = 0;
    virtual double med() const = 0;
    virtual double percentile(double p) const = 0;
    virtual int maxIndex() const = 0;
    virtual int minIndex() const = 0;

    // Reduces src in place, one result per group of this series' keys, and
    // returns its new length. Items of src past this series stay behind.
    virtual int aggregate(double *src, int srcLen, int method, double param) const = 0;
};
