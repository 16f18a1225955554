#include <gtest/gtest.h>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"

// Warps work on the raster: corners fall outside a sphere and take the
// background, the middle stays, and the list gets the result as one image.
TEST(DrawAreaWarp, WarpsReplaceThePictureByAnImage) {
    DrawArea *d = DrawArea::create();
    d->setSize(41, 41, 0xffffff);
    d->rect(0, 18, 40, 22, kTransparent, 0x0000ff, 0);
    MemBlock before = d->outAGF2();
    std::string listing(before.data, before.len);

    d->sphereTransform(0xff0000);
    EXPECT_EQ(d->getPixel(0, 0), 0xff0000);
    EXPECT_EQ(d->getPixel(40, 40), 0xff0000);
    EXPECT_EQ(d->getPixel(20, 20), 0x0000ff);
    EXPECT_EQ(d->getPixel(20, 5), 0xffffff);
    MemBlock after = d->outAGF2();
    std::string warped(after.data, after.len);
    EXPECT_EQ(0u, warped.find(listing));
    EXPECT_EQ(listing.size(), warped.find("LoadStream("));
    EXPECT_NE(std::string::npos, warped.find(", 0, 41, 41)\n", listing.size()));

    d->destroy();

    // A wave shifts each row sideways: a vertical band comes out bent.
    d = DrawArea::create();
    d->setSize(41, 41, 0xffffff);
    d->rect(18, 0, 22, 40, kTransparent, 0x0000ff, 0);
    d->waveTransform(40, 4, 0, 0xff0000);
    EXPECT_EQ(d->getPixel(20, 0), 0x0000ff);  // sin 0: no shift
    EXPECT_NE(d->getPixel(24, 30), d->getPixel(24, 10));
    d->waveTransform(0, 4, 0, 0xff0000);  // no period: nothing happens
    d->destroy();
}
