#include <gtest/gtest.h>

#include <cmath>

#include "chart/symbol/LayerPainter.h"
#include "foundation/Constants.h"
#include "tests/chart/layer/LayerTestSupport.h"
#include "tests/layers/BarTestSupport.h"

namespace {

const char *kLabels[] = {"A", "B", "C", "D"};

}  // namespace

// Four categories of 75 pixels; three bars of 16 with gaps of 4 fill 56.
TEST(BarLayer, GroupsStandSideBySideInTheirCategories) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->xAxis()->setLabels(StringArray(kLabels, 4));
    BarLayer *layer = chart->addBarLayer2(kSide, 0);
    std::vector<double> a = {1, 2, 3, 4}, b = {2, 2, 2, 2}, c = {3, kNoValue, 1, 1};
    layer->addDataSet(values(a), 0xFF0000, "a");
    layer->addDataSet(values(b), 0x00FF00, "b");
    layer->addDataSet(values(c), 0x0000FF, "c");
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    // A gap has no bar and no hot spot.
    ASSERT_EQ(boxes.size(), 11u);
    EXPECT_EQ(impl(layer)->getGroupWidth(), 56);
    EXPECT_EQ(impl(layer)->getBarWidth(), 16);
    // Category 0 is centred at 50 + 37.5.
    EXPECT_EQ(boxes[0][0], 60);
    EXPECT_EQ(boxes[0][2], 75);
    EXPECT_EQ(boxes[1][0], 80);
    EXPECT_EQ(boxes[2][0], 100);
    EXPECT_EQ(boxes[2][2], 115);
    EXPECT_EQ(boxes[3][0], 60 + 75);
    // The bars stand on the axis's 0 at y 220 and reach their values.
    int top = (int)std::floor(chart->getYCoor(1, nullptr) + 0.5);
    EXPECT_EQ(boxes[0][1], top);
    EXPECT_EQ(boxes[0][3], 219);
    DrawArea *d = chart->makeChart();
    EXPECT_EQ(d->getPixel(67, 215), 0xFF0000);
    EXPECT_EQ(d->getPixel(87, 215), 0x00FF00);
    EXPECT_EQ(d->getPixel(77, 215), 0xFFFFFF);
}

TEST(BarLayer, OnePointTakesTheSpacingOfOne) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->xAxis()->setLinearScale(0, 4, 1, 0);
    std::vector<double> v = {5};
    BarLayer *layer = chart->addBarLayer(values(v), 0xFF0000, "", 0);
    layer->setXData2(2, 2);
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 1u);
    // 75 pixels for a spacing of 1, three quarters of it for the bar.
    EXPECT_EQ(impl(layer)->getGroupWidth(), 56);
    EXPECT_EQ(boxes[0][0], 200 - 28);
    EXPECT_EQ(boxes[0][2], 200 + 27);
}

TEST(BarLayer, AFixedWidthStaysWhateverTheNumberOfPoints) {
    for (int n : {3, 40}) {
        Owned<XYChartImpl> chart(newBarChart());
        std::vector<double> v(n, 1.0);
        BarLayer *layer = chart->addBarLayer(values(v), 0xFF0000, "", 0);
        layer->setBarGap(0.9, kNoValue);
        layer->setBarWidth(20, -1);
        for (const std::vector<int> &box : boxesOf(chart.get())) EXPECT_EQ(box[2] - box[0] + 1, 20);
    }
}

TEST(BarLayer, OverlappingBarsPutTheFirstSetOnTopWhenAsked) {
    for (bool firstOnTop : {true, false}) {
        Owned<XYChartImpl> chart(newBarChart());
        chart->xAxis()->setLabels(StringArray(kLabels, 4));
        BarLayer *layer = chart->addBarLayer2(kSide, 0);
        std::vector<double> v = {1, 1, 1, 1};
        layer->addDataSet(values(v), 0xFF0000, "");
        layer->addDataSet(values(v), 0x0000FF, "");
        layer->setOverlapRatio(0.5, firstOnTop);
        std::vector<std::vector<int>> boxes = boxesOf(chart.get());
        ASSERT_EQ(boxes.size(), 8u);
        int width = impl(layer)->getBarWidth();
        EXPECT_EQ(width, 37);
        // The bars of a category overlap by half a bar.
        int red = firstOnTop ? 1 : 0, blue = 1 - red;
        EXPECT_EQ(boxes[blue][0] - boxes[red][0], 19);
        int middle = (boxes[blue][0] + boxes[red][2]) / 2;
        EXPECT_EQ(chart->makeChart()->getPixel(middle, 210), firstOnTop ? 0xFF0000 : 0x0000FF);
    }
}

TEST(BarLayer, StacksGrowBothWaysFromTheBaseLine) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->yAxis()->setLinearScale(-5, 5, 1, 0);
    chart->xAxis()->setLinearScale(-1, 1, 1, 0);
    BarLayer *layer = chart->addBarLayer2(kStack, 0);
    std::vector<double> a = {1}, b = {-2}, c = {3};
    layer->addDataSet(values(a), 0xFF0000, "");
    layer->addDataSet(values(b), 0x00FF00, "");
    layer->addDataSet(values(c), 0x0000FF, "");
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 3u);
    // 20 pixels a unit, the base at y 120; each part leaves the row below it.
    EXPECT_EQ(boxes[0][1], 100);
    EXPECT_EQ(boxes[0][3], 119);
    EXPECT_EQ(boxes[1][1], 121);
    EXPECT_EQ(boxes[1][3], 160);
    EXPECT_EQ(boxes[2][1], 40);
    EXPECT_EQ(boxes[2][3], 99);
    DrawArea *d = chart->makeChart();
    EXPECT_EQ(d->getPixel(200, 110), 0xFF0000);
    EXPECT_EQ(d->getPixel(200, 140), 0x00FF00);
    EXPECT_EQ(d->getPixel(200, 60), 0x0000FF);
    EXPECT_EQ(d->getPixel(200, 30), 0xFFFFFF);
    // A base line moves every stack.
    Owned<XYChartImpl> raised(newBarChart());
    raised->yAxis()->setLinearScale(-5, 5, 1, 0);
    BarLayer *onBase = raised->addBarLayer(values(a), 0xFF0000, "", 0);
    onBase->setBaseLine(-5);
    boxes = boxesOf(raised.get());
    EXPECT_EQ(boxes[0][1], 100);
    EXPECT_EQ(boxes[0][3], 219);
}

TEST(BarLayer, PercentageStacksFillTheAxisToAHundred) {
    Owned<XYChartImpl> chart(newBarChart());
    BarLayer *layer = chart->addBarLayer2(kPercentage, 0);
    std::vector<double> a = {1, 0}, b = {-3, 0};
    layer->addDataSet(values(a), 0xFF0000, "");
    layer->addDataSet(values(b), 0x00FF00, "");
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    EXPECT_EQ(chart->yAxis()->getMaxValue(), 100);
    EXPECT_EQ(chart->yAxis()->getMinValue(), 0);
    // Magnitudes: a quarter and three quarters of 200 pixels.
    ASSERT_GE(boxes.size(), 2u);
    EXPECT_EQ(boxes[0][1], 170);
    EXPECT_EQ(boxes[0][3], 219);
    EXPECT_EQ(boxes[1][1], 20);
    EXPECT_EQ(boxes[1][3], 169);
}

TEST(BarLayer, SwappedChartsLayTheBarsDown) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->swapXY(true);
    chart->xAxis()->setLabels(StringArray(kLabels, 4));
    chart->yAxis()->setLinearScale(0, 10, 5, 0);
    BarLayer *layer = chart->addBarLayer2(kSide, 0);
    std::vector<double> a = {5, 10, 0, 0}, b = {2, 2, 2, 2};
    layer->addDataSet(values(a), 0xFF0000, "");
    layer->addDataSet(values(b), 0x00FF00, "");
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 8u);
    // Along the bottom 30 pixels a unit from x 50; category A at the bottom.
    EXPECT_EQ(boxes[0][0], 51);
    EXPECT_EQ(boxes[0][2], 200);
    EXPECT_GT(boxes[0][1], 170);
    // The first set stands nearer the x axis's start, below the second.
    EXPECT_GT(boxes[0][1], boxes[1][3]);
    EXPECT_EQ(boxes[2][2], 350);
}

TEST(BarLayer, PositionsWithoutXValuesHaveNoBars) {
    Owned<XYChartImpl> chart(newBarChart());
    std::vector<double> v = {1, 2, 3, 4, 5}, x = {0, 1, 2};
    BarLayer *layer = chart->addBarLayer(values(v), 0xFF0000, "", 0);
    layer->setXData(values(x));
    EXPECT_EQ(boxesOf(chart.get()).size(), 3u);
    // A layer without data paints nothing.
    Owned<XYChartImpl> empty(newBarChart());
    BarLayer *none = empty->addBarLayer2(kStack, 0);
    EXPECT_TRUE(boxesOf(empty.get()).empty());
    EXPECT_TRUE(impl(none)->getBars().empty());
}

TEST(BarLayer, BarsOfNoLengthShowAsALineOnTheirSide) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->yAxis()->setLinearScale(-5, 5, 1, 0);
    std::vector<double> v = {0, -1};
    BarLayer *layer = chart->addBarLayer(values(v), 0xFF0000, "", 0);
    layer->setMinImageMapSize(1);
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 2u);
    // The data lie below the base, so a value of 0 points down as well.
    EXPECT_EQ(boxes[0][1], 121);
    EXPECT_EQ(boxes[0][3], 121);
    DrawArea *d = chart->makeChart();
    int x = (boxes[0][0] + boxes[0][2]) / 2;
    EXPECT_EQ(d->getPixel(x, 121), 0xFF0000);
    EXPECT_EQ(d->getPixel(x, 119), 0xFFFFFF);
    // Short hot spots grow to the least size, outward.
    layer->setMinImageMapSize(5);
    boxes = boxesOf(chart.get());
    EXPECT_EQ(boxes[0][3], 125);
}

TEST(BarLayer, SetsOfADepthLayerStandOneBehindTheOther) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->xAxis()->setLabels(StringArray(kLabels, 4));
    BarLayer *layer = chart->addBarLayer2(kDepth, 10);
    layer->set3D(10, 4);
    std::vector<double> v = {1, 1, 1, 1};
    layer->addDataSet(values(v), 0xFF0000, "");
    layer->addDataSet(values(v), 0x00FF00, "");
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 8u);
    // Hot spots of 3D bars are the outline of front and faces.
    ASSERT_EQ(boxes[0].size(), 12u);
    EXPECT_EQ(chart->getPlotAreaImpl().getLayer(0)->getDepthX(), 24);
    int front = -1, back = -1;
    for (size_t k = 0; k < boxes.size(); ++k) {
        if (boxes[k][0] > 120) continue;
        (front < 0 ? front : back) = (int)k;
    }
    ASSERT_GE(back, 0);
    EXPECT_EQ(boxes[back][0] - boxes[front][0], 14);
    EXPECT_EQ(boxes[front][1] - boxes[back][1], 14);
}

TEST(BarLayer, AnAlignedLayerPutsItsPointsOnTheBars) {
    Owned<XYChartImpl> chart(newBarChart());
    chart->xAxis()->setLabels(StringArray(kLabels, 4));
    BarLayer *bars = chart->addBarLayer2(kSide, 0);
    std::vector<double> v = {1, 2, 3, 4};
    bars->addDataSet(values(v), 0xFF0000, "");
    bars->addDataSet(values(v), 0x00FF00, "");
    SquareLayer *points = SquareLayer::add(chart.get());
    points->addDataSet(values(v), 0x0000FF, "");
    points->alignLayer(bars, 1);
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 12u);
    // The points' hot spots follow the bars' in the map: their middles meet.
    for (int i = 0; i < 4; ++i) {
        const std::vector<int> &bar = boxes[2 * i + 1], &point = boxes[8 + i];
        EXPECT_NEAR((point[0] + point[2]) / 2.0, (bar[0] + bar[2]) / 2.0, 0.5);
    }
    // A set the bars do not have leaves the points at their own x.
    points->alignLayer(bars, 5);
    EXPECT_DOUBLE_EQ(points->pointXPixel(0), points->xPixel(0));
}

TEST(BarLayer, NumberedPositionsEndHalfASlotBeyondTheOuterBars) {
    Owned<XYChartImpl> chart(newBarChart());
    std::vector<double> v = {3, 5, 2, 6, 4};
    chart->addBarLayer(values(v), 0xFF0000, "", 0);
    chart->layoutAxes();
    EXPECT_EQ(chart->xAxis()->getMinValue(), -0.5);
    EXPECT_EQ(chart->xAxis()->getMaxValue(), 4.5);
    // Bars stand on 0 with the y axis's extension above only.
    EXPECT_EQ(chart->yAxis()->getMinValue(), 0);
    std::vector<std::vector<int>> boxes = boxesOf(chart.get());
    ASSERT_EQ(boxes.size(), 5u);
    EXPECT_EQ(boxes[0][0], 50 + 30 - 22);
}
