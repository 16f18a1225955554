#include <gtest/gtest.h>

#include "chart/symbol/LayerPainter.h"
#include "tests/chart/ChartTestSupport.h"

TEST(LayerPainter, SwapsAxesAndShiftsByTheLayerOffset) {
    DrawArea *d = DrawArea::create();
    d->setSize(200, 200, 0xFFFFFF);
    {
        LayerPainter straight(d, false, 0, 0);
        straight.line(10, 20, 30, 40, 0x000001, 1);
        LayerPainter painter(d, true, 3, 4);
        double px, py;
        painter.map(10, 20, &px, &py);
        EXPECT_EQ(px, 23);
        EXPECT_EQ(py, 14);
        painter.line(10, 20, 30, 40, 0x000002, 2);
        // Joined segments become one poly-line.
        painter.initLineTo(0, 0);
        painter.lineTo(10, 0, 0x000003, 1);
        painter.lineTo(10, 10, 0x000003, 1);
        painter.rect(50, 60, 40, 70, kTransparent, 0x000004, 0);
        painter.vFill(100, 10, 120, 20, 0, 0x000005);
    }
    std::vector<std::string> lines = listingLines(d);
    EXPECT_GE(lineWith(lines, "PolyLine(0x000001, 1, [10, 20, 30, 40])"), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x000002, 2, [23, 14, 43, 34])"), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x000003, 1, [3, 4, 3, 14, 13, 14])"), 0);
    EXPECT_GE(lineWith(lines, "RoundedRect(63, 44, 73, 54, 0, Chart.Transparent, 0x000004)"), 0);
    EXPECT_GE(lineWith(lines, "Polygon(0x000005, 0x000005, [13, 23, 3, 3], [104, 124, 124, 104])"),
              0);
    d->destroy();
}

TEST(LayerPainter, ClipsNestAndComeBack) {
    DrawArea *d = DrawArea::create();
    d->setSize(100, 80, 0xFFFFFF);
    {
        LayerPainter painter(d, false, 5, 0);
        painter.pushClipRect(10, 10, 50, 40);
        painter.pushClipRect(0, 0, 200, 20);
        int l, t, r, b;
        d->getClipRect(&l, &t, &r, &b);
        EXPECT_EQ(l, 5);
        EXPECT_EQ(r, 99);
        EXPECT_EQ(b, 20);
        painter.popClipRect();
        d->getClipRect(&l, &t, &r, &b);
        EXPECT_EQ(l, 15);
        EXPECT_EQ(r, 55);
        // Left pushed: the painter restores the clip when it goes.
    }
    int l, t, r, b;
    d->getClipRect(&l, &t, &r, &b);
    EXPECT_EQ(l, 0);
    EXPECT_EQ(r, 99);
    EXPECT_EQ(b, 79);
    d->destroy();
}

TEST(LayerPainter, ColoursDifferByWhatTheyStandFor) {
    DrawArea *d = DrawArea::create();
    const int palette[] = {0xFFFFFF, 0x000000, 0x000000, 0x808080};
    d->setColorTable(IntArray(palette, 4), 0);
    LayerPainter painter(d, false, 0, 0);
    EXPECT_FALSE(painter.isDifferentColor(kLineColor, 0x000000));
    EXPECT_FALSE(painter.isDifferentColor(kLineColor, kTextColor));
    EXPECT_TRUE(painter.isDifferentColor(kLineColor, kBackgroundColor));
    EXPECT_FALSE(painter.isDifferentColor(0x123456, 0x123456));
    d->destroy();
}
