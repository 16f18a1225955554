#include <gtest/gtest.h>

#include "foundation/Constants.h"
#include "tests/layers/BarTestSupport.h"
#include "text/box/TextBox.h"

namespace {

// Two bars, up and down, on a scale of -10 to 10 with the base at y 120.
struct UpAndDown {
    Owned<XYChartImpl> chart;
    BarLayer *layer;
    explicit UpAndDown(bool swapped = false) : chart(newBarChart()) {
        chart->swapXY(swapped);
        chart->yAxis()->setLinearScale(-10, 10, 5, 0);
        std::vector<double> v = {8, -6};
        layer = chart->addBarLayer(values(v), 0xFF0000, "Bar", 0);
    }
};

}  // namespace

TEST(BarLabels, AggregatesStandOutsideTheEndAndDataLabelsInside) {
    UpAndDown bars;
    bars.layer->setAggregateLabelStyle("", 8, 0, 0);
    std::vector<std::vector<int>> boxes = boxesOf(bars.chart.get());
    std::vector<TextAt> texts = labelTexts(bars.chart->makeChart());
    ASSERT_EQ(texts.size(), 2u);
    // Above the bar that points up, below the one that points down.
    EXPECT_LT(texts[0].y, boxes[0][1]);
    EXPECT_GT(texts[0].y, boxes[0][1] - 20);
    EXPECT_GT(texts[1].y, boxes[1][3]);
    for (int k = 0; k < 2; ++k) {
        EXPECT_GT(texts[k].x, boxes[k][0]);
        EXPECT_LT(texts[k].x, boxes[k][2]);
    }

    UpAndDown inside;
    inside.layer->setDataLabelFormat("{value}");
    boxes = boxesOf(inside.chart.get());
    texts = labelTexts(inside.chart->makeChart());
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_GE(texts[0].y, boxes[0][1]);
    EXPECT_LT(texts[0].y, boxes[0][1] + 20);
    EXPECT_LE(texts[1].y, boxes[1][3]);
    EXPECT_GT(texts[1].y, boxes[1][3] - 20);
}

TEST(BarLabels, AnAlignmentPlacesTheLabelWithinTheBar) {
    UpAndDown bars;
    bars.layer->setDataLabelStyle("", 8, 0, 0)->setAlignment(kCenter);
    std::vector<std::vector<int>> boxes = boxesOf(bars.chart.get());
    std::vector<TextAt> texts = labelTexts(bars.chart->makeChart());
    ASSERT_EQ(texts.size(), 2u);
    for (int k = 0; k < 2; ++k) {
        int middle = (boxes[k][1] + boxes[k][3]) / 2;
        EXPECT_NEAR(texts[k].y, middle, 10);
    }
    // Bars shorter than the least label size get none.
    UpAndDown small;
    small.layer->setDataLabelFormat("{value}");
    small.layer->setMinLabelSize(70);
    EXPECT_EQ(labelTexts(small.chart->makeChart()).size(), 1u);
}

TEST(BarLabels, LyingBarsPutTheirAggregatesBesideTheEnd) {
    UpAndDown bars(true);
    bars.layer->setAggregateLabelStyle("", 8, 0, 0);
    std::vector<std::vector<int>> boxes = boxesOf(bars.chart.get());
    std::vector<TextAt> texts = labelTexts(bars.chart->makeChart());
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_GT(texts[0].x, boxes[0][2]);
    EXPECT_LT(texts[1].x, boxes[1][0]);
    EXPECT_GT(texts[0].y, boxes[0][1] - 10);
    EXPECT_LT(texts[0].y, boxes[0][3]);
}

TEST(BarLabels, ImageMapAreasAreTheBarsWithTheirAttributes) {
    Owned<XYChartImpl> chart(newBarChart());
    const char *months[] = {"Jan", "Feb", "Mar"};
    chart->xAxis()->setLabels(StringArray(months, 3));
    BarLayer *layer = chart->addBarLayer2(kSide, 0);
    std::vector<double> a = {5, 6, 7}, b = {2, 3, kNoValue};
    layer->addDataSet(values(a), 0xFF0000, "First");
    layer->addDataSet(values(b), 0x00FF00, "Second");
    std::string map =
        chart->getHTMLImageMap("view.html", "", "title='{dataSetName}: {value}'", 0, 0);
    std::vector<Area> areas = areasOf(map);
    ASSERT_EQ(areas.size(), 5u);
    EXPECT_EQ(areas[3].href, "view.html?x=1&xLabel=Feb&dataSet=1&dataSetName=Second&value=3");
    EXPECT_NE(map.find("title='First: 7'"), std::string::npos);
    // The areas are the painted bars: the first bar's middle is red.
    DrawArea *d = chart->makeChart();
    const std::vector<int> &c = areas[0].coords;
    EXPECT_EQ(d->getPixel((c[0] + c[2]) / 2, (c[1] + c[3]) / 2), 0xFF0000);
    EXPECT_EQ(d->getPixel(c[0] - 1, (c[1] + c[3]) / 2), 0xFFFFFF);
    // With an offset every coordinate moves.
    std::vector<Area> moved = areasOf(chart->getHTMLImageMap("view.html", "", "", 10, 20));
    EXPECT_EQ(moved[0].coords[0], c[0] + 10);
    EXPECT_EQ(moved[0].coords[3], c[3] + 20);
    // 3D bars give polygons.
    Owned<XYChartImpl> deep(newBarChart());
    BarLayer *solid = deep->addBarLayer(values(a), 0xFF0000, "", 8);
    std::vector<Area> polygons = areasOf(deep->getHTMLImageMap("u", "", "", 0, 0));
    ASSERT_EQ(polygons.size(), 3u);
    EXPECT_EQ(polygons[0].shape, "poly");
    EXPECT_STREQ(solid->getImageCoor(0, 9, 0, 0), "");
}

TEST(BarLabels, TheMainColourOfALabelIsItsDataSetsColour) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->yAxis()->setLinearScale(0, 10, 5, 0);
    BarLayer *layer = chart->addBarLayer2(kSide, 0);
    std::vector<double> v = {5};
    layer->addDataSet(values(v), 0xFF0000, "");
    layer->addDataSet(values(v), 0x0000FF, "");
    layer->setAggregateLabelStyle("", 8, 0xFFFFFF, 0)->setBackground(kSameAsMainColor, -1, 0);
    DrawArea *d = chart->makeChart();
    std::vector<TextAt> texts = labelTexts(d);
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(d->getPixel(texts[0].x - 1, texts[0].y), 0xFF0000);
    EXPECT_EQ(d->getPixel(texts[1].x - 1, texts[1].y), 0x0000FF);
}
