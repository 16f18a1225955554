#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <random>
#include <vector>

#include "draw/canvas/ColorEffects.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

using namespace Chart;

TEST(ColorEffects, IntensityCodes) {
    EXPECT_EQ(encodeIntensity(1.0), 100);
    EXPECT_DOUBLE_EQ(decodeIntensity(100), 1.0);
    EXPECT_EQ(encodeIntensity(2.0), 164);
    EXPECT_DOUBLE_EQ(decodeIntensity(164), 2.0);
    EXPECT_EQ(encodeIntensity(0.5), 50);
    EXPECT_EQ(encodeIntensity(0.004), 0);
    EXPECT_EQ(encodeIntensity(0), 0);
    EXPECT_EQ(encodeIntensity(-3), 0);
    EXPECT_EQ(encodeIntensity(1.5), 143);
    // No finite brightness reaches the last code, whose decoding is bounded.
    EXPECT_EQ(encodeIntensity(NAN), 228);
    EXPECT_EQ(encodeIntensity(INFINITY), 228);
    EXPECT_DOUBLE_EQ(decodeIntensity(228), 1280);
    EXPECT_DOUBLE_EQ(decodeIntensity(255), 1280);

    // Round trips: exact to the percent below 1, within the code's step above.
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> low(0.01, 1.0), high(1.0, 4.0);
    for (int i = 0; i < 1000; ++i) {
        double v = low(rng);
        EXPECT_NEAR(decodeIntensity(encodeIntensity(v)), v, 0.0051);
        double w = high(rng);
        int code = encodeIntensity(w);
        EXPECT_GE(code, 100);
        EXPECT_LE(code, 255);
        EXPECT_NEAR(decodeIntensity(code), w, w * w / 128);
    }
}

TEST(ColorEffects, BorderAndGlassWords) {
    EXPECT_EQ(flatBorder(5), 0x600005);
    EXPECT_EQ(flatBorder(-5), -0x600005);
    EXPECT_EQ(flatBorder(10000), 0x600FFF);
    EXPECT_EQ(flatBorder(INT_MIN), -0x600FFF);
    EXPECT_TRUE(isFlatBorder(flatBorder(5)));
    EXPECT_TRUE(isFlatBorder(flatBorder(-7)));
    EXPECT_FALSE(isFlatBorder(5));
    EXPECT_FALSE(isFlatBorder(INT_MIN));

    EXPECT_EQ(glassEffect(3, kTop, 5), 0x933037);
    EXPECT_FALSE(isFlatBorder(glassEffect(3, kTop, 5)));
    // Raised effect 0 leaves no thickness; a sunken one loses its sign.
    EXPECT_EQ(glassEffect(3, kTop, 0) & 0xFFF, 0);
    EXPECT_EQ(glassEffect(3, kTop, -3), 0x933003);
    EXPECT_EQ(glassEffect(3, kTop, -100) & 0xFFF, 50);
    EXPECT_EQ(glassEffect(2, kLeft, 5000), 0x963FFF);
    EXPECT_EQ(glassEffect(2, kLeft, INT_MAX), 0x963FFF);
    EXPECT_EQ(glassEffect(2, kLeft, INT_MIN) & 0xFFF, 50);
    EXPECT_EQ(glassEffect(9, kBottom, 1), 0x9B3033);
    EXPECT_EQ(glassEffect(-2, kRight, 1), 0x9C3033);
    EXPECT_EQ(glassEffect(1, 123, 1), 0x913033);

    // softLighting turns the light's direction into the opposite glare side.
    EXPECT_EQ(softLighting(kTop, 4), glassEffect(kNoGlare, kBottom, 4));
    EXPECT_EQ(softLighting(kLeft, 4), 0x9D3036);
    EXPECT_EQ(softLighting(kRight, 4), glassEffect(kNoGlare, kLeft, 4));
    EXPECT_EQ(softLighting(kBottom, 4), glassEffect(kNoGlare, kTop, 4));
    EXPECT_EQ(softLighting(0, 4), glassEffect(kNoGlare, kBottom, 4));
}

TEST(ColorEffects, CylinderWords) {
    int w = cylinderEffect(5, 0.5, 0.5, 0.75, 8);
    EXPECT_EQ(w, 0x674B3232);
    EXPECT_EQ(phongLighting(0.5, 0.5, 0.75, 8), w);
    EXPECT_TRUE(isCylinderEffect(w));
    EXPECT_FALSE(isCylinderEffect(5));
    EXPECT_FALSE(isCylinderEffect(-w));
    EXPECT_FALSE(isBarLighting(w));
    double phong[4];
    getPhongLighting(phong, w);
    EXPECT_DOUBLE_EQ(phong[0], 0.5);
    EXPECT_DOUBLE_EQ(phong[1], 0.5);
    EXPECT_DOUBLE_EQ(phong[2], 0.75);
    EXPECT_DOUBLE_EQ(phong[3], 8);
    EXPECT_EQ(cylinderEffect(5, 0, 0, 0, 0) & 0x1F000000, 0);
    EXPECT_EQ(cylinderEffect(5, 0, 0, 0, 100) & 0x1F000000, 31 << 24);

    const int orientations[] = {8, 5, 4, 5, 4, 5, 8};
    for (int o = 2; o <= 8; ++o)
        EXPECT_EQ(getCylinderOrientation(cylinderEffect(o, 0.5, 0.5, 0.5, 4)), orientations[o - 2])
            << o;
    EXPECT_EQ(encodeCylinderOrientation(1), 0x60000000);
    EXPECT_EQ(encodeCylinderOrientation(9), 0x60000000);

    // Only the default orientation is replaced.
    int vertical = setDefaultCylinderOrientation(w, 4);
    EXPECT_EQ(getCylinderOrientation(vertical), 4);
    EXPECT_EQ(vertical & 0x1FFFFFFF, w & 0x1FFFFFFF);
    EXPECT_EQ(setDefaultCylinderOrientation(vertical, 8), vertical);
    EXPECT_EQ(setDefaultCylinderOrientation(12, 4), 12);
}

TEST(ColorEffects, BarLighting) {
    int w = barLighting(0.75, 1.5);
    EXPECT_EQ(w, 0x10008F4B);
    EXPECT_TRUE(isBarLighting(w));
    EXPECT_FALSE(isCylinderEffect(w));
    EXPECT_FALSE(isBarLighting(0x20000000));
    int table[4];
    getBarLighting(table, w, 1.0);
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[1], 1542);
    EXPECT_EQ(table[2], 256);
    EXPECT_EQ(table[3], 768);
    // A negative scale pulls both ends towards each other.
    getBarLighting(table, w, -1.0);
    EXPECT_EQ(table[1], 1284);
    EXPECT_EQ(table[3], 1026);
}

TEST(ColorEffects, ShearedCylinderLighting) {
    int w = cylinderEffect(5, 0.5, 0.5, 0.75, 8);
    std::vector<int> table{1, 2};
    getShearedCylinderLighting(table, w, 0, 0);
    EXPECT_TRUE(table.empty());
    getShearedCylinderLighting(table, w, NAN, 1);
    EXPECT_TRUE(table.empty());

    // Seen straight along y the light runs from full (1.75) to ambient only.
    getShearedCylinderLighting(table, w, 0, 10);
    ASSERT_EQ(table.size(), 42u);
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[1], 1792);
    EXPECT_EQ(table[40], 256);
    EXPECT_EQ(table[41], 512);
    for (size_t i = 2; i < table.size(); i += 2) {
        EXPECT_GT(table[i], table[i - 2]);
        EXPECT_LE(table[i + 1], table[i - 1]);
    }

    // Seen along x the cylinder is lit symmetrically about its middle.
    getShearedCylinderLighting(table, w, 100, 0);
    int n = (int)table.size() / 2 - 1;
    EXPECT_EQ(n, 200 / 2);
    for (int k = 0; k <= n; ++k) EXPECT_EQ(table[2 * k + 1], table[2 * (n - k) + 1]) << k;
    EXPECT_EQ(table[2 * (n / 2) + 1], 1792);

    // Long directions stay within 128 steps.
    getShearedCylinderLighting(table, w, 1e12, 1e12);
    EXPECT_LE(table.size(), 2u * 129);
    EXPECT_EQ(table[table.size() - 2], 256);
}

TEST(ColorEffects, ClearTypeModes) {
    EXPECT_EQ(ClearTypeColor(0), 5);
    EXPECT_EQ(ClearTypeMono(0), 4);
    EXPECT_EQ(ClearTypeColor(-1), 5);
    EXPECT_EQ(ClearTypeColor(1.0), (100 << 6) | 5);
    EXPECT_EQ(ClearTypeMono(1.5), (150 << 6) | 4);
    EXPECT_EQ(ClearTypeColor(100), 65477);
    EXPECT_EQ(ClearTypeMono(100), 65476);
}

TEST(ColorEffects, MetalCodes) {
    // Each component keeps 4 bits; the angle 90 is code 2.
    EXPECT_EQ(metalColor(0x123456, 90), (int)0xFF820135u);
    EXPECT_EQ(metalColor(0x123456, -90), (int)0xFF820135u);
    EXPECT_EQ(metalColor(0x123456, 0), (int)0xFF800135u);
    EXPECT_EQ(metalColor(0x123456, 45), (int)0xFF810135u);
    EXPECT_EQ(metalColor(0x123456, 170), (int)0xFF800135u);
    EXPECT_EQ(metalColor(0x123456, INT_MIN), metalColor(0x123456, INT_MIN % 180 + 180));
    EXPECT_EQ(metalColor(0x123450, 90), metalColor(0x123456, 90));
    EXPECT_TRUE(ColorWord::isMetalCode(metalColor(0xFFFFFF, 90)));

    EXPECT_EQ(metalColor((int)0xF8000000u, 90), kTransparent);
    EXPECT_EQ(metalColor((int)0xFF123456u, 90), kTransparent);
    EXPECT_EQ(metalColor((int)0xF6FFFFFFu, 0), (int)0xFF80EFFFu);

    EXPECT_EQ(metalColor(kDataColor + 3, 0), (int)0xFF80F80Bu);
    EXPECT_EQ(metalColor(kDynamicColorBase + 5, 45), (int)0xFF81F005u);
    EXPECT_EQ(metalColor(kNoColor, 90), kTransparent);
    EXPECT_EQ(metalColor((int)0xFFFF8123u, 90), metalColor(0x8123, 90));

    EXPECT_EQ(goldColor(90), (int)0xFF820FE4u);
    EXPECT_EQ(silverColor(0), metalColor(0xC8C8C8, 0));
    EXPECT_EQ(brushedMetalColor(0x123456, 2, 90), (int)0xFF8A0135u);
    EXPECT_EQ(brushedGoldColor(5, 90), (int)0xFF8E0FE4u);
    EXPECT_EQ(brushedSilverColor(-1, 90), silverColor(90));
    EXPECT_EQ(brushedMetalColor((int)0xF8000000u, 2, 90), kTransparent);
}
