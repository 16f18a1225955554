#include <gtest/gtest.h>

#include "chart/symbol/ShapeWords.h"
#include "layers/line/ClipChain.h"
#include "tests/layers/LineTestSupport.h"

namespace {

const std::vector<double> kGapX = {0, 50, 100, 150, 200, 250};
const std::vector<double> kGapY = {10, 20, kNoValue, kNoValue, 40, 50};

LineLayer *addGapLine(XYChartImpl *chart) {
    LineLayer *layer = chart->addLineLayer(values(kGapY), 0xFF0000, "a", 0);
    layer->setXData(values(kGapX));
    return layer;
}

}  // namespace

// Two missing points in a row make one gap from (100, 200) to (250, 180):
// open by default, in the data colour with kSameAsMainColor, or in a colour
// and width of its own.
TEST(LineLayer, GapsAreLeftOpenOrBridged) {
    {
        Owned<XYChartImpl> chart(newUnitChart());
        addGapLine(chart.get());
        DrawArea *d = chart->makeChart();
        std::vector<std::string> lines = listingLines(d);
        EXPECT_GE(lineWith(lines, "PolyLine(0xff0000, 1, [50, 210, 100, 200])"), 0);
        EXPECT_GE(lineWith(lines, "PolyLine(0xff0000, 1, [250, 180, 300, 170])"), 0);
        EXPECT_EQ(d->getPixel(175, 190), 0xFFFFFF);
    }
    {
        Owned<XYChartImpl> chart(newUnitChart());
        addGapLine(chart.get())->setGapColor(kSameAsMainColor, -1);
        DrawArea *d = chart->makeChart();
        EXPECT_GE(lineWith(listingLines(d),
                           "PolyLine(0xff0000, 1, [50, 210, 100, 200, 250, 180, 300, 170])"),
                  0);
        EXPECT_NE(d->getPixel(175, 190), 0xFFFFFF);
    }
    {
        Owned<XYChartImpl> chart(newUnitChart());
        addGapLine(chart.get())->setGapColor(0x00FF00, 3);
        DrawArea *d = chart->makeChart();
        EXPECT_GE(lineWith(listingLines(d),
                           "MultiLine(style, 0xff0000, 1, coor, 50, 210, coor, 100, 200, style, "
                           "0x00ff00, 3, coor, 250, 180, style, 0xff0000, 1, coor, 300, 170)"),
                  0);
        EXPECT_EQ(d->getPixel(175, 190), 0x00FF00);
    }
}

// A data set's width of 0 leaves its symbols alone, all in one record; a
// scatter layer is made that way.
TEST(LineLayer, WidthZeroDrawsTheSymbolsAlone) {
    Owned<XYChartImpl> chart(newUnitChart());
    std::vector<double> y = {10, 20, 40}, x = {0, 50, 100};
    LineLayer *layer = chart->addLineLayer(values(y), 0xFF0000, "a", 0);
    layer->setXData(values(x));
    layer->getDataSet(0)->setLineWidth(0);
    // Held from before the layout, as an application may hold it.
    LineObj *held = layer->getLine(0);
    layer->getDataSet(0)->setDataSymbol(kSquareShape, 5, 0x0000FF, kTransparent, 1);
    chart->addScatterLayer(values(x), values(y), "b", kDiamondShape, 9, 0x00FF00, kTransparent);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(lineWith(lines, "0xff0000"), -1);
    EXPECT_EQ(countLinesStartingWith(lines, "PolyLine(0x0000ff"), 0);
    EXPECT_EQ(countLinesStartingWith(lines, "MergeAtPoints("), 2);
    EXPECT_GE(lineWith(lines, ", 5, 5, [48, 208, 98, 198, 148, 178])"), 0);
    EXPECT_GE(lineWith(lines, ", 9, 9, [46, 206, 96, 196, 146, 176])"), 0);
    EXPECT_EQ(countLinesStartingWith(lines, "MultiLine("), 0);
    EXPECT_EQ(impl(layer)->lineWidthOf(0), 0);
    // The line that draws nothing is made when it is read.
    EXPECT_EQ(held->getPoints().len, 6);
    EXPECT_EQ(impl(layer)->lineOf(0)->size(), 3);
    EXPECT_EQ(layer->getLine(0)->getPoints().len, 6);
}

// Sizes per point: lengths along the x or the y axis (one unit a pixel
// here), or pixels; a direction without an array takes the other's size;
// kNoValue, or a size below a pixel in either direction, has no symbol.
TEST(LineLayer, SymbolSizesPerPoint) {
    std::vector<double> y = {10, 20, 40, 50}, x = {0, 50, 100, 150};
    std::vector<double> sizes = {5, kNoValue, 9, 0.4}, heights = {3, 3, kNoValue, 3};
    std::vector<double> both = {5, kNoValue, 9, 12};
    for (int form = 0; form < 2; ++form) {
        Owned<XYChartImpl> chart(newUnitChart());
        LineLayer *layer = chart->addLineLayer(values(y), 0xFF0000, "a", 0);
        layer->setXData(values(x));
        layer->getDataSet(0)->setDataSymbol(kSquareShape, 7, -1, kTransparent, 1);
        if (form == 0)
            layer->setSymbolScale(values(sizes), kXAxisScale, values(heights), kYAxisScale);
        else
            layer->setSymbolScale(DoubleArray(), kPixelScale, values(both), kPixelScale);
        std::vector<std::string> lines = listingLines(chart->makeChart());
        if (form == 0) {
            EXPECT_GE(lineWith(lines, "[47.5, 52.5, 52.5, 47.5], [208.5, 208.5, 211.5, 211.5]"), 0);
            EXPECT_EQ(countLinesStartingWith(lines, "Polygon(Chart.Transparent, 0xff0000"), 1);
        } else {
            EXPECT_GE(lineWith(lines, "[47.5, 52.5, 52.5, 47.5], [207.5, 207.5, 212.5, 212.5]"), 0);
            EXPECT_GE(lineWith(lines, "[145.5, 154.5, 154.5, 145.5], [175.5, 175.5, 184.5, 184.5]"),
                      0);
            EXPECT_GE(lineWith(lines, "[193.5, 205.5, 205.5, 193.5], [163.5, 163.5, 175.5, 175.5]"),
                      0);
            EXPECT_EQ(countLinesStartingWith(lines, "Polygon(Chart.Transparent, 0xff0000"), 3);
        }
    }
}

// Labels stand above their points; the hot spot of a line follows each
// point's share of it, as wide as the map width.
TEST(LineLayer, LabelsAboveThePointsAndHotSpotsAlongTheLine) {
    Owned<XYChartImpl> chart(newUnitChart());
    std::vector<double> y = {10, 20, 40}, x = {0, 50, 100};
    LineLayer *layer = chart->addLineLayer(values(y), 0xFF0000, "a", 0);
    layer->setXData(values(x));
    layer->setDataLabelFormat("{value}");
    layer->setImageMapWidth(9);
    std::vector<TextAt> texts = plotTexts(chart->makeChart());
    ASSERT_EQ(texts.size(), 3u);
    int pointY[] = {210, 200, 180};
    for (int i = 0; i < 3; ++i) EXPECT_LT(texts[i].y, pointY[i]) << i;
    std::vector<Area> areas = areasOf(chart->getHTMLImageMap("u", "", "", 0, 0));
    ASSERT_EQ(areas.size(), 3u);
    EXPECT_EQ(areas[0].shape, "poly");
    EXPECT_NE(areas[2].href.find("value=40"), std::string::npos);
    // The first point's share runs from it to halfway to the next, 9 wide.
    EXPECT_NEAR(areas[0].coords.front(), 50, 1);
    int low = 1000, high = -1000;
    for (size_t k = 1; k < areas[0].coords.size(); k += 2)
        low = std::min(low, areas[0].coords[k]), high = std::max(high, areas[0].coords[k]);
    EXPECT_GE(high - low, 9);
    EXPECT_LE(high - low, 14);
}

// In 3D each segment is a face back to its copy moved by the depth: faces
// that show their top in the lighter shade, the others in the data colour,
// the edges in the border colour.
TEST(LineLayer, RibbonsShowTwoShades) {
    Owned<XYChartImpl> chart(newUnitChart());
    std::vector<double> y = {10, 60, 40}, x = {0, 50, 100};
    LineLayer *layer = chart->addLineLayer(values(y), 0xFF0000, "a", 10);
    layer->setXData(values(x));
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_GE(lineWith(lines,
                       "Polygon(Chart.Transparent, 0xff0000, [50, 100, 110, 60], "
                       "[210, 160, 150, 200])"),
              0);
    EXPECT_GE(lineWith(lines,
                       "Polygon(Chart.Transparent, 0xff2121, [100, 150, 160, 110], "
                       "[160, 180, 170, 150])"),
              0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x000000, 1, [50, 210, 60, 200])"), 0);
}

// A missing value breaks the stored line; between stored points the height
// is interpolated, never across a gap.
TEST(LineLayer, HeightsAlongTheStoredLine) {
    MultiLine line;
    line.setData(0, 10, 0);
    line.setData(10, 30, 1);
    line.setData(kNoValue, kNoValue, 2);
    line.setData(20, 0, 3);
    EXPECT_DOUBLE_EQ(line.getY(5), 20);
    EXPECT_DOUBLE_EQ(line.getY(10), 30);
    EXPECT_EQ(line.getY(15), kNoValue);
    EXPECT_EQ(line.getY(-1), kNoValue);
    line.layout(true, 3, 4);
    DoubleArray canvas = line.getPoints();
    ASSERT_EQ(canvas.len, 6);
    EXPECT_EQ(canvas.data[0], 13);
    EXPECT_EQ(canvas.data[1], 4);
}

// Sutherland-Hodgman against the four sides: a square half outside keeps
// its inner half with the crossings put in; one wholly outside leaves nothing.
TEST(LineLayer, TheClipperCutsPolygonsToItsRectangle) {
    ClipChain chain(0, 0, 10, 10);
    double x[] = {5, 15, 15, 5}, y[] = {-5, -5, 5, 5};
    const PointBuffer &cut = chain.clip(x, y, 4);
    std::vector<double> cx(cut.getX()), cy(cut.getY());
    ASSERT_EQ(cut.size(), 4);
    double minX = 100, maxX = -100, minY = 100, maxY = -100;
    for (int i = 0; i < 4; ++i) {
        minX = std::min(minX, cx[i]), maxX = std::max(maxX, cx[i]);
        minY = std::min(minY, cy[i]), maxY = std::max(maxY, cy[i]);
    }
    EXPECT_EQ(minX, 5);
    EXPECT_EQ(maxX, 10);
    EXPECT_EQ(minY, 0);
    EXPECT_EQ(maxY, 5);
    double ox[] = {20, 30, 25}, oy[] = {1, 1, 5};
    EXPECT_EQ(chain.clip(ox, oy, 3).size(), 0);
    // A diagonal crossing gives the point where it meets the side.
    double dx[] = {5, 15, 5}, dy[] = {5, 5, 9};
    const PointBuffer &d = chain.clip(dx, dy, 3);
    ASSERT_EQ(d.size(), 4);
    EXPECT_DOUBLE_EQ(d.getX()[2], 10);
    EXPECT_DOUBLE_EQ(d.getY()[2], 7);
}
