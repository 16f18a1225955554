#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "ArrayMathTestSupport.h"

namespace {

const double NV = kNoValue;
const double kNaN = std::numeric_limits<double>::quiet_NaN();

using Values = std::vector<double>;

TEST(ArrayMath, CreateCopiesAndStoresNaNAsGap) {
    Values in = {1, kNaN, 3};
    ArrayMathPtr m = makeArrayMath(in);
    in[0] = 99;
    EXPECT_EQ(valuesOf(*m), (Values{1, NV, 3}));

    ArrayMathPtr empty(ArrayMath::create(DoubleArray()));
    EXPECT_EQ(empty->result().len, 0);
    double one = 5;
    ArrayMathPtr negative(ArrayMath::create(DoubleArray(&one, -3)));
    EXPECT_EQ(negative->result().len, 0);
}

TEST(ArrayMath, ArithmeticPassesGapsOver) {
    ArrayMathPtr m = makeArrayMath({1, NV, 3, 4});
    Values b = {10, 20, kNaN};
    m->add(viewOf(b));
    // The shorter array leaves the last item alone.
    EXPECT_EQ(valuesOf(*m), (Values{11, NV, NV, 4}));

    m = makeArrayMath({8, 6, NV});
    m->sub(viewOf({1, 2, 3}))->mul(viewOf({2, 2, 2}))->div(viewOf({7, 0, 1}));
    EXPECT_EQ(m->result().data[0], 2);
    EXPECT_TRUE(std::isinf(m->result().data[1]));  // div does not guard zero
    EXPECT_EQ(m->result().data[2], NV);

    m = makeArrayMath({1, NV, 3});
    m->add2(1)->mul2(3)->sub2(2)->div2(2);
    EXPECT_EQ(valuesOf(*m), (Values{2, NV, 5}));
    m->add2(NV);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, NV}));
    m = makeArrayMath({1, 2});
    m->mul2(kNaN);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV}));
}

TEST(ArrayMath, FinanceDivIsNeutralForZeroByZero) {
    ArrayMathPtr m = makeArrayMath({0, 5, 6, NV, 0});
    m->financeDiv(viewOf({0, 0, 3, 1, 0}), 0.5);
    EXPECT_EQ(valuesOf(*m), (Values{0.5, NV, 2, NV, 0.5}));
    m = makeArrayMath({0});
    m->financeDiv(viewOf({0}), kNaN);
    EXPECT_EQ(valuesOf(*m), (Values{NV}));
}

TEST(ArrayMath, AbsAccAndReplace) {
    ArrayMathPtr m = makeArrayMath({-1, NV, 2, -3});
    m->abs();
    EXPECT_EQ(valuesOf(*m), (Values{1, NV, 2, 3}));
    m->acc();
    EXPECT_EQ(valuesOf(*m), (Values{1, NV, 3, 6}));
    m->replace(kNaN, 0)->replace(3, 7);
    EXPECT_EQ(valuesOf(*m), (Values{1, 0, 7, 6}));
    m->replace(6, kNaN);
    EXPECT_EQ(valuesOf(*m), (Values{1, 0, 7, NV}));
}

TEST(ArrayMath, SelectionsTestAgainstZero) {
    Values d = {-1, 0, 1, NV, 2};
    struct Case {
        ArrayMath *(ArrayMath::*op)(DoubleArray, double);
        Values expected;
    };
    const Case cases[] = {
        {&ArrayMath::selectGTZ, {9, 9, 3, NV, 5}}, {&ArrayMath::selectGEZ, {9, 2, 3, NV, 5}},
        {&ArrayMath::selectLTZ, {1, 9, 9, NV, 9}}, {&ArrayMath::selectLEZ, {1, 2, 9, NV, 9}},
        {&ArrayMath::selectEQZ, {9, 2, 9, NV, 9}}, {&ArrayMath::selectNEZ, {1, 9, 3, NV, 5}},
    };
    for (const Case &c : cases) {
        ArrayMathPtr m = makeArrayMath({1, 2, 3, 4, 5, 6});
        (m.get()->*c.op)(viewOf(d), 9);
        Values expected = c.expected;
        expected.push_back(6);  // behind the decision array
        EXPECT_EQ(valuesOf(*m), expected);
    }

    ArrayMathPtr self = makeArrayMath({-2, 0, 3, NV});
    self->selectGTZ(DoubleArray(), 0);
    EXPECT_EQ(valuesOf(*self), (Values{0, 0, 3, NV}));
    self = makeArrayMath({-2, 4});
    self->selectLTZ(DoubleArray(), kNaN);
    EXPECT_EQ(valuesOf(*self), (Values{-2, NV}));
}

TEST(ArrayMath, LaggedOperations) {
    ArrayMathPtr m = makeArrayMath({1, 2, 3});
    m->shift(1, NV);
    EXPECT_EQ(valuesOf(*m), (Values{NV, 1, 2}));
    m = makeArrayMath({1, 2, 3});
    m->delta(1);
    EXPECT_EQ(valuesOf(*m), (Values{NV, 1, 1}));
    m = makeArrayMath({1, 2, 3});
    m->rate(1);
    EXPECT_EQ(valuesOf(*m), (Values{NV, 2, 1.5}));
    m = makeArrayMath({0, 0, 0, 4});
    m->rate(1);
    EXPECT_EQ(valuesOf(*m), (Values{NV, 1, 1, NV}));

    // Gaps keep their cell; the fill goes over the first `offset` cells.
    m = makeArrayMath({1, NV, 2, 3, 4});
    m->shift(2, -1);
    EXPECT_EQ(valuesOf(*m), (Values{-1, -1, NV, 1, 2}));
    m = makeArrayMath({1, 2, 3});
    m->shift(5, kNaN);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, NV}));
    m = makeArrayMath({1, 2, 3});
    m->shift(0, 7)->delta(-1)->rate(0);
    EXPECT_EQ(valuesOf(*m), (Values{1, 2, 3}));
}

TEST(ArrayMath, MovingWindowExamples) {
    ArrayMathPtr m = makeArrayMath({1, NV, 3});
    m->movAvg(2);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, 2}));

    m = makeArrayMath({1, 5, 3, 2});
    m->movMax(1)->movMin(0)->movAvg(-5);
    EXPECT_EQ(valuesOf(*m), (Values{1, 5, 3, 2}));
    m->movMed(3);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, 3, 3}));

    m = makeArrayMath({2, 4, 4, 4});
    m->movStdDev(2);
    EXPECT_EQ(valuesOf(*m), (Values{NV, 1, 0, 0}));

    m = makeArrayMath({4, NV, 8, 2});
    m->expAvg(0.5);
    EXPECT_EQ(valuesOf(*m), (Values{4, NV, 6, 4}));

    // Against the index a rising line correlates perfectly.
    m = makeArrayMath({1, 3, 5, 7});
    m->movCorr(3, DoubleArray());
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV, 1, 1}));
    m = makeArrayMath({1, 3, 5, 7, 9});
    m->movCorr(2, viewOf({5, 4, NV, 3}));
    EXPECT_EQ(valuesOf(*m), (Values{NV, -1, NV, -1, NV}));
    // A flat window has no correlation to give: 0 / 0 stands.
    m = makeArrayMath({1, 1, 1});
    m->movCorr(2, DoubleArray());
    EXPECT_TRUE(std::isnan(m->result().data[2]));
}

TEST(ArrayMath, TrimAndInsertResize) {
    ArrayMathPtr m = makeArrayMath({1, 2, 3});
    m->trim(0, 2);
    EXPECT_EQ(valuesOf(*m), (Values{1, 2}));
    m = makeArrayMath({1, 2, 3});
    m->trim(5, -1);
    EXPECT_EQ(m->result().len, 0);
    m = makeArrayMath({1, 2, 3, 4});
    m->trim(1, 2);
    EXPECT_EQ(valuesOf(*m), (Values{2, 3}));
    m = makeArrayMath({1, 2, 3, 4});
    m->trim(2, -1);
    EXPECT_EQ(valuesOf(*m), (Values{3, 4}));
    m = makeArrayMath({1, 2});
    m->trim(-4, 9);
    EXPECT_EQ(valuesOf(*m), (Values{1, 2}));

    m = makeArrayMath({1, 2, 3});
    m->insert(viewOf({7, kNaN}), 1);
    EXPECT_EQ(valuesOf(*m), (Values{1, 7, NV, 2, 3}));
    m->insert(viewOf({9}), -1)->insert(viewOf({8}), 99)->insert(DoubleArray(), 0);
    EXPECT_EQ(valuesOf(*m), (Values{1, 7, NV, 2, 3, 9, 8}));
    m = makeArrayMath({1, 2});
    m->insert(m->result(), 1);
    EXPECT_EQ(valuesOf(*m), (Values{1, 1, 2, 2}));
    m = makeArrayMath({1, 2});
    m->insert2(5, 2, 0)->insert2(6, 0, 0)->insert2(kNaN, 1, 1);
    EXPECT_EQ(valuesOf(*m), (Values{5, NV, 5, 1, 2}));
    m = makeArrayMath({});
    m->insert2(4, 3, 2);
    EXPECT_EQ(valuesOf(*m), (Values{4, 4, 4}));
}

TEST(ArrayMath, StatisticsSkipGaps) {
    ArrayMathPtr m = makeArrayMath({2, NV, 4, 4, 4, 5, 5, 7, 9});
    EXPECT_EQ(m->sum(), 40);
    EXPECT_EQ(m->avg(), 5);
    EXPECT_EQ(m->stdDev(), 2);
    EXPECT_EQ(m->max(), 9);
    EXPECT_EQ(m->min(), 2);
    EXPECT_EQ(m->maxIndex(), 8);
    EXPECT_EQ(m->minIndex(), 0);
    EXPECT_EQ(m->med(), 4.5);

    m = makeArrayMath({3, 1, 3, 1});
    EXPECT_EQ(m->maxIndex(), 0);
    EXPECT_EQ(m->minIndex(), 1);

    ArrayMathPtr none = makeArrayMath({NV, NV});
    EXPECT_EQ(none->sum(), 0);
    EXPECT_EQ(none->avg(), 0);
    EXPECT_EQ(none->stdDev(), 0);
    EXPECT_EQ(none->max(), -1.7e308);
    EXPECT_EQ(none->min(), 1.7e308);
    EXPECT_EQ(none->maxIndex(), -1);
    EXPECT_EQ(none->minIndex(), -1);
    EXPECT_EQ(none->percentile(30), 0);

    Values v = {NV, 3, -8};
    EXPECT_EQ(ArrayMath::max(viewOf(v)), 3);
    EXPECT_EQ(ArrayMath::min(viewOf(v)), -8);
    EXPECT_EQ(ArrayMath::max(DoubleArray()), -1.7e308);
}

TEST(ArrayMath, PercentileExamples) {
    ArrayMathPtr m = makeArrayMath({4, 1, 3, 2});
    EXPECT_EQ(m->percentile(50), 2.5);
    EXPECT_EQ(m->percentile(-10), 1);
    EXPECT_EQ(m->percentile(250), 4);
    EXPECT_EQ(m->percentile(kNaN), 1);
    EXPECT_DOUBLE_EQ(m->percentile(90), 3.7);
    EXPECT_EQ(makeArrayMath({NV})->percentile(50), NV);
    EXPECT_EQ(makeArrayMath({NV, 6})->percentile(10), 6);
    EXPECT_EQ(makeArrayMath({})->percentile(50), 0);
}

TEST(ArrayMath, HostileArgumentsLeaveTheArrayUsable) {
    // Sanitizers do the checking here: nothing may read out of bounds or overflow.
    for (int n : {0, 1, 3}) {
        Values v(n, 2.0);
        ArrayMathPtr m = makeArrayMath(v);
        m->shift(INT_MAX, 1)->delta(INT_MAX)->rate(INT_MIN)->movAvg(INT_MAX)->movMax(INT_MAX);
        m->movPercentile(INT_MAX, kNaN)->movCorr(INT_MAX, DoubleArray())->movStdDev(INT_MIN);
        m->selectStartOfYear(INT_MAX, kNaN)->selectStartOfMonth(INT_MIN, -1e300);
        m->selectRegularSpacing(0, -1, INT_MIN)->selectRegularSpacing(INT_MAX, 3, INT_MAX);
        m->lowess(kNaN, INT_MAX)->lowess2(DoubleArray(), -1, INT_MIN)->trim(INT_MIN, INT_MIN);
        m->insert2(1, 2, INT_MIN)->trim(INT_MAX, 0)->insert(viewOf({1e308, -1e308}), INT_MAX);
        m->selectStartOfMonth(1, 0)->selectStartOfDay(1, 0)->expAvg(kNaN);
        EXPECT_EQ(m->result().len, 2);
        double src[3] = {1, 2, 3};
        EXPECT_GE(m->aggregate(src, 3, -7, kNaN), 1);
        EXPECT_EQ(m->aggregate(nullptr, 5, 0, 0), 0);
    }
}

}  // namespace
