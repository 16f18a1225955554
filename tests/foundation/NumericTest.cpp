#include <gtest/gtest.h>

#include "foundation/Numeric.h"

TEST(Numeric, AnglesAreExactOnTheAxes) {
    EXPECT_EQ(qlx::cosDegree(90), 0.0);
    EXPECT_EQ(qlx::cosDegree(180), -1.0);
    EXPECT_EQ(qlx::cosDegree(-90), 0.0);
    EXPECT_EQ(qlx::cosDegree(360), 1.0);
    EXPECT_EQ(qlx::cosDegree(-180), -1.0);
    EXPECT_EQ(qlx::cosDegree(0), 1.0);
    EXPECT_NEAR(qlx::cosDegree(60), 0.5, 1e-12);

    // The engine's pi is short, so a right angle is a hair above 90.
    EXPECT_NEAR(qlx::atan(1, 0), 90, 1e-9);
    EXPECT_NEAR(qlx::atan(-1, 0), 270, 1e-9);
    EXPECT_NEAR(qlx::atan(-1, -1), 225, 1e-9);
    EXPECT_DOUBLE_EQ(qlx::atan(0, 1), 0);
    EXPECT_DOUBLE_EQ(qlx::pmod(-1, 360), 359);
    EXPECT_DOUBLE_EQ(qlx::pmod(725, 360), 5);
    EXPECT_EQ(qlx::round(-2.5), -2);
    EXPECT_EQ(qlx::round(2.5), 3);
    EXPECT_TRUE(qlx::isDivisible(0.3, 0.1, 1e-9));
    EXPECT_FALSE(qlx::isDivisible(0.35, 0.1, 1e-9));
}

TEST(Numeric, QuantilesMatchTables) {
    EXPECT_EQ(qlx::invN(0.5), 0);
    EXPECT_NEAR(qlx::invN(0.975), 1.959964, 1e-5);
    EXPECT_NEAR(qlx::invN(0.025), -1.959964, 1e-5);
    EXPECT_NEAR(qlx::invN(0.999), 3.090232, 1e-3);
    EXPECT_EQ(qlx::invN(1.5), 0);

    EXPECT_NEAR(qlx::invT(0.5, 10), 0, 1e-9);
    EXPECT_NEAR(qlx::invT(0.975, 10), 2.228139, 1e-3);
    EXPECT_NEAR(qlx::invT(0.975, 2), 4.302653, 1e-6);
    EXPECT_NEAR(qlx::invT(0.995, 30), 2.749996, 1e-3);
    EXPECT_NEAR(qlx::invT(0.95, 4), 2.131847, 1e-3);
    EXPECT_NEAR(qlx::invT(0.025, 10), -2.228139, 1e-3);
    // One degree of freedom keeps the sign of its closed form.
    EXPECT_NEAR(qlx::invT(0.975, 1), -12.7062, 1e-3);
    EXPECT_EQ(qlx::invT(0, 5), -1);
    EXPECT_EQ(qlx::invT(1, 5), -1);
    EXPECT_EQ(qlx::invT(0.9, 0), -1);
}
