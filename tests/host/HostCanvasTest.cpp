#include <string>

#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "foundation/Constants.h"
#include "tests/host/HostTestSupport.h"
#include "text/CanvasText.h"
#include "text/layout/TTFText.h"

using simhost::B;
using simhost::C;
using simhost::D;
using simhost::I;
using simhost::S;

namespace {

std::string listingOf(DrawArea *d) {
    MemBlock b = d->outAGF2();
    return std::string(b.data ? b.data : "", b.len);
}

// The scene drawn straight on the engine, every default written out.
std::string engineScene(double scale) {
    CanvasText::install();
    DrawArea *d = DrawArea::create();
    auto px = [scale](double v) { return v * scale; };
    auto pxi = [scale](int v) { return (int)(v * scale); };
    d->setSize(pxi(200), pxi(120), 0xffffff);
    d->setBgColor(0xf0f0f0);
    d->line(px(10), px(10), px(190), px(10), 0x000000, pxi(1));
    d->rect(px(20), px(20), px(80), px(60), 0x336699, 0x99ccff, 0);
    d->circle(px(140), px(50), px(30), px(20), 0x222222, 0xff8800);
    const double x[] = {px(10), px(50), px(30)}, y[] = {px(110), px(110), px(80)};
    d->polygon(DoubleArray(x, 3), DoubleArray(y, 3), 0x0000ff, 0x8080ff);
    const int xi[] = {pxi(60), pxi(90), pxi(75)}, yi[] = {pxi(110), pxi(110), pxi(85)};
    d->polygon2(IntArray(xi, 3), IntArray(yi, 3), 0x00aa00, 0x80ff80);
    d->sector(px(150), px(100), px(15), px(15), 0, 120, 0x000000, 0xffff00);
    int gradient =
        d->linearGradientColor(pxi(0), pxi(0), pxi(0), pxi(100), 0xff0000, 0x0000ff, false);
    d->rect(px(100), px(70), px(120), px(110), kLineColor, gradient, 0);
    int dash = d->dashLineColor(0x000000, 0x0505);
    d->line(px(10), px(115), px(190), px(115), dash, pxi(2));
    d->text4("Vistrel", "arial.ttf", 0, 10, 0, 0, false, pxi(100), pxi(5), 0x000000, 7);
    TTFText *t = d->text("Host", "arialbd.ttf", 12);
    t->draw(pxi(160), pxi(60), 0x202020, 7);
    t->destroy();
    std::string out = listingOf(d);
    d->destroy();
    return out;
}

}  // namespace

// The same drawing through the host declarations, with every default left to
// them, gives the engine's listing.
TEST_F(HostTest, HostDrawingGivesTheEngineListing) {
    for (double scale : {1.0, 2.0}) {
        SCOPED_TRACE(scale);
        shared("setScaleFactor", {D(scale)});
        Value d = make("VSDrawAreaXPG");
        call(d, "setSize", {I(200), I(120)});
        call(d, "setBgColor", {C(0xf0f0f0)});
        call(d, "line", {D(10), D(10), D(190), D(10), I(0x000000)});
        call(d, "rect", {D(20), D(20), D(80), D(60), C(0x336699), C(0x99ccff)});
        call(d, "circle", {D(140), D(50), D(30), D(20), I(0x222222), I(0xff8800)});
        call(
            d, "polygon",
            {host->doubles({10, 50, 30}), host->doubles({110, 110, 80}), I(0x0000ff), I(0x8080ff)});
        call(d, "polygon",
             {host->integers({60, 90, 75}), host->integers({110, 110, 85}), I(0x00aa00),
              I(0x80ff80)});
        call(d, "sector", {D(150), D(100), D(15), D(15), D(0), D(120), I(0), I(0xffff00)});
        Value gradient =
            call(d, "linearGradientColor", {I(0), I(0), I(0), I(100), I(0xff0000), I(0x0000ff)});
        call(d, "rect", {D(100), D(70), D(120), D(110), I(kLineColor), gradient});
        Value dash = call(d, "dashLineColor", {I(0)});
        call(d, "line", {D(10), D(115), D(190), D(115), dash, I(2)});
        call(d, "text",
             {S("Vistrel"), S("arial.ttf"), I(0), D(10), D(0), D(0), B(false), I(100), I(5),
              I(0x000000)});
        Value t = call(d, "text", {S("Host"), S("arialbd.ttf"), D(12)});
        EXPECT_EQ("VSTTFTextXPG", host->className(t));
        call(t, "draw", {I(160), I(60), C(0x202020)});
        EXPECT_EQ(renumbered(engineScene(scale)), renumbered(listing(d)));
        EXPECT_EQ((int64_t)(200 * scale), call(d, "getWidth").i);
        EXPECT_EQ((int64_t)(120 * scale), call(d, "getHeight").i);
    }
}

TEST_F(HostTest, ScaleFactorIsClampedAndScalesPixels) {
    shared("setScaleFactor", {D(0.5)});
    EXPECT_EQ(1.0, shared("getScaleFactor").d);
    shared("setScaleFactor", {D(500)});
    EXPECT_EQ(100.0, shared("getScaleFactor").d);
    ok(host->setSharedProperty("VSBaseChartXPG", "ScaleFactor", D(2.5)));
    EXPECT_EQ(2.5, ok(host->getSharedProperty("VSBaseChartXPG", "ScaleFactor")).d);
    EXPECT_EQ(2.5, shared("getScaleFactor").d);

    // Pixel integers are truncated after scaling; -1 for "automatic" stays.
    Value d = make("VSDrawAreaXPG");
    call(d, "setSize", {I(101), I(3)});
    EXPECT_EQ(252, call(d, "getWidth").i);
    EXPECT_EQ(7, call(d, "getHeight").i);
    Value clip = call(d, "getClipRect");
    EXPECT_EQ((std::vector<int64_t>{0, 0, 251, 6}), host->integersOf(clip));
    Value small = make("VSDrawAreaXPG");
    call(small, "setSize", {I(4), I(4)});
    call(d, "clone", {small, I(0), I(0), I(7)});
    EXPECT_NE(std::string::npos, listing(small).find("252, 7"));
}

TEST_F(HostTest, ColorOverloadsReachTheIntegerForm) {
    Value a = make("VSDrawAreaXPG"), b = make("VSDrawAreaXPG");
    for (const Value &d : {a, b}) call(d, "setSize", {I(10), I(10)});
    call(a, "setBgColor", {C(0x123456)});
    call(b, "setBgColor", {I(0x123456)});
    call(a, "fill", {I(1), I(1), C(0xff00ff), C(0x00ff00)});
    call(b, "fill", {I(1), I(1), I(0xff00ff), I(0x00ff00)});
    EXPECT_EQ(listing(b), listing(a));
    EXPECT_EQ(call(b, "getPixel", {I(1), I(1)}).i, call(a, "getPixel", {I(1), I(1)}).i);
    EXPECT_EQ(call(b, "dashLineColor", {I(0x80123456)}).i,
              call(a, "dashLineColor", {C(0x80123456)}).i);
}

TEST_F(HostTest, OutputsComeBackAsMemoryBlocks) {
    Value d = make("VSDrawAreaXPG");
    call(d, "setSize", {I(8), I(6), I(0x00ff00)});
    std::string png = host->bytesOf(call(d, "outPNG2"));
    ASSERT_GT(png.size(), 8u);
    EXPECT_EQ(std::string("\x89PNG", 4), png.substr(0, 4));
    EXPECT_EQ(host->bytesOf(call(d, "outJPG2", {I(80)})), host->bytesOf(call(d, "outJPG2")));
    EXPECT_EQ("BM", host->bytesOf(call(d, "outBMP2")).substr(0, 2));

    // The bytes load back, by value and by resource name.
    Value loaded = make("VSDrawAreaXPG");
    EXPECT_TRUE(call(loaded, "load", {host->memoryBlock(png)}).i);
    EXPECT_EQ(8, call(loaded, "getWidth").i);
    EXPECT_FALSE(call(loaded, "load", {host->memoryBlock(png), I(kGIF)}).i);
    EXPECT_EQ(kPNG, shared("getImageType", {host->memoryBlock(png)}).i);
}

// setResource keeps the host value in the Resources dictionary under its id.
TEST_F(HostTest, ResourcesKeepTheHostValues) {
    Value source = make("VSDrawAreaXPG");
    call(source, "setSize", {I(5), I(4)});
    Value png = call(source, "outPNG2");
    Value d = make("VSDrawAreaXPG");
    EXPECT_TRUE(ok(host->getProperty(d, "Resources")).isNil());
    call(d, "setResource", {S("logo"), png});
    call(d, "setResource", {S("pane"), source});
    Value resources = ok(host->getProperty(d, "Resources"));
    EXPECT_EQ(
        (std::map<std::string, std::string>{{"logo", "MemoryBlock"}, {"pane", "VSDrawAreaXPG"}}),
        host->dictionaryOf(resources));
    EXPECT_TRUE(call(d, "load", {S("@/logo")}).i);
    EXPECT_EQ(5, call(d, "getWidth").i);
    EXPECT_NE(0, ok(host->getProperty(d, "Handle")).i);

    // nil takes the entry away in both places.
    ok(host->callDeclared(d, "setResource(id as string, data as MemoryBlock)",
                          {S("logo"), Value()}));
    EXPECT_FALSE(call(d, "load", {S("@/logo")}).i);
    EXPECT_EQ("nil", host->dictionaryOf(resources)["logo"]);
}

// A text holds its canvas: dropping the canvas leaves the text working, and the
// canvas goes with the text.
TEST_F(HostTest, TextKeepsItsCanvasAlive) {
    Value d = make("VSDrawAreaXPG");
    call(d, "setSize", {I(100), I(40)});
    Value t = call(d, "text", {S("Kept"), S("arial.ttf"), D(12)});
    EXPECT_EQ(2, host->refCount(d));
    int64_t width = call(t, "getWidth").i;
    EXPECT_GT(width, 10);
    EXPECT_GT(call(t, "getLineHeight").i, 0);
    d = Value();
    EXPECT_EQ(width, call(t, "getWidth").i);
    call(t, "draw", {I(0), I(0), I(0)});
    EXPECT_EQ(2u, host->liveObjects().size());
}
