#include <gtest/gtest.h>

#include "families/pie/label/JoinLine.h"
#include "families/pie/label/SideLabelColumn.h"

namespace {

std::vector<int> spreadYs(int top, int bottom, const std::vector<std::pair<int, int>> &labels) {
    SideLabelColumn column(top, bottom);
    for (auto &l : labels) column.add(l.first, l.second);
    column.spread();
    std::vector<int> ys;
    for (int i = 0; i < column.size(); ++i) ys.push_back(column.getY(i));
    return ys;
}

}  // namespace

TEST(SideLabelColumn, OverlapsAreSharedBetweenNeighbours) {
    // Two labels 2 apart, 10 high: each moves by half the overlap of 8.
    EXPECT_EQ(spreadYs(0, 100, {{40, 10}, {42, 10}}), (std::vector<int>{36, 46}));
    // Three at one place: the middle one, pushed up first, comes back, so the
    // column stands evenly about the place they had.
    EXPECT_EQ(spreadYs(0, 200, {{50, 10}, {50, 10}, {50, 10}}), (std::vector<int>{40, 50, 60}));
    // Labels clear of each other stay.
    EXPECT_EQ(spreadYs(0, 100, {{10, 10}, {30, 10}}), (std::vector<int>{10, 30}));
    SideLabelColumn column(0, 200);
    column.add(50, 10), column.add(50, 10), column.add(50, 10);
    column.spread();
    EXPECT_EQ(column.getShift(0), -10);
    EXPECT_EQ(column.getShift(1), 0);
    EXPECT_EQ(column.getShift(2), 10);
}

TEST(SideLabelColumn, LabelsKeepWithinTheBounds) {
    // The first label comes down to the top bound; one past the bottom comes up.
    EXPECT_EQ(spreadYs(20, 100, {{5, 10}}), (std::vector<int>{20}));
    EXPECT_EQ(spreadYs(20, 100, {{95, 10}}), (std::vector<int>{90}));
    // Near the top bound the upper label can't give way: the lower takes it all.
    EXPECT_EQ(spreadYs(0, 100, {{0, 10}, {4, 10}}), (std::vector<int>{0, 10}));
    // Near the bottom bound the lower label can't: the upper one goes up.
    EXPECT_EQ(spreadYs(0, 100, {{88, 10}, {90, 10}}), (std::vector<int>{80, 90}));
    // A label too tall for the bounds stays at the top bound.
    EXPECT_EQ(spreadYs(10, 30, {{15, 40}}), (std::vector<int>{10}));
}

TEST(SideLabelColumn, ATooTallColumnPressesItsLowestLabelsOntoTheBottomBound) {
    std::vector<std::pair<int, int>> labels(6, {40, 10});
    std::vector<int> ys = spreadYs(30, 80, labels);
    ASSERT_EQ(ys.size(), 6u);
    for (size_t i = 1; i < ys.size(); ++i) EXPECT_GE(ys[i], ys[i - 1]);
    EXPECT_EQ(ys.front(), 30);
    EXPECT_EQ(ys.back() + 10, 80);
    EXPECT_EQ(ys[4] + 10, 80);
    // Everything stays within the bounds, and the last two overlap.
    for (int y : ys) EXPECT_TRUE(y >= 30 && y + 10 <= 80);
    EXPECT_GT(ys[4] + 10, ys[5]);
}

TEST(SideLabelColumn, ManyLabelsAtOnePlaceEndUpInOrderWithoutOverlap) {
    std::vector<std::pair<int, int>> labels(400, {3000, 12});
    std::vector<int> ys = spreadYs(0, 10000, labels);
    for (size_t i = 1; i < ys.size(); ++i) EXPECT_GE(ys[i], ys[i - 1] + 12) << i;
    EXPECT_GE(ys.front(), 0);
    EXPECT_LE(ys.back() + 12, 10000);
}

TEST(JoinLine, SideLinesRunLevelThenAtFortyFiveDegrees) {
    // A label within a quarter of its height of the elbow is joined level.
    JoinLine level(100, 50, 104, 50, 160, 52, 12, 4, false);
    ASSERT_EQ(level.size(), 4);
    EXPECT_EQ(level.x(1), 104);
    EXPECT_EQ(level.x(2), 156);
    EXPECT_EQ(level.x(3), 160);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(level.y(i), 50);
    // A label 30 below: level to M, 45 degrees down to the bend, level into the label.
    JoinLine below(100, 50, 104, 50, 160, 80, 12, 4, false);
    ASSERT_EQ(below.size(), 5);
    EXPECT_EQ(below.x(3), 156);
    EXPECT_EQ(below.y(3), 80);
    EXPECT_EQ(below.x(3) - below.x(2), below.y(3) - below.y(2));
    EXPECT_EQ(below.y(2), 50);
    // On the left the same, mirrored; the anchor is the label's right side.
    JoinLine left(100, 50, 96, 50, 40, 20, 12, 4, true);
    ASSERT_EQ(left.size(), 5);
    EXPECT_EQ(left.x(3), 44);
    EXPECT_EQ(left.x(2) - left.x(3), left.y(2) - left.y(3));
    // No room for the slant: it starts at the elbow.
    JoinLine steep(100, 50, 104, 50, 120, 150, 12, 4, false);
    EXPECT_EQ(steep.x(2), 116);
    EXPECT_EQ(steep.y(2), 150);
    EXPECT_EQ(steep.size(), 4);
    // Circle layout: one straight piece.
    JoinLine circle(10, 20, 30, 40);
    EXPECT_EQ(circle.size(), 2);
}
