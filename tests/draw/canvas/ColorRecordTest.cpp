#include <gtest/gtest.h>

#include <string>

#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/ColorModel.h"
#include "draw/canvas/Palettes.h"
#include "draw/list/MetaDraw.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Stream.h"

namespace {

// A colour model recording into a list of its own, with the default palette.
struct ColorRecordTest : ::testing::Test {
    MetaDraw *list = MetaDraw::create(nullptr);
    ColorModel model{list};

    void SetUp() override { model.setColorTable(Chart::paletteColors(Chart::defaultPalette), 0); }
    void TearDown() override { list->destroyList(); }

    std::string listing() {
        qlx::ostrstream out;
        list->writeListing(out);
        out.ensureNullTerminated();
        return out.str() ? out.str() : "";
    }
};

}  // namespace

TEST_F(ColorRecordTest, GradientsAreWrittenAtOnce) {
    int g = model.linearGradientColor(0, 0, 100, 0, kDataColor, 0x0000FF, false);
    EXPECT_EQ(g, kDynamicColorBase);
    // Colours alone are spread evenly; the end point lies 256 * scale away.
    const int five[] = {kLineColor, 0xFF0000, kDataColor, 0x00FF00, 0x0000FF};
    model.gradientColor(IntArray(five, 5), 90, 2, 10, 20);
    model.radialGradientColor(50, 50, 20, 10, 0xFF0000, 0x00FF00, true);
    const int pairs[] = {0, 0xFF0000, 128, kTextColor, 256, 0x00FF00};
    model.angleGradientColor(50, 50, -90, 90, 5, 40.5, IntArray(pairs, 6));
    model.relativeRadialGradient(IntArray(pairs, 6), -1, 200, 100);
    EXPECT_EQ(listing(),
              "LinearGradientColor(0xfffe0000, 0, 0, 100, 0, false, "
              "[0x000000, 0xff3333, 0x000100, 0x0000ff])\n"
              "LinearGradientColor(0xfffe0001, 10, 20, 10, 532, true, "
              "[0x000000, 0x000000, 0x000040, 0xff0000, 0x000080, 0xff3333, 0x0000c0, "
              "0x00ff00, 0x000100, 0x0000ff])\n"
              "RadialGradientColor(0xfffe0002, 50, 50, 20, 10, true, "
              "[0x000000, 0xff0000, 0x000100, 0x00ff00])\n"
              "AngleGradientColor(0xfffe0003, 50, 50, -90, 90, 5, 40.5, "
              "[0x000000, 0xff0000, 0x000080, 0x000000, 0x000100, 0x00ff00])\n"
              "RadialGradientColor(0xfffe0004, 100, 50, 50, 50, false, "
              "[0x000000, 0xff0000, 0x000080, 0x000000, 0x000100, 0x00ff00])\n");
}

TEST_F(ColorRecordTest, PatternsLightingsAndLayers) {
    // Six pixels at height 2 make a 3 by 2 tile; a seventh is dropped.
    const int pixels[] = {kLineColor, 1, 2, 3, kDataColor, 5, 6};
    model.patternColor(IntArray(pixels, 7), 2, 3, 4);
    // Too few pixels for one column: a single column of all of them.
    model.patternColor(IntArray(pixels, 2), 5, 0, 0);
    model.patternColor("tile \"1\".png", 1, 2);
    model.getARGBColor(Chart::brushedMetalColor(0x123456, 2, 90));
    const int lighting[] = {0, 512, 256, 2048, 999};
    model.linearLightingColor(1, 2, 3, 4, kDataColor, IntArray(lighting, 5), false);
    model.radialLightingColor(10, 20, 30, 40, 0x123456, IntArray(lighting, 4));
    const int layers[] = {kDataColor, kDynamicColorBase};
    model.multiLayerColor(IntArray(layers, 2));
    model.xZoneColor(30, kLineColor, 0xFF0000);
    model.yZoneColor(-5, 0x00FF00, kTextColor);
    const double m[6] = {1, 0.5, -2, 0, 1, 3};
    model.transformedColor(kDataColor, m);
    model.preciseTransformColor(0x123456, m);
    model.rectColor(1, 2, 3.5, 4, 0x80123456);
    EXPECT_EQ(listing(),
              "PatternColor(0xfffe0000, 3, 4, 3, 2, "
              "[0x000000, 0x000001, 0x000002, 0x000003, 0xff3333, 0x000005])\n"
              "PatternColor(0xfffe0001, 0, 0, 1, 2, [0x000000, 0x000001])\n"
              "PatternColor2(0xfffe0002, 1, 2, \"tile \\\"1\\\".png\")\n"
              "LightingColor(0xfffe0003, 0x113355, 0, 0, 0, 256, true, "
              "[0, 1024, 48, 2048, 128, 4096, 208, 2048, 256, 1024])\n"
              "BrushedTextureColor(0xfffe0004, 0xfffe0003, 36)\n"
              "LinearLightingColor(0xfffe0005, 0xff3333, 1, 2, 3, 4, false, [0, 512, 256, 2048])\n"
              "RadialLightingColor(0xfffe0006, 0x123456, 10, 20, 30, 40, [0, 512, 256, 2048])\n"
              "MultiLayerColor(0xfffe0007, [0xff3333, 0xfffe0000])\n"
              "ZoneColor(0xfffe0008, false, 30, 0x000000, 0xff0000)\n"
              "ZoneColor(0xfffe0009, true, -5, 0x00ff00, 0x000000)\n"
              "TransformedColor(0xfffe000a, 0xff3333, 1, 0.5, -2, 0, 1, 3)\n"
              "PreciseTransformColor(0xfffe000b, 0x123456, 1, 0.5, -2, 0, 1, 3)\n"
              "RectColor(0xfffe000c, 1, 2, 3.5, 4, 0x80123456)\n");
}

TEST_F(ColorRecordTest, DerivedColoursWaitForUse) {
    int g = model.linearGradientColor(0, 0, 100, 0, 0xFF0000, 0x0000FF, false);
    int dash = model.dashLineColor(kLineColor, kDashLine);
    int unused = model.dashLineColor(0x123456, kDotLine);
    int dark = model.adjustBrightness(g, 0.5);
    int context = model.adjustBrightness(kContextColor, 2);
    int rel = model.relativeLinearGradient(Chart::gradientPairs(Chart::goldGradient), 0, -1);
    EXPECT_NE(unused, kTransparent);
    EXPECT_NE(context, kTransparent);
    list->line(0, 0, 10, 0, dash, 1);
    list->line(0, 0, 10, 0, dark, 1);
    list->line(0, 0, 10, 0, rel, 1);
    // Sized by the canvas when it is a background.
    list->setSize(200, 100, rel);
    EXPECT_EQ(listing(),
              "LinearGradientColor(0xfffe0000, 0, 0, 100, 0, false, "
              "[0x000000, 0xff0000, 0x000100, 0x0000ff])\n"
              "DashLineColor(0xfffe0001, 0x000000, 1285)\n"
              "Line(0, 0, 10, 0, 0xfffe0001, 1)\n"
              "AdjustBrightness(0xfffe0003, 0xfffe0000, 0.5)\n"
              "Line(0, 0, 10, 0, 0xfffe0003, 1)\n"
              "RelativeLinearGradientColor(0xfffe0005, 0, 0.5, 1, 0.5, false, "
              "[0x000000, 0xffe743, 0x000060, 0xffffe0, 0x0000b0, 0xfff0b0, 0x000100, "
              "0xffe743])\n"
              "Line(0, 0, 10, 0, 0xfffe0005, 1)\n"
              "LinearGradientColor(0xfffe0005, 0, 50, 200, 50, false, "
              "[0x000000, 0xffe743, 0x000060, 0xffffe0, 0x0000b0, 0xfff0b0, 0x000100, "
              "0xffe743])\n"
              "SetSize(200, 100, 0xfffe0005)\n");
}

TEST_F(ColorRecordTest, RollbackForgetsLayerColours) {
    int g = model.linearGradientColor(0, 0, 100, 0, 0xFF0000, 0x0000FF, false);
    int dynMark = model.getNextDynColor();
    int derivedMark = model.getDerivedColorCount();
    list->markDynamicLayer();
    int layerColor = model.adjustBrightness(g, 0.5);
    list->line(0, 0, 10, 0, layerColor, 1);
    list->rollback(nullptr);
    model.cutBack(dynMark, derivedMark);
    // The same request after the rollback defines its colour again.
    int again = model.adjustBrightness(g, 0.5);
    EXPECT_EQ(again, layerColor);
    list->line(0, 0, 10, 0, again, 1);
    EXPECT_EQ(listing(),
              "LinearGradientColor(0xfffe0000, 0, 0, 100, 0, false, "
              "[0x000000, 0xff0000, 0x000100, 0x0000ff])\n"
              "AdjustBrightness(0xfffe0001, 0xfffe0000, 0.5)\n"
              "Line(0, 0, 10, 0, 0xfffe0001, 1)\n");
}
