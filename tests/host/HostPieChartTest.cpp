#include <string>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/PieChart.h"
#include "families/pie/Sector.h"
#include "foundation/Constants.h"
#include "tests/host/HostTestSupport.h"
#include "text/box/TextBox.h"

using simhost::B;
using simhost::C;
using simhost::D;
using simhost::I;
using simhost::S;

namespace {

const double kShares[] = {25, 35, 15, 25};
const char *const kNames[] = {"Rent", "Food", "Travel", "Other"};

// The pie drawn straight on the engine, every default of the host declarations
// written out, pixels scaled.
std::string enginePie(double scale) {
    auto px = [scale](int v) { return (int)(v * scale); };
    PieChart *c = PieChart::create(px(360), px(240), 0xf4f6fa, kTransparent, 0);
    if (scale > 1) c->setLabelStyle("", 8 * scale, kTextColor);
    c->addTitle("Spending", "", 12, kTextColor, kTransparent, kTransparent);
    c->setPieSize(px(180), px(125), px(70));
    c->setData(DoubleArray(kShares, 4), StringArray(kNames, 4));
    c->set3D(-1, -1, false);
    c->setLabelLayout(kSideLayout, -1, -1, -1);
    c->setLabelStyle("", 9, kTextColor)->setBackground(0xffffff, 0x888888, 0);
    c->setJoinLine(0x888888, -1);
    c->setSectorStyle(kRoundedEdgeShading, kSameAsMainColor, -1);
    c->setExplode(1, -1);
    Sector *travel = c->sector(2);
    travel->setColor(0xe4572e, -1, -1);
    travel->setLabelFormat("{label}: {value}");
    c->setLabelPos(32768 + px(12), kLineColor);
    MemBlock b = c->makeChart()->outAGF2();
    std::string listing(b.data ? b.data : "", b.len);
    c->destroy();
    return listing;
}

}  // namespace

// A pie made through the host declarations, defaults left to them, gives the
// engine's listing; at ScaleFactor 2 the pixels double and the labels grow.
TEST_F(HostTest, HostPieGivesTheEngineListing) {
    for (double scale : {1.0, 2.0}) {
        SCOPED_TRACE(scale);
        shared("setScaleFactor", {D(scale)});
        Value c = make("VSPieChartXPG", {I(360), I(240), C(0xf4f6fa)});
        call(c, "addTitle", {S("Spending")});
        call(c, "setPieSize", {I(180), I(125), I(70)});
        call(c, "setData",
             {host->doubles({25, 35, 15, 25}), host->strings({"Rent", "Food", "Travel", "Other"})});
        call(c, "set3D");
        call(c, "setLabelLayout", {I(kSideLayout)});
        call(call(c, "setLabelStyle", {S(""), D(9)}), "setBackground", {C(0xffffff), I(0x888888)});
        call(c, "setJoinLine", {C(0x888888)});
        call(c, "setSectorStyle", {I(kRoundedEdgeShading), I(kSameAsMainColor)});
        call(c, "setExplode", {I(1)});
        Value travel = call(c, "sector", {I(2)});
        EXPECT_EQ("VSSectorXPG", host->className(travel));
        call(travel, "setColor", {C(0xe4572e)});
        call(travel, "setLabelFormat", {S("{label}: {value}")});
        call(c, "setLabelPos", {I(32768 + 12), I(kLineColor)});
        EXPECT_EQ(renumbered(enginePie(scale)), renumbered(listing(call(c, "makeChart"))));
        EXPECT_NE("", call(travel, "getImageCoor").s);
    }
}

// A sector outlives a shorter data set: the object the application holds stays
// usable, and its settings come back with its index.  It holds its chart.
TEST_F(HostTest, SectorsOutliveShorterData) {
    Value c = make("VSPieChartXPG", {I(200), I(200)});
    call(c, "setData", {host->doubles({1, 2, 3}), host->strings({"a", "b", "c"})});
    Value last = call(c, "sector", {I(2)});
    EXPECT_TRUE(call(c, "sector", {I(3)}).isNil());
    Value box = call(last, "setLabelStyle", {S(""), D(10)});
    call(last, "setColor", {I(0x00ff00)});
    call(c, "setData", {host->doubles({1}), host->strings({"a"})});
    EXPECT_TRUE(call(c, "sector", {I(2)}).isNil());
    call(last, "setExplode", {I(5)});
    call(box, "setFontColor", {I(0xff0000)});
    call(c, "setData", {host->doubles({1, 2, 3}), host->strings({"a", "b", "c"})});
    Value canvas = call(c, "makeChart");
    c = Value();
    EXPECT_NE(std::string::npos, listing(canvas).find("0x00ff00"));
    EXPECT_NE("", call(last, "getImageCoor").s);
}
