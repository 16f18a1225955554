#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/ColorModel.h"
#include "draw/canvas/Palettes.h"
#include "draw/pixel/ColorWords.h"

namespace {

IntArray ints(const std::vector<int> &v) {
    return IntArray(v.data(), (int)v.size());
}

// A model with the default palette and no display list.
struct ColorModelTest : ::testing::Test {
    ColorModel model{nullptr};
    void SetUp() override { model.setColorTable(Chart::paletteColors(Chart::defaultPalette), 0); }
    int gradient() { return model.linearGradientColor(0, 0, 10, 0, 0xFF0000, 0x0000FF, false); }
};

// The slow reference of palette lookup.
int naiveLookup(const std::vector<int> &table, int index) {
    int size = (int)table.size();
    if (index < size) return table[index];
    if (size == 0) return index;
    if (size <= 8) return table[index % size];
    int i = index;
    while (i >= size) i -= size - 8;
    return table[i];
}

}  // namespace

TEST_F(ColorModelTest, TranslatesWords) {
    EXPECT_EQ(model.getColorTableSize(), 40);
    EXPECT_EQ(model.getARGBColor(kBackgroundColor), 0xFFFFFF);
    EXPECT_EQ(model.getARGBColor(kLineColor), 0x000000);
    EXPECT_EQ(model.getARGBColor(kDataColor), 0xFF3333);
    EXPECT_EQ(model.getARGBColor(0x80123456), 0x80123456);
    EXPECT_EQ(model.getARGBColor(kTransparent), kTransparent);
    EXPECT_EQ(model.getARGBColor(kNoColor), kTransparent);
    EXPECT_EQ(model.getARGBColor((int)0xFFFF8123u), 0x00008123);
    EXPECT_EQ(model.getARGBColor((int)0xFFFFFFFEu), 0x0000FFFE);
    EXPECT_EQ(model.getARGBColor(kDynamicColorBase + 3), kDynamicColorBase + 3);

    // Data colours cycle over entries 8 and up and never reach the background.
    EXPECT_EQ(model.getARGBColor(kPalette + 40), 0xFF3333);
    EXPECT_EQ(model.getARGBColor(kPalette + 41), 0x33FF33);
    for (int n = 8; n < 0x8000; n += 7) EXPECT_NE(model.getARGBColor(kPalette + n), 0xFFFFFF) << n;

    EXPECT_TRUE(model.isOpaque(0x123456));
    EXPECT_TRUE(model.isOpaque(kLineColor));
    EXPECT_FALSE(model.isOpaque(0x01123456));
    EXPECT_FALSE(model.isOpaque(kNoColor));
    EXPECT_FALSE(model.isOpaque(kDynamicColorBase));
    EXPECT_TRUE(ColorModel::isSpecialColor(kDataColor));
    EXPECT_TRUE(ColorModel::isSpecialColor(kDynamicColorBase));
    EXPECT_FALSE(ColorModel::isSpecialColor(kTransparent));
    EXPECT_FALSE(ColorModel::isSpecialColor(0x7F000000));
    EXPECT_TRUE(ColorWord::isDynamicHandle(kDynamicColorBase + 9));
    EXPECT_FALSE(ColorWord::isDynamicHandle(kDataColor));
}

TEST(ColorModel, PaletteLookupMatchesReference) {
    std::mt19937 rng(11);
    for (int size : {0, 1, 5, 8, 9, 40, 300}) {
        ColorModel model(nullptr);
        std::vector<int> table(size);
        for (int &c : table) c = (int)(rng() & 0x7FFFFFFF);
        model.setColorTable(ints(table), 0);
        for (int trial = 0; trial < 500; ++trial) {
            int index = (int)(rng() % 0x8000);
            EXPECT_EQ(model.getARGBColor(kPalette + index), naiveLookup(table, index))
                << size << " " << index;
        }
    }
}

TEST(ColorModel, SetColorTable) {
    ColorModel model(nullptr);
    // Entries are translated as stored, one after the other.
    const int first[] = {0x111111, (int)0xFFFF0000u, kNoColor};
    model.setColorTable(IntArray(first, 3), 0);
    EXPECT_EQ(model.getARGBColor(kPalette + 1), 0x111111);
    EXPECT_EQ(model.getARGBColor(kPalette + 2), kTransparent);

    // A gap is filled with kTransparent.
    model.setColorTable(10, 0x222222);
    EXPECT_EQ(model.getColorTableSize(), 11);
    EXPECT_EQ(model.getARGBColor(kPalette + 5), kTransparent);
    EXPECT_EQ(model.getARGBColor(kPalette + 10), 0x222222);

    // Offsets are 16-bit and below 32768; the table ends at 32768 entries.
    model.setColorTable(-1, 0x333333);
    model.setColorTable(0x8000, 0x333333);
    model.setColorTable(IntArray(first, 0), 3);
    EXPECT_EQ(model.getColorTableSize(), 11);
    model.setColorTable(0x10003, 0x444444);
    EXPECT_EQ(model.getARGBColor(kPalette + 3), 0x444444);
    model.setColorTable(IntArray(first, 3), 32767);
    EXPECT_EQ(model.getColorTableSize(), kMaxColorTableSize);
    EXPECT_EQ(model.getARGBColor(kPalette + 32767), 0x111111);

    // The raw form keeps words as they are.
    const int raw[] = {kLineColor};
    model.setColorTableRaw(IntArray(raw, 1), 4);
    EXPECT_EQ(model.getARGBColor(kPalette + 4), kLineColor);
}

TEST_F(ColorModelTest, AdjustsPlainColours) {
    EXPECT_EQ(model.adjustBrightness(0x808080, 1.0), 0x808080);
    EXPECT_EQ(model.adjustBrightness(kLineColor, 1.0), kLineColor);
    EXPECT_EQ(model.adjustBrightness(0x808080, 2.0), 0xC0C0C0);
    EXPECT_EQ(model.adjustBrightness(0xFFFFFF, 2.0), 0xFFFFFF);
    EXPECT_EQ(model.adjustBrightness(0x000000, 2.0), 0x808080);
    EXPECT_EQ(model.adjustBrightness(0x808080, 1e9), 0xFFFFFF);
    EXPECT_EQ(model.adjustBrightness(0x80FF8040, 0.5), 0x807F4020);
    EXPECT_EQ(model.adjustBrightness(0x80FF8040, -1), (int)0x80000000);
    EXPECT_EQ(model.halfColor(0x808080), 0x404040);
    EXPECT_EQ(model.halfColor(kDataColor), 0x7F1919);
    EXPECT_EQ(model.adjustBrightness(kTransparent, 0.5), kTransparent);
    EXPECT_EQ(model.adjustBrightness((int)0xFF123456u, 2), (int)0xFF123456u);
    EXPECT_EQ(model.adjustBrightness(0x123456, NAN), 0x123456);

    // Against the per-channel formula, both directions.
    std::mt19937 rng(3);
    for (int i = 0; i < 2000; ++i) {
        int c = (int)(rng() & 0xFEFFFFFF);
        int k = (int)(rng() % 8192);
        int got = ColorModel::adjustBrightnessARGB(c, k);
        EXPECT_EQ((unsigned)got >> 24, (unsigned)c >> 24);
        for (int shift = 0; shift < 24; shift += 8) {
            int ch = (c >> shift) & 0xFF, out = (got >> shift) & 0xFF;
            if (k <= 1024) {
                EXPECT_EQ(out, ch * k >> 10);
            } else {
                int m = (k / 2 + 262144) / k;
                EXPECT_EQ(out, 255 - ((255 - ch) * m >> 8));
                EXPECT_GE(out, ch);
            }
        }
    }
}

TEST_F(ColorModelTest, DerivedColoursAreCached) {
    int g = gradient();
    ASSERT_TRUE(ColorWord::isDynamicHandle(g));
    int dark = model.adjustBrightness(g, 0.5);
    EXPECT_TRUE(ColorWord::isDynamicHandle(dark));
    EXPECT_NE(dark, g);
    EXPECT_EQ(model.adjustBrightness(g, 0.5), dark);
    EXPECT_EQ(model.halfColor(g), dark);
    int light = model.adjustBrightness(g, 1.5);
    EXPECT_NE(light, dark);
    EXPECT_EQ(model.adjustBrightness(g, 1.0), g);
    // Context colours stay symbolic and are derived like dynamic ones.
    int context = model.adjustBrightness(kContextColor + 1, 0.5);
    EXPECT_TRUE(ColorWord::isDynamicHandle(context));
    EXPECT_EQ(model.adjustBrightness(kContextColor + 1, 0.5), context);
    // A handle never handed out derives nothing.
    EXPECT_EQ(model.adjustBrightness(kDynamicColorBase + 999, 0.5), kTransparent);

    // Metal codes become one lighting colour each, made once.
    int metal = Chart::metalColor(0x123456, 90);
    int lit = model.getARGBColor(metal);
    EXPECT_TRUE(ColorWord::isDynamicHandle(lit));
    EXPECT_EQ(model.getARGBColor(metal), lit);
    int next = model.getNextDynColor();
    int brushed = model.getARGBColor(Chart::brushedMetalColor(0x123456, 2, 90));
    EXPECT_EQ(model.getNextDynColor(), next + 2);
    EXPECT_EQ(brushed, kDynamicColorBase + next + 1);
    EXPECT_NE(model.getARGBColor(Chart::metalColor(0x123456, 0)), lit);
    // Metal over a palette entry, over a live and a dead handle.
    EXPECT_TRUE(ColorWord::isDynamicHandle(model.getARGBColor(Chart::metalColor(kDataColor, 90))));
    EXPECT_TRUE(ColorWord::isDynamicHandle(model.getARGBColor(Chart::metalColor(g, 90))));
    EXPECT_EQ(model.getARGBColor(Chart::metalColor(kDynamicColorBase + 2000, 90)), kTransparent);
    // A palette entry that is itself a metal code is stored as its colour.
    model.setColorTable(9, metal);
    EXPECT_EQ(model.getARGBColor(kDataColor + 1), lit);
}

TEST(ColorModel, HandleAllocation) {
    ColorModel model(nullptr);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 1);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 2);
    // A freed handle is handed out again once.
    model.freeDynColor(kDynamicColorBase + 1);
    EXPECT_EQ(model.getNextDynColor(), 3);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 1);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 3);
    // Freeing the newest steps the counter back.
    model.freeDynColor(kDynamicColorBase + 3);
    EXPECT_EQ(model.getNextDynColor(), 3);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 3);
    // Words that are no live handle are ignored.
    model.freeDynColor(kTransparent);
    model.freeDynColor(kDynamicColorBase + 100);
    model.freeDynColor(0x123456);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 4);
    // A handle made elsewhere is never handed out.
    model.reserveDynColor(kDynamicColorBase + 10);
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + 11);
    model.reserveDynColor(0x123456);
    EXPECT_EQ(model.getNextDynColor(), 12);

    // The handle space runs out without wrapping.
    while (model.getNextDynColor() < kMaxDynamicColors) model.allocDynColor();
    EXPECT_EQ(model.allocDynColor(), kTransparent);
    EXPECT_EQ(model.linearGradientColor(0, 0, 1, 1, 0, 0xFFFFFF, false), kTransparent);
    EXPECT_EQ(model.dashLineColor(0x123456, kDashLine), kTransparent);
}

TEST_F(ColorModelTest, DynamicLayerCutBack) {
    int g = gradient();
    int dynMark = model.getNextDynColor();
    int derivedMark = model.getDerivedColorCount();
    int dark = model.adjustBrightness(g, 0.5);
    int metal = model.getARGBColor(Chart::goldColor(90));
    model.allocDynColor();
    model.freeDynColor(dark);
    EXPECT_GT(model.getDerivedColorCount(), derivedMark);

    model.cutBack(dynMark, derivedMark);
    EXPECT_EQ(model.getNextDynColor(), dynMark);
    EXPECT_EQ(model.getDerivedColorCount(), derivedMark);
    // The remembered free handle was beyond the mark: not handed out again.
    EXPECT_EQ(model.allocDynColor(), kDynamicColorBase + dynMark);
    // What was derived after the mark is made again.
    int again = model.getARGBColor(Chart::goldColor(90));
    EXPECT_TRUE(ColorWord::isDynamicHandle(again));
    EXPECT_EQ(again, metal);
    EXPECT_EQ(model.getDerivedColorCount(), derivedMark + 1);
    // A cut back to more entries than there are pads with empty entries.
    model.cutBack(1000, model.getDerivedColorCount() + 2);
    EXPECT_EQ(model.getNextDynColor(), again - kDynamicColorBase + 1);
    EXPECT_EQ(model.getARGBColor(Chart::goldColor(90)), again);
}

TEST_F(ColorModelTest, ConstructorsRejectBadArguments) {
    const int three[] = {0, 0xFF0000, 256};
    const int pairs[] = {0, 0xFF0000, 256, 0x0000FF};
    EXPECT_EQ(model.linearGradientColor(0, 0, 9, 9, IntArray(three, 3), false), kTransparent);
    EXPECT_EQ(model.linearGradientColor(0, 0, 9, 9, IntArray(), false), kTransparent);
    EXPECT_EQ(model.radialGradientColor(0, 0, 9, 9, IntArray(three, 3), false), kTransparent);
    EXPECT_EQ(model.gradientColor(IntArray(three, 3), 90, 1, 0, 0), kTransparent);
    EXPECT_EQ(model.gradientColor(IntArray(pairs, 4), NAN, 1, 0, 0), kTransparent);
    EXPECT_EQ(model.relativeLinearGradient(IntArray(three, 2), 0, -1), kTransparent);
    EXPECT_TRUE(ColorWord::isDynamicHandle(model.gradientColor(IntArray(pairs, 4), 90, 1, 0, 0)));

    // Equal ends make no gradient.
    EXPECT_EQ(model.gradientColor(0, 0, 9, 9, kDataColor, 0xFF3333), 0xFF3333);

    EXPECT_EQ(model.patternColor(IntArray(pairs, 4), 0, 0, 0), kTransparent);
    EXPECT_EQ(model.patternColor(IntArray(), 1, 0, 0), kTransparent);
    EXPECT_EQ(model.patternColor(nullptr, 0, 0), kTransparent);
    EXPECT_EQ(model.patternColor("", 0, 0), kTransparent);
    EXPECT_TRUE(ColorWord::isDynamicHandle(model.patternColor(IntArray(pairs, 4), 9, 0, 0)));

    EXPECT_EQ(model.angleGradientColor(0, 0, 0, 90, 0, 9, IntArray()), kTransparent);
    EXPECT_EQ(model.angleGradientColor(0, 0, 0, 90, 0, 9, IntArray(three, 1)), 0);
    EXPECT_EQ(model.angleGradientColor(0, 0, 45, 45, 0, 9, IntArray(pairs, 4)), 0xFF0000);

    EXPECT_EQ(model.dashLineColor(0x123456, 0), 0x123456);
    EXPECT_EQ(model.dashLineColor(kNoColor, kDashLine), kTransparent);
    EXPECT_TRUE(ColorWord::isDynamicHandle(model.dashLineColor(kLineColor, kDotLine)));

    const int lighting[] = {0, 512, 256, 2048};
    EXPECT_EQ(model.lightingColor(0x123456, IntArray(lighting, 3), 90), kTransparent);
    EXPECT_EQ(model.lightingColor(kNoColor, IntArray(lighting, 4), 90), kTransparent);
    EXPECT_EQ(model.radialLightingColor(0, 0, 9, 9, 0x123456, IntArray()), kTransparent);
    EXPECT_TRUE(
        ColorWord::isDynamicHandle(model.lightingColor(0x123456, IntArray(lighting, 4), 90)));

    EXPECT_EQ(model.multiLayerColor(IntArray()), kTransparent);
    EXPECT_EQ(model.multiLayerColor(IntArray(pairs + 1, 1)), 0xFF0000);
    EXPECT_EQ(model.brushedTextureColor(kTransparent, 24), kTransparent);
    const double m[6] = {1, 0, 0, 0, 1, 0};
    EXPECT_EQ(model.transformedColor(0x123456, nullptr), kTransparent);
    EXPECT_EQ(model.preciseTransformColor(kNoColor, m), kTransparent);
    EXPECT_EQ(model.rectColor(0, 0, 9, 9, kTransparent), kTransparent);
    EXPECT_EQ(model.relativeRadialGradient(IntArray(pairs, 4), NAN, 100, 100), kTransparent);

    // A number that is not finite, wherever it stands, makes no colour.
    for (int k = 0; k < 6; ++k) {
        double a[6] = {50, 50, 0, 90, 0, 40};
        a[k] = k % 2 ? NAN : INFINITY;
        EXPECT_EQ(model.angleGradientColor(a[0], a[1], a[2], a[3], a[4], a[5], IntArray(pairs, 4)),
                  kTransparent)
            << k;
        double t[6] = {1, 0, 0, 0, 1, 0};
        t[k] = NAN;
        EXPECT_EQ(model.transformedColor(0x123456, t), kTransparent) << k;
        EXPECT_EQ(model.preciseTransformColor(0x123456, t), kTransparent) << k;
        if (k >= 4) continue;
        EXPECT_EQ(model.rectColor(a[0], a[1], a[2], a[3], 0x123456), kTransparent) << k;
        EXPECT_EQ(model.linearLightingColor(a[0], a[1], a[2], a[3], 0x123456, IntArray(lighting, 4),
                                            false),
                  kTransparent)
            << k;
        EXPECT_EQ(model.relativeLightingColor(a[0], a[1], a[2], a[3], 0x123456,
                                              IntArray(lighting, 4), false),
                  kTransparent)
            << k;
    }
    EXPECT_TRUE(ColorWord::isDynamicHandle(
        model.angleGradientColor(50, 50, 0, 90, 0, 40, IntArray(pairs, 4))));
}

TEST_F(ColorModelTest, MapsColourArrays) {
    const int colors[] = {kLineColor, kDataColor, 0x123456, kNoColor};
    const int *mapped = model.mapColors(IntArray(colors, 4));
    EXPECT_EQ(mapped[0], 0);
    EXPECT_EQ(mapped[1], 0xFF3333);
    EXPECT_EQ(mapped[2], 0x123456);
    EXPECT_EQ(mapped[3], kTransparent);
    const int pairs[] = {0, kDataColor, (int)0xFFFF0001u, kLineColor};
    mapped = model.mapColorPairs(IntArray(pairs, 4));
    EXPECT_EQ(mapped[0], 0);
    EXPECT_EQ(mapped[1], 0xFF3333);
    EXPECT_EQ(mapped[2], (int)0xFFFF0001u);
    EXPECT_EQ(mapped[3], 0);
    EXPECT_EQ(model.mapColors(IntArray()), nullptr);
}
