#include <gtest/gtest.h>

#include "chart/axis/paint/Mark.h"
#include "chart/base/Line.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/PlotPacker.h"
#include "chart/xy/SymmetricScales.h"
#include "tests/chart/xy/XYTestSupport.h"

namespace {

// The axis at each side, by the alignment it stands with.
int sideOf(Axis *axis) {
    return axis->getAlignment();
}

std::vector<std::string> callsOf(const std::vector<std::string> &log, const std::string &what) {
    std::vector<std::string> calls;
    for (const std::string &line : log)
        if (line.find(what) != std::string::npos) calls.push_back(line);
    return calls;
}

}  // namespace

TEST(XYChart, PlotAreaPropertiesAndGetters) {
    Owned<XYChartImpl> chart(newXYChart());
    PlotArea *plot = chart->setPlotArea(50, 20, 300, 200, 0xFFFFFF, -1, -1, 0xC0C0C0, kTransparent);
    EXPECT_EQ(plot, chart->getPlotArea());
    EXPECT_EQ(chart->getProperty(0x206), 350);
    EXPECT_EQ(chart->getProperty(0x204), 50);
    EXPECT_EQ(chart->getProperty(0x208), 20);
    EXPECT_EQ(chart->getProperty(0x202), 220);
    EXPECT_EQ(chart->getProperty(0x205), 0);
    EXPECT_EQ(plot->getRightX(), 350);
    EXPECT_EQ(plot->getBottomY(), 220);
    chart->layout();
    EXPECT_STREQ(chart->getChartMetrics(), "w=400&h=300&vl=50&vt=20&vw=300&vh=200");
    // The frame's radii still come from the chart.
    chart->setRoundedFrame(0xFFFFFF, 7, -1, -1, -1);
    EXPECT_EQ(chart->getProperty(0x107), 7);
}

TEST(XYChart, AxesByRoleSideAndAddition) {
    Owned<XYChartImpl> chart(newXYChart());
    EXPECT_EQ(sideOf(chart->xAxis()), kBottom);
    EXPECT_EQ(sideOf(chart->xAxis2()), kTop);
    EXPECT_EQ(sideOf(chart->yAxis()), kLeft);
    EXPECT_EQ(sideOf(chart->yAxis2()), kRight);
    Axis *bottom = chart->xAxis();
    chart->setXAxisOnTop(true);
    chart->setYAxisOnRight(true);
    EXPECT_EQ(sideOf(chart->xAxis()), kTop);
    EXPECT_EQ(chart->xAxis2(), bottom);
    EXPECT_EQ(sideOf(chart->yAxis()), kRight);
    chart->setXAxisOnTop(false);
    chart->setYAxisOnRight(false);
    chart->swapXY(true);
    EXPECT_EQ(sideOf(chart->xAxis()), kLeft);
    EXPECT_EQ(sideOf(chart->yAxis()), kBottom);
    EXPECT_EQ(sideOf(chart->xAxis2()), kRight);
    EXPECT_EQ(sideOf(chart->yAxis2()), kTop);
    chart->setXAxisOnTop(true);
    EXPECT_EQ(sideOf(chart->xAxis()), kRight);

    EXPECT_EQ(chart->addAxis(5, 10), nullptr);
    EXPECT_EQ(chart->addAxis(0, 10), nullptr);
    struct Added {
        int side, x, y;
    } added[] = {{kBottom, 0, 10}, {kLeft, -10, 0}, {kRight, 10, 0}, {kTop, 0, -10}};
    for (const Added &a : added) {
        Axis *axis = chart->addAxis(a.side, 10);
        ASSERT_NE(axis, nullptr);
        EXPECT_EQ(axis->getAlignment(), a.side);
        EXPECT_EQ(impl(axis)->getPainter().getOffsetX(), a.x);
        EXPECT_EQ(impl(axis)->getPainter().getOffsetY(), a.y);
    }
    EXPECT_EQ(chart->getPlotAreaImpl().getAxisCount(), 8);
}

TEST(XYChart, CoordinatesMapThroughTheAxesBothWays) {
    Owned<XYChartImpl> chart(newXYChart());
    chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    chart->xAxis()->setLinearScale(0, 30, 10, 0);
    chart->yAxis()->setLinearScale(-10, 10, 5, 0);
    chart->layoutAxes();
    EXPECT_DOUBLE_EQ(chart->getXCoor(10), 150);
    EXPECT_DOUBLE_EQ(chart->getYCoor(5, nullptr), 70);
    EXPECT_DOUBLE_EQ(chart->getXValue(150), 10);
    EXPECT_DOUBLE_EQ(chart->getYValue(70, nullptr), 5);
    chart->yAxis2()->setLinearScale(0, 100, 50, 0);
    chart->layoutAxes();
    EXPECT_DOUBLE_EQ(chart->getYCoor(25, chart->yAxis2()), 170);
    EXPECT_DOUBLE_EQ(chart->getYValue(170, chart->yAxis2()), 25);
    // A reversed axis and a log axis invert as well.
    chart->yAxis()->setReverse(true);
    EXPECT_DOUBLE_EQ(chart->getYCoor(5, nullptr), 170);
    EXPECT_DOUBLE_EQ(chart->getYValue(170, nullptr), 5);
    chart->xAxis()->setLogScale(1, 1000, 10, 0);
    EXPECT_NEAR(chart->getXCoor(100), 250, 1e-9);
    EXPECT_NEAR(chart->getXValue(250), 100, 1e-9);
    // setPlotArea after layout moves the mapping with the plot.
    chart->setPlotArea(0, 0, 600, 400, kTransparent, -1, -1, kTransparent, kTransparent);
    EXPECT_NEAR(chart->getXCoor(100), 400, 1e-9);
    EXPECT_DOUBLE_EQ(chart->getYCoor(-10, nullptr), 0);

    // Swapped: x runs up the left side, y along the bottom.
    Owned<XYChartImpl> swapped(newXYChart());
    swapped->swapXY(true);
    swapped->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    swapped->xAxis()->setLinearScale(0, 20, 10, 0);
    swapped->yAxis()->setLinearScale(0, 30, 10, 0);
    swapped->layoutAxes();
    EXPECT_DOUBLE_EQ(swapped->getXCoor(5), 170);
    EXPECT_DOUBLE_EQ(swapped->getYCoor(10, nullptr), 150);
    EXPECT_DOUBLE_EQ(swapped->getXValue(170), 5);
}

TEST(XYChart, ZoneColoursSplitAtTheThresholdPixel) {
    Owned<XYChartImpl> chart(newXYChart());
    chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    chart->xAxis()->setLinearScale(0, 30, 10, 0);
    chart->yAxis()->setLinearScale(0, 10, 5, 0);
    int x = chart->xZoneColor(10, 0xFF0000, 0x00FF00);
    int y = chart->yZoneColor(5, 0xFF0000, 0x00FF00, nullptr);
    DrawArea *d = chart->getDrawArea();
    EXPECT_TRUE(d->isDynamicColor(x));
    EXPECT_TRUE(d->isDynamicColor(y));
    d->rect(50, 20, 350, 220, x, x, 0);
    EXPECT_EQ(d->getPixel(100, 100), 0xFF0000);
    EXPECT_EQ(d->getPixel(200, 100), 0x00FF00);
    d->rect(50, 20, 350, 220, y, y, 0);
    EXPECT_EQ(d->getPixel(100, 200), 0xFF0000);
    EXPECT_EQ(d->getPixel(100, 50), 0x00FF00);
}

TEST(PlotPacker, GrowsTheBoxInProportionToWhatTheAxesNeed) {
    // Room enough: the axes take their need from the box.
    PlotSpan s = PlotPacker::fit(0, 400, 30, 10, 0, 0);
    EXPECT_EQ(s.start, 30);
    EXPECT_EQ(s.length, 360);
    // A box of 40 for axes needing 30 and 10 and a plot of at least 1: excess
    // 1, all of it... 30/40 of 1 rounds to the left 0, the right gets 1.
    s = PlotPacker::fit(0, 40, 30, 10, 0, 0);
    EXPECT_EQ(s.start, 30);
    EXPECT_EQ(s.length, 1);
    // A box of 20 with a minimum width of 60: excess 80, shared 60 to 20.
    s = PlotPacker::fit(100, 120, 30, 10, 0, 60);
    EXPECT_EQ(s.start, 100 - 60 + 30);
    EXPECT_EQ(s.length, 60);
    // Axes that need nothing share the growth equally.
    s = PlotPacker::fit(100, 100, 0, 0, 0, 11);
    EXPECT_EQ(s.start, 95);
    EXPECT_EQ(s.length, 11);
    // A 3D depth takes its room at the far end, a negative one at the near end.
    s = PlotPacker::fit(0, 400, 30, 10, 15, 0);
    EXPECT_EQ(s.start, 30);
    EXPECT_EQ(s.length, 345);
    s = PlotPacker::fit(0, 400, 30, 10, -15, 0);
    EXPECT_EQ(s.start, 45);
    EXPECT_EQ(s.length, 345);
    // Extremes stay within an int.
    s = PlotPacker::fit(-0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, 0, 0x7FFFFFFF);
    EXPECT_GE(s.length, 1);
}

TEST(XYChart, PackPlotAreaFitsTheAxesInTheBox) {
    Owned<XYChartImpl> chart(newXYChart(500, 400));
    chart->yAxis()->setLinearScale(0, 1000000, 250000, 0);
    chart->yAxis()->setTitle("Left title", "", 10, kTextColor);
    chart->xAxis()->setLinearScale(0, 10, 5, 0);
    chart->packPlotArea(20, 10, 480, 390, 0, 0);
    PlotAreaImpl &plot = chart->getPlotAreaImpl();
    int left = impl(chart->yAxis())->getThickness();
    int bottom = impl(chart->xAxis())->getThickness();
    EXPECT_GT(left, 40);
    EXPECT_EQ(plot.getLeftX(), 20 + left);
    EXPECT_EQ(plot.getRightX(), 480);
    EXPECT_EQ(plot.getTopY(), 10);
    EXPECT_EQ(plot.getBottomY(), 390 - bottom);
    // The labels now reach the box's left edge and no further.
    PaintExtent e = impl(chart->yAxis())->paintAxis(nullptr);
    EXPECT_EQ(e.getLeft(), 20);

    // A box narrower than the axes need grows outward in their proportion.
    Owned<XYChartImpl> narrow(newXYChart(500, 400));
    narrow->yAxis()->setLinearScale(0, 1000000, 250000, 0);
    narrow->yAxis2()->setLinearScale(0, 10, 5, 0);
    narrow->packPlotArea(200, 10, 210, 390, 50, 0);
    // Side axes measure the same on the box and on the packed plot: same height.
    int l = impl(narrow->yAxis())->getThickness(), r = impl(narrow->yAxis2())->getThickness();
    EXPECT_GT(l, r);
    int excess = 200 - 210 + 50 + l + r;
    PlotArea *p = narrow->getPlotArea();
    EXPECT_EQ(p->getWidth(), 50);
    EXPECT_EQ(p->getLeftX(), 200 - excess * l / (l + r) + l);
}

TEST(XYChart, LayoutGoesFromLayersToAxesAndBack) {
    std::vector<std::string> log;
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    DrawArea *d = chart->getRawDrawArea();
    FakeLayer *front = new FakeLayer(&log, "front", d);
    FakeLayer *back = new FakeLayer(&log, "back", d);
    front->yAxis = chart->yAxis();
    front->yData[0] = 10, front->yData[1] = 70;
    front->xRange = true;
    front->xData[0] = 0, front->xData[1] = 50;
    front->depthX = 4, front->depthY = 3;
    back->yAxis = chart->yAxis2();
    back->yData[0] = -2, back->yData[1] = 9;
    back->depthX = 6, back->depthY = 5;
    chart->addLayer(front);
    chart->addLayer(back);
    chart->setPlotArea(50, 30, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    chart->layout();
    EXPECT_EQ(callsOf(log, "layoutLegend"),
              (std::vector<std::string>{"front.layoutLegend", "back.layoutLegend"}));
    EXPECT_EQ(callsOf(log, "preLayout"),
              (std::vector<std::string>{"front.preLayout 300", "back.preLayout 300"}));
    EXPECT_EQ(callsOf(log, "setSize"), (std::vector<std::string>{"front.setSize 50 30 300 200",
                                                                 "back.setSize 54 27 300 200"}));
    EXPECT_LT(lineWith(log, "back.setSize"), lineWith(log, "front.layoutChart"));
    // Each axis scaled to the data of the layers that use it.
    EXPECT_EQ(chart->yAxis()->getMinValue(), 0);
    EXPECT_EQ(chart->yAxis()->getMaxValue(), 80);
    EXPECT_EQ(chart->yAxis2()->getMinValue(), -4);
    EXPECT_EQ(chart->yAxis2()->getMaxValue(), 12);
    EXPECT_EQ(chart->xAxis()->getMaxValue(), 60);
    EXPECT_EQ(chart->getPlotAreaImpl().getFrame().depthX, 10);
    EXPECT_EQ(chart->getPlotAreaImpl().getFrame().depthY, 8);
    // Layout runs once.
    chart->layout();
    EXPECT_EQ(callsOf(log, "preLayout").size(), 2u);

    // Layers paint from the last to the first; then a second walk above them all.
    log.clear();
    chart->setClipping(5);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(log, (std::vector<std::string>{"back.paint", "front.paint", "back.paintAbove",
                                             "front.paintAbove"}));
    int clip = lineStarting(lines, "SetClipRect(45, 17, 365, 235)");
    EXPECT_GE(clip, 0);
    EXPECT_LT(clip, lineWith(lines, "PolyLine(0x010101"));
    EXPECT_GT(lineStarting(lines, "SetClipRect(0, 0, 399, 299)"), clip);

    EXPECT_EQ(chart->getLayerCount(), 2);
    EXPECT_EQ(chart->getLayer(0), front->getLayer());
    EXPECT_EQ(chart->getLayerByZ(0), back->getLayer());
    EXPECT_EQ(chart->getLayer(2), nullptr);
    EXPECT_EQ(chart->getLayerByZ(-1), nullptr);
    EXPECT_EQ(chart->getNearestXValue(100), kNoValue);
    back->nearestX = 3;
    EXPECT_EQ(chart->getNearestXValue(100), 3);
}

TEST(XYChart, SwappedLayoutGivesLayersTheHeight) {
    std::vector<std::string> log;
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    FakeLayer *layer = new FakeLayer(&log, "l", chart->getRawDrawArea());
    chart->addLayer(layer);
    chart->swapXY(true);
    chart->setPlotArea(50, 30, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    chart->layout();
    EXPECT_EQ(callsOf(log, "l."),
              (std::vector<std::string>{"l.layoutLegend", "l.preLayout 200",
                                        "l.setSize 50 30 300 200 swapped", "l.layoutChart"}));
}

TEST(XYChart, PaintPassesStandInTheirOrder) {
    std::vector<std::string> log;
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    FakeLayer *layer = new FakeLayer(&log, "l", chart->getRawDrawArea());
    layer->color = 0x0000F1;
    chart->addLayer(layer);
    chart->setPlotArea(50, 20, 300, 200, 0x0000F2, -1, 0x0000F3, 0x0000F4, kTransparent);
    chart->yAxis()->setLinearScale(0, 10, 5, 0);
    chart->yAxis()->setColors(0x0000F5, kTextColor, -1, -1);
    chart->yAxis()->addZone(0, 5, 0x0000F6);
    chart->yAxis()->addMark(2, 0x0000F7, "", "", 8)->setDrawOnTop(false);
    chart->yAxis()->addMark(8, 0x0000F8, "", "", 8);
    chart->addLine(0, 0, 5, 5, 0x0000F9, 1)->setZOrder(kGridLinesZ);
    chart->addLine(0, 0, 5, 5, 0x0000FA, 1)->setZOrder(kChartFrontZ);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    std::vector<int> order;
    for (int color = 0xF2; color <= 0xFA; ++color) {
        char text[16];
        snprintf(text, sizeof(text), "0x0000%02x", color);
        order.push_back(lineWith(lines, text));
    }
    int layerAt = lineWith(lines, "0x0000f1");
    // background, zone, grid, mark behind, objects at the grid's z, the layer,
    // the edge, the axis, the mark on top, the front objects.
    std::vector<int> expected = {order[0], order[4], order[2], order[5], order[7],
                                 layerAt,  order[1], order[3], order[6], order[8]};
    for (int i : expected) EXPECT_GE(i, 0);
    EXPECT_TRUE(std::is_sorted(expected.begin(), expected.end()));
}

TEST(XYChart, GridFollowsItsAxesAndCanMoveAmongTheLayers) {
    std::vector<std::string> log;
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    FakeLayer *first = new FakeLayer(&log, "first", chart->getRawDrawArea());
    FakeLayer *second = new FakeLayer(&log, "second", chart->getRawDrawArea());
    first->color = 0x0000E1;
    second->color = 0x0000E2;
    chart->addLayer(first);
    chart->addLayer(second);
    chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, 0x0000D1, 0x0000D2);
    chart->xAxis()->setLinearScale(0, 3, 1, 0);
    chart->yAxis()->setLinearScale(0, 10, 5, 1);
    chart->getPlotArea()->setGridColor(0x0000D1, 0x0000D2, 0x0000D3, -1);
    chart->getPlotArea()->setGridWidth(2, -1, 1, -1);
    chart->getPlotArea()->moveGridBefore(first->getLayer());
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000d2, 2, [150, 20, 150, 220])"), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000d1, 2, [50, 120, 350, 120])"), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000d3, 1, [50, 200, 350, 200])"), 0);
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000d2"), 4);
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000d1"), 3);
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000d3"), 8);
    // The grid sits between the layers: over the second, under the first.
    int grid = lineWith(lines, "PolyLine(0x0000d1");
    EXPECT_LT(lineWith(lines, "0x0000e2"), grid);
    EXPECT_LT(grid, lineWith(lines, "0x0000e1"));

    // With no layer named, above all layers; another axis can lead the grid.
    Owned<XYChartImpl> top(newXYChart(400, 300));
    FakeLayer *only = new FakeLayer(&log, "only", top->getRawDrawArea());
    only->color = 0x0000E3;
    top->addLayer(only);
    top->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, 0x0000D1, kTransparent);
    top->yAxis2()->setLinearScale(0, 4, 1, 0);
    top->getPlotArea()->setGridAxis(nullptr, top->yAxis2());
    top->getPlotArea()->moveGridBefore(nullptr);
    lines = listingLines(top->makeChart());
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000d1"), 5);
    EXPECT_LT(lineWith(lines, "0x0000e3"), lineWith(lines, "PolyLine(0x0000d1"));
}

TEST(XYChart, BackgroundsBandsQuadrantsAndWalls) {
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    chart->setPlotArea(50, 20, 300, 200, 0x0000C1, 0x0000C2, 0x0000C3, kTransparent, kTransparent);
    chart->yAxis()->setLinearScale(0, 4, 1, 0);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 20, 350, 220, 0, 0x0000c1, 0x0000c1)"), 0);
    // Alternate bands between the second and third tick, the fourth and fifth.
    EXPECT_EQ(countLinesWith(lines, "0x0000c2"), 2);
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 120, 350, 170, 0, 0x0000c2, 0x0000c2)"), 0);
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 20, 350, 70, 0, 0x0000c2, 0x0000c2)"), 0);
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 20, 350, 220, 0, 0x0000c3, Chart.Transparent)"), 0);

    // Vertical bands follow the x axis.
    Owned<XYChartImpl> vertical(newXYChart(400, 300));
    vertical->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    vertical->getPlotArea()->setAltBgColor(false, 0x0000C4, 0x0000C5, -1);
    vertical->xAxis()->setLinearScale(0, 3, 1, 0);
    lines = listingLines(vertical->makeChart());
    EXPECT_GE(lineWith(lines, "RoundedRect(150, 20, 250, 220, 0, 0x0000c5, 0x0000c5)"), 0);
    EXPECT_EQ(countLinesWith(lines, "0x0000c5"), 1);

    // Quadrants meet where the axes have 0.
    Owned<XYChartImpl> quad(newXYChart(400, 300));
    quad->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    quad->xAxis()->setLinearScale(-1, 2, 1, 0);
    quad->yAxis()->setLinearScale(-3, 1, 1, 0);
    quad->getPlotArea()->set4QBgColor(0x0000A1, 0x0000A2, 0x0000A3, 0x0000A4, -1);
    lines = listingLines(quad->makeChart());
    EXPECT_GE(lineWith(lines, "RoundedRect(150, 20, 350, 70, 0, 0x0000a1, 0x0000a1)"), 0);
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 20, 150, 70, 0, 0x0000a2, 0x0000a2)"), 0);
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 70, 150, 220, 0, 0x0000a3, 0x0000a3)"), 0);
    EXPECT_GE(lineWith(lines, "RoundedRect(150, 70, 350, 220, 0, 0x0000a4, 0x0000a4)"), 0);

    // A 3D shift moves the back wall and adds the walls before it.
    std::vector<std::string> log;
    Owned<XYChartImpl> deep(newXYChart(400, 300));
    FakeLayer *layer = new FakeLayer(&log, "l", deep->getRawDrawArea());
    layer->depthX = 10, layer->depthY = 8;
    deep->addLayer(layer);
    deep->setPlotArea(50, 20, 300, 200, 0x0000C6, -1, 0x0000C7, 0x0000C8, kTransparent);
    deep->yAxis()->setLinearScale(0, 2, 1, 0);
    lines = listingLines(deep->makeChart());
    int wall = lineWith(lines, "RoundedRect(60, 12, 360, 212, 0, 0x0000c6, 0x0000c6)");
    EXPECT_GE(wall, 0);
    EXPECT_LT(lineWith(lines, "0x0000c7"), wall);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000c8, 1, [60, 112, 360, 112])"), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000c8, 1, [50, 120, 60, 112])"), 0);
    // Bottom and left axes stand in front, top and right ones at the back wall.
    EXPECT_EQ(impl(deep->yAxis())->getPainter().getX(), 50);
    EXPECT_EQ(impl(deep->yAxis2())->getPainter().getX(), 360);
    EXPECT_EQ(impl(deep->yAxis2())->getPainter().getY(), 212);
    EXPECT_EQ(impl(deep->xAxis2())->getPainter().getY(), 12);
}

TEST(XYChart, AxesAtTheOriginAndSymmetricScales) {
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    chart->xAxis()->setLinearScale(-1, 2, 1, 0);
    chart->yAxis()->setLinearScale(-3, 1, 1, 0);
    chart->setAxisAtOrigin(kXYAxisAtOrigin, 0);
    chart->layoutAxes();
    EXPECT_EQ(impl(chart->xAxis())->getPainter().getY(), 70);
    EXPECT_EQ(impl(chart->yAxis())->getPainter().getX(), 150);
    // An origin off the plot leaves the axis at its side.
    chart->yAxis()->setLinearScale(1, 5, 1, 0);
    chart->layoutAxes();
    EXPECT_EQ(impl(chart->xAxis())->getPainter().getY(), 220);

    double xMin = -2, xMax = 8, yMin = 1, yMax = 3;
    SymmetricScales::apply(kXAxisSymmetric | kYAxisSymmetricIfNeeded, &xMin, &xMax, &yMin, &yMax);
    EXPECT_EQ(xMin, -8);
    EXPECT_EQ(xMax, 8);
    EXPECT_EQ(yMin, 1);
    EXPECT_EQ(yMax, 3);
    yMin = -1;
    SymmetricScales::apply(kYAxisSymmetricIfNeeded, &xMin, &xMax, &yMin, &yMax);
    EXPECT_EQ(yMin, -3);
    xMin = -2, xMax = 8, yMin = 1, yMax = 3;
    SymmetricScales::apply(kXYAxisSymmetric, &xMin, &xMax, &yMin, &yMax);
    EXPECT_EQ(yMin, -8);
    EXPECT_EQ(yMax, 8);
    double none = kNoValue, none2 = kNoValue;
    xMin = -2, xMax = 8;
    SymmetricScales::apply(kXYAxisSymmetric, &xMin, &xMax, &none, &none2);
    EXPECT_EQ(none, kNoValue);
    EXPECT_EQ(xMin, -8);

    // Through the chart: the layer's data range comes out centred.
    std::vector<std::string> log;
    Owned<XYChartImpl> sym(newXYChart(400, 300));
    FakeLayer *layer = new FakeLayer(&log, "l", sym->getRawDrawArea());
    layer->yAxis = sym->yAxis();
    layer->yData[0] = -3, layer->yData[1] = 45;
    sym->addLayer(layer);
    sym->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
    sym->setAxisAtOrigin(kXAxisAtOrigin, kYAxisSymmetric);
    sym->layoutAxes();
    EXPECT_EQ(sym->yAxis()->getMinValue(), -sym->yAxis()->getMaxValue());
    EXPECT_EQ(impl(sym->xAxis())->getPainter().getY(), 120);
}

TEST(XYChart, WithoutAPlotAreaTheChartPacksOneBetweenItsTitles) {
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    chart->addTitle("A title", "", 12, kTextColor, kTransparent, kTransparent);
    chart->yAxis()->setLinearScale(0, 100, 50, 0);
    chart->layout();
    PlotArea *plot = chart->getPlotArea();
    int left = impl(chart->yAxis())->getThickness();
    EXPECT_EQ(plot->getLeftX(), 10 + left);
    EXPECT_EQ(plot->getRightX(), 399 - 10);
    EXPECT_GT(plot->getTopY(), 20);
    EXPECT_EQ(plot->getBottomY(), 299 - 10);
}

TEST(XYChart, DatalessChartPaintsItsFrameTwiceTheSame) {
    Owned<XYChartImpl> chart(newXYChart(300, 200));
    chart->setPlotArea(40, 20, 220, 150, 0xFFFFFF, -1, -1, 0xC0C0C0, kTransparent);
    // No data: the axes keep their default scale and have no ticks.
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(chart->yAxis()->getMinValue(), 0);
    EXPECT_EQ(chart->yAxis()->getMaxValue(), 100);
    EXPECT_EQ(countLinesWith(lines, "Text("), 0);
    // The background and the four axis lines, the list joining those that meet.
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "SetSize(300, 200, 0xffffff)",
                         "RoundedRect(40, 20, 260, 170, 0, 0xffffff, 0xffffff)",
                         "PolyLine(0x000000, 1, [260, 170, 260, 20])",
                         "PolyLine(0x000000, 1, [40, 170, 40, 20, 260, 20])",
                         "PolyLine(0x000000, 1, [40, 170, 260, 170])",
                     }));
    EXPECT_EQ(listingLines(chart->makeChart()), lines);
}
