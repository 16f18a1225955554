// VSXYChartXPG: a chart with a plot area, axes and layers.  Its standing axes
// are read-only properties, each one object for the chart's life (see
// ChartParts.h); what else it hands out (the plot area, layers, added axes)
// holds the chart.
#include "host/classes/ChartConstructor.h"
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartParts.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using XY = abc::XYChart;

template <auto Method, class... Arg>
constexpr auto fwd = forward<XYChartTarget, Method, Arg...>;

// Above a ScaleFactor of 1, labels at the default size and hairline ticks would
// come out too small: each standing axis gets them scaled.
struct ScaledAxes {
    static void apply(XY *chart) {
        const int kTextColor = (int)0xFFFF0002;
        double factor = getScaleFactor();
        for (abc::Axis *axis : {chart->yAxis(), chart->yAxis2(), chart->xAxis(), chart->xAxis2()}) {
            axis->setLabelStyle("", 8 * factor, kTextColor, 0);
            axis->setTickWidth((int)factor, -1);
        }
    }
};

template <class BgColor>
constexpr auto construct = constructChart<XYChartTarget, &XY::create, BgColor, ScaledAxes>;

// clang-format off
const MethodEntry kMethods[] = {
    method("Constructor(width as integer = 640, height as integer = 480, "
           "bgColor as integer = &hFFFF0000, edgeColor as integer = &hFF000000, "
           "raisedEffect as integer = 0)", construct<Color>),
    method("Constructor(width as integer, height as integer, bgColor as color, "
           "edgeColor as integer = &hFF000000, raisedEffect as integer = 0)", construct<ColorC>),
    method("addAxis(align as integer, offset as integer) as VSAxisXPG",
           fwd<&XY::addAxis, Int, Px>),
    method("syncYAxis(slope as double = 1, intercept as double = 0)",
           fwd<&XY::syncYAxis, Dbl, Dbl>),
    method("setYAxisOnRight(b as boolean = true)", fwd<&XY::setYAxisOnRight, Bool>),
    method("setXAxisOnTop(b as boolean = true)", fwd<&XY::setXAxisOnTop, Bool>),
    method("swapXY(b as boolean = true)", fwd<&XY::swapXY, Bool>),
    method("setAxisAtOrigin(originMode as integer = 3, symmetryMode as integer = 0)",
           fwd<&XY::setAxisAtOrigin, Int, Int>),
    method("getXCoor(v as double) as double", fwd<&XY::getXCoor, Dbl>),
    method("getYCoor(v as double, yAxis as VSAxisXPG = nil) as double",
           fwd<&XY::getYCoor, Dbl, AxisObj>),
    method("getXValue(xCoor as double) as double", fwd<&XY::getXValue, PxD>),
    method("getYValue(yCoor as double, yAxis as VSAxisXPG = nil) as double",
           fwd<&XY::getYValue, PxD, AxisObj>),
    method("xZoneColor(threshold as double, belowColor as integer, aboveColor as integer) "
           "as integer", fwd<&XY::xZoneColor, Dbl, Color, Color>),
    method("xZoneColor(threshold as double, belowColor as color, aboveColor as color) "
           "as integer", fwd<&XY::xZoneColor, Dbl, ColorC, ColorC>),
    method("yZoneColor(threshold as double, belowColor as integer, aboveColor as integer, "
           "yAxis as VSAxisXPG = nil) as integer", fwd<&XY::yZoneColor, Dbl, Color, Color, AxisObj>),
    method("yZoneColor(threshold as double, belowColor as color, aboveColor as color, "
           "yAxis as VSAxisXPG = nil) as integer",
           fwd<&XY::yZoneColor, Dbl, ColorC, ColorC, AxisObj>),
    method("setPlotArea(x as integer, y as integer, width as integer, height as integer, "
           "bgColor as integer = &hFF000000, altBgColor as integer = -1, "
           "edgeColor as integer = -1, hGridColor as integer = &hC0C0C0, "
           "vGridColor as integer = &hFF000000) as VSPlotAreaXPG",
           fwd<&XY::setPlotArea, Px, Px, Px, Px, Color, Color, Color, Color, Color>),
    method("setPlotArea(x as integer, y as integer, width as integer, height as integer, "
           "bgColor as color, altBgColor as integer = -1, edgeColor as integer = -1, "
           "hGridColor as integer = &hC0C0C0, vGridColor as integer = &hFF000000) "
           "as VSPlotAreaXPG",
           fwd<&XY::setPlotArea, Px, Px, Px, Px, ColorC, Color, Color, Color, Color>),
    method("getPlotArea() as VSPlotAreaXPG", fwd<&XY::getPlotArea>),
    method("setClipping(margin as integer = 0)", fwd<&XY::setClipping, Px>),
    method("setTrimData(startPos as integer, len as integer = &h7FFFFFFF)",
           fwd<&XY::setTrimData, Int, Int>),
    method("addBarLayer(data() as double, colorValue as integer = -1, name as string = \"\", "
           "depth as integer = 0) as VSBarLayerXPG",
           fwd<&XY::addBarLayer, Doubles, Color, Str, Px>),
    method("addBarLayer(data() as double, colorValue as color, name as string = \"\", "
           "depth as integer = 0) as VSBarLayerXPG",
           fwd<&XY::addBarLayer, Doubles, ColorC, Str, Px>),
    method("addBarLayer(data as VSArrayXPG, colorValue as integer = -1, name as string = \"\", "
           "depth as integer = 0) as VSBarLayerXPG",
           fwd<&XY::addBarLayer, ArrayValues, Color, Str, Px>),
    method("addBarLayer(data as VSArrayXPG, colorValue as color, name as string = \"\", "
           "depth as integer = 0) as VSBarLayerXPG",
           fwd<&XY::addBarLayer, ArrayValues, ColorC, Str, Px>),
    method("addBarLayer2(dataCombineMethod as integer = 3, depth as integer = 0) "
           "as VSBarLayerXPG", fwd<&XY::addBarLayer2, Int, Px>),
    method("addBarLayer3(data() as double, colors() as integer, names() as string, "
           "depth as integer = 0) as VSBarLayerXPG",
           fwd<&XY::addBarLayer3, Doubles, Ints, Strings, Px>),
    method("addBarLayer3(data() as double, colors() as color, names() as string, "
           "depth as integer = 0) as VSBarLayerXPG",
           fwd<&XY::addBarLayer3, Doubles, Colors, Strings, Px>),
    method("addLineLayer(data() as double, colorvalue as integer = -1, name as string = \"\", "
           "depth as integer = 0) as VSLineLayerXPG",
           fwd<&XY::addLineLayer, Doubles, Color, Str, Px>),
    method("addLineLayer(data() as double, colorvalue as color, name as string = \"\", "
           "depth as integer = 0) as VSLineLayerXPG",
           fwd<&XY::addLineLayer, Doubles, ColorC, Str, Px>),
    method("addLineLayer(data as VSArrayXPG, colorvalue as integer = -1, name as string = \"\", "
           "depth as integer = 0) as VSLineLayerXPG",
           fwd<&XY::addLineLayer, ArrayValues, Color, Str, Px>),
    method("addLineLayer(data as VSArrayXPG, colorvalue as color, name as string = \"\", "
           "depth as integer = 0) as VSLineLayerXPG",
           fwd<&XY::addLineLayer, ArrayValues, ColorC, Str, Px>),
    method("addLineLayer2(dataCombineMethod as integer = 0, depth as integer = 0) "
           "as VSLineLayerXPG", fwd<&XY::addLineLayer2, Int, Px>),
    method("addAreaLayer(data() as double, colorvalue as integer = -1, name as string = \"\", "
           "depth as integer = 0) as VSAreaLayerXPG",
           fwd<&XY::addAreaLayer, Doubles, Color, Str, Px>),
    method("addAreaLayer(data() as double, colorvalue as color, name as string = \"\", "
           "depth as integer = 0) as VSAreaLayerXPG",
           fwd<&XY::addAreaLayer, Doubles, ColorC, Str, Px>),
    method("addAreaLayer(data as VSArrayXPG, colorvalue as integer = -1, name as string = \"\", "
           "depth as integer = 0) as VSAreaLayerXPG",
           fwd<&XY::addAreaLayer, ArrayValues, Color, Str, Px>),
    method("addAreaLayer(data as VSArrayXPG, colorvalue as color, name as string = \"\", "
           "depth as integer = 0) as VSAreaLayerXPG",
           fwd<&XY::addAreaLayer, ArrayValues, ColorC, Str, Px>),
    method("addAreaLayer2(dataCombineMethod as integer = 1, depth as integer = 0) "
           "as VSAreaLayerXPG", fwd<&XY::addAreaLayer2, Int, Px>),
    method("addScatterLayer(xData() as double, yData() as double, name as string = \"\", "
           "symbol as integer = 1, symbolSize as integer = 5, fillColor as integer = -1, "
           "edgeColor as integer = -1) as VSScatterLayerXPG",
           fwd<&XY::addScatterLayer, Doubles, Doubles, Str, Int, Px, Color, Color>),
    method("addScatterLayer(xData() as double, yData() as double, name as string, "
           "symbol as integer, symbolSize as integer, fillColor as color, "
           "edgeColor as integer = -1) as VSScatterLayerXPG",
           fwd<&XY::addScatterLayer, Doubles, Doubles, Str, Int, Px, ColorC, Color>),
    method("addScatterLayer(xData as VSArrayXPG, yData as VSArrayXPG, name as string = \"\", "
           "symbol as integer = 1, symbolSize as integer = 5, fillColor as integer = -1, "
           "edgeColor as integer = -1) as VSScatterLayerXPG",
           fwd<&XY::addScatterLayer, ArrayValues, ArrayValues, Str, Int, Px, Color, Color>),
    method("addScatterLayer(xData as VSArrayXPG, yData as VSArrayXPG, name as string, "
           "symbol as integer, symbolSize as integer, fillColor as color, "
           "edgeColor as integer = -1) as VSScatterLayerXPG",
           fwd<&XY::addScatterLayer, ArrayValues, ArrayValues, Str, Int, Px, ColorC, Color>),
    method("getLayer(i as integer) as VSLayerXPG", fwd<&XY::getLayer, Int>),
    method("getLayerByZ(i as integer) as VSLayerXPG", fwd<&XY::getLayerByZ, Int>),
    method("getLayerCount() as integer", fwd<&XY::getLayerCount>),
    method("getNearestXValue(xCoor as double) as double", fwd<&XY::getNearestXValue, PxD>),
    method("layoutAxes()", fwd<&XY::layoutAxes>),
    method("packPlotArea(leftX as integer, topY as integer, rightX as integer, "
           "bottomY as integer, minWidth as integer = 0, minHeight as integer = 0)",
           fwd<&XY::packPlotArea, Px, Px, Px, Px, Px, Px>),
};

template <auto Get>
constexpr auto axis = sideAxisProperty<XYChartTarget, Get>;

const PropertyEntry kProperties[] = {
    readOnlyProperty("xAxis", "VSAxisXPG", axis<&XY::xAxis>),
    readOnlyProperty("yAxis", "VSAxisXPG", axis<&XY::yAxis>),
    readOnlyProperty("xAxis2", "VSAxisXPG", axis<&XY::xAxis2>),
    readOnlyProperty("yAxis2", "VSAxisXPG", axis<&XY::yAxis2>),
};
// clang-format on

}  // namespace

const ClassTables kXYChartTables = derivedTables(tableOf(kMethods), tableOf(kProperties));
