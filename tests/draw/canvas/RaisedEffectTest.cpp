#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/DrawArea.h"
#include "draw/canvas/RaisedEffect.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

TEST(RaisedEffect, DecodesThicknessSidesAndKinds) {
    EXPECT_EQ(RaisedEffect(3).thickness(100, 40), 3);
    EXPECT_EQ(RaisedEffect(-3).thickness(100, 40), 3);
    EXPECT_EQ(RaisedEffect(0x1000 | 10).thickness(100, 40), 4);  // 10% of the shorter side
    EXPECT_EQ(RaisedEffect(0x1000 | 57).thickness(100, 40), 7);  // above 50: pixels
    EXPECT_EQ(RaisedEffect(Chart::barLighting(0.75, 1.5)).thickness(100, 40), 0);
    EXPECT_EQ(RaisedEffect(INT_MIN).thickness(100, 40), 0);  // no sign to drop

    RaisedEffect raised(4);
    EXPECT_TRUE(raised.isHighlight(RaisedEffect::kTopSide));
    EXPECT_TRUE(raised.isHighlight(RaisedEffect::kLeftSide));
    EXPECT_FALSE(raised.isHighlight(RaisedEffect::kBottomSide));
    RaisedEffect sunken(-4);
    EXPECT_TRUE(sunken.isSunken());
    EXPECT_FALSE(sunken.isHighlight(RaisedEffect::kTopSide));
    EXPECT_TRUE(sunken.isHighlight(RaisedEffect::kRightSide));

    EXPECT_TRUE(RaisedEffect(Chart::flatBorder(2)).isFlat());
    RaisedEffect glass(Chart::glassEffect(2, kLeft, 5));
    EXPECT_EQ(glass.glassLevel(), 2);
    EXPECT_EQ(glass.lightSide(), RaisedEffect::kLeftSide);
    EXPECT_TRUE(glass.hasSoftRim());
    EXPECT_EQ(RaisedEffect(Chart::glassEffect(3, kBottom, 5)).lightSide(),
              RaisedEffect::kBottomSide);
}

static std::string listing(int effect) {
    DrawArea *d = DrawArea::create();
    d->setSize(100, 60, 0xffffff);
    d->rect(10, 10, 89, 49, 0x000000, 0x336699, effect);
    MemBlock out = d->outAGF2();
    std::string text(out.data, out.len);
    d->destroy();
    return text;
}

static int count(const std::string &text, const std::string &what) {
    int n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

TEST(RaisedEffect, RecordsRimsOverTheFill) {
    std::string flat = listing(0);
    EXPECT_EQ(count(flat, "RoundedRect("), 1);
    EXPECT_EQ(count(flat, "Polygon("), 0);

    std::string raised = listing(3);
    EXPECT_EQ(count(raised, "RoundedRect("), 1);
    EXPECT_EQ(count(raised, "Polygon("), 4);  // one mitred rim a side
    EXPECT_EQ(count(raised, "0x60ffffff"), 2);

    std::string soft = listing(0x2000 | 4);
    EXPECT_EQ(count(soft, "Polygon("), 16);  // one ring a pixel

    std::string glass = listing(Chart::glassEffect(3, kTop, 5));
    EXPECT_EQ(count(glass, "LinearLightingColor("), 1);
    EXPECT_EQ(count(glass, "LinearGradientColor("), 1);  // the glare band

    std::string bar = listing(Chart::barLighting(0.75, 1.5));
    EXPECT_EQ(count(bar, "LinearLightingColor("), 1);
    EXPECT_EQ(count(bar, "Polygon("), 0);
}
