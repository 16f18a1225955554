#include <gtest/gtest.h>

#include "text/font/GlyphBitmap.h"
#include "text/font/LcdFilter.h"

namespace {

GlyphBitmap makeBitmap(int pitch, int rows, std::vector<unsigned char> data, int bytesPerPixel) {
    GlyphBitmap b;
    b.pitch = pitch;
    b.rows = rows;
    b.data = data;
    b.bytesPerPixel = bytesPerPixel;
    b.top = rows;
    return b;
}

}  // namespace

TEST(GlyphBitmap, DoubleStrike) {
    GlyphBitmap b = makeBitmap(3, 1, {200, 100, 0}, 1);
    b.embolden();
    ASSERT_EQ(4, b.pitch);
    EXPECT_EQ((std::vector<unsigned char>{200, 255, 100, 0}), b.data);
    GlyphBitmap lcd = makeBitmap(3, 1, {10, 20, 30}, 3);
    lcd.embolden();
    EXPECT_EQ((std::vector<unsigned char>{10, 20, 30, 10, 20, 30}), lcd.data);
}

TEST(GlyphBitmap, ShearMovesRowsAboveTheBaseline) {
    // 8 rows standing on the baseline: row r is 8 - r above it.
    GlyphBitmap b = makeBitmap(1, 8, std::vector<unsigned char>(8, 255), 1);
    b.left = 2;
    b.shear(64);
    // Shifts (d * 64 + 128) >> 8 for d = 8 .. 1: 2 2 2 1 1 1 1 0.
    ASSERT_EQ(3, b.pitch);
    int expectedColumn[] = {2, 2, 2, 1, 1, 1, 1, 0};
    for (int r = 0; r < 8; ++r)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(x == expectedColumn[r] ? 255 : 0, b.at(x, r));
    EXPECT_EQ(2, b.left);
    // A descender moves the left edge back.
    GlyphBitmap d = makeBitmap(1, 4, std::vector<unsigned char>(4, 255), 1);
    d.top = 0;
    d.shear(64);
    EXPECT_EQ(-1, d.left);
}

TEST(GlyphBitmap, SmallSizeBoost) {
    GlyphBitmap b = makeBitmap(3, 1, {100, 240, 0}, 1);
    b.boostSmallSize(11);
    EXPECT_EQ((std::vector<unsigned char>{115, 255, 0}), b.data);  // * 1184 / 1024
    b = makeBitmap(1, 1, {100}, 1);
    b.boostSmallSize(15);  // n = 4: (8 - 4) * 20 + 1024
    EXPECT_EQ(107, b.data[0]);
    b = makeBitmap(1, 1, {100}, 1);
    b.boostSmallSize(19);
    EXPECT_EQ(100, b.data[0]);
}

TEST(LcdFilter, FiveTapKernel) {
    EXPECT_EQ(0, LcdFilter::filterSample(0, 0, 0, 0, 0));
    EXPECT_EQ(255, LcdFilter::filterSample(255, 255, 255, 255, 255));
    // 255 * 86 + 4096 = 26026 >> 8 = 101, masked to 96.
    EXPECT_EQ(96, LcdFilter::filterSample(0, 0, 255, 0, 0));
    GlyphBitmap b = makeBitmap(3, 1, {0, 255, 0}, 3);
    b.left = 4;
    LcdFilter::apply(&b);
    ASSERT_EQ(9, b.pitch);
    EXPECT_EQ(3, b.left);
    // Output sample x sees input x - 3 at its centre.
    EXPECT_EQ(96, b.data[4]);
    EXPECT_EQ(LcdFilter::filterSample(0, 255, 0, 0, 0), b.data[5]);
    EXPECT_EQ(b.data[3], b.data[5]);
}
