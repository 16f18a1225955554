#include <map>
#include <string>

#include "chart/base/Line.h"
#include "chart/base/MultiChart.h"
#include "chart/legend/LegendBox.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "tests/host/HostTestSupport.h"
#include "text/box/TextBox.h"

using simhost::C;
using simhost::D;
using simhost::I;
using simhost::S;

namespace {

// The chart drawn straight on the engine, every default of the host
// declarations written out, pixels scaled.
std::string engineChart(double scale) {
    auto px = [scale](int v) { return (int)(v * scale); };
    MultiChart *c = MultiChart::create(px(320), px(200), 0xf4f6fa, kTransparent, 0);
    c->setRoundedFrame(0xffffff, px(12), -1, -1, -1);
    c->setDropShadow(0xaaaaaa, px(5), 0x7fffffff, px(5));
    TextBox *title = c->addTitle("Host chart", "", 12, kTextColor, kTransparent, kTransparent);
    title->setBackground(0xdde7f3, -1, 0);
    c->addTitle2(kBottomRight, "note", "italic", 8, 0x555555, kTransparent, kTransparent);
    TextBox *text = c->addText(px(20), px(60), "free <*color=E4572E*>text", "", 8, kTextColor,
                               kTopLeft, 0, false);
    text->setFontAngle(10, false);
    text->setMargin(px(3));
    Line *line = c->addLine(px(20), px(150), px(300), px(150), kLineColor, px(1));
    line->setWidth(px(2));
    line->setColor(0x76b041);
    LegendBox *legend = c->addLegend(px(200), px(60), true, "", 10);
    legend->addKey("One", 0x4a90d9, -1, nullptr);
    legend->addKey("Two", 0xe4572e, px(2), nullptr);
    legend->setKeyBorder(kLineColor, 0);
    MultiChart *child = MultiChart::create(px(80), px(50), 0xffffcc, kTransparent, 0);
    child->addTitle("child", "", 8, kTextColor, kTransparent, kTransparent);
    c->addChart(px(30), px(90), child);
    MemBlock b = c->makeChart()->outAGF2();
    std::string listing(b.data ? b.data : "", b.len);
    c->destroy();
    child->destroy();
    return listing;
}

}  // namespace

// The same chart through the host declarations, defaults left to them, gives
// the engine's listing; at ScaleFactor 2 the pixels double.
TEST_F(HostTest, HostChartGivesTheEngineListing) {
    for (double scale : {1.0, 2.0}) {
        SCOPED_TRACE(scale);
        shared("setScaleFactor", {D(scale)});
        Value c = make("VSMultiChartXPG", {I(320), I(200), C(0xf4f6fa)});
        call(c, "setRoundedFrame", {C(0xffffff), I(12)});
        call(c, "setDropShadow");
        Value title = call(c, "addTitle", {S("Host chart")});
        EXPECT_EQ("VSTextBoxXPG", host->className(title));
        call(title, "setBackground", {C(0xdde7f3)});
        call(c, "addTitle", {I(kBottomRight), S("note"), S("italic"), D(8), C(0x555555)});
        Value text = call(c, "addText", {I(20), I(60), S("free <*color=E4572E*>text")});
        call(text, "setFontAngle", {D(10)});
        call(text, "setMargin", {I(3)});
        Value line = call(c, "addLine", {I(20), I(150), I(300), I(150)});
        EXPECT_EQ("VSLineXPG", host->className(line));
        call(line, "setWidth", {I(2)});
        call(line, "setColor", {C(0x76b041)});
        Value legend = call(c, "addLegend", {I(200), I(60)});
        EXPECT_EQ("VSLegendBoxXPG", host->className(legend));
        call(legend, "addKey", {S("One"), I(0x4a90d9)});
        call(legend, "addKey", {S("Two"), C(0xe4572e), I(2)});
        call(legend, "setKeyBorder", {I(kLineColor)});
        Value child = make("VSMultiChartXPG", {I(80), I(50), I(0xffffcc)});
        call(child, "addTitle", {S("child"), S(""), D(8)});
        call(c, "addChart", {I(30), I(90), child});
        Value canvas = call(c, "makeChart");
        EXPECT_EQ("VSDrawAreaXPG", host->className(canvas));
        EXPECT_EQ(renumbered(engineChart(scale)), renumbered(listing(canvas)));
        // The bytes of an image format come from the same picture.
        std::string png = host->bytesOf(call(c, "makeChart", {I(kPNG)}));
        EXPECT_EQ(std::string("\x89PNG", 4), png.substr(0, 4));
    }
}

// A chart made with the declaration's defaults, and the scale factor applied to
// the size the application gives.
TEST_F(HostTest, ChartConstructorsScaleTheirSize) {
    Value plain = make("VSMultiChartXPG");
    EXPECT_EQ(640, call(plain, "getWidth").i);
    EXPECT_EQ(480, call(plain, "getHeight").i);
    EXPECT_EQ(0xffffff, call(plain, "getColor", {I(0)}).i);

    shared("setScaleFactor", {D(2)});
    Value c = make("VSMultiChartXPG", {I(100), I(50)});
    EXPECT_EQ(200, call(c, "getWidth").i);
    EXPECT_EQ(100, call(c, "getHeight").i);
    call(c, "setDropShadow", {I(0xaaaaaa), I(3)});
    // The shadow's offsets doubled; 0x7FFFFFFF still takes offsetX.
    EXPECT_EQ(200 + 16 + 4, call(c, "getWidthWithShadow").i);
    EXPECT_EQ(100 + 16 + 4, call(c, "getHeightWithShadow").i);
    call(c, "setSize", {I(30), I(20)});
    call(c, "layout");
    EXPECT_EQ("w=60&h=40&vl=0&vt=0&vw=59&vh=39", call(c, "getChartMetrics").s);
}

// A multi-chart gives back the host objects it was given, keeps them alive, and
// paints them after the application let them go.
TEST_F(HostTest, MultiChartGivesBackTheChartsItWasGiven) {
    Value multi = make("VSMultiChartXPG", {I(200), I(100)});
    Value first = make("VSMultiChartXPG", {I(50), I(40), I(0xff0000)});
    Value second = make("VSMultiChartXPG", {I(60), I(40), I(0x0000ff)});
    call(multi, "addChart", {I(10), I(10), first});
    call(multi, "addChart", {I(100), I(10), second});
    EXPECT_EQ(2, call(multi, "getChartCount").i);
    EXPECT_EQ(first.ref.get(), call(multi, "getChart").ref.get());
    EXPECT_EQ(second.ref.get(), call(multi, "getChart", {I(1)}).ref.get());
    EXPECT_TRUE(call(multi, "getChart", {I(2)}).isNil());
    EXPECT_TRUE(call(multi, "getChart", {I(-1)}).isNil());
    call(multi, "setMainChart", {second});
    EXPECT_EQ(second.ref.get(), call(multi, "getChart", {I(-1)}).ref.get());
    call(multi, "setMainChart", {multi});
    EXPECT_EQ(multi.ref.get(), call(multi, "getChart", {I(-1)}).ref.get());
    EXPECT_EQ(100, call(second, "getAbsOffsetX").i);

    first = Value();
    second = Value();
    Value again = call(multi, "getChart", {I(1)});
    EXPECT_EQ(60, call(again, "getWidth").i);
    std::string drawn = listing(call(multi, "makeChart"));
    EXPECT_NE(std::string::npos, drawn.find("100, 10"));
}

// A chart placed in a multi-chart may outlive it: it no longer asks the gone
// multi-chart for its offset.
TEST_F(HostTest, ChildChartsOutliveTheirMultiChart) {
    Value multi = make("VSMultiChartXPG", {I(200), I(100)});
    Value child = make("VSMultiChartXPG", {I(50), I(40)});
    call(multi, "addChart", {I(30), I(20), child});
    EXPECT_EQ(30, call(child, "getAbsOffsetX").i);
    EXPECT_EQ(20, call(child, "getAbsOffsetY").i);
    multi = Value();
    EXPECT_EQ(0, call(child, "getAbsOffsetX").i);
    EXPECT_EQ(50, call(child, "getWidth").i);
}

// Titles, texts, lines, the legend and the chart's canvas hold their chart: the
// chart lives on after the application dropped it, and goes with the last part.
TEST_F(HostTest, PartsKeepTheirChartAlive) {
    Value c = make("VSMultiChartXPG", {I(120), I(80)});
    Value title = call(c, "addTitle", {S("kept")});
    Value legend = call(c, "getLegend");
    Value canvas = call(c, "getDrawArea");
    Value line = call(c, "addLine", {I(0), I(0), I(10), I(10)});
    Value table = call(c, "addTable", {I(5), I(5), I(kTopLeft), I(2), I(2)});
    EXPECT_EQ("VSMLTableXPG", host->className(table));
    EXPECT_EQ(6, host->refCount(c));
    c = Value();
    call(title, "setText", {S("still kept")});
    call(title, "setZOrder", {I(kChartBackZ)});
    EXPECT_EQ(kChartBackZ, call(title, "getZOrder").i);
    call(table, "setZOrder", {I(7)});
    call(legend, "addKey", {S("key"), I(0xff0000)});
    call(line, "setPos", {I(1), I(2), I(3), I(4)});
    EXPECT_EQ(120, call(canvas, "getWidth").i);
    title = legend = line = table = Value();
    EXPECT_EQ(80, call(canvas, "getHeight").i);
}

// The values given to setResource stay in Resources under their ids; the chart
// draws from them.
TEST_F(HostTest, ChartResourcesKeepTheHostValues) {
    Value source = make("VSDrawAreaXPG");
    call(source, "setSize", {I(5), I(4), I(0x00ff00)});
    Value c = make("VSMultiChartXPG", {I(40), I(30)});
    EXPECT_TRUE(ok(host->getProperty(c, "Resources")).isNil());
    EXPECT_NE(0, ok(host->getProperty(c, "Handle")).i);
    call(c, "setResource", {S("png"), call(source, "outPNG2")});
    call(c, "setResource", {S("pane"), source});
    source = Value();
    EXPECT_EQ(
        (std::map<std::string, std::string>{{"pane", "VSDrawAreaXPG"}, {"png", "MemoryBlock"}}),
        host->dictionaryOf(ok(host->getProperty(c, "Resources"))));
    call(c, "addText", {I(2), I(2), S("<*img=@/png*>")});
    EXPECT_NE(std::string::npos, listing(call(c, "makeChart")).find("5, 4"));
}
