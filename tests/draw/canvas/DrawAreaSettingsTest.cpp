#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "draw/canvas/DrawAreaImpl.h"
#include "draw/canvas/GlobalResources.h"
#include "draw/canvas/TextAntiAlias.h"
#include "draw/raster/DrawBMP.h"
#include "foundation/Constants.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"

TEST(DrawAreaSettings, MediaTypes) {
    const char *expected[] = {"image/png", "image/gif",     "image/jpeg",    "image/unknown",
                              "image/bmp", "image/svg+xml", "image/svg+xml", "application/pdf"};
    for (int t = 0; t < 8; ++t) EXPECT_STREQ(expected[t], DrawArea::getMediaType(t));
    EXPECT_STREQ("image/unknown", DrawArea::getMediaType(-1));
    EXPECT_STREQ("image/unknown", DrawArea::getMediaType(8));
}

TEST(DrawAreaSettings, ResourceIds) {
    EXPECT_STREQ("pic.png", DrawArea::getResourceId("@/pic.png"));
    EXPECT_STREQ("", DrawArea::getResourceId("@/"));
    EXPECT_EQ(nullptr, DrawArea::getResourceId("@pic"));
    EXPECT_EQ(nullptr, DrawArea::getResourceId("/@/pic"));
    EXPECT_EQ(nullptr, DrawArea::getResourceId("@"));
    EXPECT_EQ(nullptr, DrawArea::getResourceId((const char *)nullptr));
    EXPECT_EQ(0, wcscmp(L"x", DrawArea::getResourceId(L"@/x")));
    EXPECT_EQ(nullptr, DrawArea::getResourceId(L"@x"));
    EXPECT_EQ(nullptr, DrawArea::getResourceId((const wchar_t *)nullptr));
}

TEST(DrawAreaSettings, Alignment) {
    // Alignment numbers 0 to 13 for a box of 11 by 7.
    const int x[14] = {0, 0, 5, 10, 0, 5, 10, 0, 5, 10, 0, 0, 0, 0};
    const int y[14] = {0, 6, 6, 6, 3, 3, 3, 0, 0, 0, 0, 0, 0, 0};
    for (int a = 0; a < 14; ++a) {
        EXPECT_EQ(x[a], DrawArea::alignX(11, a)) << a;
        EXPECT_EQ(y[a], DrawArea::alignY(7, a)) << a;
    }
    EXPECT_EQ(0, DrawArea::alignX(11, -3));
    EXPECT_EQ(0, DrawArea::alignY(7, -3));
}

TEST(DrawAreaSettings, FontTable) {
    CanvasHolder c;
    EXPECT_STREQ("arial.ttf", c->resolveFont(nullptr));
    EXPECT_STREQ("arial.ttf", c->resolveFont(""));
    EXPECT_STREQ("arialbd.ttf", c->resolveFont("bold"));
    EXPECT_STREQ("ariali.ttf", c->resolveFont("italic"));
    EXPECT_STREQ("arialbi.ttf", c->resolveFont("boldItalic"));
    EXPECT_STREQ("arial.ttf", c->resolveFont("normal"));
    EXPECT_STREQ("arialbi.ttf", c->resolveFont("font3"));
    EXPECT_STREQ("arial.ttf", c->resolveFont("font0"));
    EXPECT_STREQ("font", c->resolveFont("font"));
    EXPECT_STREQ("font1x", c->resolveFont("font1x"));
    // Beyond the table, or negative: the first entry.
    EXPECT_STREQ("arial.ttf", c->resolveFont("font9"));
    EXPECT_STREQ("arial.ttf", c->resolveFont("font-1"));
    EXPECT_STREQ("arial.ttf", c->resolveFont("font99999999999999999999"));
    EXPECT_STREQ("font-", c->resolveFont("font-"));
    EXPECT_STREQ("font+1", c->resolveFont("font+1"));
    EXPECT_STREQ("Bold", c->resolveFont("Bold"));
    const char *file = "bold.ttf";
    EXPECT_EQ(file, c->resolveFont(file));

    c->setDefaultFonts("times.ttf", nullptr, "timesi.ttf", nullptr);
    EXPECT_STREQ("times.ttf", c->resolveFont("normal"));
    EXPECT_STREQ("arialbd.ttf", c->resolveFont("bold"));
    c->setFontTable(6, "DejaVuSans.ttf");
    EXPECT_STREQ("DejaVuSans.ttf", c->resolveFont("font6"));
    EXPECT_STREQ("", c->getFontTableEntry(5));
    EXPECT_EQ(nullptr, c->getFontTableEntry(7));
    EXPECT_EQ(nullptr, c->getFontTableEntry(-1));
    c->setFontTable(-1, "x");
    c->setFontTable(1 << 30, "x");
    EXPECT_EQ(nullptr, c->getFontTableEntry(7));
}

namespace {

struct Tagged : DrawAreaObject {
    explicit Tagged(int *alive) : alive(alive) { ++*alive; }
    ~Tagged() override { --*alive; }
    int *alive;
};

}  // namespace

TEST(DrawAreaSettings, ObjectsAndFontAttrs) {
    int alive = 0;
    {
        CanvasHolder c;
        Tagged *a = new Tagged(&alive), *b = new Tagged(&alive), *d = new Tagged(&alive);
        EXPECT_EQ(0, c->addObject(a));
        EXPECT_EQ(1, c->addObject(b));
        EXPECT_EQ(b, c->getObject(1));
        EXPECT_EQ(nullptr, c->getObject(2));
        EXPECT_EQ(nullptr, c->getObject(-1));
        c->removeObject(0);
        EXPECT_EQ(2, alive);
        EXPECT_EQ(nullptr, c->getObject(0));
        c->addFontAttr("shadow", d);
        c->addFontAttr("shadow", new Tagged(&alive));  // the first stays in effect
        EXPECT_EQ(d, c->getFontAttr("shadow"));
        EXPECT_EQ(nullptr, c->getFontAttr("Shadow"));
        EXPECT_EQ(nullptr, c->getFontAttr(nullptr));
    }
    EXPECT_EQ(0, alive);
}

TEST(DrawAreaSettings, TextAntiAliasSetting) {
    using namespace TextAntiAlias;
    EXPECT_EQ(5, clearTypeColor(0));
    EXPECT_EQ(4, clearTypeMono(-1));
    EXPECT_EQ((150 << 6) | 5, clearTypeColor(1.5));
    EXPECT_EQ(65477, clearTypeColor(20));
    EXPECT_EQ(65476, clearTypeMono(10.24));

    EXPECT_EQ(5, parseSetting(nullptr));
    EXPECT_EQ(5, parseSetting(""));
    EXPECT_EQ(5, parseSetting("nonsense"));
    EXPECT_EQ(1, parseSetting("antialias"));
    EXPECT_EQ(0, parseSetting("NoAntiAlias"));
    EXPECT_EQ(2, parseSetting("compatantialias"));
    EXPECT_EQ(3, parseSetting("cleartype"));
    EXPECT_EQ((150 << 6) | 4, parseSetting("ClearTypeMono, 1.5"));
    EXPECT_EQ((50 << 6) | 5, parseSetting(".5,cleartypecolor"));
    EXPECT_EQ((1 << 16) | 1, parseSetting(" Native Hint ,\tanti alias"));
    EXPECT_EQ((4 << 16) | (1 << 20) | 0, parseSetting("nohint,autohint,noantialias"));
    EXPECT_EQ((3 << 16) | 5, parseSetting("precisehint,,"));
    EXPECT_EQ(1, parseSetting("cleartype,antialias"));  // the last mode wins
}

TEST(DrawAreaSettings, TextAntiAliasModeWord) {
    using namespace TextAntiAlias;
    EXPECT_EQ(2, modeWord(kCompatAntiAlias, 3));
    EXPECT_EQ(0, modeWord(kNoAntiAlias, 3));
    EXPECT_EQ(1, modeWord(kAntiAlias, 3));
    EXPECT_EQ(4, modeWord(kClearType, 0));
    EXPECT_EQ(4, modeWord(kAutoAntiAlias, kClearType));
    EXPECT_EQ((1 << 16) | 4, modeWord(kAutoAntiAlias, (1 << 16) | (1 << 20) | kClearType));
    EXPECT_EQ(5, modeWord(kAutoAntiAlias, clearTypeColor(1.5)));
    EXPECT_EQ((4 << 16) | 1, modeWord(kAutoAntiAlias, (4 << 16) | 1));
    EXPECT_EQ((2 << 16) | 0, modeWord((2 << 16) | 64, 0));

    CanvasHolder c;
    auto *impl = static_cast<DrawAreaImpl *>(c.get());
    c->setAntiAliasText(kCompatAntiAlias);
    EXPECT_EQ(2, impl->getTextAAMode());
    c->setAntiAlias(false, kAntiAlias);
    EXPECT_EQ(1, impl->getTextAAMode());
    // The settings reach the raster.
    EXPECT_FALSE(c->getRaster()->getShapeAntiAlias());
    EXPECT_EQ(kAntiAlias, c->getRaster()->getTextAntiAlias());
}

TEST(DrawAreaSettings, Limits) {
    EXPECT_EQ(125000000, GlobalResources::parseLimit(nullptr, 125000000));
    EXPECT_EQ(1000, GlobalResources::parseLimit("999.5", 7));
    EXPECT_EQ(0, GlobalResources::parseLimit("0", 7));
    EXPECT_EQ(-3, GlobalResources::parseLimit(" -3.2", 7));
    EXPECT_EQ(2147483647, GlobalResources::parseLimit("1e20", 7));
    EXPECT_EQ(0, GlobalResources::parseLimit("abc", 7));
    // Nothing in this program sets the limits.
    EXPECT_EQ(125000000, DrawArea::getPixelLimit());
    EXPECT_EQ(200000000, DrawArea::getFileLimit());
    // Read once, on first use: nothing in this program has read it yet.
    DrawArea::setGlobalResource("@GlyphCacheLimit", "1.5e6", 5);
    EXPECT_EQ(1500000, DrawArea::getGlyphCacheLimit());
    DrawArea::setGlobalResource("@GlyphCacheLimit", "8", 1);
    EXPECT_EQ(1500000, DrawArea::getGlyphCacheLimit());

    std::string value;
    EXPECT_FALSE(GlobalResources::getSetting("@TestOnly", &value));
    DrawArea::setGlobalResource("@TestOnly", "12", 2);
    EXPECT_TRUE(GlobalResources::getSetting("@TestOnly", &value));
    EXPECT_EQ("12", value);
    DrawArea::setGlobalResource("@TestOnly", nullptr, 0);
    EXPECT_FALSE(GlobalResources::getSetting("@TestOnly", &value));
}
