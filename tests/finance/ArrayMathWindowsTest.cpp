#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "ArrayMathTestSupport.h"

// Every windowed operation against a naive recomputation of its window.

namespace {

using Values = std::vector<double>;
using WindowStat = std::function<double(const Values &window)>;

double naivePercentile(Values v, double p) {
    if (v.empty()) return 0;
    std::sort(v.begin(), v.end());
    p = std::max(0.0, std::min(100.0, p));
    double r = (v.size() - 1) * p / 100;
    size_t k = (size_t)std::floor(r);
    if (r == k) return v[k];
    return v[k] * (1 - (r - k)) + (r - k) * v[k + 1];
}

double naiveStdDev(const Values &v) {
    double mean = 0;
    for (double x : v) mean += x;
    mean /= v.size();
    double squares = 0;
    for (double x : v) squares += (x - mean) * (x - mean);
    return std::sqrt(squares / v.size());
}

double naiveCorrelation(const Values &x, const Values &y) {
    double mx = 0, my = 0;
    for (size_t i = 0; i < x.size(); ++i) mx += x[i], my += y[i];
    mx /= x.size();
    my /= y.size();
    double sxy = 0, sxx = 0, syy = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        sxy += (x[i] - mx) * (y[i] - my);
        sxx += (x[i] - mx) * (x[i] - mx);
        syy += (y[i] - my) * (y[i] - my);
    }
    return sxy / std::sqrt(sxx * syy);
}

// The output of a window operation as the rule defines it: gaps stay, a
// real value gets stat() of the last `interval` real values once there are
// that many.
Values naiveWindow(const Values &in, int interval, const WindowStat &stat) {
    Values out = in;
    Values seen;
    for (size_t i = 0; i < in.size(); ++i) {
        if (isGapValue(in[i])) continue;
        seen.push_back(in[i]);
        if ((int)seen.size() < interval) {
            out[i] = kNoValue;
        } else {
            out[i] = stat(Values(seen.end() - interval, seen.end()));
        }
    }
    return out;
}

void expectNear(const Values &actual, const Values &expected, double tolerance) {
    ASSERT_EQ(actual.size(), expected.size());
    for (size_t i = 0; i < actual.size(); ++i) {
        if (expected[i] == kNoValue || tolerance == 0) {
            EXPECT_EQ(actual[i], expected[i]) << "at " << i;
        } else {
            EXPECT_NEAR(actual[i], expected[i], tolerance) << "at " << i;
        }
    }
}

struct WindowCase {
    const char *name;
    std::function<void(ArrayMath &, int)> run;
    WindowStat stat;
    double tolerance;
};

TEST(ArrayMathWindows, MatchNaiveWindowsOnRandomGappedData) {
    const double p = 37.5;
    const WindowCase cases[] = {
        {"movAvg", [](ArrayMath &m, int n) { m.movAvg(n); },
         [](const Values &w) {
             double s = 0;
             for (double x : w) s += x;
             return s / w.size();
         },
         1e-9},
        {"movStdDev", [](ArrayMath &m, int n) { m.movStdDev(n); }, naiveStdDev, 1e-6},
        {"movMax", [](ArrayMath &m, int n) { m.movMax(n); },
         [](const Values &w) { return *std::max_element(w.begin(), w.end()); }, 0},
        {"movMin", [](ArrayMath &m, int n) { m.movMin(n); },
         [](const Values &w) { return *std::min_element(w.begin(), w.end()); }, 0},
        {"movMed", [](ArrayMath &m, int n) { m.movMed(n); },
         [](const Values &w) { return naivePercentile(w, 50); }, 1e-12},
        {"movPercentile", [p](ArrayMath &m, int n) { m.movPercentile(n, p); },
         [p](const Values &w) { return naivePercentile(w, p); }, 1e-12},
    };
    std::mt19937 rng(20240611);
    for (int round = 0; round < 60; ++round) {
        int len = (int)(rng() % 300);
        int interval = 2 + (int)(rng() % 30);
        Values in = randomSeries(rng, len, 0.2, round % 2 == 1);
        for (const WindowCase &c : cases) {
            SCOPED_TRACE(testing::Message()
                         << c.name << " len " << len << " interval " << interval);
            ArrayMathPtr m = makeArrayMath(in);
            c.run(*m, interval);
            expectNear(valuesOf(*m), naiveWindow(in, interval, c.stat), c.tolerance);
        }
    }
}

TEST(ArrayMathWindows, CorrelationMatchesNaivePairs) {
    std::mt19937 rng(77);
    for (int round = 0; round < 40; ++round) {
        int len = (int)(rng() % 200);
        int otherLen = round % 3 == 0 ? 0 : (int)(rng() % 220);
        int interval = 2 + (int)(rng() % 20);
        Values a = randomSeries(rng, len, 0.15, false);
        Values b = randomSeries(rng, otherLen, 0.15, false);
        bool againstIndex = b.empty();
        size_t paired = againstIndex ? a.size() : std::min(a.size(), b.size());

        Values expected(a.size(), kNoValue);
        Values xs, ys;
        for (size_t i = 0; i < paired; ++i) {
            double y = againstIndex ? (double)i : b[i];
            if (isGapValue(a[i]) || isGapValue(y)) continue;
            xs.push_back(a[i]);
            ys.push_back(y);
            if ((int)xs.size() >= interval) {
                expected[i] = naiveCorrelation(Values(xs.end() - interval, xs.end()),
                                               Values(ys.end() - interval, ys.end()));
            }
        }
        ArrayMathPtr m = makeArrayMath(a);
        m->movCorr(interval, viewOf(b));
        SCOPED_TRACE(testing::Message() << "round " << round);
        expectNear(valuesOf(*m), expected, 1e-7);
    }
}

TEST(ArrayMathWindows, LaggedAndExponentialMatchNaive) {
    std::mt19937 rng(5);
    for (int round = 0; round < 60; ++round) {
        int len = (int)(rng() % 120);
        int offset = 1 + (int)(rng() % 8);
        Values in = randomSeries(rng, len, 0.25, round % 2 == 0);
        SCOPED_TRACE(testing::Message() << "len " << len << " offset " << offset);

        Values delta = in, rate = in, shifted = in, smoothed = in;
        Values seen;
        double previous = 0;
        for (int i = 0; i < len; ++i) {
            if (isGapValue(in[i])) continue;
            seen.push_back(in[i]);
            smoothed[i] = seen.size() == 1 ? in[i] : 0.25 * in[i] + 0.75 * previous;
            previous = smoothed[i];
            if ((int)seen.size() <= offset) {
                delta[i] = rate[i] = shifted[i] = kNoValue;
                continue;
            }
            double older = seen[seen.size() - 1 - offset];
            delta[i] = in[i] - older;
            rate[i] = older == 0 ? (in[i] == 0 ? 1 : kNoValue) : in[i] / older;
            shifted[i] = older;
        }
        for (int i = 0; i < std::min(offset, len); ++i) shifted[i] = -5;

        ArrayMathPtr m = makeArrayMath(in);
        m->delta(offset);
        expectNear(valuesOf(*m), delta, 0);
        m = makeArrayMath(in);
        m->rate(offset);
        expectNear(valuesOf(*m), rate, 0);
        m = makeArrayMath(in);
        m->shift(offset, -5);
        expectNear(valuesOf(*m), shifted, 0);
        m = makeArrayMath(in);
        m->expAvg(0.25);
        expectNear(valuesOf(*m), smoothed, 0);
    }
}

TEST(ArrayMathWindows, PercentileMatchesFullSort) {
    std::mt19937 rng(99);
    std::uniform_real_distribution<double> percent(-20, 120);
    for (int round = 0; round < 200; ++round) {
        int len = 2 + (int)(rng() % 100);
        Values in = randomSeries(rng, len, 0.3, round % 2 == 0);
        double p = round % 10 == 0 ? 100 : percent(rng);
        Values real;
        for (double v : in) {
            if (!isGapValue(v)) real.push_back(v);
        }
        ArrayMathPtr m = makeArrayMath(in);
        EXPECT_DOUBLE_EQ(m->percentile(p), naivePercentile(real, p)) << "p " << p;
        EXPECT_EQ(valuesOf(*m), in);  // statistics leave the series alone
    }
}

}  // namespace
