#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "ArrayMathTestSupport.h"

namespace {

using Values = std::vector<double>;
const double NV = kNoValue;

double naiveReduce(const Values &group, int method, double param) {
    Values real;
    for (double v : group) {
        if (!isGapValue(v)) real.push_back(v);
    }
    if (real.empty()) return method == kAggregateCount ? 0 : NV;
    std::sort(real.begin(), real.end());
    double sum = 0;
    for (double v : real) sum += v;
    double n = real.size();
    auto percentile = [&real](double p) {
        p = std::max(0.0, std::min(100.0, p));
        double r = (real.size() - 1) * p / 100;
        size_t k = (size_t)std::floor(r);
        return r == k ? real[k] : real[k] * (1 - (r - k)) + (r - k) * real[k + 1];
    };
    switch (method) {
        case kAggregateSum:
            return sum;
        case kAggregateStdDev: {
            double squares = 0;
            for (double v : real) squares += (v - sum / n) * (v - sum / n);
            return std::sqrt(squares / n);
        }
        case kAggregateMin:
            return real.front();
        case kAggregateMax:
            return real.back();
        case kAggregateMed:
            return percentile(50);
        case kAggregatePercentile:
            return percentile(param);
        case kAggregateFirst:
            return group.front();
        case kAggregateLast:
            return group.back();
        case kAggregateCount:
            return n;
        default:
            return sum / n;
    }
}

// Groups by the plain reading: position 0 opens the first group, every later
// real key opens the next; src past the keys is carried along.
Values naiveAggregate(const Values &keys, const Values &src, int method, double param) {
    if (keys.empty() || src.empty()) return src;
    size_t walked = std::min(keys.size(), src.size());
    std::vector<Values> groups;
    for (size_t i = 0; i < walked; ++i) {
        if (i == 0 || !isGapValue(keys[i])) groups.emplace_back();
        groups.back().push_back(src[i]);
    }
    Values out;
    for (const Values &g : groups) out.push_back(naiveReduce(g, method, param));
    out.insert(out.end(), src.begin() + walked, src.end());
    return out;
}

Values runAggregate(const Values &keys, Values src, int method, double param) {
    ArrayMathPtr m = makeArrayMath(keys);
    int n = m->aggregate(src.data(), (int)src.size(), method, param);
    src.resize(n);
    return src;
}

TEST(ArrayMathAggregate, Examples) {
    Values keys = {1, NV, NV, 2, NV, 3};
    Values src = {1, 2, 3, NV, NV, 5, 7, 8};
    EXPECT_EQ(runAggregate(keys, src, kAggregateSum, 0), (Values{6, NV, 5, 7, 8}));
    EXPECT_EQ(runAggregate(keys, src, kAggregateCount, 0), (Values{3, 0, 1, 7, 8}));
    EXPECT_EQ(runAggregate(keys, src, kAggregateAvg, 0), (Values{2, NV, 5, 7, 8}));
    EXPECT_EQ(runAggregate(keys, src, 42, 0), (Values{2, NV, 5, 7, 8}));
    EXPECT_EQ(runAggregate(keys, src, kAggregateLast, 0), (Values{3, NV, 5, 7, 8}));
    EXPECT_EQ(runAggregate(keys, src, kAggregatePercentile, 25), (Values{1.5, NV, 5, 7, 8}));

    // First and last take the position as it stands, gap or not.
    EXPECT_EQ(runAggregate({1, NV, 1}, {NV, 4, 6}, kAggregateFirst, 0), (Values{NV, 6}));
    EXPECT_EQ(runAggregate({1, NV, 1}, {4, NV, 6}, kAggregateLast, 0), (Values{NV, 6}));

    // All keys gaps: one group from position 0 on.
    EXPECT_EQ(runAggregate({NV, NV, NV}, {1, 2, 4}, kAggregateMax, 0), (Values{4}));
    // Keys longer than src: only src's length is walked.
    EXPECT_EQ(runAggregate({1, 1, 1, 1}, {3, 4}, kAggregateSum, 0), (Values{3, 4}));
    EXPECT_EQ(runAggregate({}, {3, 4}, kAggregateSum, 0), (Values{3, 4}));
    EXPECT_EQ(runAggregate({1}, {}, kAggregateSum, 0), (Values{}));
}

TEST(ArrayMathAggregate, MatchesNaiveGrouping) {
    std::mt19937 rng(31);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int round = 0; round < 300; ++round) {
        int keyLen = (int)(rng() % 60);
        int srcLen = (int)(rng() % 60);
        Values keys(keyLen);
        for (double &k : keys) k = unit(rng) < 0.3 ? 1000 * unit(rng) : NV;
        Values src = randomSeries(rng, srcLen, 0.3, round % 2 == 0);
        int method = round % 12;
        double param = 100 * unit(rng);
        SCOPED_TRACE(testing::Message() << "method " << method << " round " << round);
        Values actual = runAggregate(keys, src, method, param);
        Values expected = naiveAggregate(keys, src, method, param);
        ASSERT_EQ(actual.size(), expected.size());
        for (size_t i = 0; i < actual.size(); ++i) {
            if (expected[i] == NV) {
                EXPECT_EQ(actual[i], NV);
            } else {
                EXPECT_NEAR(actual[i], expected[i], 1e-9 * (1 + std::fabs(expected[i])));
            }
        }
    }
}

}  // namespace
