#include <string>
#include <vector>

#include "chart/layer/DataSet.h"
#include "chart/xy/PlotArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/area/AreaLayer.h"
#include "layers/line/LineLayer.h"
#include "layers/line/ScatterLayer.h"
#include "tests/host/EngineXYCharts.h"
#include "tests/host/HostTestSupport.h"

using simhost::C;
using simhost::D;
using simhost::I;
using simhost::S;

namespace {

const double kX[] = {0, 1, 2, 3, 4, 5, 6};
const double kSales[] = {12, 18, kNoValue, 21, 26, 24, 30};
const double kCosts[] = {8, 11, 13, 12, 15, 19, 17};
const double kLower[] = {3, 4, 6, 5, 4, 6, 7};
const double kUpper[] = {2, 3, 2, 4, 5, 3, 2};
const double kSizes[] = {4, 9, 6, 12, 7, 10, 5};
// Symbol shapes as the host's constants name them.
const int kSquareSymbol = 1, kDiamondSymbol = 2, kCircleSymbol = 7;

std::vector<double> hostValues(const double *v) {
    return std::vector<double>(v, v + 7);
}

// The line chart drawn straight on the engine, every default of the host
// declarations written out, pixels scaled.
std::string engineLines(double scale) {
    auto px = [scale](int v) { return (int)(v * scale); };
    XYChart *c = engineXYChart(420, 260, 0xffffff, scale);
    c->setPlotArea(px(50), px(20), px(340), px(200), kTransparent, -1, -1, 0xc0c0c0, kTransparent);
    c->addLegend(px(60), px(24), false, "", 10);

    LineLayer *lines = c->addLineLayer2(kOverlay, 0);
    lines->setXData(DoubleArray(kX, 7));
    lines->addDataSet(DoubleArray(kSales, 7), 0x4a90d9, "Sales")
        ->setDataSymbol(kCircleSymbol, px(7), -1, -1, px(1));
    lines->addDataSet(DoubleArray(kCosts, 7), 0xe4572e, "Costs");
    lines->setLineWidth(px(2));
    lines->setGapColor(kSameAsMainColor, -1);

    AreaLayer *bands = c->addAreaLayer2(kStack, 0);
    bands->addDataSet(DoubleArray(kLower, 7), 0xcde4f7, "Lower");
    bands->addDataSet(DoubleArray(kUpper, 7), 0xe8f1d8, "Upper");
    bands->setGapColor(kTransparent);

    const double *sizes = kSizes;
    std::vector<double> scaled(kSizes, kSizes + 7);
    for (double &v : scaled) v *= scale;
    if (scale > 1) sizes = scaled.data();
    ScatterLayer *dots = c->addScatterLayer(DoubleArray(kX, 7), DoubleArray(kCosts, 7), "",
                                            kSquareSymbol, px(5), -1, -1);
    dots->setSymbolScale2(DoubleArray(sizes, 7), kPixelScale);
    c->addLineLayer(DoubleArray(kUpper, 7), -1, "", 0)->setUseYAxis2(true);
    return engineListing(c);
}

}  // namespace

// A line chart made through the host declarations, defaults left to them, gives
// the engine's listing; at ScaleFactor 2 the pixels double, the symbol sizes in
// pixels too.
TEST_F(HostTest, HostLineChartGivesTheEngineListing) {
    for (double scale : {1.0, 2.0}) {
        SCOPED_TRACE(scale);
        shared("setScaleFactor", {D(scale)});
        Value c = make("VSXYChartXPG", {I(420), I(260), C(0xffffff)});
        call(c, "setPlotArea", {I(50), I(20), I(340), I(200)});
        call(c, "addLegend", {I(60), I(24), simhost::B(false)});

        Value lines = call(c, "addLineLayer2");
        EXPECT_EQ("VSLineLayerXPG", host->className(lines));
        call(lines, "setXData", {host->doubles(hostValues(kX))});
        Value sales =
            call(lines, "addDataSet", {host->doubles(hostValues(kSales)), C(0x4a90d9), S("Sales")});
        call(sales, "setDataSymbol", {I(kCircleSymbol), I(7), I(-1), I(-1), I(1)});
        call(lines, "addDataSet", {host->doubles(hostValues(kCosts)), I(0xe4572e), S("Costs")});
        call(lines, "setLineWidth", {I(2)});
        call(lines, "setGapColor", {I(kSameAsMainColor)});

        Value bands = call(c, "addAreaLayer2");
        EXPECT_EQ("VSAreaLayerXPG", host->className(bands));
        call(bands, "addDataSet", {host->doubles(hostValues(kLower)), C(0xcde4f7), S("Lower")});
        call(bands, "addDataSet", {host->doubles(hostValues(kUpper)), C(0xe8f1d8), S("Upper")});
        call(bands, "setGapColor", {C(kTransparent)});

        Value dots = call(c, "addScatterLayer",
                          {host->doubles(hostValues(kX)), host->doubles(hostValues(kCosts))});
        EXPECT_EQ("VSScatterLayerXPG", host->className(dots));
        call(dots, "setSymbolScale", {host->doubles(hostValues(kSizes))});
        Value upper = make("VSArrayXPG", {host->doubles(hostValues(kUpper))});
        call(call(c, "addLineLayer", {upper}), "setUseYAxis2");
        EXPECT_EQ(renumbered(engineLines(scale)), renumbered(listing(call(c, "makeChart"))));
    }
}

// Every layer a chart hands back is of the class of its kind: a scatter layer
// is a VSScatterLayerXPG that works as a line layer, an area layer a
// VSAreaLayerXPG, whether it comes from its maker or from getLayer.
TEST_F(HostTest, LayersComeBackOfTheirKind) {
    Value c = make("VSXYChartXPG", {I(300), I(200)});
    Value xs = make("VSArrayXPG", {host->doubles({1, 2, 3})});
    Value ys = make("VSArrayXPG", {host->doubles({4, 6, 5})});
    Value dots =
        call(c, "addScatterLayer", {xs, ys, S("dots"), I(kDiamondSymbol), I(9), C(0x336699)});
    call(c, "addAreaLayer", {host->doubles({1, 3, 2}), C(0x99ccff), S("area"), I(4)});
    call(c, "addLineLayer", {host->doubles({2, 2, 4}), I(0x993333), S("line")});
    call(c, "addBarLayer", {host->doubles({1, 1, 1})});
    const char *const kClasses[] = {"VSScatterLayerXPG", "VSAreaLayerXPG", "VSLineLayerXPG",
                                    "VSBarLayerXPG"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(kClasses[i], host->className(call(c, "getLayer", {I(i)})));

    Value again = call(c, "getLayer", {I(0)});
    EXPECT_EQ(0x336699, call(call(again, "getDataSet", {I(0)}), "getDataColor").i);
    EXPECT_EQ("dots", call(call(dots, "getDataSet", {I(0)}), "getDataName").s);
    // The line layer's methods reach the same engine layer.
    call(again, "setGapColor", {C(0xff0000), I(2)});
    call(again, "setFastLineMode", {simhost::B(false)});
    call(again, "setImageMapWidth", {I(8)});
    call(again, "setSymbolScale",
         {host->doubles({1, 2, 3}), I(kXAxisScale), host->doubles({1, 1, 1}), I(kYAxisScale)});
    Value line = call(dots, "getLine");
    EXPECT_EQ("VSLineObjXPG", host->className(line));
    EXPECT_TRUE(host->doublesOf(call(line, "getPoints")).empty());
    EXPECT_TRUE(call(dots, "getLine", {I(1)}).isNil());
    Value area = call(c, "getLayer", {I(1)});
    call(area, "setMinLabelSize", {I(10)});
    call(area, "setGapColor", {I(kSameAsMainColor)});

    call(c, "makeChart");
    // Three points, each an x and a y, whichever object asked for the line.
    std::vector<double> points = host->doublesOf(call(line, "getPoints"));
    EXPECT_EQ(6u, points.size());
    EXPECT_EQ(points, host->doublesOf(call(call(again, "getLine", {I(0)}), "getPoints")));
}

// A line layer variable keeps its chart alive and usable, and so does its
// line; the chart goes with the last of them.
TEST_F(HostTest, LineLayersKeepTheirChartAlive) {
    Value c = make("VSXYChartXPG", {I(300), I(200)});
    Value layer = call(c, "addLineLayer", {host->doubles({4, 8, 6}), I(0x4a90d9), S("one")});
    EXPECT_EQ(2, host->refCount(c));
    Value line = call(layer, "getLine");
    EXPECT_EQ(3, host->refCount(c));
    c = Value();
    Value set = call(layer, "addDataSet", {host->doubles({1, kNoValue, 3})});
    EXPECT_EQ(2, call(layer, "getDataSetCount").i);
    EXPECT_DOUBLE_EQ(kNoValue, call(set, "getValue", {I(1)}).d);
    call(layer, "setGapColor", {I(kSameAsMainColor), I(3)});
    EXPECT_EQ("VSLineObjXPG", host->className(call(layer, "getLine", {I(1)})));
    layer = set = Value();
    EXPECT_TRUE(host->doublesOf(call(line, "getPoints")).empty());
    line = Value();
}
