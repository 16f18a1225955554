#include <gtest/gtest.h>

#include <regex>

#include "chart/layer/DataLabels.h"
#include "chart/legend/LegendBoxImpl.h"
#include "chart/xy/LayerMakers.h"
#include "tests/chart/layer/LayerTestSupport.h"
#include "text/box/TextBoxImpl2.h"

namespace {

DoubleArray values(const std::vector<double> &v) {
    return DoubleArray(v.data(), (int)v.size());
}

// The texts the legend's keys stand for, in their order.
std::vector<std::string> keyNames(XYChartImpl *chart) {
    LegendBox *legend = chart->layoutLegend();
    std::string map = legend->getHTMLImageMap("u", "{dataSetName}", "", 0, 0);
    std::vector<std::string> names;
    std::regex href("href=\"u\\?([^\"]*)\"");
    for (std::sregex_iterator m(map.begin(), map.end(), href), end; m != end; ++m)
        names.push_back((*m)[1]);
    return names;
}

}  // namespace

TEST(LayerPaint, ObjectsBelow0x2000PaintBeneathTheData) {
    Owned<XYChartImpl> chart(newLayerChart());
    std::vector<std::string> log;
    SquareLayer *layer = SquareLayer::add(chart.get());
    layer->log = &log;
    layer->addDrawObj(new LoggedObject(&log, "front", 0x2000));
    layer->addDrawObj(new LoggedObject(&log, "back", 0x1FFF));
    layer->addDrawObj(new LoggedObject(&log, "lowest", 0));
    chart->makeChart();
    EXPECT_EQ(log, (std::vector<std::string>{"lowest", "back", "data", "front"}));
}

TEST(LayerPaint, LabelsFillTheirTemplatesAndChooseTheirStyle) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> a = {10, 0}, b = {30, 0}, c = {-20, 5};
    layer->addDataSet(values(a), 0xFF0000, "Alpha");
    layer->addDataSet(values(b), 0x00FF00, "Beta");
    layer->addDataGroup("Second");
    layer->addDataSet(values(c), 0x0000FF, "Gamma");
    const char *labels[] = {"Jan", "Feb"};
    chart->xAxis()->setLabels(StringArray(labels, 2));
    const char *texts[] = {"t0", "t1"};
    layer->addExtraField(StringArray(texts, 2));
    chart->layout();

    LabelSpot p = {1, 0, 0, false, 30, 0, 0, 0, 0, kTop};
    EXPECT_EQ(layer->fillTemplate("{value}|{dataSet}|{dataSetName}|{dataItem}|{x}|{xLabel}", 0, p),
              "30|1|Beta|0|0|Jan");
    EXPECT_EQ(layer->fillTemplate("{accValue}|{totalValue}|{percent}|{accPercent|1}", 0, p),
              "40|40|75.00|100.0");
    EXPECT_EQ(layer->fillTemplate("{gpercent|0}|{value2}|{value9}|{dataGroupName}|{layerId}", 0, p),
              "150|-20|||0");
    EXPECT_EQ(layer->fillTemplate("{field0}|{dsField0}|{unknown}", 0, p), "t0|t1|{unknown}");
    // An aggregate label tells of its stack; a stack of 0 gives no percentage.
    LabelSpot total = {-1, 1, 0, true, 0, 0, 0, 0, 0, kTop};
    EXPECT_EQ(layer->fillTemplate("{value}|{dataSet}|{dataSetName}|{percent}", 0, total),
              "0|-1||0.00");
    LabelSpot gamma = {2, 0, 1, false, -20, 0, 0, 0, 0, kTop};
    EXPECT_EQ(layer->fillTemplate("{percent|0}|{gpercent|0}", 0, gamma), "100|-100");
    LabelSpot mixed = {0, 0, 0, false, 10, 0, 0, 0, 0, kTop};
    std::vector<double> minus = {-10, 0};
    layer->getDataSet(1)->setData(values(minus));
    EXPECT_EQ(layer->fillTemplate("{percent}", 0, mixed), "[undef]");

    // The spot's labels: none until asked, then the layer's format, the set's,
    // a custom one.
    DataLabels labelsMade(layer);
    std::vector<LabelSpot> spots = {p, mixed};
    labelsMade.make(spots);
    EXPECT_EQ(labelsMade.getCount(), 0);
    layer->setDataLabelFormat("<{value}>");
    labelsMade.make(spots);
    ASSERT_EQ(labelsMade.getCount(), 2);
    EXPECT_EQ(labelsMade.getLabel(0)->getText(), "<30>");
    layer->getDataSet(1)->setDataLabelFormat("[{dataSetName}]");
    layer->addCustomDataLabel(0, 0, "custom {value}", "", 9, 0x00FF00, 0);
    labelsMade.make(spots);
    ASSERT_EQ(labelsMade.getCount(), 2);
    EXPECT_EQ(labelsMade.getLabel(0)->getText(), "[Beta]");
    EXPECT_EQ(labelsMade.getLabel(1)->getText(), "custom 10");
    EXPECT_EQ(labelsMade.getLabel(1)->getFontColor(), 0x00FF00);
    // The same place asked again restyles the box that was handed out.
    TextBox *custom = layer->addCustomDataLabel(0, 1, "one", "", 9, 0x00FF00, 0);
    EXPECT_EQ(custom, layer->addCustomDataLabel(0, 1, "two {value}", "", 9, 0x0000FF, 0));
    EXPECT_NE(custom, layer->addCustomDataLabel(1, 1, "other", "", 9, 0, 0));
    custom->setFontColor(0x0000FF);
    // Transparent text makes no label.
    layer->getDataSet(1)->setDataLabelStyle("", 8, kTransparent, 0);
    labelsMade.make(spots);
    EXPECT_EQ(labelsMade.getCount(), 1);
    // Aggregates: a group's own label wins over the one of every group.
    LabelSpot stack = {-1, 0, 1, true, -15, 10, 10, 20, 50, kTop};
    labelsMade.make({stack});
    EXPECT_EQ(labelsMade.getCount(), 0);
    layer->addCustomAggregateLabel(0, "all {value}", "", 8, 0, 0);
    layer->addCustomGroupLabel(1, 0, "group {dataGroupName}", "", 8, 0, 0);
    labelsMade.make({stack, {-1, 0, 0, true, 40, 0, 0, 0, 0, kTop}});
    ASSERT_EQ(labelsMade.getCount(), 2);
    EXPECT_EQ(labelsMade.getLabel(0)->getText(), "group Second");
    EXPECT_EQ(labelsMade.getLabel(1)->getText(), "all 40");
}

TEST(LayerPaint, LegendKeysFollowTheLayersAndTheirOrder) {
    Owned<XYChartImpl> chart(newLayerChart());
    chart->addLegend(10, 10, true, "", 8);
    SquareLayer *first = SquareLayer::add(chart.get());
    SquareLayer *second = SquareLayer::add(chart.get());
    std::vector<double> v = {1};
    first->addDataSet(values(v), -1, "A");
    first->addDataSet(values(v), -1, "");
    first->addDataSet(values(v), -1, "B");
    second->addDataSet(values(v), -1, "C");
    second->addDataSet(values(v), -1, "D");
    first->setLegend(kReverseLegend);
    second->setLegendOrder(kNormalLegend, 0);
    first->setLegendOrder(kReverseLegend, 1);
    chart->getLegend()->addKey("user", 0x808080, -1, nullptr);
    // Sets without a name give no key; user keys come last.
    EXPECT_EQ(keyNames(chart.get()), (std::vector<std::string>{"C", "D", "B", "A", "user"}));

    Owned<XYChartImpl> none(newLayerChart());
    none->addLegend(10, 10, true, "", 8);
    SquareLayer *hidden = SquareLayer::add(none.get());
    hidden->addDataSet(values(v), -1, "A");
    hidden->setLegend(kNoLegend);
    EXPECT_TRUE(keyNames(none.get()).empty());
    // The key's text is the legend's template filled for the set.
    LegendBoxImpl *legend = static_cast<LegendBoxImpl *>(chart->getLegend());
    EXPECT_EQ(legend->getItemCount(), 5);
    EXPECT_EQ(first->fillSetTemplate(0, "{dataSetName}: {dataSet}", 0), "A: 0");
    EXPECT_STREQ(first->getLegendIcon(0),
                 "<*img=@square,width=10,height=10,color=FFFF0008,edgecolor=FFFF0008*>");
    EXPECT_STREQ(first->getLegendIcon(7), "");
    EXPECT_STREQ(first->getDataSet(2)->getLegendIcon(),
                 "<*img=@square,width=10,height=10,color=FFFF000A,edgecolor=FFFF000A*>");
}

TEST(LayerPaint, ImageMapAreasCarryTheHotSpotsAndTemplates) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> v = {0, 50, 100};
    layer->addDataSet(values(v), 0xFF0000, "Sales & more");
    chart->yAxis()->setLinearScale(0, 100, 50, 0);
    chart->xAxis()->setLinearScale(0, 2, 1, 0);
    std::string map = chart->getHTMLImageMap("go.html", "", "title='{value}'", 5, 7);
    std::regex area(
        "<area shape=\"rect\" coords=\"(-?\\d+),(-?\\d+),(-?\\d+),(-?\\d+)\" "
        "href=\"([^\"]*)\" title='([^']*)'>\n");
    std::vector<std::smatch> areas;
    for (std::sregex_iterator m(map.begin(), map.end(), area), end; m != end; ++m)
        areas.push_back(*m);
    ASSERT_EQ(areas.size(), 3u);
    // Point 1 stands at x 50 + 150, y 20 + 100, offsets added.
    EXPECT_EQ(areas[1][1], "204");
    EXPECT_EQ(areas[1][2], "126");
    EXPECT_EQ(areas[1][3], "206");
    EXPECT_EQ(areas[1][4], "128");
    EXPECT_EQ(areas[1][5],
              "go.html?x=1&xLabel=1&dataSet=0&dataSetName=Sales%20%26%20more&value=50");
    EXPECT_EQ(areas[2][6], "100");
    EXPECT_STREQ(layer->getImageCoor(0, 1, 0, 0), "shape=\"rect\" coords=\"199,119,201,121\"");
    EXPECT_STREQ(layer->getImageCoor(0, 9, 0, 0), "");
    EXPECT_STREQ(layer->getImageCoor2(1, 1, 1), "shape=\"rect\" coords=\"200,120,202,122\"");
    // The layer's own templates replace the chart's; "{disable}" leaves it out.
    layer->setHTMLImageMap("next.html", "{none}&more={dataItem}", "");
    std::string own = layer->getHTMLImageMap("go.html", "", "", 0, 0);
    EXPECT_NE(own.find("href=\"next.html?x=1&xLabel=1&dataSet=0&dataSetName=Sales%20%26%20more&"
                       "value=50&more=1\""),
              std::string::npos);
    layer->setHTMLImageMap("{disable}", "", "");
    EXPECT_STREQ(chart->getHTMLImageMap("go.html", "", "", 0, 0), "");
}

TEST(LayerPaint, LayersMoveInFrontOfAndBehindEachOther) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *a = SquareLayer::add(chart.get());
    SquareLayer *b = SquareLayer::add(chart.get());
    SquareLayer *c = SquareLayer::add(chart.get());
    EXPECT_EQ(chart->getLayerByZ(0), c);
    a->moveBack(nullptr);
    EXPECT_EQ(chart->getLayer(2), a);
    a->moveFront(c);
    EXPECT_EQ(chart->getLayer(0), b);
    EXPECT_EQ(chart->getLayer(1), a);
    EXPECT_EQ(chart->getLayer(2), c);
    c->moveFront(nullptr);
    EXPECT_EQ(chart->getLayer(0), c);
    b->moveBack(a);
    EXPECT_EQ(chart->getLayer(2), b);
    EXPECT_EQ(b->getLayerIndex(), 2);
}

TEST(LayerPaint, WithoutInstalledKindsTheChartMakesNoBarLayer) {
    LayerMakers *installed = LayerMakers::get();
    LayerMakers::install(nullptr);
    Owned<XYChartImpl> chart(newLayerChart());
    std::vector<double> v = {1};
    EXPECT_EQ(chart->addBarLayer(values(v), -1, "", 0), nullptr);
    EXPECT_EQ(chart->addBarLayer2(kStack, 0), nullptr);
    EXPECT_EQ(chart->addBarLayer3(values(v), IntArray(), StringArray(), 0), nullptr);
    LayerMakers::install(installed);
}

TEST(LayerPaint, CoordinatesOfALayerBehindOthersShiftByTheDepth) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *front = SquareLayer::add(chart.get());
    SquareLayer *back = SquareLayer::add(chart.get());
    std::vector<double> v = {5, 5};
    front->addDataSet(values(v), -1, "");
    back->addDataSet(values(v), -1, "");
    front->set3D(10, 0);
    back->set3D(-1, 0);
    chart->yAxis()->setLinearScale(0, 10, 5, 0);
    chart->xAxis()->setLinearScale(0, 1, 1, 0);
    chart->layoutAxes();
    EXPECT_EQ(front->getDepth(), 10);
    // Automatic depth: a 40th of the smaller side, then a 30th, then a 20th.
    EXPECT_EQ(back->getDepth(), 5);
    EXPECT_EQ(front->getXCoor(0), 50);
    EXPECT_EQ(back->getXCoor(0), 60);
    EXPECT_EQ(back->getYCoor(5, nullptr), 110);
    EXPECT_EQ(back->getYCoor2(0, false), 210);
    EXPECT_EQ(chart->getPlotAreaImpl().getLayerCount(), 2);
    // The nearest x of a pixel, seen through the layer's shift.
    EXPECT_EQ(back->getNearestXValue(299), 1);
    EXPECT_EQ(front->getNearestXValue(60), 0);
}
