#include <gtest/gtest.h>
#include <png.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "chart/base/ChartOutput.h"
#include "chart/legend/LegendBoxImpl.h"
#include "foundation/Constants.h"
#include "tests/chart/ChartTestSupport.h"
#include "text/box/TextBoxImpl.h"

namespace {

struct DecodedPNG {
    bool ok = false;
    unsigned width = 0, height = 0;
    std::vector<unsigned char> rgba;
};

// Reads PNG bytes with libpng, independently of the engine's own reader.
DecodedPNG decodePNG(MemBlock bytes) {
    DecodedPNG out;
    png_image image;
    memset(&image, 0, sizeof(image));
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data, bytes.len)) return out;
    image.format = PNG_FORMAT_RGBA;
    out.rgba.resize(PNG_IMAGE_SIZE(image));
    out.ok = png_image_finish_read(&image, nullptr, out.rgba.data(), 0, nullptr) != 0;
    out.width = image.width;
    out.height = image.height;
    return out;
}

std::string head(MemBlock b, int n) {
    return std::string(b.data ? b.data : "", std::min(b.len, n));
}

}  // namespace

TEST(ChartOutput, EveryFormatCodeGivesItsBytes) {
    Owned<PlainChart> chart(PlainChart::create(40, 30));
    chart->setBackground(0x102030, kTransparent, 0);
    EXPECT_EQ(head(chart->makeChart2(kPNG), 4), "\x89PNG");
    EXPECT_EQ(head(chart->makeChart2(kGIF), 4), "GIF8");
    EXPECT_EQ(head(chart->makeChart2(kJPG), 3), "\xFF\xD8\xFF");
    EXPECT_EQ(head(chart->makeChart2(kBMP), 2), "BM");
    EXPECT_EQ(head(chart->makeChart2(ChartOutput::kQTIMG), 2), "BM");
    EXPECT_GT(chart->makeChart2(kWMP).len, 0);
    EXPECT_EQ(head(chart->makeChart2(ChartOutput::kAGF), 8), "SetSize(");
    EXPECT_EQ(head(chart->makeChart2(77), 4), "\x89PNG");
    // The vector formats go to the canvas; true exactly when bytes came.
    for (int format : {kSVG, kSVGZ, kPDF}) {
        const char *bytes = nullptr;
        int length = -1;
        bool ok = chart->makeChart3(format, &bytes, &length);
        EXPECT_EQ(ok, length > 0);
    }
    const char *bytes = nullptr;
    int length = 0;
    EXPECT_TRUE(chart->makeChart3(kPNG, &bytes, &length));
    DecodedPNG png = decodePNG(MemBlock(bytes, length));
    ASSERT_TRUE(png.ok);
    EXPECT_EQ(png.width, 40u);
    EXPECT_EQ(png.height, 30u);
    EXPECT_EQ(png.rgba[0], 0x10);
    EXPECT_EQ(png.rgba[1], 0x20);
    EXPECT_EQ(png.rgba[2], 0x30);
    EXPECT_EQ(png.rgba[3], 0xFF);
}

TEST(ChartOutput, FileOutputsPickTheirFormatByExtension) {
    Owned<PlainChart> chart(PlainChart::create(30, 20));
    EXPECT_TRUE(chart->makeChart((const char *)nullptr));
    EXPECT_EQ(chart->calls.size(), 3u);
    std::string path = std::string(VISTREL_BINARY_DIR) + "/chart_output_test.gif";
    ASSERT_TRUE(chart->makeChart(path.c_str()));
    FILE *f = fopen(path.c_str(), "rb");
    ASSERT_TRUE(f);
    char magic[4] = {};
    EXPECT_EQ(fread(magic, 1, 4, f), 4u);
    fclose(f);
    remove(path.c_str());
    EXPECT_EQ(std::string(magic, 4), "GIF8");
    EXPECT_FALSE(chart->makeChart("/no/such/folder/chart.png"));
}

TEST(ChartProperties, FrameRadiiViewAreaAndMetrics) {
    Owned<PlainChart> chart(PlainChart::create(100, 80));
    chart->setRoundedFrame(0xFFFFFF, 3, 4, 5, 6);
    EXPECT_EQ(chart->getProperty(0x100 + kTopLeft), 3);
    EXPECT_EQ(chart->getProperty(0x100 + kTopRight), 4);
    EXPECT_EQ(chart->getProperty(0x100 + kBottomRight), 5);
    EXPECT_EQ(chart->getProperty(0x100 + kBottomLeft), 6);
    EXPECT_EQ(chart->getProperty(0x100 + kCenter), 0);
    EXPECT_EQ(chart->getProperty(0x200 + kBottom), 79);
    EXPECT_EQ(chart->getProperty(0x200 + kRight), 99);
    EXPECT_EQ(chart->getProperty(0x200 + kLeft), 0);
    EXPECT_EQ(chart->getProperty(0x200 + kTop), 0);
    EXPECT_EQ(chart->getProperty(0x300), 0);
    chart->makeChart();
    EXPECT_STREQ(chart->getChartMetrics(), "w=100&h=80&vl=0&vt=0&vw=99&vh=79");
}

TEST(ChartProperties, ImageMapOffsetsFollowTheShadow) {
    Owned<PlainChart> chart(PlainChart::create(100, 80));
    EXPECT_STREQ(chart->getHTMLImageMap("u", "", "", 3, 4), "<area x=3 y=4>");
    chart->setDropShadow(0xAAAAAA, 2, 0x7FFFFFFF, 8);
    chart->getHTMLImageMap("u", "", "", 3, 4);
    EXPECT_EQ(chart->mapOffsetX, 3 + 6);
    EXPECT_EQ(chart->mapOffsetY, 4 + 6);
    chart->setDropShadow(0xAAAAAA, 10, 12, 5);
    chart->getHTMLImageMap("u", "", "", 3, 4);
    EXPECT_EQ(chart->mapOffsetX, 3);
    EXPECT_EQ(chart->mapOffsetY, 4);
    EXPECT_EQ(chart->getDynaMap(), -1);
}

TEST(ChartSettings, PaletteAndAutomaticColours) {
    Owned<PlainChart> chart(PlainChart::create(10, 10));
    EXPECT_EQ(chart->getColor(8), 0xFF3333);
    EXPECT_EQ(chart->getColor(39), 0x999999);
    EXPECT_EQ(chart->autoColor(), kDataColor);
    EXPECT_EQ(chart->autoColor(), kDataColor + 1);
    const int colors[] = {0xFF0000, 0x00FF00, -1, 0x0000FF};
    chart->setColors(IntArray(colors, 4));
    EXPECT_EQ(chart->getColor(0), 0xFF0000);
    EXPECT_EQ(chart->getColor(1), 0x00FF00);
    EXPECT_EQ(chart->getColor(2), 0x000000);
    chart->setColors2(9, IntArray(colors + 3, 1));
    EXPECT_EQ(chart->getColor(9), 0x0000FF);
    chart->setColor(0x10000 + 10, 0x445566);
    EXPECT_EQ(chart->getColor(10), 0x445566);
    EXPECT_EQ(chart->getColor(-1), kTransparent);
    EXPECT_EQ(chart->halfColor(0x808080), 0x404040);
}

TEST(ChartSettings, FormatValueByBareFormatOrTemplate) {
    Owned<PlainChart> chart(PlainChart::create(10, 10));
    EXPECT_STREQ(chart->formatValue(3.14159, "2"), "3.14");
    EXPECT_STREQ(chart->formatValue(3.14159, "{value|1} m and {other}"), "3.1 m and {other}");
    chart->setNumberFormat(',', '.', '-');
    EXPECT_STREQ(chart->formatValue(-1234567, "0"), "-1,234,567");
    EXPECT_STREQ(chart->formatValue(2, nullptr), "2");
}

TEST(ChartSettings, LegendColumnsAndPlace) {
    Owned<PlainChart> chart(PlainChart::create(200, 100));
    LegendBoxImpl *legend = static_cast<LegendBoxImpl *>(chart->getLegend());
    EXPECT_EQ(chart->getLegend(), legend);
    EXPECT_EQ(legend->getLeftX(), LegendBoxImpl::kNoPosition);
    chart->addLegend2(5, 6, 1001, "", 10);
    EXPECT_EQ(legend->getCols(), 1);
    chart->addLegend2(5, 6, -2, "", 10);
    EXPECT_EQ(legend->getCols(), -2);
    EXPECT_TRUE(legend->isGridMode());
    chart->addLegend2(5, 6, -7, "", 10);
    EXPECT_EQ(legend->getCols(), 1);
    chart->addLegend(5, 6, false, "", 10);
    EXPECT_EQ(legend->getCols(), 0);
    EXPECT_FALSE(legend->isGridMode());
    EXPECT_EQ(legend->getLeftX(), 5);
    EXPECT_EQ(legend->getEdgeColor(), kLineColor);
    EXPECT_EQ(chart->layoutLegend(), chart->getLegend());
}

TEST(ChartSettings, WallpaperTilesOrStandsAtItsAlignment) {
    DrawArea *picture = DrawArea::create();
    picture->setSize(8, 6, 0x00FF00);
    std::string path = std::string(VISTREL_BINARY_DIR) + "/chart_wallpaper_test.png";
    ASSERT_TRUE(picture->outPNG(path.c_str()));
    picture->destroy();

    Owned<PlainChart> tiled(PlainChart::create(20, 12));
    tiled->setWallpaper(path.c_str());
    std::vector<std::string> lines = listingLines(tiled->makeChart());
    EXPECT_EQ(countLinesWith(lines, "MergeWithScaling("), 3 * 2);
    EXPECT_EQ(tiled->getRawDrawArea()->getPixel(19, 11), 0x00FF00);

    Owned<PlainChart> placed(PlainChart::create(20, 12));
    placed->setBgImage(path.c_str(), kBottomRight);
    lines = listingLines(placed->makeChart());
    ASSERT_EQ(countLinesWith(lines, "MergeWithScaling("), 1);
    EXPECT_GE(lineWith(lines, ", 12, 6, 8, 6, 0)"), 0);
    EXPECT_EQ(placed->getRawDrawArea()->getPixel(0, 0), 0xFFFFFF);

    Owned<PlainChart> missing(PlainChart::create(20, 12));
    missing->setWallpaper("/no/such/wallpaper.png");
    EXPECT_EQ(listingLines(missing->makeChart()).size(), 1u);
    remove(path.c_str());
}
