#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ArrayMathTestSupport.h"

namespace {

using Values = std::vector<double>;
const double NV = kNoValue;

TEST(ArrayMathLowess, StraightLineComesBackUnchanged) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> step(0.1, 5);
    for (double smoothness : {0.0, 0.1, 0.25, 0.6, 1.0}) {
        for (int iteration : {0, 2}) {
            SCOPED_TRACE(testing::Message() << smoothness << " / " << iteration);
            Values x(80), y(80);
            double pos = -50;
            for (size_t i = 0; i < x.size(); ++i) {
                x[i] = pos += step(rng);
                y[i] = 3 - 2.5 * x[i];
            }
            ArrayMathPtr m = makeArrayMath(y);
            m->lowess2(viewOf(x), smoothness, iteration);
            Values fit = valuesOf(*m);
            for (size_t i = 0; i < y.size(); ++i) EXPECT_NEAR(fit[i], y[i], 1e-9) << i;

            // Without x the index is the abscissa.
            Values indexLine(30);
            for (size_t i = 0; i < indexLine.size(); ++i) indexLine[i] = 7 + 0.75 * i;
            m = makeArrayMath(indexLine);
            m->lowess(smoothness, iteration);
            fit = valuesOf(*m);
            for (size_t i = 0; i < indexLine.size(); ++i) EXPECT_NEAR(fit[i], indexLine[i], 1e-9);
        }
    }
    Values line = {1, 3, 5, 7, 9, 11, 13};
    ArrayMathPtr m = makeArrayMath(line);
    m->lowess(0.5, 1);
    Values fit = valuesOf(*m);
    for (size_t i = 0; i < line.size(); ++i) EXPECT_NEAR(fit[i], line[i], 1e-12);
}

TEST(ArrayMathLowess, RobustPassesIgnoreAnOutlier) {
    Values x, y;
    for (int i = 0; i < 40; ++i) {
        x.push_back(i);
        y.push_back(0.5 * i + (i % 2 ? 0.1 : -0.1));
    }
    y[20] = 100;
    ArrayMathPtr plain = makeArrayMath(y);
    plain->lowess2(viewOf(x), 0.3, 0);
    ArrayMathPtr robust = makeArrayMath(y);
    robust->lowess2(viewOf(x), 0.3, 3);
    double plainError = std::fabs(valuesOf(*plain)[21] - 10.5);
    double robustError = std::fabs(valuesOf(*robust)[21] - 10.5);
    EXPECT_GT(plainError, 1);
    EXPECT_LT(robustError, 0.2);
}

TEST(ArrayMathLowess, GapsAndShortInput) {
    // Pairs with a gap drop out and come back as gaps; so does everything
    // past the shorter array.
    ArrayMathPtr m = makeArrayMath({2, NV, 6, 8, 10, 12});
    m->lowess2(viewOf({1, 2, 3, std::numeric_limits<double>::quiet_NaN(), 5}), 0.8, 0);
    Values fit = valuesOf(*m);
    EXPECT_NEAR(fit[0], 2, 1e-9);
    EXPECT_EQ(fit[1], NV);
    EXPECT_NEAR(fit[2], 6, 1e-9);
    EXPECT_EQ(fit[3], NV);
    EXPECT_NEAR(fit[4], 10, 1e-9);
    EXPECT_EQ(fit[5], NV);

    m = makeArrayMath({NV, 4, NV});
    m->lowess2(viewOf({0, 1, 2}), 0.5, 0);
    EXPECT_EQ(valuesOf(*m), (Values{NV, 4, NV}));
    m = makeArrayMath({NV, NV});
    m->lowess2(viewOf({0, 1}), 0.5, 0);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV}));
    m = makeArrayMath({1, 2});
    m->lowess2(DoubleArray(), 0.5, 0);
    EXPECT_EQ(valuesOf(*m), (Values{NV, NV}));
    m = makeArrayMath({5});
    m->lowess(0.5, 0);
    EXPECT_EQ(valuesOf(*m), (Values{5}));
}

}  // namespace
