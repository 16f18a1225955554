#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "draw/canvas/DrawArea.h"
#include "draw/raster/DrawBMP.h"
#include "text/CanvasText.h"
#include "text/layout/TTFText.h"

namespace {

const int kWhite = 0xFFFFFF;

struct InkBox {
    int left = 1 << 30, top = 1 << 30, right = -1, bottom = -1, dark = 0;
};

InkBox findInk(DrawArea *d) {
    InkBox box;
    for (int y = 0; y < d->getHeight(); ++y)
        for (int x = 0; x < d->getWidth(); ++x) {
            int c = d->getPixel(x, y);
            if ((c & 0xFFFFFF) == kWhite) continue;
            box.left = std::min(box.left, x), box.right = std::max(box.right, x);
            box.top = std::min(box.top, y), box.bottom = std::max(box.bottom, y);
            if ((c & 0xFF) < 0x40) ++box.dark;
        }
    return box;
}

class TextDrawing : public ::testing::Test {
protected:
    void SetUp() override {
        CanvasText::install();
        canvas = DrawArea::create();
        canvas->setSize(160, 160, kWhite);
    }
    void TearDown() override { canvas->destroy(); }
    DrawArea *canvas;
};

}  // namespace

TEST_F(TextDrawing, InkStaysInsideTheAlignedBox) {
    struct Case {
        double angle;
        int alignment;
    } cases[] = {{0, 7}, {0, 5}, {0, 3}, {90, 7}, {270, 5}, {30, 5}, {180, 1}};
    for (const Case &c : cases) {
        canvas->setSize(160, 160, kWhite);
        TTFText *t =
            TTFText::create(canvas, "Hello", "arial.ttf", 0, 16, 0, c.angle, false, 1, 0, 0, 0);
        int w = t->getWidth(), h = t->getHeight();
        t->draw(80, 80, 0x000000, c.alignment);
        t->destroy();
        int left = 80 - DrawArea::alignX(w, c.alignment),
            top = 80 - DrawArea::alignY(h, c.alignment);
        InkBox ink = findInk(canvas);
        ASSERT_GT(ink.dark, 10) << c.angle;
        EXPECT_GE(ink.left, left - 1) << c.angle;
        EXPECT_GE(ink.top, top - 1) << c.angle;
        EXPECT_LE(ink.right, left + w) << c.angle;
        EXPECT_LE(ink.bottom, top + h) << c.angle;
        // The ink fills most of the box along the text.
        int inkLength = std::max(ink.right - ink.left, ink.bottom - ink.top);
        EXPECT_GT(inkLength, std::max(w, h) * 2 / 3) << c.angle;
    }
}

TEST_F(TextDrawing, ColoursBackgroundsAndNothingForBlanks) {
    canvas->setAntiAliasText(0);
    canvas->text4("<*color=FF0000*>III", "arial.ttf", 0, 20, 0, 0, false, 10, 10, 0x000000, 7);
    InkBox ink = findInk(canvas);
    ASSERT_GE(ink.right, 0);
    bool red = false;
    for (int y = ink.top; y <= ink.bottom; ++y)
        for (int x = ink.left; x <= ink.right; ++x)
            if (canvas->getPixel(x, y) == 0xFF0000) red = true;
    EXPECT_TRUE(red);

    canvas->setSize(160, 160, kWhite);
    canvas->setAntiAliasText(1);
    canvas->text3("   ", "arial.ttf", 20, 10, 10, 0);
    EXPECT_EQ(0, findInk(canvas).dark);

    canvas->setSize(160, 160, kWhite);
    TTFText *t = TTFText::create(canvas, "<*bgcolor=00FF00*>  ", "arial.ttf", 0, 20, 0, 0, false, 1,
                                 0, 0, 0);
    int h = t->getHeight();
    t->draw(10, 10, 0, 7);
    t->destroy();
    EXPECT_EQ(0x00FF00, canvas->getPixel(12, 10 + h / 2));

    // Mark-up rendered onto a canvas of its own size.
    DrawArea *label = DrawArea::create();
    label->setAntiAliasText(1);
    label->renderVSML("<*size=12*>Label");
    TTFText *probe =
        TTFText::create(label, "<*size=12*>Label", "Arial", 0, 8, 0, 0, false, 1, 0, 0, 0);
    EXPECT_EQ(probe->getWidth(), label->getWidth());
    EXPECT_EQ(probe->getHeight(), label->getHeight());
    probe->destroy();
    label->destroy();
}

TEST_F(TextDrawing, TestFontReportsThroughTheCanvasEntry) {
    char report[2048];
    EXPECT_EQ(1, DrawArea::testFont("nosuchfont.ttf", 0, 1e9, 0, report));
    EXPECT_NE(std::string::npos, std::string(report).find("nosuchfont.ttf - "));
}
