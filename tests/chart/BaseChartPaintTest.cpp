#include <gtest/gtest.h>

#include "chart/base/ChartFrame.h"
#include "chart/base/Line.h"
#include "chart/legend/LegendBox.h"
#include "tests/chart/ChartTestSupport.h"
#include "text/box/TextBox.h"

namespace {

// A line object in a colour of its own, so that the listing shows where it went.
Line *markLine(BaseChart *chart, int color, int z) {
    Line *line = chart->addLine(20, 10 + (color & 0xFF), 60, 10 + (color & 0xFF), color, 1);
    line->setZOrder(z);
    return line;
}

int indexOfColor(const std::vector<std::string> &lines, int color) {
    char text[32];
    snprintf(text, sizeof(text), "PolyLine(0x%06x", color);
    return lineWith(lines, text);
}

}  // namespace

TEST(ChartPaint, ObjectsPaintByZOrderAroundTheContentAndTheLegend) {
    Owned<PlainChart> chart(PlainChart::create(200, 150));
    chart->contentColor = 0x0000AA;
    // Added out of order; equal z orders keep their order of addition.
    markLine(chart.get(), 0x000003, kPlotAreaZ);
    markLine(chart.get(), 0x000001, 0xFFF);
    markLine(chart.get(), 0x000004, kChartFrontZ);
    markLine(chart.get(), 0x000000 + 0x10, kChartBackZ);
    markLine(chart.get(), 0x000002, 0xFFF);
    LegendBox *legend = chart->addLegend(100, 100, true, "", 8);
    legend->addKey("key", 0x00AA00, -1, nullptr);

    std::vector<std::string> lines = listingLines(chart->makeChart());
    int back = indexOfColor(lines, 0x10), justBelow1 = indexOfColor(lines, 1),
        justBelow2 = indexOfColor(lines, 2), content = indexOfColor(lines, 0x0000AA),
        plotArea = indexOfColor(lines, 3), front = indexOfColor(lines, 4);
    int key = lineWith(lines, "0x00aa00");
    ASSERT_GE(back, 0);
    EXPECT_LT(back, justBelow1);
    EXPECT_LT(justBelow1, justBelow2);
    EXPECT_LT(justBelow2, content);
    EXPECT_LT(content, key);
    EXPECT_LT(key, plotArea);
    EXPECT_LT(plotArea, front);
    EXPECT_EQ(lines[0], "SetSize(200, 150, 0xffffff)");
    EXPECT_EQ(chart->calls, (std::vector<std::string>{"layoutLegend", "layoutChart", "paint"}));
}

TEST(ChartPaint, RepeatedOutputPaintsOnlyWhatWasAddedSince) {
    Owned<PlainChart> chart(PlainChart::create(100, 100));
    chart->setRoundedFrame(0xFFFFFF, 5, -1, -1, -1);
    std::vector<std::string> first = listingLines(chart->makeChart());
    EXPECT_EQ(listingLines(chart->makeChart()), first);
    EXPECT_TRUE(chart->makeChart(""));
    EXPECT_EQ(listingLines(chart->getRawDrawArea()), first);

    // A late object lands above the finished picture, frame included, unsorted.
    markLine(chart.get(), 0x000007, kChartBackZ);
    std::vector<std::string> second = listingLines(chart->makeChart());
    ASSERT_EQ(second.size(), first.size() + 1);
    EXPECT_EQ(indexOfColor(second, 7), (int)first.size());
    EXPECT_GT(indexOfColor(second, 7), lineWith(second, "SetBgRoundedClip"));
    EXPECT_EQ(chart->calls.size(), 3u);
}

TEST(ChartPaint, BackgroundChartWithNothingOnItIsJustTheCanvas) {
    Owned<PlainChart> chart(PlainChart::create(60, 40));
    chart->setBackground(0x336699, kTransparent, 0);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], "SetSize(60, 40, 0x336699)");
    EXPECT_EQ(chart->getColor(0), 0x336699);
    EXPECT_EQ(chart->getRawDrawArea()->getPixel(30, 20), 0x336699);
}

TEST(ChartPaint, DrawingOnThePreparedCanvasLiesBeneathTheChart) {
    Owned<PlainChart> chart(PlainChart::create(100, 80));
    chart->contentColor = 0x0000AA;
    chart->getDrawArea()->line(0, 50, 90, 50, 0x000009, 1);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(lines[0], "SetSize(100, 80, 0xffffff)");
    EXPECT_LT(indexOfColor(lines, 9), indexOfColor(lines, 0x0000AA));
    // Resizing a prepared chart clears and resizes its canvas at once.
    chart->setSize(70, 50);
    EXPECT_EQ(chart->getRawDrawArea()->getWidth(), 70);
}

TEST(ChartFrameRadii, CornersShrinkToWhatTheCanvasHolds) {
    int r[4] = {10, 10, 10, 10};
    ChartFrame::limitRadii(r, 15, 15);
    EXPECT_EQ(r[0], 7);
    EXPECT_EQ(r[3], 7);
    // A corner without rounded neighbours may take the whole side.
    int lone[4] = {40, 0, 0, 0};
    ChartFrame::limitRadii(lone, 30, 100);
    EXPECT_EQ(lone[0], 30);
    // Each corner is limited against neighbours as far as they are limited already;
    // negative and zero radii stay 0.
    int mixed[4] = {60, 60, -3, 0};
    ChartFrame::limitRadii(mixed, 100, 50);
    EXPECT_EQ(mixed[0], 50);
    EXPECT_EQ(mixed[1], 50);
    EXPECT_EQ(mixed[2], 0);
    EXPECT_EQ(mixed[3], 0);
}

TEST(ChartFrameRadii, FifteenPixelChartRoundsItsCornersBySeven) {
    Owned<PlainChart> chart(PlainChart::create(15, 15));
    chart->setRoundedFrame(0xFFFFFF, 10, -1, -1, -1);
    EXPECT_EQ(chart->getProperty(0x107), 10);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(lines.back(), "SetBgRoundedClip(7, 7, 7, 7, 0xffffff)");
}

TEST(ChartFrame, ThickFrameEdgeShadowAndCornersInThatOrder) {
    Owned<PlainChart> chart(PlainChart::create(100, 100));
    chart->setBackground(0xEEEEEE, 0x123456, 0);
    chart->setThickFrame(4, -1, -1, 0x654321);
    chart->setRoundedFrame(0xFF0000, 8, -1, -1, -1);
    chart->setDropShadow(0xAAAAAA, 5, 0x7FFFFFFF, 5);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    // The frame takes the border colour; with no raised border the frame's outer
    // edge is the chart's edge, and no second edge is drawn.
    int frame = lineWith(lines, "Shape(0x123456");
    int outer = lineWith(lines, "RoundedRect(0, 0, 99, 99, 8, 0x123456, Chart.Transparent)");
    int inner = lineWith(lines, "RoundedRect(3, 3, 96, 96, 5, 0x654321, Chart.Transparent)");
    ASSERT_GE(frame, 0);
    EXPECT_LT(frame, outer);
    EXPECT_LT(outer, inner);
    EXPECT_EQ(countLinesWith(lines, "RoundedRect(0, 0, 99, 99"), 1);
    // With a shadow the rounded-off corners are transparent, not the exterior colour.
    EXPECT_EQ(lines[lines.size() - 2], "SetBgRoundedClip(8, 8, 8, 8, Chart.Transparent)");
    EXPECT_EQ(lines.back(), "SetBgDropShadow(5, 5, 5, 0, 0xaaaaaa)");
    EXPECT_EQ(chart->getRawDrawArea()->getWidth(), 110);
}

TEST(ChartFrame, RaisedBorderIsDrawnAsAnEdgeBesideTheThickFrame) {
    Owned<PlainChart> chart(PlainChart::create(80, 60));
    chart->setBackground(0xEEEEEE, 0x222222, 3);
    std::vector<std::string> plain = listingLines(chart->makeChart());
    // The raised rim: translucent highlight and shadow quads inside the edge.
    EXPECT_GE(lineWith(plain, "RoundedRect(0, 0, 79, 59, 0, 0x222222, Chart.Transparent)"), 1);
    EXPECT_GE(countLinesWith(plain, "Polygon("), 4);

    Owned<PlainChart> framed(PlainChart::create(80, 60));
    framed->setBackground(0xEEEEEE, 0x222222, 3);
    framed->setThickFrame(2, 0x999999, -1, -1);
    std::vector<std::string> lines = listingLines(framed->makeChart());
    // A raised border gives the thick frame no outer edge of its own: the edge
    // comes once, with the rim, after the frame.
    int frame = lineWith(lines, "Shape(0x999999");
    ASSERT_GE(frame, 0);
    EXPECT_GT(lineWith(lines, "RoundedRect(0, 0, 79, 59, 0, 0x222222, Chart.Transparent)"), frame);
    EXPECT_EQ(countLinesWith(lines, "RoundedRect(0, 0, 79, 59"), 1);
}

TEST(ChartFrame, ShadowSizes) {
    Owned<PlainChart> chart(PlainChart::create(100, 100));
    EXPECT_EQ(chart->getWidthWithShadow(), 100);
    chart->setDropShadow(0xAAAAAA, 5, 0x7FFFFFFF, 5);
    EXPECT_EQ(chart->getWidthWithShadow(), 110);
    EXPECT_EQ(chart->getHeightWithShadow(), 110);
    chart->setDropShadow(0xAAAAAA, -3, 12, 5);
    EXPECT_EQ(chart->getWidthWithShadow(), 100 + 2 + 8);
    EXPECT_EQ(chart->getHeightWithShadow(), 100 + 17 + 0);
    chart->makeChart();
    EXPECT_EQ(chart->getRawDrawArea()->getWidth(), 110);
    EXPECT_EQ(chart->getRawDrawArea()->getHeight(), 117);
    EXPECT_STREQ(chart->getChartMetrics(), "w=110&h=117&vl=0&vt=0&vw=99&vh=99");
}

TEST(ChartFrame, ThickFrameSettings) {
    Owned<PlainChart> chart(PlainChart::create(50, 50));
    chart->setThickFrame(-5, -1, -1, -1);
    EXPECT_EQ(chart->getFrameThickness(), 0);
    chart->setThickFrame(3, -1, -1, -1);
    EXPECT_EQ(chart->getFrameThickness(), 3);
}

TEST(ChartDynamicLayer, DrawingOnTheLayerRollsBack) {
    Owned<PlainChart> chart(PlainChart::create(50, 50));
    size_t painted = listingLines(chart->makeChart()).size();
    DrawArea *d = chart->initDynamicLayer();
    EXPECT_EQ(d, chart->getRawDrawArea());
    d->line(0, 0, 40, 40, 0x00FF00, 1);
    EXPECT_GT(listingLines(d).size(), painted + 1);
    chart->removeDynamicLayer();
    EXPECT_EQ(listingLines(d).size(), painted);
}
