#include <gtest/gtest.h>

#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/MultiChart.h"
#include "host/abc/chart/TextBox.h"
#include "host/abc/pie/PieChart.h"
#include "host/abc/xy/XYChart.h"

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

// An XY chart keeps one wrapper per axis, plot area, layer and data set, a layer's
// of its kind; label boxes asked for again keep their wrapper.
TEST(AbcChart, XYPartsHaveOneWrapperEach) {
    abc::XYChart *c = abc::XYChart::create(200, 100, 0xffffff, -16777216, 0);
    ASSERT_NE(nullptr, c);
    abc::Axis *x = c->xAxis();
    EXPECT_EQ(x, c->xAxis());
    EXPECT_NE(x, c->yAxis());
    c->swapXY(true);
    EXPECT_EQ(x, c->yAxis());
    EXPECT_EQ(nullptr, c->addAxis(5, 10));
    EXPECT_EQ(c->getPlotArea(), c->setPlotArea(10, 10, 150, 70, -1, -1, -1, -1, -1));
    const double data[] = {1, 2, 3};
    abc::BarLayer *bars = c->addBarLayer({3, data}, -1, "bars", 0);
    ASSERT_NE(nullptr, bars);
    EXPECT_EQ(bars, c->getLayer(0));
    EXPECT_EQ(bars, c->getLayerByZ(0));
    EXPECT_EQ(nullptr, c->getLayer(1));
    abc::DataSet *set = bars->getDataSet(0);
    ASSERT_NE(nullptr, set);
    EXPECT_EQ(set, bars->getDataSetByZ(0));
    EXPECT_EQ(set, c->dataSetOf(set->getHandle()));
    abc::DataSet *other = bars->addDataSet({3, data}, 0xff0000, "other");
    EXPECT_NE(set, other);
    EXPECT_EQ(nullptr, other->getUseYAxis());
    other->setUseYAxis(c->xAxis2());
    EXPECT_EQ(c->xAxis2(), other->getUseYAxis());
    abc::TextBox *style = bars->setDataLabelStyle("", 8, 0, 0);
    EXPECT_EQ(style, bars->setDataLabelStyle("bold", 9, 0, 0));
    abc::TextBox *custom = bars->addCustomDataLabel(0, 1, "a", "", 8, 0, 0);
    EXPECT_EQ(custom, bars->addCustomDataLabel(0, 1, "b", "", 8, 0, 0));
    EXPECT_NE(style, custom);
    EXPECT_EQ(x->setTitle("t", "", 8, 0), x->setTitle("u", "", 8, 0));
    abc::Mark *mark = x->addMark(2, 0, "m", "", 8);
    EXPECT_NE(mark, x->addMark(2, 0, "m", "", 8));
    EXPECT_EQ(mark->getLine(), mark->getLine());
    EXPECT_NE(nullptr, c->makeChart());
    EXPECT_GE(mark->getLine()->getPoints().len, 4);
    delete c;
}

// Line, scatter and area layers get wrappers of their kind, a scatter layer's
// being a line layer's too; a layer's line keeps one wrapper.
TEST(AbcChart, LayerKindsHaveWrappersOfTheirKind) {
    abc::XYChart *c = abc::XYChart::create(200, 100, 0xffffff, -16777216, 0);
    const double data[] = {1, 3, 2};
    abc::ScatterLayer *dots = c->addScatterLayer({3, data}, {3, data}, "dots", 1, 5, -1, -1);
    abc::LineLayer *line = c->addLineLayer2(0, 0);
    abc::AreaLayer *area = c->addAreaLayer({3, data}, 0xff0000, "area", 0);
    ASSERT_NE(nullptr, dots);
    ASSERT_NE(nullptr, line);
    ASSERT_NE(nullptr, area);
    EXPECT_EQ(dots, c->getLayer(0));
    EXPECT_EQ(CScatterLayer_toLineLayer(dots->getScatterHandle()), dots->getLineHandle());
    EXPECT_EQ(nullptr, dynamic_cast<abc::ScatterLayer *>(c->getLayer(1)));
    EXPECT_EQ(line, dynamic_cast<abc::LineLayer *>(c->getLayer(1)));
    EXPECT_EQ(area, c->getLayer(2));
    EXPECT_EQ(nullptr, c->addLineLayer({3, data}, -1, "", 0)->getLine(1));
    abc::LineObj *first = dots->getLine(0);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, dots->getLine(0));
    EXPECT_EQ(0, first->getPoints().len);
    EXPECT_NE(nullptr, c->makeChart());
    EXPECT_EQ(6, first->getPoints().len);
    delete c;
}

// The sectors of a pie keep their wrapper, also beyond a shorter data set.
TEST(AbcChart, SectorsHaveOneWrapperEach) {
    abc::PieChart *c = abc::PieChart::create(200, 100, 0xffffff, -16777216, 0);
    ASSERT_NE(nullptr, c);
    const double data[] = {1, 2};
    const char *const labels[] = {"a", "b"};
    c->setData({2, data}, {2, labels});
    abc::Sector *second = c->sector(1);
    ASSERT_NE(nullptr, second);
    EXPECT_EQ(second, c->sector(1));
    EXPECT_EQ(nullptr, c->sector(2));
    abc::TextBox *box = second->setLabelStyle("", 9, 0);
    EXPECT_EQ(box, second->setLabelStyle("", 10, 0));
    c->setData({1, data}, {1, labels});
    second->setColor(0xff0000, -1, -1);
    box->setText("gone");
    c->setData({2, data}, {2, labels});
    EXPECT_EQ(second, c->sector(1));
    delete c;
}
