#include "finance/ArrayMathImpl.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <new>
#include <vector>

#include "finance/ArrayMathAggregate.h"
#include "finance/ArrayMathLowess.h"
#include "finance/ArrayMathStats.h"
#include "finance/ArrayMathTicks.h"
#include "finance/ArrayMathWindows.h"
#include "foundation/Constants.h"

using ArrayMathStats::gapForNaN;
using ArrayMathStats::isGap;

namespace {

const double kMaxStart = -1.7e308;
const double kMinStart = 1.7e308;

// First index of the best real value, -1 if there is none.
template <class Better>
int extremeIndex(const double *a, int len, Better better) {
    int found = -1;
    for (int i = 0; i < len; ++i) {
        if (!isGap(a[i]) && (found < 0 || better(a[i], a[found]))) found = i;
    }
    return found;
}

template <class Better>
double extremeValue(const double *a, int len, double start, Better better) {
    double best = start;
    for (int i = 0; i < len; ++i) {
        if (!isGap(a[i]) && better(a[i], best)) best = a[i];
    }
    return best;
}

int joinedLength(int len, int added) {
    if (added > INT_MAX - len) throw std::bad_alloc();
    return len + added;
}

}  // namespace

ArrayMath *ArrayMath::create(DoubleArray a) {
    return new ArrayMathImpl(a);
}

double ArrayMath::max(DoubleArray a) {
    return extremeValue(a.data, a.len, kMaxStart, std::greater<double>());
}

double ArrayMath::min(DoubleArray a) {
    return extremeValue(a.data, a.len, kMinStart, std::less<double>());
}

ArrayMathImpl::ArrayMathImpl(DoubleArray a) : data(nullptr), len(0) {
    if (a.len <= 0 || !a.data) return;
    data = new double[a.len];
    len = a.len;
    for (int i = 0; i < len; ++i) data[i] = gapForNaN(a.data[i]);
}

ArrayMathImpl::~ArrayMathImpl() {
    delete[] data;
}

void ArrayMathImpl::destroy() {
    delete this;
}

// ---- element-wise arithmetic ----

template <class Op>
ArrayMath *ArrayMathImpl::combine(DoubleArray b, Op op) {
    int n = std::min(len, b.len);
    for (int i = 0; i < n; ++i) {
        double x = data[i];
        double y = b.data[i];
        data[i] = isGap(x) || isGap(y) ? kNoValue : op(x, y);
    }
    return this;
}

template <class Op>
ArrayMath *ArrayMathImpl::combineScalar(double b, Op op) {
    bool gap = isGap(b);
    for (int i = 0; i < len; ++i) {
        double x = data[i];
        data[i] = gap || isGap(x) ? kNoValue : op(x, b);
    }
    return this;
}

namespace {
const auto kAdd = [](double x, double y) { return x + y; };
const auto kSub = [](double x, double y) { return x - y; };
const auto kMul = [](double x, double y) { return x * y; };
const auto kDiv = [](double x, double y) { return x / y; };
}  // namespace

ArrayMath *ArrayMathImpl::add(DoubleArray b) {
    return combine(b, kAdd);
}
ArrayMath *ArrayMathImpl::add2(double b) {
    return combineScalar(b, kAdd);
}
ArrayMath *ArrayMathImpl::sub(DoubleArray b) {
    return combine(b, kSub);
}
ArrayMath *ArrayMathImpl::sub2(double b) {
    return combineScalar(b, kSub);
}
ArrayMath *ArrayMathImpl::mul(DoubleArray b) {
    return combine(b, kMul);
}
ArrayMath *ArrayMathImpl::mul2(double b) {
    return combineScalar(b, kMul);
}
ArrayMath *ArrayMathImpl::div(DoubleArray b) {
    return combine(b, kDiv);
}
ArrayMath *ArrayMathImpl::div2(double b) {
    return combineScalar(b, kDiv);
}

ArrayMath *ArrayMathImpl::financeDiv(DoubleArray b, double zeroByZeroValue) {
    double neutral = gapForNaN(zeroByZeroValue);
    return combine(b, [neutral](double x, double y) {
        if (y == 0) return x != 0 ? kNoValue : neutral;
        return x / y;
    });
}

ArrayMath *ArrayMathImpl::abs() {
    for (int i = 0; i < len; ++i) {
        if (!isGap(data[i])) data[i] = std::fabs(data[i]);
    }
    return this;
}

ArrayMath *ArrayMathImpl::acc() {
    double total = 0;
    for (int i = 0; i < len; ++i) {
        if (isGap(data[i])) continue;
        total += data[i];
        data[i] = total;
    }
    return this;
}

ArrayMath *ArrayMathImpl::replace(double a, double b) {
    a = gapForNaN(a);
    b = gapForNaN(b);
    for (int i = 0; i < len; ++i) {
        if (data[i] == a) data[i] = b;
    }
    return this;
}

// ---- lagged and moving windows ----

ArrayMath *ArrayMathImpl::shift(int offset, double fillValue) {
    ArrayMathWindows::shift(data, len, offset, fillValue);
    return this;
}

ArrayMath *ArrayMathImpl::delta(int offset) {
    ArrayMathWindows::delta(data, len, offset);
    return this;
}

ArrayMath *ArrayMathImpl::rate(int offset) {
    ArrayMathWindows::rate(data, len, offset);
    return this;
}

ArrayMath *ArrayMathImpl::movAvg(int interval) {
    ArrayMathWindows::movAvg(data, len, interval);
    return this;
}

ArrayMath *ArrayMathImpl::expAvg(double smoothingFactor) {
    ArrayMathWindows::expAvg(data, len, smoothingFactor);
    return this;
}

ArrayMath *ArrayMathImpl::movMed(int interval) {
    return movPercentile(interval, 50);
}

ArrayMath *ArrayMathImpl::movPercentile(int interval, double percentile) {
    ArrayMathWindows::movPercentile(data, len, interval, percentile);
    return this;
}

ArrayMath *ArrayMathImpl::movMax(int interval) {
    ArrayMathWindows::movMax(data, len, interval);
    return this;
}

ArrayMath *ArrayMathImpl::movMin(int interval) {
    ArrayMathWindows::movMin(data, len, interval);
    return this;
}

ArrayMath *ArrayMathImpl::movStdDev(int interval) {
    ArrayMathWindows::movStdDev(data, len, interval);
    return this;
}

ArrayMath *ArrayMathImpl::movCorr(int interval, DoubleArray b) {
    ArrayMathWindows::movCorr(data, len, interval, b);
    return this;
}

// ---- selections ----

template <class Test>
ArrayMath *ArrayMathImpl::select(DoubleArray decision, double fillValue, Test test) {
    // Without a decision array the series decides for itself; item i is read
    // before it is written, so testing in place is safe.
    if (decision.len <= 0) decision = DoubleArray(data, len);
    double fill = gapForNaN(fillValue);
    int n = std::min(len, decision.len);
    for (int i = 0; i < n; ++i) {
        double d = decision.data[i];
        if (isGap(data[i]) || isGap(d)) {
            data[i] = kNoValue;
        } else if (!test(d)) {
            data[i] = fill;
        }
    }
    return this;
}

ArrayMath *ArrayMathImpl::selectGTZ(DoubleArray decision, double fillValue) {
    return select(decision, fillValue, [](double d) { return d > 0; });
}

ArrayMath *ArrayMathImpl::selectGEZ(DoubleArray decision, double fillValue) {
    return select(decision, fillValue, [](double d) { return d >= 0; });
}

ArrayMath *ArrayMathImpl::selectLTZ(DoubleArray decision, double fillValue) {
    return select(decision, fillValue, [](double d) { return d < 0; });
}

ArrayMath *ArrayMathImpl::selectLEZ(DoubleArray decision, double fillValue) {
    return select(decision, fillValue, [](double d) { return d <= 0; });
}

ArrayMath *ArrayMathImpl::selectEQZ(DoubleArray decision, double fillValue) {
    return select(decision, fillValue, [](double d) { return d == 0; });
}

ArrayMath *ArrayMathImpl::selectNEZ(DoubleArray decision, double fillValue) {
    return select(decision, fillValue, [](double d) { return d != 0; });
}

ArrayMath *ArrayMathImpl::selectStartOfSecond(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kSecondPeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectStartOfMinute(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kMinutePeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectStartOfHour(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kHourPeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectStartOfDay(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kDayPeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectStartOfWeek(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kWeekPeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectStartOfMonth(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kMonthPeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectStartOfYear(int majorTickStep, double initialMargin) {
    ArrayMathTicks::selectStartOfPeriod(data, len, ArrayMathTicks::kYearPeriod, majorTickStep,
                                        initialMargin);
    return this;
}

ArrayMath *ArrayMathImpl::selectRegularSpacing(int majorTickStep, int minorTickStep,
                                               int initialMargin) {
    ArrayMathTicks::selectRegularSpacing(data, len, majorTickStep, minorTickStep, initialMargin);
    return this;
}

// ---- resizing ----

ArrayMath *ArrayMathImpl::trim(int startIndex, int count) {
    if (startIndex > 0 && startIndex >= len) {
        len = 0;
        return this;
    }
    startIndex = std::max(startIndex, 0);
    int kept = len - startIndex;
    if (count >= 0) kept = std::min(kept, count);
    if (startIndex > 0) std::memmove(data, data + startIndex, kept * sizeof(double));
    len = kept;
    return this;
}

double *ArrayMathImpl::openGap(int insertPoint, int count) {
    if (insertPoint < 0 || insertPoint > len) insertPoint = len;
    int joined = joinedLength(len, count);
    double *old = data;
    data = new double[joined];
    std::copy(old, old + insertPoint, data);
    std::copy(old + insertPoint, old + len, data + insertPoint + count);
    delete[] old;
    len = joined;
    return data + insertPoint;
}

void ArrayMathImpl::gapsForNaN() {
    for (int i = 0; i < len; ++i) data[i] = gapForNaN(data[i]);
}

ArrayMath *ArrayMathImpl::insert(DoubleArray values, int insertPoint) {
    if (values.len <= 0) return this;
    // Inserting the series' own view: keep the items past the reallocation.
    std::vector<double> ownCopy;
    if (values.data >= data && values.data < data + len) {
        ownCopy.assign(values.data, values.data + values.len);
        values = DoubleArray(ownCopy.data(), values.len);
    }
    double *gap = openGap(insertPoint, values.len);
    std::copy(values.data, values.data + values.len, gap);
    gapsForNaN();
    return this;
}

ArrayMath *ArrayMathImpl::insert2(double value, int count, int insertPoint) {
    if (count < 1) return this;
    double *gap = openGap(insertPoint, count);
    std::fill(gap, gap + count, value);
    gapsForNaN();
    return this;
}

// ---- regression ----

ArrayMath *ArrayMathImpl::lowess(double smoothness, int iteration) {
    if (len < 2) return this;
    std::vector<double> index(len);
    for (int i = 0; i < len; ++i) index[i] = i;
    return lowess2(DoubleArray(index.data(), len), smoothness, iteration);
}

ArrayMath *ArrayMathImpl::lowess2(DoubleArray x, double smoothness, int iteration) {
    ArrayMathLowess::smooth(data, len, x, smoothness, iteration);
    return this;
}

// ---- statistics ----

DoubleArray ArrayMathImpl::result() const {
    return DoubleArray(data, len);
}

double ArrayMathImpl::max() const {
    return ArrayMath::max(result());
}

double ArrayMathImpl::min() const {
    return ArrayMath::min(result());
}

double ArrayMathImpl::sum() const {
    double total = 0;
    for (int i = 0; i < len; ++i) {
        if (!isGap(data[i])) total += data[i];
    }
    return total;
}

double ArrayMathImpl::avg() const {
    double total = 0;
    int n = 0;
    for (int i = 0; i < len; ++i) {
        if (isGap(data[i])) continue;
        total += data[i];
        ++n;
    }
    return n ? total / n : 0;
}

double ArrayMathImpl::stdDev() const {
    double total = 0, squares = 0;
    int n = 0;
    for (int i = 0; i < len; ++i) {
        if (isGap(data[i])) continue;
        total += data[i];
        squares += data[i] * data[i];
        ++n;
    }
    return n ? ArrayMathStats::populationStdDev(n, total, squares) : 0;
}

double ArrayMathImpl::med() const {
    return percentile(50);
}

double ArrayMathImpl::percentile(double p) const {
    if (len == 0) return 0;
    // A single item is read as it stands, gap or not.
    if (len == 1) return data[0];
    std::vector<double> values(len);
    int n = ArrayMathStats::gatherReal(data, len, values.data());
    return ArrayMathStats::selectPercentile(values.data(), n, p);
}

int ArrayMathImpl::maxIndex() const {
    return extremeIndex(data, len, std::greater<double>());
}

int ArrayMathImpl::minIndex() const {
    return extremeIndex(data, len, std::less<double>());
}

int ArrayMathImpl::aggregate(double *src, int srcLen, int method, double param) const {
    if (!src) return 0;
    return ArrayMathAggregate::aggregate(data, len, src, srcLen, method, param);
}
