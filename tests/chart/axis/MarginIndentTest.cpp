#include <gtest/gtest.h>

#include "tests/chart/axis/AxisTestSupport.h"

// Margins keep pixels free at the ends named by the screen: the top margin of
// a vertical axis lies at its top (its high end), that of a horizontal axis at
// its left (its low end).
TEST(AxisMapping, MarginsStandAtTheEndsTheyName) {
    TestAxis across(kBottom, 200);
    across->setLinearScale(0, 100, 10, 0);
    across->setMargin(30, 10);
    EXPECT_DOUBLE_EQ(across->getCoor(0), 30);
    EXPECT_DOUBLE_EQ(across->getCoor(100), 190);
    EXPECT_DOUBLE_EQ(across->getValue(30), 0);

    // Coordinates of a vertical axis count up from the bottom.
    TestAxis up(kLeft, 200);
    up->setLinearScale(0, 100, 10, 0);
    up->setMargin(30, 10);
    EXPECT_DOUBLE_EQ(up->getCoor(0), 10);
    EXPECT_DOUBLE_EQ(up->getCoor(100), 170);
    EXPECT_DOUBLE_EQ(up->getValue(170), 100);
    up->setReverse(true);
    EXPECT_DOUBLE_EQ(up->getCoor(100), 10);
}

// A scale of labels gives each label a slot when the caller asks, or when a
// layer asks and the caller said nothing; other scales never indent by default.
TEST(AxisMapping, LabelScalesIndentByDefaultOnlyWhenAsked) {
    const char *labels[] = {"A", "B", "C", "D"};
    TestAxis a(kBottom, 400);
    a->setLabels(StringArray(labels, 4));
    EXPECT_DOUBLE_EQ(a->getCoor(0), 0);
    a->setDefaultIndent(true);
    EXPECT_TRUE(a->isIndented());
    EXPECT_DOUBLE_EQ(a->getCoor(0), 50);
    EXPECT_DOUBLE_EQ(a->getCoor(3), 350);
    EXPECT_DOUBLE_EQ(a->getValue(350), 3);
    a->setIndent(false);
    EXPECT_DOUBLE_EQ(a->getCoor(0), 0);
    a->setIndent(true);
    a->setDefaultIndent(false);
    EXPECT_DOUBLE_EQ(a->getCoor(0), 50);

    TestAxis numbers(kBottom, 400);
    numbers->setDefaultIndent(true);
    numbers->setLinearScale(0, 3, 1, 0);
    EXPECT_FALSE(numbers->isIndented());
    EXPECT_DOUBLE_EQ(numbers->getCoor(0), 0);
    // A single label stands in the middle.
    TestAxis one(kBottom, 400);
    const char *single[] = {"only"};
    one->setLabels(StringArray(single, 1));
    one->setDefaultIndent(true);
    EXPECT_NEAR(one->getCoor(0), 200, 1e-6);
}
