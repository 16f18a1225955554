#include <gtest/gtest.h>

#include <cmath>

#include "chart/symbol/ShapeWords.h"
#include "tests/layers/LineTestSupport.h"

// One point makes no area, but its symbol and label show.
TEST(AreaLayer, ASinglePointFillsNothingButShowsItsSymbolAndLabel) {
    Owned<XYChartImpl> chart(newUnitChart());
    std::vector<double> v = {50};
    AreaLayer *layer = chart->addAreaLayer(values(v), 0xFF0000, "a", 0);
    layer->setXData2(100, 100);
    layer->getDataSet(0)->setDataSymbol(kSquareShape, 7, 0x0000FF, kTransparent, 1);
    layer->setDataLabelFormat("{value}");
    DrawArea *d = chart->makeChart();
    std::vector<std::string> lines = listingLines(d);
    EXPECT_EQ(lineWith(lines, "0xff0000"), -1);
    EXPECT_GE(lineWith(lines, ", 7, 7, [147, 167])"), 0);
    std::vector<TextAt> texts = plotTexts(d);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_LT(texts[0].y, 167);
}

// From 50 above the base to 30 below it: the line meets the base at
// 50 + floor(100 * 50 / 80 + 0.5) = 113.  Its side runs along the line to
// there and along the base after it, where the area hangs below.
TEST(AreaLayer, ThreeDSidesMeetWhereTheLineCrossesTheBase) {
    Owned<XYChartImpl> chart(newUnitChart());
    chart->yAxis()->setLinearScale(-100, 100, 50, 0);
    std::vector<double> v = {50, -30};
    AreaLayer *layer = chart->addAreaLayer(values(v), 0xFF0000, "a", 10);
    layer->setXData2(0, 100);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    int rising = lineWith(lines,
                          "Polygon(Chart.Transparent, 0xff2121, [50, 113, 123, 60], "
                          "[70, 120, 110, 60])");
    int along = lineWith(lines,
                         "Polygon(Chart.Transparent, 0xff2121, [113, 150, 160, 123], "
                         "[120, 120, 110, 110])");
    int front = lineWith(lines,
                         "Polygon(Chart.Transparent, 0xff0000, [50, 150, 150, 50], "
                         "[70, 150, 120, 120])");
    EXPECT_GE(rising, 0);
    EXPECT_GE(along, 0);
    // The sides stand behind the front.
    EXPECT_GT(front, along);
}

// A stacked band 9 pixels thick at its first point loses that label under
// setMinLabelSize(10); one of 10 keeps it.  Labels at the plot's left edge
// move inward.
TEST(AreaLayer, ThinBandsLoseTheirLabels) {
    for (int minSize : {-1, 10}) {
        Owned<XYChartImpl> chart(newUnitChart());
        std::vector<double> a = {20, 20, 20}, b = {9, 10, 30};
        AreaLayer *layer = chart->addAreaLayer2(kStack, 0);
        layer->addDataSet(values(a), 0xFF0000, "a");
        layer->addDataSet(values(b), 0x00FF00, "b");
        layer->setXData2(0, 200);
        layer->setDataLabelFormat("{value}");
        layer->setMinLabelSize(minSize);
        DrawArea *d = chart->makeChart();
        std::vector<std::string> lines = listingLines(d);
        // The bands lie one on the other.
        EXPECT_GE(lineWith(lines,
                           "Polygon(Chart.Transparent, 0xff0000, [50, 150, 250, 250, 150, "
                           "50], [200, 200, 200, 220, 220, 220])"),
                  0);
        EXPECT_GE(lineWith(lines,
                           "Polygon(Chart.Transparent, 0x00ff00, [50, 150, 250, 250, 150, "
                           "50], [191, 190, 170, 200, 200, 200])"),
                  0);
        std::vector<TextAt> texts = plotTexts(d);
        ASSERT_EQ(texts.size(), minSize < 0 ? 6u : 5u);
        for (const TextAt &t : texts) EXPECT_GE(t.x, 50);
        // The band of the second set's first point ends at 191.
        int near191 = 0;
        for (const TextAt &t : texts) near191 += t.x < 100 && t.y < 191 && t.y > 175;
        EXPECT_EQ(near191, minSize < 0 ? 1 : 0);
    }
}

// A gap is bridged in the data colour by default, in a colour of its own, or
// left as a hole.
TEST(AreaLayer, GapsAreBridgedOrLeftOpen) {
    std::vector<double> v = {20, 30, kNoValue, 20, 40};
    for (int gap : {(int)kSameAsMainColor, 0x00FF00, (int)kTransparent}) {
        Owned<XYChartImpl> chart(newUnitChart());
        AreaLayer *layer = chart->addAreaLayer(values(v), 0xFF0000, "a", 0);
        layer->setXData2(0, 200);
        if (gap != (int)kSameAsMainColor) layer->setGapColor(gap);
        DrawArea *d = chart->makeChart();
        std::vector<std::string> lines = listingLines(d);
        int fills = countLinesStartingWith(lines, "Polygon(Chart.Transparent, 0xff0000");
        EXPECT_EQ(fills, gap == (int)kSameAsMainColor ? 1 : 2);
        int expected = gap == (int)kSameAsMainColor ? 0xFF0000
                       : gap == (int)kTransparent   ? 0xFFFFFF
                                                    : gap;
        EXPECT_EQ(d->getPixel(150, 210), expected);
        EXPECT_EQ(d->getPixel(70, 210), 0xFF0000);
    }
}

// Percentages fill the axis to 100 at every point.
TEST(AreaLayer, PercentageBandsReachTheTop) {
    Owned<XYChartImpl> chart(newBarChart());
    std::vector<double> a = {1, 3, 2}, b = {3, 1, 2};
    AreaLayer *layer = chart->addAreaLayer2(kPercentage, 0);
    layer->addDataSet(values(a), 0xFF0000, "a");
    layer->addDataSet(values(b), 0x00FF00, "b");
    const MultiLine *top = impl(layer)->topOf(1);
    const MultiLine *floor = impl(layer)->floorOf(1);
    ASSERT_EQ(top->size(), 3);
    for (int k = 0; k < 3; ++k) EXPECT_NEAR(top->at(k).y, 20, 0.5) << k;
    EXPECT_NEAR(floor->at(0).y, 220 - 50, 0.5);
    EXPECT_NEAR(floor->at(1).y, 220 - 150, 0.5);
    EXPECT_NEAR(impl(layer)->floorOf(0)->at(2).y, 220, 0.5);
}

// Many points: the top keeps the shape of each pixel column as a line does,
// and the floor has a point under each point of the top.
TEST(AreaLayer, ManyPointsAreReducedAsLinesAre) {
    Owned<XYChartImpl> chart(newBarChart());
    std::vector<double> v(100000);
    for (size_t i = 0; i < v.size(); ++i) v[i] = 50 + 40 * std::sin(i * 0.001) + (i % 7);
    AreaLayer *layer = chart->addAreaLayer(values(v), 0xFF0000, "a", 0);
    const MultiLine *top = impl(layer)->topOf(0), *floor = impl(layer)->floorOf(0);
    EXPECT_LE(top->size(), 4 * 301);
    EXPECT_GT(top->size(), 300);
    ASSERT_EQ(floor->size(), top->size());
    for (int k = 0; k < top->size(); ++k) {
        EXPECT_EQ(floor->at(k).x, top->at(k).x);
        EXPECT_EQ(floor->at(k).index, top->at(k).index);
    }
    EXPECT_EQ(chart->makeChart()->getPixel(200, 215), 0xFF0000);
}
