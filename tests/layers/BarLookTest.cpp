#include <gtest/gtest.h>

#include <cstdio>

#include "chart/legend/LegendBox.h"
#include "chart/symbol/ShapeWords.h"
#include "draw/canvas/ColorEffects.h"
#include "foundation/Constants.h"
#include "layers/bar/BarPainter.h"
#include "tests/layers/BarTestSupport.h"

namespace {

const int kRed = 0xFF0000;

// One bar of the value on a fixed scale of -10 to 10: 10 pixels a unit, the
// base at y 120, x centred at 200 and 40 pixels wide.
struct OneBar {
    Owned<XYChartImpl> chart;
    BarLayer *layer;
    explicit OneBar(double value, bool swapped = false) : chart(newBarChart()) {
        chart->swapXY(swapped);
        chart->yAxis()->setLinearScale(-10, 10, 5, 0);
        chart->xAxis()->setLinearScale(-1, 1, 1, 0);
        std::vector<double> v = {value};
        layer = chart->addBarLayer(values(v), kRed, "Bar", 0);
        layer->setBarWidth(40, -1);
    }
    std::vector<int> box() { return boxesOf(chart.get()).at(0); }
};

}  // namespace

TEST(BarLook, RoundedCornersAtTheEndOnlyOrAtBothEnds) {
    for (double value : {8.0, -8.0}) {
        OneBar bar(value);
        bar.layer->setRoundedCorners(8, BarLayer::kOmittedRadius, BarLayer::kOmittedRadius,
                                     BarLayer::kOmittedRadius);
        std::vector<int> b = bar.box();
        DrawArea *d = bar.chart->makeChart();
        int endY = value > 0 ? b[1] : b[3], baseY = value > 0 ? b[3] : b[1];
        EXPECT_EQ(d->getPixel(b[0], endY), 0xFFFFFF);
        EXPECT_EQ(d->getPixel(b[2], endY), 0xFFFFFF);
        EXPECT_EQ(d->getPixel(b[0] + 10, endY), kRed);
        EXPECT_EQ(d->getPixel(b[0], baseY), kRed);
        EXPECT_EQ(d->getPixel(b[2], baseY), kRed);
    }
    OneBar both(8);
    both.layer->setRoundedCorners(8, 3, BarLayer::kOmittedRadius, BarLayer::kOmittedRadius);
    std::vector<int> b = both.box();
    DrawArea *d = both.chart->makeChart();
    EXPECT_EQ(d->getPixel(b[0], b[1]), 0xFFFFFF);
    EXPECT_NE(d->getPixel(b[0], b[3]), kRed);
    EXPECT_EQ(d->getPixel(b[0] + 4, b[3]), kRed);
    // The end keeps the larger radius.
    EXPECT_EQ(d->getPixel(b[0] + 4, b[1]), 0xFFFFFF);
}

TEST(BarLook, RadiiTurnWithTheBarsEnd) {
    const int given[4] = {1, 2, 3, 4};
    int out[4];
    BarPainter::canvasRadii(given, kTop, out);
    EXPECT_EQ(std::vector<int>(out, out + 4), (std::vector<int>{1, 2, 3, 4}));
    BarPainter::canvasRadii(given, kBottom, out);
    EXPECT_EQ(std::vector<int>(out, out + 4), (std::vector<int>{4, 3, 2, 1}));
    BarPainter::canvasRadii(given, kRight, out);
    EXPECT_EQ(std::vector<int>(out, out + 4), (std::vector<int>{4, 1, 2, 3}));
    BarPainter::canvasRadii(given, kLeft, out);
    EXPECT_EQ(std::vector<int>(out, out + 4), (std::vector<int>{1, 4, 3, 2}));
    // setRoundedCorners with all four keeps them as given.
    OneBar bar(8);
    bar.layer->setRoundedCorners(0, 0, 6, 0);
    std::vector<int> b = bar.box();
    DrawArea *d = bar.chart->makeChart();
    EXPECT_EQ(d->getPixel(b[2], b[3]), 0xFFFFFF);
    EXPECT_EQ(d->getPixel(b[0], b[3]), kRed);
}

TEST(BarLook, EdgeWordsResolveByTheLayersEffect) {
    Owned<XYChartImpl> chart(newBarChart());
    DrawArea *d = chart->getDrawArea();
    BarPainter painter(d);
    BarLook plain;
    EXPECT_EQ(painter.resolveEdge(-1, kRed, plain), kTransparent);
    EXPECT_EQ(painter.resolveEdge(-2, kRed, plain), kRed);
    EXPECT_EQ(painter.resolveEdge(kSameAsMainColor, kRed, plain), kRed);
    EXPECT_EQ(painter.resolveEdge(0x123456, kRed, plain), 0x123456);
    BarLook lit;
    lit.effect = Chart::barLighting(0.75, 1.5);
    EXPECT_EQ(painter.resolveEdge(-2, 0x808080, lit), d->adjustBrightness(0x808080, 0.75));
    EXPECT_EQ(painter.resolveEdge(-1, kRed, lit), kTransparent);
    lit.depth = 5;
    EXPECT_EQ(painter.resolveEdge(-1, 0x808080, lit), d->adjustBrightness(0x808080, 0.75));
    // A shape is no plain box: its default edge is the fill itself.
    BarShape diamond;
    diamond.word = kDiamondShape;
    lit.shape = &diamond;
    EXPECT_EQ(painter.resolveEdge(-2, 0x808080, lit), 0x808080);
}

TEST(BarLook, BarLightingIsBrightInTheMiddleAndDarkAtTheSides) {
    OneBar bar(8);
    bar.layer->setBorderColor(kTransparent, Chart::barLighting(0.5, 1.0));
    std::vector<int> b = bar.box();
    DrawArea *d = bar.chart->makeChart();
    int y = (b[1] + b[3]) / 2;
    int middle = d->getPixel((b[0] + b[2]) / 2, y), side = d->getPixel(b[0], y);
    EXPECT_GE((middle >> 16) & 0xFF, 0xF0);
    EXPECT_LT((side >> 16) & 0xFF, 0xA0);
    EXPECT_EQ(side & 0xFFFF, 0);
    // Lying bars are lit across their height.
    OneBar lying(8, true);
    lying.layer->setBorderColor(kTransparent, Chart::barLighting(0.5, 1.0));
    b = lying.box();
    d = lying.chart->makeChart();
    EXPECT_GE((d->getPixel((b[0] + b[2]) / 2, (b[1] + b[3]) / 2) >> 16) & 0xFF, 0xF0);
    EXPECT_LT((d->getPixel((b[0] + b[2]) / 2, b[1]) >> 16) & 0xFF, 0xA0);
}

TEST(BarLook, ThreeDBarsShowTheirTopAndSideFaces) {
    OneBar bar(8);
    bar.layer->set3D(10, 0);
    std::vector<int> outline = bar.box();
    ASSERT_EQ(outline.size(), 12u);
    // x1, y2, x1, y1, then the faces' far corners.
    int x1 = outline[0], y2 = outline[1], y1 = outline[3], x2 = outline[10];
    DrawArea *d = bar.chart->makeChart();
    EXPECT_EQ(d->getPixel((x1 + x2) / 2, (y1 + y2) / 2), kRed);
    EXPECT_EQ(d->getPixel((x1 + x2) / 2 + 5, y1 - 5),
              d->getARGBColor(d->adjustBrightness(kRed, 1.15)));
    EXPECT_EQ(d->getPixel(x2 + 5, (y1 + y2) / 2), d->getARGBColor(d->adjustBrightness(kRed, 0.75)));
    EXPECT_EQ(d->getPixel(x1 + 2, y1 - 8), 0xFFFFFF);
}

TEST(BarLook, ShapesFillTheBarsBoxTurnedToItsEnd) {
    for (double value : {8.0, -8.0}) {
        OneBar bar(value);
        bar.layer->setBarShape(kTriangleShape, -1, -1);
        std::vector<int> b = bar.box();
        DrawArea *d = bar.chart->makeChart();
        int mid = (b[0] + b[2]) / 2;
        int endY = value > 0 ? b[1] + 10 : b[3] - 10, baseY = value > 0 ? b[3] - 1 : b[1] + 1;
        // The triangle's tip is at the bar's end, its wide side at the base.
        EXPECT_EQ(d->getPixel(mid, endY), kRed);
        EXPECT_EQ(d->getPixel(b[0] + 3, endY), 0xFFFFFF);
        EXPECT_EQ(d->getPixel(b[0] + 3, baseY), kRed);
    }
    // Round shapes are ellipses; a polygon of fewer than three points keeps the box.
    OneBar round(8);
    round.layer->setBarShape(kCircleShapeNoShading, 0, 0);
    std::vector<int> b = round.box();
    DrawArea *d = round.chart->makeChart();
    EXPECT_EQ(d->getPixel(b[0], b[1]), 0xFFFFFF);
    EXPECT_EQ(d->getPixel((b[0] + b[2]) / 2, (b[1] + b[3]) / 2), kRed);
    OneBar flat(8);
    const int two[] = {0, 0, 10, 10};
    flat.layer->setBarShape2(IntArray(two, 4), -1, -1);
    b = flat.box();
    EXPECT_EQ(flat.chart->makeChart()->getPixel(b[0], b[1]), kRed);
}

TEST(BarLook, LegendKeysAreSmallBarsOfTheLayersLook) {
    OneBar bar(8);
    LegendBox *legend = bar.chart->addLegend(10, 10, true, "", 8);
    bar.layer->setIconSize(12, 20);
    bar.layer->setBorderColor(0x0000FF, 0);
    bar.chart->layoutLegend();
    std::string coords = legend->getImageCoor2(0, 0, 0);
    int left, top, right, bottom;
    ASSERT_EQ(sscanf(coords.c_str(), "shape=\"rect\" coords=\"%d,%d,%d,%d\"", &left, &top, &right,
                     &bottom),
              4);
    DrawArea *d = bar.chart->makeChart();
    // The key is 20 wide: its border at its left, its fill 10 pixels on.
    int y = -1;
    for (int row = top; row <= bottom && y < 0; ++row)
        if (d->getPixel(left + 10, row) == kRed) y = row;
    ASSERT_GE(y, 0);
    EXPECT_EQ(d->getPixel(left, y), 0x0000FF);
    EXPECT_EQ(d->getPixel(left + 19, y), 0x0000FF);
    EXPECT_NE(d->getPixel(left + 20, y), 0x0000FF);
}
