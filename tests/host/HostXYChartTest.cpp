#include <string>

#include "chart/axis/Axis.h"
#include "chart/axis/paint/Mark.h"
#include "chart/layer/DataSet.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/bar/BarLayer.h"
#include "tests/host/EngineXYCharts.h"
#include "tests/host/HostTestSupport.h"
#include "text/box/TextBox.h"

using simhost::B;
using simhost::C;
using simhost::D;
using simhost::I;
using simhost::S;

namespace {

const char *const kQuarters[] = {"Q1", "Q2", "Q3", "Q4"};
const double kNorth[] = {12, 18, 25, 21}, kSouth[] = {8, 11, -6, 14}, kGoal[] = {20, 24, 28, 30};

// The bar chart drawn straight on the engine, every default of the host
// declarations written out, pixels scaled.
std::string engineBars(double scale) {
    auto px = [scale](int v) { return (int)(v * scale); };
    XYChart *c = engineXYChart(400, 260, 0xf4f6fa, scale);
    c->addTitle("Sales", "", 12, kTextColor, kTransparent, kTransparent);
    PlotArea *plot = c->setPlotArea(px(50), px(40), px(300), px(180), 0xffffff, -1, 0xcccccc,
                                    0xc0c0c0, kTransparent);
    plot->setGridWidth(px(1), -1, -1, -1);
    c->xAxis()->setLabels(StringArray(kQuarters, 4));
    c->yAxis()->setTitle("Units", "", 8, kTextColor)->setFontAngle(90, false);
    c->yAxis()->setTickDensity(px(30), -1);
    Mark *goal = c->yAxis()->addMark(27, 0xe4572e, "goal", "", 8);
    goal->setLineWidth(px(2));
    c->yAxis2()->setColors(0x888888, kTextColor, -1, -1);
    c->addLegend(px(60), px(26), false, "", 10);

    BarLayer *stack = c->addBarLayer2(kStack, 0);
    stack->addDataSet(DoubleArray(kNorth, 4), 0x4a90d9, "North");
    DataSet *south = stack->addDataSet(DoubleArray(kSouth, 4), 0x76b041, "South");
    south->setDataLabelStyle("", 8, 0, 0);
    stack->setBarGap(0.3, kNoValue);
    stack->setBorderColor(kSameAsMainColor, Chart::barLighting(0.75, 1.5));
    stack->setAggregateLabelStyle("", 8, kTextColor, 0);
    stack->addCustomDataLabel(0, 3, "best", "", 8, 0xe4572e, 0);
    BarLayer *goals = c->addBarLayer(DoubleArray(kGoal, 4), 0xcccccc, "Goal", px(4));
    goals->setUseYAxis2(true);
    goals->setBarWidth(px(10), -1);
    return engineListing(c);
}

}  // namespace

// A bar chart made through the host declarations, defaults left to them, gives
// the engine's listing; at ScaleFactor 2 the pixels double and the axes get
// their labels and ticks scaled.
TEST_F(HostTest, HostBarChartGivesTheEngineListing) {
    for (double scale : {1.0, 2.0}) {
        SCOPED_TRACE(scale);
        shared("setScaleFactor", {D(scale)});
        Value c = make("VSXYChartXPG", {I(400), I(260), C(0xf4f6fa)});
        call(c, "addTitle", {S("Sales")});
        Value plot =
            call(c, "setPlotArea", {I(50), I(40), I(300), I(180), I(0xffffff), I(-1), I(0xcccccc)});
        EXPECT_EQ("VSPlotAreaXPG", host->className(plot));
        call(plot, "setGridWidth", {I(1)});
        Value x = ok(host->getProperty(c, "xAxis")), y = ok(host->getProperty(c, "yAxis"));
        call(x, "setLabels", {host->strings({"Q1", "Q2", "Q3", "Q4"})});
        call(call(y, "setTitle", {S("Units")}), "setFontAngle", {D(90)});
        call(y, "setTickDensity", {I(30)});
        Value goal = call(y, "addMark", {D(27), C(0xe4572e), S("goal")});
        EXPECT_EQ("VSMarkXPG", host->className(goal));
        call(goal, "setLineWidth", {I(2)});
        call(ok(host->getProperty(c, "yAxis2")), "setColors", {I(0x888888)});
        call(c, "addLegend", {I(60), I(26), B(false)});

        Value stack = call(c, "addBarLayer2", {I(kStack)});
        EXPECT_EQ("VSBarLayerXPG", host->className(stack));
        call(stack, "addDataSet", {host->doubles({12, 18, 25, 21}), I(0x4a90d9), S("North")});
        Value south =
            call(stack, "addDataSet", {host->doubles({8, 11, -6, 14}), C(0x76b041), S("South")});
        EXPECT_EQ("VSDataSetXPG", host->className(south));
        call(south, "setDataLabelStyle");
        call(stack, "setBarGap", {D(0.3)});
        call(stack, "setBorderColor",
             {I(kSameAsMainColor), shared("barLighting", {D(0.75), D(1.5)})});
        call(stack, "setAggregateLabelStyle");
        call(stack, "addCustomDataLabel", {I(0), I(3), S("best"), S(""), D(8), C(0xe4572e)});
        Value goals =
            call(c, "addBarLayer", {host->doubles({20, 24, 28, 30}), C(0xcccccc), S("Goal"), I(4)});
        call(goals, "setUseYAxis2");
        call(goals, "setBarWidth", {I(10)});
        EXPECT_EQ(renumbered(engineBars(scale)), renumbered(listing(call(c, "makeChart"))));
    }
}

// With ScaleFactor 2 a chart made as 100 by 50 is 200 by 100 in the engine, and
// its axes label at size 16 with ticks 2 pixels wide.
TEST_F(HostTest, ScaledXYChartsRaiseTheirAxisDefaults) {
    shared("setScaleFactor", {D(2)});
    Value c = make("VSXYChartXPG", {I(100), I(50)});
    EXPECT_EQ(200, call(c, "getWidth").i);
    EXPECT_EQ(100, call(c, "getHeight").i);
    call(c, "setPlotArea", {I(20), I(5), I(70), I(35)});
    call(c, "addBarLayer", {host->doubles({3, 5})});

    XYChart *e = engineXYChart(100, 50, kBackgroundColor, 2);
    e->setPlotArea(40, 10, 140, 70, kTransparent, -1, -1, 0xc0c0c0, kTransparent);
    const double data[] = {3, 5};
    e->addBarLayer(DoubleArray(data, 2), -1, "", 0);
    EXPECT_EQ(renumbered(engineListing(e)), renumbered(listing(call(c, "makeChart"))));
}

// A standing axis is one object for the chart's life, whatever role swapXY
// gives it; once the chart is gone, the object the application still holds
// raises the not-initialized exception.
TEST_F(HostTest, StandingAxesAreOneObjectUntilTheirChartGoes) {
    Value c = make("VSXYChartXPG", {I(300), I(200)});
    Value x = ok(host->getProperty(c, "xAxis")), y = ok(host->getProperty(c, "yAxis"));
    EXPECT_EQ("VSAxisXPG", host->className(x));
    EXPECT_EQ(x.ref.get(), ok(host->getProperty(c, "xAxis")).ref.get());
    EXPECT_NE(x.ref.get(), y.ref.get());
    EXPECT_NE(x.ref.get(), ok(host->getProperty(c, "xAxis2")).ref.get());
    EXPECT_EQ(kBottom, call(x, "getAlignment").i);
    call(c, "swapXY");
    EXPECT_EQ(y.ref.get(), ok(host->getProperty(c, "xAxis")).ref.get());
    EXPECT_EQ(x.ref.get(), ok(host->getProperty(c, "yAxis")).ref.get());
    // The axis holds no lock on its chart; what it hands out does.
    EXPECT_EQ(1, host->refCount(c));
    Value title = call(x, "setTitle", {S("Time")});
    EXPECT_EQ(2, host->refCount(c));
    EXPECT_EQ("VSTextBoxXPG", host->className(title));
    Value added = call(c, "addAxis", {I(kLeft), I(40)});
    EXPECT_EQ(kLeft, call(added, "getAlignment").i);
    EXPECT_TRUE(call(c, "addAxis", {I(kCenter), I(40)}).isNil());

    c = Value();
    // The title and the added axis keep the chart, and so the axes, alive.
    call(x, "setLinearScale", {D(0), D(10), D(5)});
    EXPECT_EQ((std::vector<double>{0, 5, 10}), host->doublesOf(call(x, "getTicks")));
    title = added = Value();
    for (const Value &axis : {x, y}) {
        CallResult r = host->call(axis, "getTicks");
        ASSERT_TRUE(r.raised);
        EXPECT_EQ("VSNotInitialzedExceptionXPG", r.exception.className);
        EXPECT_EQ("Object not initialzed correctly.", r.exception.message);
    }
}

// A layer variable keeps its chart alive and usable, and its data sets and
// label boxes do too; the chart goes with the last of them.
TEST_F(HostTest, LayersKeepTheirChartAlive) {
    Value c = make("VSXYChartXPG", {I(300), I(200)});
    Value layer = call(c, "addBarLayer", {host->doubles({4, 8, 6}), I(0x4a90d9), S("one")});
    Value label = call(layer, "addCustomDataLabel", {I(0), I(1), S("peak")});
    EXPECT_EQ("VSTextBoxXPG", host->className(label));
    EXPECT_EQ(3, host->refCount(c));
    c = Value();
    Value set = call(layer, "addDataSet", {host->doubles({1, 2, 3}), I(0xe4572e)});
    EXPECT_EQ(2, call(layer, "getDataSetCount").i);
    EXPECT_EQ(2.0, call(set, "getValue", {I(1)}).d);
    EXPECT_DOUBLE_EQ(kNoValue, call(set, "getValue", {I(7)}).d);
    EXPECT_EQ(0xe4572e, call(set, "getDataColor").i);
    // The same place asked again gives the same box, still usable.
    Value again = call(layer, "addCustomDataLabel", {I(0), I(1), S("top")});
    call(label, "setBackground", {I(0xffff00)});
    call(layer, "setDataCombineMethod", {I(kStack)});
    layer = Value();
    call(set, "setDataName", {S("two")});
    EXPECT_EQ("two", call(set, "getDataName").s);
    label = again = set = Value();
}

// What a chart hands back is of the class of the engine object behind it, and
// the objects given to the engine stay alive as long as it may draw them.
TEST_F(HostTest, XYPartsComeBackOfTheirClass) {
    Value c = make("VSXYChartXPG", {I(300), I(200)});
    call(c, "addBarLayer3",
         {host->doubles({3, 4}), host->integers({0xff0000, 0x00ff00}), host->strings({"a", "b"})});
    Value second = call(c, "addBarLayer2");
    EXPECT_EQ(2, call(c, "getLayerCount").i);
    for (int i : {0, 1}) {
        EXPECT_EQ("VSBarLayerXPG", host->className(call(c, "getLayer", {I(i)})));
        EXPECT_EQ("VSBarLayerXPG", host->className(call(c, "getLayerByZ", {I(i)})));
    }
    EXPECT_TRUE(call(c, "getLayer", {I(2)}).isNil());
    Value first = call(c, "getLayer", {I(0)});
    EXPECT_EQ(2, call(first, "getDataSetCount").i);
    EXPECT_EQ(0x00ff00, call(call(first, "getDataSet", {I(1)}), "getDataColor").i);
    EXPECT_TRUE(call(first, "getDataSet", {I(2)}).isNil());
    call(second, "moveFront", {first});
    EXPECT_EQ("VSPlotAreaXPG", host->className(call(c, "getPlotArea")));

    Value set = call(second, "addDataSet", {host->doubles({5, 6})});
    Value y2 = ok(host->getProperty(c, "yAxis2"));
    call(set, "setUseYAxis", {y2});
    Value used = call(set, "getUseYAxis");
    EXPECT_EQ(kRight, call(used, "getAlignment").i);
    Value symbol = make("VSDrawAreaXPG");
    call(symbol, "setSize", {I(6), I(6), I(0x123456)});
    call(set, "setDataSymbol", {symbol});
    symbol = Value();
    // The engine borrows the canvas: the chart keeps it.
    auto resources = host->dictionaryOf(ok(host->getProperty(c, "Resources")));
    ASSERT_EQ(1u, resources.size());
    EXPECT_EQ(0u, resources.begin()->first.rfind("dataSymbol@", 0));
    EXPECT_EQ("VSDrawAreaXPG", resources.begin()->second);
    Value mark = call(ok(host->getProperty(c, "xAxis")), "addMark", {D(0.5), I(0xff0000)});
    Value line = call(mark, "getLine");
    EXPECT_EQ("VSLineObjXPG", host->className(line));
    EXPECT_TRUE(host->doublesOf(call(line, "getPoints")).empty());
    call(c, "makeChart");
    EXPECT_EQ(4u, host->doublesOf(call(line, "getPoints")).size());
}
