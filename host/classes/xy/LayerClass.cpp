// VSLayerXPG: one way of drawing data on an XY chart, the root of the layer
// kinds.  No Constructor: layers come from their chart, which they hold, so a
// layer variable keeps its chart alive.  Its data sets and label boxes hold
// the chart too.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using L = abc::Layer;

template <auto Method, class... Arg>
constexpr auto fwd = forward<LayerTarget, Method, Arg...>;

// The label styles and custom labels: a colour as an engine word or as the
// host's Color.
template <class C>
constexpr auto dataLabelStyle = fwd<&L::setDataLabelStyle, Str, Dbl, C, Dbl>;
template <class C>
constexpr auto aggregateLabelStyle = fwd<&L::setAggregateLabelStyle, Str, Dbl, C, Dbl>;
template <class C>
constexpr auto customDataLabel = fwd<&L::addCustomDataLabel, Int, Int, Str, Str, Dbl, C, Dbl>;
template <class C>
constexpr auto customAggregateLabel = fwd<&L::addCustomAggregateLabel, Int, Str, Str, Dbl, C, Dbl>;
template <class C>
constexpr auto customGroupLabel = fwd<&L::addCustomGroupLabel, Int, Int, Str, Str, Dbl, C, Dbl>;

// clang-format off
const MethodEntry kMethods[] = {
    method("set3D(d as integer = -1, zGap as integer = 0)", fwd<&L::set3D, PxAuto, Px>),
    method("setLineWidth(w as integer)", fwd<&L::setLineWidth, Px>),
    method("setBorderColor(colorValue as integer, lightingEffect as integer = 0)",
           fwd<&L::setBorderColor, Color, Int>),
    method("setBorderColor(colorValue as color, lightingEffect as integer = 0)",
           fwd<&L::setBorderColor, ColorC, Int>),
    method("setLegend(m as integer)", fwd<&L::setLegend, Int>),
    method("setLegendOrder(dataSetOrder as integer, layerOrder as integer = -1)",
           fwd<&L::setLegendOrder, Int, Int>),
    method("getLegendIcon(dataSetNo as integer) as string", fwd<&L::getLegendIcon, Int>),
    method("moveFront(layer as VSLayerXPG = nil)", fwd<&L::moveFront, LayerObj>),
    method("moveBack(layer as VSLayerXPG = nil)", fwd<&L::moveBack, LayerObj>),
    method("setDataCombineMethod(m as integer)", fwd<&L::setDataCombineMethod, Int>),
    method("addDataSet(data() as double, colorValue as integer = -1, name as string = \"\") "
           "as VSDataSetXPG", fwd<&L::addDataSet, Doubles, Color, Str>),
    method("addDataSet(data() as double, colorValue as color, name as string = \"\") "
           "as VSDataSetXPG", fwd<&L::addDataSet, Doubles, ColorC, Str>),
    method("addDataSet(data as VSArrayXPG, colorValue as integer = -1, name as string = \"\") "
           "as VSDataSetXPG", fwd<&L::addDataSet, ArrayValues, Color, Str>),
    method("addDataSet(data as VSArrayXPG, colorValue as color, name as string = \"\") "
           "as VSDataSetXPG", fwd<&L::addDataSet, ArrayValues, ColorC, Str>),
    method("addDataGroup(name as string = \"\")", fwd<&L::addDataGroup, Str>),
    method("addExtraField(texts() as string)", fwd<&L::addExtraField, Strings>),
    method("addExtraField(numbers() as double)", fwd<&L::addExtraField2, Doubles>),
    method("addExtraField(numbers as VSArrayXPG)", fwd<&L::addExtraField2, ArrayValues>),
    method("getDataSet(dataSet as integer) as VSDataSetXPG", fwd<&L::getDataSet, Int>),
    method("getDataSetByZ(z as integer) as VSDataSetXPG", fwd<&L::getDataSetByZ, Int>),
    method("getDataSetCount() as integer", fwd<&L::getDataSetCount>),
    method("setUseYAxis2(b as boolean = true)", fwd<&L::setUseYAxis2, Bool>),
    method("setUseYAxis(a as VSAxisXPG)", fwd<&L::setUseYAxis, AxisObj>),
    method("setXData(xData() as double)", fwd<&L::setXData, Doubles>),
    method("setXData(xData as VSArrayXPG)", fwd<&L::setXData, ArrayValues>),
    method("setXData(minValue as double, maxValue as double)", fwd<&L::setXData2, Dbl, Dbl>),
    method("getXPosition(i as integer) as double", fwd<&L::getXPosition, Int>),
    method("getNearestXValue(target as double) as double", fwd<&L::getNearestXValue, Dbl>),
    method("getXIndexOf(xValue as double, tolerance as double = 0) as integer",
           fwd<&L::getXIndexOf, Dbl, Dbl>),
    method("alignLayer(layer as VSLayerXPG, dataSet as integer)",
           fwd<&L::alignLayer, LayerObj, Int>),
    method("setBaseLine(baseLine as double)", fwd<&L::setBaseLine, Dbl>),
    method("getXCoor(v as double) as integer", fwd<&L::getXCoor, Dbl>),
    method("getYCoor(v as double, yAxis as VSAxisXPG = nil) as integer",
           fwd<&L::getYCoor, Dbl, AxisObj>),
    method("getYCoor(v as double, useYAxis2 as boolean) as integer",
           fwd<&L::getYCoor2, Dbl, Bool>),
    method("xZoneColor(threshold as double, belowColor as integer, aboveColor as integer) "
           "as integer", fwd<&L::xZoneColor, Dbl, Color, Color>),
    method("xZoneColor(threshold as double, belowColor as color, aboveColor as color) "
           "as integer", fwd<&L::xZoneColor, Dbl, ColorC, ColorC>),
    method("yZoneColor(threshold as double, belowColor as integer, aboveColor as integer, "
           "yAxis as VSAxisXPG = nil) as integer", fwd<&L::yZoneColor, Dbl, Color, Color, AxisObj>),
    method("yZoneColor(threshold as double, belowColor as color, aboveColor as color, "
           "yAxis as VSAxisXPG = nil) as integer",
           fwd<&L::yZoneColor, Dbl, ColorC, ColorC, AxisObj>),
    method("yZoneColor(threshold as double, belowColor as integer, aboveColor as integer, "
           "useYAxis2 as boolean) as integer", fwd<&L::yZoneColor2, Dbl, Color, Color, Bool>),
    method("yZoneColor(threshold as double, belowColor as color, aboveColor as color, "
           "useYAxis2 as boolean) as integer", fwd<&L::yZoneColor2, Dbl, ColorC, ColorC, Bool>),
    method("getImageCoor(dataSet as integer, dataItem as integer, offsetX as integer = 0, "
           "offsetY as integer = 0) as string", fwd<&L::getImageCoor, Int, Int, Px, Px>),
    method("getImageCoor2(dataItem as integer, offsetX as integer = 0, offsetY as integer = 0) "
           "as string", fwd<&L::getImageCoor2, Int, Px, Px>),
    method("getHTMLImageMap(url as string, queryFormat as string = \"\", "
           "extraAttr as string = \"\", offsetX as integer = 0, offsetY as integer = 0) "
           "as string", fwd<&L::getHTMLImageMap, Str, Str, Str, Px, Px>),
    method("setHTMLImageMap(url as string, queryFormat as string = \"\", "
           "extraAttr as string = \"\")", fwd<&L::setHTMLImageMap, Str, Str, Str>),
    method("setDataLabelFormat(formatString as string)", fwd<&L::setDataLabelFormat, Str>),
    method("setDataLabelStyle(font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = &hFFFF0002, fontAngle as double = 0) as VSTextBoxXPG",
           dataLabelStyle<Color>),
    method("setDataLabelStyle(font as string, fontSize as double, fontColor as color, "
           "fontAngle as double = 0) as VSTextBoxXPG", dataLabelStyle<ColorC>),
    method("setAggregateLabelFormat(formatString as string)",
           fwd<&L::setAggregateLabelFormat, Str>),
    method("setAggregateLabelStyle(font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = &hFFFF0002, fontAngle as double = 0) as VSTextBoxXPG",
           aggregateLabelStyle<Color>),
    method("setAggregateLabelStyle(font as string, fontSize as double, fontColor as color, "
           "fontAngle as double = 0) as VSTextBoxXPG", aggregateLabelStyle<ColorC>),
    method("addCustomDataLabel(dataSet as integer, dataItem as integer, label as string, "
           "font as string = \"\", fontSize as double = 8, fontColor as integer = &hFFFF0002, "
           "fontAngle as double = 0) as VSTextBoxXPG", customDataLabel<Color>),
    method("addCustomDataLabel(dataSet as integer, dataItem as integer, label as string, "
           "font as string, fontSize as double, fontColor as color, fontAngle as double = 0) "
           "as VSTextBoxXPG", customDataLabel<ColorC>),
    method("addCustomAggregateLabel(dataItem as integer, label as string, "
           "font as string = \"\", fontSize as double = 8, fontColor as integer = &hFFFF0002, "
           "fontAngle as double = 0) as VSTextBoxXPG", customAggregateLabel<Color>),
    method("addCustomAggregateLabel(dataItem as integer, label as string, font as string, "
           "fontSize as double, fontColor as color, fontAngle as double = 0) as VSTextBoxXPG",
           customAggregateLabel<ColorC>),
    method("addCustomGroupLabel(dataGroup as integer, dataItem as integer, label as string, "
           "font as string = \"\", fontSize as double = 8, fontColor as integer = &hFFFF0002, "
           "fontAngle as double = 0) as VSTextBoxXPG", customGroupLabel<Color>),
    method("addCustomGroupLabel(dataGroup as integer, dataItem as integer, label as string, "
           "font as string, fontSize as double, fontColor as color, fontAngle as double = 0) "
           "as VSTextBoxXPG", customGroupLabel<ColorC>),
};
// clang-format on

}  // namespace

const ClassTables kLayerTables = rootTables<ClassId::Layer, &LayerDestructor>(tableOf(kMethods));
