#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "foundation/BSearch.h"
#include "foundation/ChartStatics.h"
#include "foundation/Constants.h"
#include "foundation/ReduceLine.h"

TEST(BSearch, EndsExactAndInterpolated) {
    const double a[] = {10, 20, 30, 40};
    EXPECT_EQ(Chart::bSearch(DoubleArray(), 5), -1);
    EXPECT_EQ(Chart::bSearch(DoubleArray(a, 4), 99), 3);
    EXPECT_EQ(Chart::bSearch(DoubleArray(a, 4), 1), 0);
    EXPECT_EQ(Chart::bSearch(DoubleArray(a, 4), 30), 2);
    EXPECT_DOUBLE_EQ(Chart::bSearch(DoubleArray(a, 4), 25), 1.5);
    EXPECT_DOUBLE_EQ(Chart::bSearch(DoubleArray(a, 4), 12), 0.2);

    std::vector<int> ints = {1, 3, 3, 7};
    EXPECT_EQ(qlx::bSearch(ints, 3), 1);  // the first of equal items
    EXPECT_DOUBLE_EQ(qlx::bSearch(ints, 5), 2.5);
    EXPECT_EQ(qlx::bSearch(std::vector<double>(), 5), -1);
}

static double distanceToSegment(double px, double py, double ax, double ay, double bx, double by) {
    double dx = bx - ax, dy = by - ay;
    double len2 = dx * dx + dy * dy;
    double t = len2 > 0 ? ((px - ax) * dx + (py - ay) * dy) / len2 : 0;
    t = std::max(0.0, std::min(1.0, t));
    return std::hypot(px - (ax + t * dx), py - (ay + t * dy));
}

// Every dropped point lies within the tolerance of the segment that replaced it.
TEST(ReduceLine, DroppedPointsStayWithinToleranceOnRandomLines) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> step(-3, 3);
    for (int round = 0; round < 300; ++round) {
        int n = 2 + (int)(rng() % 200);
        double tolerance = (rng() % 4) * 0.7;
        std::vector<double> x(n), y(n);
        double px = 0, py = 0;
        for (int i = 0; i < n; ++i) {
            px += std::fabs(step(rng));
            py += step(rng);
            x[i] = px;
            y[i] = (rng() % 17 == 0) ? kNoValue : py;
        }
        std::vector<double> ox = x, oy = y;
        int kept = qlx::reduceLine(x.data(), y.data(), 0, n - 1, tolerance);

        std::vector<int> real;
        for (int i = 0; i < n; ++i)
            if (oy[i] != kNoValue) real.push_back(i);
        if (tolerance == 0) {
            ASSERT_EQ(kept, (int)real.size());
            continue;
        }
        ASSERT_LE(kept, (int)real.size());
        if (real.empty()) continue;
        ASSERT_GE(kept, real.size() > 1 ? 2 : 1);
        ASSERT_EQ(x[0], ox[real.front()]);
        ASSERT_EQ(x[kept - 1], ox[real.back()]);
        // Walk the original real points along the kept ones (x is strictly increasing).
        int k = 0;
        for (int i : real) {
            while (k + 1 < kept && x[k + 1] < ox[i]) ++k;
            if (k + 1 >= kept) {
                ASSERT_EQ(ox[i], x[kept - 1]);
                continue;
            }
            double d = distanceToSegment(ox[i], oy[i], x[k], y[k], x[k + 1], y[k + 1]);
            ASSERT_LE(d, tolerance + 1e-9) << "round " << round << " point " << i;
        }
    }
}

TEST(ReduceLine, StraightRunsCollapseAndEmptyRunsGiveZero) {
    double x[] = {0, 1, 2, 3, 4, 5};
    double y[] = {0, 1, 2, 3, 4, 5};
    EXPECT_EQ(qlx::reduceLine(x, y, 0, 5, 0.1), 2);
    EXPECT_EQ(x[1], 5);
    EXPECT_EQ(qlx::reduceLine(x, y, 3, 2, 0.1), 0);

    double xs[] = {9, 0, 1, 2, 3};
    double ys[] = {9, 0, kNoValue, 0, 5};
    // The run starts at index 1 and is compacted there.
    EXPECT_EQ(qlx::reduceLine(xs, ys, 1, 4, 0), 3);
    EXPECT_EQ(xs[0], 9);
    EXPECT_EQ(xs[2], 2);
    EXPECT_EQ(ys[3], 5);
}
