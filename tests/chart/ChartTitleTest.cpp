#include <gtest/gtest.h>

#include "foundation/Constants.h"
#include "tests/chart/ChartTestSupport.h"
#include "text/layout/TTFText.h"
#include "text/box/TextBoxImpl.h"

namespace {

TextBoxImpl *laidOutTitle(PlainChart *chart, int alignment, const char *text = "Title") {
    TextBoxImpl *box = dynamic_cast<TextBoxImpl *>(
        chart->addTitle2(alignment, text, "", 12, kTextColor, kTransparent, kTransparent));
    int l, t, r, b;
    chart->getFreeArea(&l, &t, &r, &b);
    return box;
}

}  // namespace

TEST(ChartTitles, EachAlignmentTakesItsSideOfTheChart) {
    Owned<PlainChart> chart(PlainChart::create(400, 300));
    TextBoxImpl *top = laidOutTitle(chart.get(), kTopCenter);
    EXPECT_EQ(top->getLeftX(), 0);
    EXPECT_EQ(top->getTopY(), 0);
    EXPECT_EQ(top->getWidth(), 400);
    EXPECT_EQ(top->getFont(), "bold");

    TextBoxImpl *bottom = laidOutTitle(chart.get(), kBottomLeft);
    EXPECT_EQ(bottom->getLeftX(), 0);
    EXPECT_EQ(bottom->getTopY() + bottom->getHeight() - 1, 299);
    EXPECT_EQ(bottom->getWidth(), 400);

    TextBoxImpl *left = laidOutTitle(chart.get(), kLeft);
    EXPECT_EQ(left->getLeftX(), 0);
    EXPECT_EQ(left->getTopY(), 0);
    EXPECT_EQ(left->getHeight(), 300);
    EXPECT_EQ(left->getFontAngle(), 90);
    EXPECT_LT(left->getWidth(), left->getTextObject()->getHeight() + 30);

    TextBoxImpl *right = laidOutTitle(chart.get(), kRight);
    EXPECT_EQ(right->getLeftX() + right->getWidth() - 1, 399);
    EXPECT_EQ(right->getHeight(), 300);

    TextBoxImpl *centre = laidOutTitle(chart.get(), kCenter);
    // The centred title takes no room, so finding the free area leaves it be.
    EXPECT_EQ(centre->getTextObject(), nullptr);
    centre->layout(chart->getDrawArea());
    int textWidth = centre->getTextObject()->getWidth();
    EXPECT_EQ(centre->getLeftX() + centre->getUsedMargin(0) + textWidth / 2, 200);

    // Titles on the sides leave the rest of the chart free; the centred one doesn't count.
    int l, t, r, b;
    chart->getFreeArea(&l, &t, &r, &b);
    EXPECT_EQ(t, top->getHeight());
    EXPECT_EQ(b, bottom->getTopY() - 1);
    EXPECT_EQ(l, left->getWidth());
    EXPECT_EQ(r, right->getLeftX() - 1);

    // An unknown alignment stands at the top.
    TextBoxImpl *odd = laidOutTitle(chart.get(), 42);
    EXPECT_EQ(odd->getTopY(), 0);
    EXPECT_EQ(odd->getWidth(), 400);
}

TEST(ChartTitles, TextsSitAtTheirAlignmentInsideFullLengthBoxes) {
    Owned<PlainChart> chart(PlainChart::create(400, 300));
    laidOutTitle(chart.get(), kBottomRight, "Right");
    laidOutTitle(chart.get(), kTopLeft, "Left");
    laidOutTitle(chart.get(), kLeft, "Side");
    DrawArea *d = chart->makeChart();
    InkBox bottomRight = findInk(d, 200, 250, 399, 299);
    InkBox topLeft = findInk(d, 0, 0, 200, 40);
    InkBox side = findInk(d, 0, 60, 40, 240);
    ASSERT_TRUE(bottomRight.found && topLeft.found && side.found);
    EXPECT_GT(bottomRight.right, 385);
    EXPECT_GT(bottomRight.bottom, 288);
    EXPECT_LT(topLeft.left, 15);
    EXPECT_LT(topLeft.top, 10);
    // The side title reads upwards, centred along the chart's height.
    EXPECT_GT(side.bottom - side.top, side.right - side.left);
    EXPECT_NEAR((side.top + side.bottom) / 2, 150, 3);
}

TEST(ChartTitles, AutomaticMarginsMakeRoomForTheFrame) {
    Owned<PlainChart> plain(PlainChart::create(400, 300));
    Owned<PlainChart> framed(PlainChart::create(400, 300));
    framed->setThickFrame(5, 0x888888, -1, -1);
    struct Case {
        int alignment;
        int extraWidth;
        int extraHeight;
    } cases[] = {
        {kTopCenter, 0, 5 + 1},  // top +5, bottom +1
        {kBottomLeft, 0, 5},     // the top side faces the chart
        {kLeft, 5, 0},           // the right side faces the chart
        {kRight, 5, 0},          // the left side faces the chart
        {kCenter, 0, 0},        {kTopLeft2, 0, 0},
    };
    for (const Case &c : cases) {
        TextBoxImpl *a = laidOutTitle(plain.get(), c.alignment);
        TextBoxImpl *b = laidOutTitle(framed.get(), c.alignment);
        a->layout(plain->getDrawArea());
        b->layout(framed->getDrawArea());
        // Sides that the chart gives a size to keep it.
        EXPECT_EQ(b->getWidth() - a->getWidth(), c.extraWidth) << c.alignment;
        EXPECT_EQ(b->getHeight() - a->getHeight(), c.extraHeight) << c.alignment;
    }
    // A margin given by the user stands.
    TextBoxImpl *fixed = dynamic_cast<TextBoxImpl *>(
        framed->addTitle("Fixed", "", 12, kTextColor, kTransparent, kTransparent));
    fixed->setMargin(2);
    int l, t, r, bottom;
    framed->getFreeArea(&l, &t, &r, &bottom);
    EXPECT_EQ(fixed->getHeight(), fixed->getTextObject()->getHeight() + 4);
}
