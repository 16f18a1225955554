#include <gtest/gtest.h>

#include "chart/base/MultiChart.h"
#include "tests/chart/ChartTestSupport.h"

TEST(MultiChart, ChildrenPaintAtTheirPlacesAndStayTheirCreators) {
    Owned<MultiChart> multi(MultiChart::create(300, 200, 0xFFFFFF, kTransparent, 0));
    PlainChart *a = PlainChart::create(100, 80);
    PlainChart *b = PlainChart::create(50, 40);
    a->setBackground(0xFF0000, kTransparent, 0);
    b->setBackground(0x0000FF, kTransparent, 0);
    multi->addChart(10, 20, a);
    multi->addChart(150, 100, b);
    multi->addChart(0, 0, nullptr);
    EXPECT_EQ(multi->getChartCount(), 2);
    EXPECT_EQ(multi->getChart(1), b);
    EXPECT_EQ(multi->getChart(2), nullptr);
    EXPECT_EQ(multi->getChart(-1), nullptr);
    EXPECT_EQ(multi->getChart(-5), nullptr);

    std::vector<std::string> lines = listingLines(multi->makeChart());
    EXPECT_GE(lineWith(lines, ", 10, 20, 100, 80, 0)"), 0);
    EXPECT_GT(lineWith(lines, ", 150, 100, 50, 40, 0)"), lineWith(lines, ", 10, 20, 100, 80, 0)"));
    DrawArea *d = multi->getRawDrawArea();
    EXPECT_EQ(d->getPixel(10, 20), 0xFF0000);
    EXPECT_EQ(d->getPixel(9, 20), 0xFFFFFF);
    EXPECT_EQ(d->getPixel(199, 139), 0x0000FF);
    // Each child went through its own pipeline once.
    EXPECT_EQ(a->calls, (std::vector<std::string>{"layoutLegend", "layoutChart", "paint"}));

    std::string map = multi->getHTMLImageMap("u", "", "", 1, 2);
    EXPECT_EQ(map, "<area x=11 y=22><area x=151 y=102>");
    a->destroy();
    b->destroy();
}

TEST(MultiChart, OffsetsAddUpThroughNestedContainers) {
    Owned<MultiChart> outer(MultiChart::create(400, 400, 0xFFFFFF, kTransparent, 0));
    Owned<MultiChart> inner(MultiChart::create(200, 200, 0xFFFFFF, kTransparent, 0));
    Owned<PlainChart> leaf(PlainChart::create(50, 50));
    Owned<PlainChart> stranger(PlainChart::create(50, 50));
    EXPECT_EQ(leaf->getAbsOffsetX(), 0);
    inner->addChart(5, 6, leaf.get());
    outer->addChart(10, 20, inner.get());
    EXPECT_EQ(leaf->getAbsOffsetX(), 15);
    EXPECT_EQ(leaf->getAbsOffsetY(), 26);
    EXPECT_EQ(inner->getAbsOffsetX(), 10);
    EXPECT_EQ(outer->getAbsOffsetX(inner.get()), 10);
    EXPECT_EQ(outer->getAbsOffsetX(outer.get()), 0);
    EXPECT_EQ(outer->getAbsOffsetY(stranger.get()), 0);
    EXPECT_EQ(outer->getAbsOffsetX(leaf.get()), 0);
}

TEST(MultiChart, ViewAreaComesFromTheMainChart) {
    Owned<MultiChart> multi(MultiChart::create(400, 300, 0xFFFFFF, kTransparent, 0));
    Owned<PlainChart> a(PlainChart::create(100, 80));
    Owned<PlainChart> b(PlainChart::create(60, 200));
    Owned<PlainChart> outside(PlainChart::create(30, 40));
    multi->addChart(10, 20, a.get());
    multi->addChart(150, 50, b.get());
    // Without a main chart the multi-chart answers for itself.
    EXPECT_EQ(multi->getProperty(0x206), 399);
    multi->setMainChart(a.get());
    EXPECT_EQ(multi->getChart(-1), a.get());
    EXPECT_EQ(multi->getProperty(0x206), 99 + 10);
    EXPECT_EQ(multi->getProperty(0x202), 79 + 20);
    EXPECT_EQ(multi->getProperty(0x204), 10);
    EXPECT_EQ(multi->getProperty(0x208), 20);
    // Itself as main chart: the view area spans all its charts.
    multi->setMainChart(multi.get());
    EXPECT_EQ(multi->getProperty(0x204), 10);
    EXPECT_EQ(multi->getProperty(0x208), 20);
    EXPECT_EQ(multi->getProperty(0x206), 59 + 150);
    EXPECT_EQ(multi->getProperty(0x202), 199 + 50);
    // A main chart it doesn't hold answers without an offset.
    multi->setMainChart(outside.get());
    EXPECT_EQ(multi->getProperty(0x206), 29);
    // The frame radii stay the multi-chart's own.
    multi->setRoundedFrame(0xFFFFFF, 9, -1, -1, -1);
    EXPECT_EQ(multi->getProperty(0x107), 9);
    multi->makeChart();
    EXPECT_STREQ(multi->getChartMetrics(), "w=400&h=300&vl=0&vt=0&vw=29&vh=39");
}

// A multi-chart placed in itself, or in a chart it holds, is walked once: its
// image map and view area come back instead of recursing without end.
TEST(MultiChart, ChartsHoldingThemselvesAreWalkedOnce) {
    Owned<MultiChart> a(MultiChart::create(100, 80, 0xFFFFFF, kTransparent, 0));
    Owned<MultiChart> b(MultiChart::create(60, 40, 0xFFFFFF, kTransparent, 0));
    a->addChart(0, 0, a.get());
    a->addChart(10, 20, b.get());
    b->addChart(5, 5, a.get());
    a->setMainChart(a.get());
    b->setMainChart(a.get());
    EXPECT_STREQ("", a->getHTMLImageMap("u", "", "", 0, 0));
    EXPECT_EQ(a->getProperty(0x206), 99 + 5 + 10);
    EXPECT_EQ(b->getProperty(0x206), 99 + 5);
    Owned<MultiChart> self(MultiChart::create(30, 20, 0xFFFFFF, kTransparent, 0));
    self->addChart(0, 0, self.get());
    EXPECT_EQ(self->makeChart()->getWidth(), 30);
}
