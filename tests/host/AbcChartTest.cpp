#include <gtest/gtest.h>

#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/MultiChart.h"
#include "host/abc/chart/TextBox.h"

// Wrappers of one chart share a count: the chart lives until the last goes (a
// use after that would show under the address sanitizer).
TEST(AbcChart, WrappersShareTheCountOfTheirChart) {
    abc::MultiChart *owner = abc::MultiChart::create(100, 60, 0xffffff, -16777216, 0);
    ASSERT_NE(nullptr, owner);
    EXPECT_EQ(1, owner->getRefCount());
    abc::BaseChart copy(*owner);
    EXPECT_EQ(2, copy.getRefCount());
    EXPECT_EQ(owner->getHandle(), copy.getHandle());
    delete owner;
    EXPECT_EQ(1, copy.getRefCount());
    EXPECT_EQ(100, copy.getWidth());
    EXPECT_NE(nullptr, copy.addTitle("after", "", 10, 0, -16777216, -16777216));
    EXPECT_NE(nullptr, copy.makeChart());
}

// The canvas and the legend are one object each: one wrapper each, asked for
// again and again.  Titles get a wrapper each, kept in the chart's garbage.
TEST(AbcChart, PartsHaveOneWrapperPerEngineObject) {
    abc::MultiChart *c = abc::MultiChart::create(80, 40, 0xffffff, -16777216, 0);
    abc::DrawArea *canvas = c->getDrawArea();
    EXPECT_EQ(canvas, c->makeChart());
    EXPECT_EQ(canvas, c->getRawDrawArea());
    EXPECT_FALSE(canvas->ownsEngineCanvas());
    abc::LegendBox *legend = c->getLegend();
    EXPECT_EQ(legend, c->addLegend(1, 1, true, "", 10));
    EXPECT_EQ(legend, c->layoutLegend());
    int before = c->garbageCount();
    abc::TextBox *a = c->addTitle("a", "", 10, 0, -16777216, -16777216);
    abc::TextBox *b = c->addText(1, 1, "b", "", 8, 0, 7, 0, false);
    EXPECT_NE(a, b);
    EXPECT_EQ(before + 2, c->garbageCount());
    delete c;
}

// A multi-chart gives back the wrapper it was given; for a chart placed through
// the flat interface it lends a wrapper of the chart's own kind, one per chart.
TEST(AbcChart, MultiChartFindsTheWrappersItWasGiven) {
    abc::MultiChart *multi = abc::MultiChart::create(200, 100, 0xffffff, -16777216, 0);
    abc::MultiChart *given = abc::MultiChart::create(50, 50, 0xffffff, -16777216, 0);
    multi->addChart(10, 10, given);
    multi->addChart(10, 10, nullptr);
    EXPECT_EQ(given, multi->getChart(0));
    EXPECT_EQ(nullptr, multi->getChart(-1));
    multi->setMainChart(multi);
    EXPECT_EQ(multi, multi->getChart(-1));
    CMultiChart *placed = CMultiChart_create(30, 30, 0xffffff, -16777216, 0);
    CMultiChart_addChart(multi->getMultiHandle(), 60, 0, CMultiChart_toBaseChart(placed));
    abc::BaseChart *lent = multi->getChart(1);
    ASSERT_NE(nullptr, lent);
    EXPECT_NE(nullptr, dynamic_cast<abc::MultiChart *>(lent));
    EXPECT_EQ(0, lent->getRefCount());
    EXPECT_EQ(lent, multi->getChart(1));
    EXPECT_EQ(60, multi->getAbsOffsetX(lent));
    multi->releaseCharts();
    EXPECT_EQ(0, given->getAbsOffsetX());
    delete multi;
    delete given;
    CBaseChart_destroy(CMultiChart_toBaseChart(placed));
}
