#include <gtest/gtest.h>

#include "foundation/Constants.h"
#include "layers/bar/BarGeometry.h"

TEST(BarGeometry, GapsShareTheSlotBetweenGroupsAndBars) {
    // Four positions on 400 pixels: 75 for each group, bars of 75 / 3.4.
    BarGeometry g(0.25, 0.2, 0, 0, 4, 3, 400);
    EXPECT_EQ(g.getGroupWidth(), 75);
    EXPECT_EQ(g.getBarWidth(), 22);
    EXPECT_EQ(g.getGap(), 4);
    EXPECT_FALSE(g.isTouching());
    EXPECT_FALSE(g.isEvenShare());
    int left = 10, right = 84;
    g.centreBlock(&left, &right);
    // A block of 3 * 22 + 2 * 4 = 74 pixels in a slot of 75.
    EXPECT_EQ(left, 10);
    int start, end;
    g.barSpan(left, right, 1, &start, &end);
    EXPECT_EQ(start, 36);
    EXPECT_EQ(end, 57);
    // One bar alone has no gap.
    BarGeometry one(0.25, 0.2, 0, 0, 4, 1, 400);
    EXPECT_EQ(one.getBarWidth(), 75);
    EXPECT_EQ(one.getGap(), 0);
}

TEST(BarGeometry, FixedWidthsIgnoreTheGaps) {
    BarGeometry g(kNoValue, kNoValue, 20, 7, 1000, 2, 400);
    EXPECT_EQ(g.getGroupWidth(), 20);
    EXPECT_EQ(g.getBarWidth(), 7);
    EXPECT_EQ(g.getGap(), 6);
    BarGeometry few(kNoValue, 0.2, 20, -1, 3, 1, 4000);
    EXPECT_EQ(few.getGroupWidth(), 20);
    EXPECT_EQ(few.getBarWidth(), 20);
    // Widths never fall below a pixel.
    BarGeometry thin(0.5, 0.2, 0, 0, 1000, 4, 10);
    EXPECT_EQ(thin.getGroupWidth(), 1);
    EXPECT_EQ(thin.getBarWidth(), 1);
    BarGeometry zero(kNoValue, kNoValue, 0, 0, 3, 1, 100);
    EXPECT_EQ(zero.getGroupWidth(), 1);
    EXPECT_EQ(zero.getBarWidth(), 1);
}

TEST(BarGeometry, OverlapEvenShareAndTouching) {
    // Half a bar of overlap: bars of 75 / 1.5, each starting half a bar on.
    BarGeometry overlap(0.25, -0.5, 0, 0, 4, 2, 400);
    EXPECT_EQ(overlap.getBarWidth(), 50);
    EXPECT_EQ(overlap.getGap(), -25);
    EXPECT_FALSE(overlap.isEvenShare());
    int start, end;
    overlap.barSpan(0, 74, 1, &start, &end);
    EXPECT_EQ(start, 25);
    // A slight overlap that divides the group evenly shares it out exactly.
    BarGeometry even(0.25, -1e-6, 0, 0, 4, 3, 400);
    EXPECT_TRUE(even.isEvenShare());
    int left = 0, right = 76;
    even.centreBlock(&left, &right);
    EXPECT_EQ(left, 0);
    int spans[3][2];
    for (int k = 0; k < 3; ++k) even.barSpan(left, right, k, &spans[k][0], &spans[k][1]);
    EXPECT_EQ(spans[0][1] + 1, spans[1][0]);
    EXPECT_EQ(spans[1][1] + 1, spans[2][0]);
    EXPECT_EQ(spans[2][1], 76);
    // kTouchBar: groups as wide as their slots.
    BarGeometry touching(kTouchBar, 0.2, 0, 0, 4, 1, 400);
    EXPECT_TRUE(touching.isTouching());
    EXPECT_EQ(touching.getGroupWidth(), 100);
    BarGeometry apart(0.1, 0.2, 0, 0, 4, 1, 400);
    EXPECT_FALSE(apart.isTouching());
}
