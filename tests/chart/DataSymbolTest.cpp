#include <gtest/gtest.h>

#include <cmath>

#include "chart/symbol/DataSymbol.h"
#include "chart/symbol/MarkupSymbolPainter.h"
#include "chart/symbol/ShapeWords.h"
#include "chart/symbol/SymbolOutline.h"
#include "foundation/ChartStatics.h"
#include "foundation/Constants.h"
#include "tests/chart/ChartTestSupport.h"
#include "text/CanvasText.h"
#include "text/markup/ShapeSymbol.h"
#include "text/layout/TextSymbolService.h"

namespace {

class Symbols : public ::testing::Test {
protected:
    void SetUp() override {
        canvas = DrawArea::create();
        canvas->setSize(100, 100, 0xFFFFFF);
    }
    void TearDown() override { canvas->destroy(); }
    DrawArea *canvas;
};

// The number of x values of the last polygon record that starts so.
int cornersOfPolygon(const std::vector<std::string> &lines, const std::string &start) {
    for (size_t i = lines.size(); i-- > 0;) {
        if (lines[i].rfind(start, 0) != 0) continue;
        size_t open = lines[i].find('['), close = lines[i].find(']');
        return (int)std::count(lines[i].begin() + open, lines[i].begin() + close, ',') + 1;
    }
    return 0;
}

}  // namespace

TEST_F(Symbols, ShapesCentredOnAPixelGetOddSizes) {
    struct Case {
        int shape;
        int size;
        int laidOut;
    } cases[] = {{kCircleShape, 6, 7},         {kCrossSymbol, 8, 9}, {kSolidSphereShape, 10, 11},
                 {kGlassSphereShape, 7, 7},    {kSquareShape, 6, 6}, {Chart::StarShape(5), 8, 8},
                 {kCircleShapeNoShading, 6, 6}};
    for (const Case &c : cases) {
        DataSymbol s;
        s.setShape(c.shape, c.size, 0xFF0000, -1, 1);
        s.layoutLegend(canvas);
        EXPECT_EQ(s.getWidth(), c.laidOut) << c.shape;
        EXPECT_EQ(s.getHeight(), c.laidOut) << c.shape;
        // Laid out once only.
        s.layoutLegend(canvas);
        EXPECT_EQ(s.getWidth(), c.laidOut) << c.shape;
    }
    DataSymbol packed;
    packed.setShape(kCircleShape, Chart::xySize(6, 10), 0xFF0000, -1, 1);
    EXPECT_EQ(packed.getWidth(), 6);
    EXPECT_EQ(packed.getHeight(), 10);
}

TEST_F(Symbols, PreparedOnceAndMergedAtEachPoint) {
    DataSymbol s;
    s.setShape(kDiamondShape, 9, -1, -1, 1);
    s.layoutLegend(canvas);
    s.layoutChart(canvas, 0x00FF00, 0x000000);
    for (int i = 0; i < 3; ++i) s.paint(canvas, 20 + 20 * i, 50, 9, 9);
    std::vector<std::string> lines = listingLines(canvas);
    EXPECT_EQ(countLinesStarting(lines, "DefineSymbol("), 1);
    EXPECT_EQ(countLinesWith(lines, "MergeWithScaling("), 3);
    // Centred on the point.
    EXPECT_GE(lineWith(lines, ", 16, 46, 9, 9, 0)"), 0);
    EXPECT_EQ(canvas->getPixel(20, 50), 0x00FF00);

    // Asked at another size, the shape is drawn in place.
    s.paint(canvas, 70, 70, 15, 15);
    EXPECT_EQ(countLinesWith(listingLines(canvas), "MergeWithScaling("), 3);
    EXPECT_EQ(canvas->getPixel(70, 70), 0x00FF00);
}

TEST_F(Symbols, DynamicFillIsDrawnInPlace) {
    DataSymbol s;
    int gradient = canvas->linearGradientColor(0, 0, 100, 0, 0xFF0000, 0x0000FF, false);
    s.setShape(kSquareShape, 8, gradient, kTransparent, 1);
    s.layoutLegend(canvas);
    s.layoutChart(canvas, 0x00FF00, 0x000000);
    s.paint(canvas, 10, 50, 8, 8);
    s.paint(canvas, 90, 50, 8, 8);
    std::vector<std::string> lines = listingLines(canvas);
    EXPECT_EQ(countLinesWith(lines, "MergeWithScaling("), 0);
    EXPECT_EQ(countLinesWith(lines, "Polygon("), 2);
    // The gradient runs across the canvas, not across each symbol.
    int left = canvas->getPixel(10, 50), right = canvas->getPixel(90, 50);
    EXPECT_GT((left >> 16) & 0xFF, 0xB0);
    EXPECT_GT(right & 0xFF, 0xB0);
}

TEST_F(Symbols, SizeZeroAndNoShapeDrawNothing) {
    size_t before = listingLines(canvas).size();
    DataSymbol zero;
    zero.setShape(kCircleShape, 0, 0xFF0000, -1, 1);
    zero.layoutLegend(canvas);
    zero.layoutChart(canvas, 0xFF0000, 0);
    EXPECT_FALSE(zero.isVisible());
    zero.paint(canvas, 50, 50, zero.getWidth(), zero.getHeight());
    DataSymbol none;
    none.layoutLegend(canvas);
    none.paint(canvas, 50, 50, 5, 5);
    DataSymbol::draw2(canvas, 99, {}, 10, 10, 5, 5, 0xFF0000, 0, 1);
    EXPECT_EQ(listingLines(canvas).size(), before);
}

TEST_F(Symbols, PicturesAndCanvasesAreMergedCentred) {
    DrawArea *icon = DrawArea::create();
    icon->setSize(6, 4, 0x0000FF);
    std::string path = std::string(VISTREL_BINARY_DIR) + "/data_symbol_test.png";
    ASSERT_TRUE(icon->outPNG(path.c_str()));

    DataSymbol picture;
    picture.setImage(path.c_str());
    picture.layoutLegend(canvas);
    EXPECT_EQ(picture.getWidth(), 6);
    EXPECT_EQ(picture.getHeight(), 4);
    picture.paint(canvas, 30, 30, 6, 4);
    EXPECT_EQ(canvas->getPixel(27, 28), 0x0000FF);
    EXPECT_EQ(canvas->getPixel(26, 28), 0xFFFFFF);

    DataSymbol custom;
    custom.setCustom(icon);
    EXPECT_EQ(custom.getWidth(), 6);
    custom.paint(canvas, 60, 60, 6, 4);
    EXPECT_GE(lineWith(listingLines(canvas), ", 57, 58, 6, 4, 0)"), 0);

    // A file that can't be read leaves a one-pixel nothing.
    DataSymbol missing;
    missing.setImage("/no/such/symbol.png");
    missing.layoutLegend(canvas);
    EXPECT_EQ(missing.getWidth(), 1);
    missing.paint(canvas, 80, 80, 1, 1);
    EXPECT_EQ(canvas->getPixel(80, 80), 0xFFFFFF);
    icon->destroy();
    remove(path.c_str());
}

TEST_F(Symbols, CrossesAreLinePairsUnlessGivenAnArmWidth) {
    DataSymbol::draw2(canvas, kCrossSymbol, {}, 10, 10, 9, 9, 0xFF0000, kTransparent, 1);
    std::vector<std::string> lines = listingLines(canvas);
    EXPECT_GE(lineWith(lines, "[10, 14, 18, 14]"), 0);
    EXPECT_GE(lineWith(lines, "[14, 10, 14, 18]"), 0);
    DataSymbol::draw2(canvas, kCross2Symbol, {}, 30, 10, 9, 9, 0xFF0000, kTransparent, 1);
    EXPECT_GE(lineWith(listingLines(canvas), "[30, 10, 38, 18]"), 0);
    size_t before = listingLines(canvas).size();
    DataSymbol::draw2(canvas, Chart::CrossShape(0.4), {}, 50, 10, 9, 9, 0xFF0000, kTransparent, 1);
    lines = listingLines(canvas);
    ASSERT_EQ(lines.size(), before + 1);
    EXPECT_EQ(lines.back().rfind("Polygon(Chart.Transparent, 0xff0000", 0), 0u);
}

TEST(SymbolWords, PackedArgumentsComeBack) {
    EXPECT_EQ(Chart::shapeCode(Chart::CrossShape(0.5)), kCrossSymbol);
    EXPECT_NEAR(ShapeSymbol::unpackFraction(Chart::Cross2Shape(0.25)), 0.25, 1e-3);
    EXPECT_EQ(ShapeSymbol::unpackCount(Chart::PolygonShape(7)), 7);
    EXPECT_EQ(ShapeSymbol::unpackCount(Chart::StarShape(500)), 100);
    EXPECT_EQ(Chart::shapeCode(Chart::Polygon2Shape(6)), kVistrel_Polygon2Symbol);
    double arrow[4];
    ShapeSymbol::unpackArrow(Chart::ArrowShape(90, 1, 0.3, 0.6), arrow);
    EXPECT_DOUBLE_EQ(arrow[0], 90);
    EXPECT_DOUBLE_EQ(arrow[1], 1);
    EXPECT_NEAR(arrow[2], 0.4, 1e-9);
    EXPECT_NEAR(arrow[3], 0.3, 1e-9);
    // The mark-up packs the same words.
    ShapeSymbol parsed;
    ASSERT_TRUE(ShapeSymbol::parse(L"@arrow(90, 1, 0.4, 0.3)", &parsed));
    EXPECT_EQ(parsed.code, Chart::ArrowShape(90, 1, 0.3, 0.6));
    ASSERT_TRUE(ShapeSymbol::parse(L"@star(7)", &parsed));
    EXPECT_EQ(parsed.code, Chart::StarShape(7));
}

TEST(SymbolWords, OutlinesFillTheUnitBox) {
    const int points[] = {0, 0, 10, 0, 5, 8, kNewShape, 20, 20, 30, 20, 25, 30};
    std::vector<double> custom(points, points + 13);
    for (int word : {(int)kSquareShape, (int)kDiamondShape, (int)kTriangleShape,
                     (int)kRightTriangleShape, (int)kLeftTriangleShape, (int)kInvertedTriangleShape,
                     Chart::CrossShape(0.3), Chart::Cross2Shape(0.3), Chart::PolygonShape(5),
                     Chart::Polygon2Shape(6), Chart::StarShape(5), (int)kVistrel_CustomSymbol}) {
        std::vector<SymbolOutline::Polygon> outline = SymbolOutline::of(word, custom);
        ASSERT_FALSE(outline.empty()) << word;
        double minX = 1, maxX = -1, minY = 1, maxY = -1;
        for (const auto &p : outline)
            for (size_t i = 0; i < p.x.size(); ++i) {
                minX = std::min(minX, p.x[i]), maxX = std::max(maxX, p.x[i]);
                minY = std::min(minY, p.y[i]), maxY = std::max(maxY, p.y[i]);
            }
        EXPECT_NEAR(minX, -0.5, 1e-9) << word;
        EXPECT_NEAR(maxX, 0.5, 1e-9) << word;
        EXPECT_NEAR(minY, -0.5, 1e-9) << word;
        EXPECT_NEAR(maxY, 0.5, 1e-9) << word;
    }
    EXPECT_EQ(SymbolOutline::of(kVistrel_CustomSymbol, custom).size(), 2u);
    // An arrow turns inside the box's inner circle; at 90 degrees it points right.
    std::vector<SymbolOutline::Polygon> arrow =
        SymbolOutline::of(Chart::ArrowShape(90, 1, 0.5, 0.5), {});
    ASSERT_EQ(arrow.size(), 1u);
    EXPECT_GT(arrow[0].x[0], 0.4);
    EXPECT_NEAR(arrow[0].y[0], 0, 1e-9);
    double reach = 0;
    for (size_t i = 0; i < arrow[0].x.size(); ++i)
        reach = std::max(reach, std::hypot(arrow[0].x[i], arrow[0].y[i]));
    EXPECT_NEAR(reach, 0.5, 1e-9);
    // Nothing to draw for circles, bare crosses and custom shapes of too few points.
    EXPECT_TRUE(SymbolOutline::of(kCircleShape, {}).empty());
    EXPECT_TRUE(SymbolOutline::of(kCrossSymbol, {}).empty());
    EXPECT_TRUE(SymbolOutline::of(kVistrel_CustomSymbol, {1, 2, 3, 4}).empty());
}

TEST_F(Symbols, MarkupSymbolsAreDrawnAsDataSymbols) {
    CanvasText::install();
    // Without the chart layer a text draws plain shapes: a cross as a square.
    TextSymbolService::install(nullptr);
    canvas->text4("<*img=@cross(0),size=9,color=FF0000*> <*img=@cross,size=9,color=FF*>",
                  "arial.ttf", 0, 10, 0, 0, false, 10, 10, 0x000000, kTopLeft);
    std::vector<std::string> plain = listingLines(canvas);
    EXPECT_EQ(countLinesWith(plain, "PolyLine(0xff0000"), 0);
    EXPECT_EQ(cornersOfPolygon(plain, "Polygon(Chart.Transparent, 0x0000ff"), 4);
    MarkupSymbolPainter::install();
    canvas->text4("<*img=@cross(0),size=9,color=FF0000*> <*img=@cross,size=9,color=FF*>",
                  "arial.ttf", 0, 10, 0, 0, false, 10, 40, 0x000000, kTopLeft);
    std::vector<std::string> lines = listingLines(canvas);
    // A cross of no arm width is a pair of lines; the default arms make a shape of 12 corners.
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0xff0000"), 2);
    EXPECT_EQ(cornersOfPolygon(lines, "Polygon(Chart.Transparent, 0x0000ff"), 12);
    // Symbol tables are not data symbols: they fall back to the text's own drawing.
    ShapeSymbol table;
    table.tableIndex = 2;
    MarkupSymbolPainter painter;
    EXPECT_FALSE(painter.drawSymbol(canvas, table, 5, 5, 5, 5, 0xFF0000, 0));
}

TEST(SymbolPaths, MergedSymbolsMatchTheOnesDrawnInPlace) {
    for (int shape :
         {(int)kCircleShape, (int)kDiamondShape, Chart::StarShape(5), (int)kGlassSphereShape,
          (int)kCrossSymbol, Chart::ArrowShape(30, 1, 0.5, 0.5), (int)kSolidSphereShape}) {
        DrawArea *canvas = DrawArea::create();
        canvas->setSize(100, 50, 0xFFFFFF);
        DataSymbol s;
        s.setShape(shape, 13, -1, -1, 1);
        s.layoutLegend(canvas);
        s.layoutChart(canvas, 0x4A90D9, 0x1F3A5F);
        int w = s.getWidth(), h = s.getHeight();
        s.paint(canvas, 25, 25, w, h);
        s.draw(canvas, 75 - w / 2, 25 - h / 2, w, h);
        EXPECT_EQ(countLinesStarting(listingLines(canvas), "MergeWithScaling("), 1) << shape;
        // Within the symbol's box: a prepared canvas holds nothing beyond it.
        int worst = 0;
        for (int y = 25 - h / 2; y < 25 - h / 2 + h; ++y)
            for (int x = -w / 2; x < w - w / 2; ++x) {
                int a = canvas->getPixel(25 + x, y), b = canvas->getPixel(75 + x, y);
                for (int shift = 0; shift < 24; shift += 8)
                    worst =
                        std::max(worst, std::abs(((a >> shift) & 0xFF) - ((b >> shift) & 0xFF)));
            }
        EXPECT_LE(worst, 2) << shape;
        canvas->destroy();
    }
}
