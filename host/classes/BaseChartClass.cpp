// VSBaseChartXPG: the root of the chart classes.  No Constructor: each family
// has its own.  Its shared side holds the engine's statics, the sentinels,
// ScaleFactor, Debugging and the constants.
#include <cstring>
#include <string>
#include <vector>

#include "host/abc/Chart.h"
#include "host/abc/chart/VSMLTable.h"
#include "host/classes/ClassTables.h"
#include "host/classes/ColorMakers.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using abc::Chart;

template <const double *Value>
double sentinel() {
    return *Value;
}

// The host's RGB with transparency: the engine's colour word.
int rgb(int r, int g, int b, int a) {
    return (int)((unsigned)r << 16 | (unsigned)g << 8 | (unsigned)b | (unsigned)a << 24);
}

int colorToInteger(int c, int alpha) {
    return (int)((unsigned)alpha << 24 | (unsigned)c);
}

const char *pluginVersion() {
    return "26.2";
}

void setGlobalText(const char *id, const char *value) {
    Chart::setGlobalResource(id, {(int)strlen(value), value});
}

void logMessage(const char *message) {
    LogMessage(message);
}

double scaleFactor() {
    return getScaleFactor();
}
void changeScaleFactor(double factor) {
    setScaleFactor(factor);
}
bool debugging() {
    return getDebugging();
}
void changeDebugging(bool on) {
    setDebugging(on);
}

RBBoolean debuggingProperty() {
    return getDebugging() ? 1 : 0;
}
void setDebuggingProperty(RBBoolean on) {
    setDebugging(on != 0);
}

template <auto Function, class... Arg>
constexpr auto shared = forwardShared<Function, Arg...>;

// clang-format off
const MethodEntry kSharedMethods[] = {
    method("chartTime(y as integer, m as integer, d as integer, h as integer = 0, "
           "n as integer = 0, s as integer = 0) as double",
           shared<&Chart::chartTime, Int, Int, Int, Int, Int, Int>),
    method("chartTime(t as integer) as double", shared<&Chart::chartTime2, Int>),
    method("getChartYMD(t as double) as integer", shared<&Chart::getChartYMD, Dbl>),
    method("getChartWeekDay(t as double) as integer", shared<&Chart::getChartWeekDay, Dbl>),
    method("xySize(width as integer, height as integer) as integer",
           shared<&Chart::xySize, Int, Int>),
    method("getWidthFromWH(v as integer) as integer", shared<&Chart::getWidthFromWH, Int>),
    method("getHeightFromWH(v as integer) as integer", shared<&Chart::getHeightFromWH, Int>),
    method("bSearch(a() as double, v as double) as double", shared<&Chart::bSearch, Doubles, Dbl>),
    method("testFont(font as string, fontIndex as integer = 0, fontHeight as double = 8, "
           "fontWidth as double = 0) as string", shared<&Chart::testFont, Str, Int, Dbl, Dbl>),
    method("setFontSearchPath(path as string)", shared<&Chart::setFontSearchPath, Str>),
    method("getFontSearchPath() as string", shared<&Chart::getFontSearchPath>),
    method("getMediaType(imageType as integer) as string", shared<&Chart::getMediaType, Int>),
    method("getImageType(data as MemoryBlock) as integer", shared<&Chart::getImageType, Bytes>),
    method("setGlobalResource(id as string, data as MemoryBlock)",
           shared<&Chart::setGlobalResource, Str, Bytes>),
    method("setGlobalResource(id as string, value as string)", shared<&setGlobalText, Str, Str>),
    method("getPixelLimit() as integer", shared<&Chart::getPixelLimit>),
    method("getFileLimit() as integer", shared<&Chart::getFileLimit>),
    method("getDefaultTextAA() as integer", shared<&Chart::getDefaultTextAA>),
    method("metalColor(c as integer, angle as integer = 90) as integer",
           shared<&Chart::metalColor, Color, Int>),
    method("metalColor(c as color, angle as integer = 90) as integer",
           shared<&Chart::metalColor, ColorC, Int>),
    method("goldColor(angle as integer = 90) as integer", shared<&Chart::goldColor, Int>),
    method("silverColor(angle as integer = 90) as integer", shared<&Chart::silverColor, Int>),
    method("brushedMetalColor(c as integer, texture as integer = 2, angle as integer = 90) "
           "as integer", shared<&Chart::brushedMetalColor, Color, Int, Int>),
    method("brushedMetalColor(c as color, texture as integer = 2, angle as integer = 90) "
           "as integer", shared<&Chart::brushedMetalColor, ColorC, Int, Int>),
    method("brushedSilverColor(texture as integer = 2, angle as integer = 90) as integer",
           shared<&Chart::brushedSilverColor, Int, Int>),
    method("brushedGoldColor(texture as integer = 2, angle as integer = 90) as integer",
           shared<&Chart::brushedGoldColor, Int, Int>),
    method("glassEffect(glareSize as integer = 3, glareDirection as integer = 8, "
           "raisedEffect as integer = 5) as integer", shared<&Chart::glassEffect, Int, Int, Px>),
    method("softLighting(direction as integer = 8, raisedEffect as integer = 4) as integer",
           shared<&Chart::softLighting, Int, Px>),
    method("cylinderEffect(orientation as integer = 5, ambientIntensity as double = 0.5, "
           "diffuseIntensity as double = 0.5, specularIntensity as double = 0.75, "
           "shininess as integer = 8) as integer",
           shared<&Chart::cylinderEffect, Int, Dbl, Dbl, Dbl, Int>),
    method("phongLighting(ambientIntensity as double = 0.5, diffuseIntensity as double = 0.5, "
           "specularIntensity as double = 0.75, shininess as integer = 8) as integer",
           shared<&Chart::phongLighting, Dbl, Dbl, Dbl, Int>),
    method("barLighting(startBrightness as double = 0.75, endBrightness as double = 1.5) "
           "as integer", shared<&Chart::barLighting, Dbl, Dbl>),
    method("flatBorder(thickness as integer) as integer", shared<&Chart::flatBorder, Px>),
    method("ClearTypeColor(gamma as double = 0) as integer", shared<&Chart::ClearTypeColor, Dbl>),
    method("ClearTypeMono(gamma as double = 0) as integer", shared<&Chart::ClearTypeMono, Dbl>),
    method("RGB(r as integer, g as integer, b as integer, a as integer = 0) as integer",
           shared<&rgb, Int, Int, Int, Int>),
    method("ColorToInteger(c as color, alpha as integer = 0) as integer",
           shared<&colorToInteger, ColorC, Int>),
    method("encodeIntensity(v as double) as integer", shared<&Chart::encodeIntensity, Dbl>),
    method("decodeIntensity(code as integer) as double", shared<&Chart::decodeIntensity, Int>),
    method("isFlatBorder(effect as integer) as boolean", shared<&Chart::isFlatBorder, Int>),
    method("encodeCylinderOrientation(orientation as integer) as integer",
           shared<&Chart::encodeCylinderOrientation, Int>),
    method("isCylinderEffect(effect as integer) as boolean",
           shared<&Chart::isCylinderEffect, Int>),
    method("getCylinderOrientation(effect as integer) as integer",
           shared<&Chart::getCylinderOrientation, Int>),
    method("setDefaultCylinderOrientation(effect as integer, orientation as integer) "
           "as integer", shared<&Chart::setDefaultCylinderOrientation, Int, Int>),
    method("isBarLighting(effect as integer) as boolean", shared<&Chart::isBarLighting, Int>),
    method("defaultPalette() as integer()", shared<&Chart::defaultPalette>),
    method("whiteOnBlackPalette() as integer()", shared<&Chart::whiteOnBlackPalette>),
    method("transparentPalette() as integer()", shared<&Chart::transparentPalette>),
    method("goldGradient() as integer()", shared<&Chart::goldGradient>),
    method("silverGradient() as integer()", shared<&Chart::silverGradient>),
    method("redMetalGradient() as integer()", shared<&Chart::redMetalGradient>),
    method("blueMetalGradient() as integer()", shared<&Chart::blueMetalGradient>),
    method("greenMetalGradient() as integer()", shared<&Chart::greenMetalGradient>),
    method("kNoValue() as double", shared<&sentinel<&Chart::kNoValue>>),
    method("kLogTick() as double", shared<&sentinel<&Chart::kLogTick>>),
    method("kLinearTick() as double", shared<&sentinel<&Chart::kLinearTick>>),
    method("kTickInc() as double", shared<&sentinel<&Chart::kTickInc>>),
    method("kMinorTickOnly() as double", shared<&sentinel<&Chart::kMinorTickOnly>>),
    method("kMicroTickOnly() as double", shared<&sentinel<&Chart::kMicroTickOnly>>),
    method("kDataBound() as double", shared<&sentinel<&Chart::kDataBound>>),
    method("kTouchBar() as double", shared<&sentinel<&Chart::kTouchBar>>),
    method("getScaleFactor() as double", shared<&scaleFactor>),
    method("setScaleFactor(factor as double)", shared<&changeScaleFactor, Dbl>),
    method("getDebugging() as boolean", shared<&debugging>),
    method("setDebugging(on as boolean)", shared<&changeDebugging, Bool>),
    method("LogMessage(message as string)", shared<&logMessage, Str>),
    method("getVersion() as string", shared<&pluginVersion>),
};
// clang-format on

using BC = abc::BaseChart;

template <auto Method, class... Arg>
constexpr auto fwd = forward<BaseChartTarget, Method, Arg...>;

// The engine keeps pointers to the resources it is given: the host value is
// kept in Resources under the same id.
void setResource(REALobject self, REALstring id, REALobject data) {
    callWrapper<BaseChartTarget, void>(self, procOf(setResource), [&](BC *c) {
        c->setResource(RBText(id), resourceBytes(data));
        keepHostValue(BaseChartTarget::block(self)->resources, id, data);
    });
}

void setResource2(REALobject self, REALstring id, REALobject canvas) {
    callWrapper<BaseChartTarget, void>(self, procOf(setResource2), [&](BC *c) {
        c->setResource2(RBText(id), Canvas::in(canvas));
        keepHostValue(BaseChartTarget::block(self)->resources, id, canvas);
    });
}

RBInteger getHandle(REALobject self, RBInteger) {
    return reinterpret_cast<RBInteger>(BaseChartTarget::block(self)->handle);
}

REALobject getResources(REALobject self, RBInteger) {
    REALobject resources = BaseChartTarget::block(self)->resources;
    lockRef(resources);
    return resources;
}

// clang-format off
const MethodEntry kMethods[] = {
    method("enableVectorOutput()", fwd<&BC::enableVectorOutput>),
    method("setSize(width as integer, height as integer)", fwd<&BC::setSize, Px, Px>),
    method("getWidth() as integer", fwd<&BC::getWidth>),
    method("getHeight() as integer", fwd<&BC::getHeight>),
    method("getWidthWithShadow() as integer", fwd<&BC::getWidthWithShadow>),
    method("getHeightWithShadow() as integer", fwd<&BC::getHeightWithShadow>),
    method("getAbsOffsetX() as integer", fwd<&BC::getAbsOffsetX>),
    method("getAbsOffsetY() as integer", fwd<&BC::getAbsOffsetY>),
    method("setBackground(colorValue as integer, edgeColor as integer = &hFF000000, "
           "raisedEffect as integer = 0)", fwd<&BC::setBackground, Color, Color, Int>),
    method("setBackground(colorValue as color, edgeColor as integer = &hFF000000, "
           "raisedEffect as integer = 0)", fwd<&BC::setBackground, ColorC, Color, Int>),
    method("setBackground(colorValue as color, edgeColor as color, raisedEffect as integer = 0)",
           fwd<&BC::setBackground, ColorC, ColorC, Int>),
    method("setBorder(colorValue as integer)", fwd<&BC::setBorder, Color>),
    method("setBorder(colorValue as color)", fwd<&BC::setBorder, ColorC>),
    method("setRoundedFrame(extColor as integer = &hFFFFFF, r1 as integer = 10, "
           "r2 as integer = -1, r3 as integer = -1, r4 as integer = -1)",
           fwd<&BC::setRoundedFrame, Color, PxAuto, PxAuto, PxAuto, PxAuto>),
    method("setRoundedFrame(extColor as color, r1 as integer = 10, r2 as integer = -1, "
           "r3 as integer = -1, r4 as integer = -1)",
           fwd<&BC::setRoundedFrame, ColorC, PxAuto, PxAuto, PxAuto, PxAuto>),
    method("setThickFrame(thickness as integer, frameColor as integer = -1, "
           "outerEdgeColor as integer = -1, innerEdgeColor as integer = -1)",
           fwd<&BC::setThickFrame, Px, Color, Color, Color>),
    method("setThickFrame(thickness as integer, frameColor as color, "
           "outerEdgeColor as integer = -1, innerEdgeColor as integer = -1)",
           fwd<&BC::setThickFrame, Px, ColorC, Color, Color>),
    method("setWallpaper(path as string)", fwd<&BC::setWallpaper, Str>),
    method("setBgImage(path as string, align as integer = 5)", fwd<&BC::setBgImage, Str, Int>),
    method("setDropShadow(colorValue as integer = &hAAAAAA, offsetX as integer = 5, "
           "offsetY as integer = &h7FFFFFFF, blurRadius as integer = 5)",
           fwd<&BC::setDropShadow, Color, Px, PxOrUnset, Px>),
    method("setDropShadow(colorValue as color, offsetX as integer = 5, "
           "offsetY as integer = &h7FFFFFFF, blurRadius as integer = 5)",
           fwd<&BC::setDropShadow, ColorC, Px, PxOrUnset, Px>),
    method("setTransparentColor(colorValue as integer)", fwd<&BC::setTransparentColor, Color>),
    method("setTransparentColor(colorValue as color)", fwd<&BC::setTransparentColor, ColorC>),
    method("setAntiAlias(shapeAntiAlias as boolean = true, textAntiAlias as integer = 2)",
           fwd<&BC::setAntiAlias, Bool, Int>),
    method("setSearchPath(path as string)", fwd<&BC::setSearchPath, Str>),
    method("addTitle(alignment as integer, text as string, font as string = \"\", "
           "fontSize as double = 12, fontColor as integer = &hFFFF0002, "
           "bgColor as integer = &hFF000000, edgeColor as integer = &hFF000000) as VSTextBoxXPG",
           fwd<&BC::addTitle2, Int, Str, Str, Dbl, Color, Color, Color>),
    method("addTitle(alignment as integer, text as string, font as string, fontSize as double, "
           "fontColor as color, bgColor as integer = &hFF000000, "
           "edgeColor as integer = &hFF000000) as VSTextBoxXPG",
           fwd<&BC::addTitle2, Int, Str, Str, Dbl, ColorC, Color, Color>),
    method("addTitle(text as string, font as string = \"\", fontSize as double = 12, "
           "fontColor as integer = &hFFFF0002, bgColor as integer = &hFF000000, "
           "edgeColor as integer = &hFF000000) as VSTextBoxXPG",
           fwd<&BC::addTitle, Str, Str, Dbl, Color, Color, Color>),
    method("addTitle(text as string, font as string, fontSize as double, fontColor as color, "
           "bgColor as integer = &hFF000000, edgeColor as integer = &hFF000000) "
           "as VSTextBoxXPG", fwd<&BC::addTitle, Str, Str, Dbl, ColorC, Color, Color>),
    method("addLegend(x as integer, y as integer, vertical as boolean = true, "
           "font as string = \"\", fontSize as double = 10) as VSLegendBoxXPG",
           fwd<&BC::addLegend, Px, Px, Bool, Str, Dbl>),
    method("addLegend2(x as integer, y as integer, noOfCols as integer, font as string = \"\", "
           "fontSize as double = 10) as VSLegendBoxXPG",
           fwd<&BC::addLegend2, Px, Px, Int, Str, Dbl>),
    method("getLegend() as VSLegendBoxXPG", fwd<&BC::getLegend>),
    method("getDrawArea() as VSDrawAreaXPG", fwd<&BC::getDrawArea>),
    method("setResource(id as string, data as MemoryBlock)", setResource),
    method("setResource(id as string, d as VSDrawAreaXPG)", setResource2),
    method("initDynamicLayer() as VSDrawAreaXPG", fwd<&BC::initDynamicLayer>),
    method("removeDynamicLayer()", fwd<&BC::removeDynamicLayer>),
    method("addText(x as integer, y as integer, text as string, font as string = \"\", "
           "fontSize as double = 8, fontColor as integer = &hFFFF0002, "
           "alignment as integer = 7, angle as double = 0, vertical as boolean = false) "
           "as VSTextBoxXPG", fwd<&BC::addText, Px, Px, Str, Str, Dbl, Color, Int, Dbl, Bool>),
    method("addText(x as integer, y as integer, text as string, font as string, "
           "fontSize as double, fontColor as color, alignment as integer = 7, "
           "angle as double = 0, vertical as boolean = false) as VSTextBoxXPG",
           fwd<&BC::addText, Px, Px, Str, Str, Dbl, ColorC, Int, Dbl, Bool>),
    method("addLine(x1 as integer, y1 as integer, x2 as integer, y2 as integer, "
           "colorValue as integer = &hFFFF0001, lineWidth as integer = 1) as VSLineXPG",
           fwd<&BC::addLine, Px, Px, Px, Px, Color, Px>),
    method("addLine(x1 as integer, y1 as integer, x2 as integer, y2 as integer, "
           "colorValue as color, lineWidth as integer = 1) as VSLineXPG",
           fwd<&BC::addLine, Px, Px, Px, Px, ColorC, Px>),
    method("addTable(x as integer, y as integer, alignment as integer, col as integer, "
           "row as integer) as VSMLTableXPG", fwd<&BC::addTable, Px, Px, Int, Int, Int>),
    method("addExtraField(texts() as string)", fwd<&BC::addExtraField, Strings>),
    method("addExtraField(numbers() as double)", fwd<&BC::addExtraField2, Doubles>),
    method("addExtraField(numbers as VSArrayXPG)", fwd<&BC::addExtraField2, ArrayValues>),
    method("setColor(paletteEntry as integer, colorValue as integer)",
           fwd<&BC::setColor, Int, Color>),
    method("setColor(paletteEntry as integer, colorValue as color)",
           fwd<&BC::setColor, Int, ColorC>),
    method("setColors(colors() as integer)", fwd<&BC::setColors, Ints>),
    method("setColors(colors() as color)", fwd<&BC::setColors, Colors>),
    method("setColors(paletteEntry as integer, colors() as integer)",
           fwd<&BC::setColors2, Int, Ints>),
    method("setColors(paletteEntry as integer, colors() as color)",
           fwd<&BC::setColors2, Int, Colors>),
    method("getColor(paletteEntry as integer) as integer", fwd<&BC::getColor, Int>),
    method("halfColor(c as integer) as integer", fwd<&BC::halfColor, Color>),
    method("halfColor(c as color) as integer", fwd<&BC::halfColor, ColorC>),
    method("adjustBrightness(c as integer, brightness as double) as integer",
           fwd<&BC::adjustBrightness, Color, Dbl>),
    method("adjustBrightness(c as color, brightness as double) as integer",
           fwd<&BC::adjustBrightness, ColorC, Dbl>),
    method("autoColor() as integer", fwd<&BC::autoColor>),
};

const MethodEntry kTailMethods[] = {
    method("patternColor(colors() as color, height as integer, startX as integer = 0, "
           "startY as integer = 0) as integer", fwd<&BC::patternColor, Colors, Int, Px, Px>),
    method("setDefaultFonts(normal as string, bold as string = \"\", italic as string = \"\", "
           "boldItalic as string = \"\")", fwd<&BC::setDefaultFonts, Str, Str, Str, Str>),
    method("setFontTable(index as integer, font as string)", fwd<&BC::setFontTable, Int, Str>),
    method("setNumberFormat(thousandSeparator as string = \"~\", "
           "decimalPointChar as string = \".\", signChar as string = \"-\")",
           fwd<&BC::setNumberFormat, Char, Char, Char>),
    method("setMonthNames(names() as string)", fwd<&BC::setMonthNames, Strings>),
    method("setWeekDayNames(names() as string)", fwd<&BC::setWeekDayNames, Strings>),
    method("setAMPM(am as string, pm as string)", fwd<&BC::setAMPM, Str, Str>),
    method("formatValue(value as double, formatString as string) as string",
           fwd<&BC::formatValue, Dbl, Str>),
    method("layoutLegend() as VSLegendBoxXPG", fwd<&BC::layoutLegend>),
    method("layout()", fwd<&BC::layout>),
    method("setOutputOptions(options as string)", fwd<&BC::setOutputOptions, Str>),
    method("makeChart(path as string) as boolean", fwd<static_cast<bool (BC::*)(const char *)>(
                                                           &BC::makeChart), Str>),
    method("makeChart(format as integer) as MemoryBlock", fwd<&BC::makeChart2, Int>),
    method("makeChart() as VSDrawAreaXPG",
           fwd<static_cast<abc::DrawArea *(BC::*)()>(&BC::makeChart)>),
    method("getJsChartModel(options as string = \"\") as string",
           fwd<&BC::getJsChartModel, Str>),
    method("getHTMLImageMap(url as string, queryFormat as string = \"\", "
           "extraAttr as string = \"\", offsetX as integer = 0, offsetY as integer = 0) "
           "as string", fwd<&BC::getHTMLImageMap, Str, Str, Str, Px, Px>),
    method("getDynaMap() as integer", fwd<&BC::getDynaMap>),
    method("getChartMetrics() as string", fwd<&BC::getChartMetrics>),
    method("getFrameThickness() as integer", fwd<&BC::getFrameThickness>),
    method("getProperty(code as integer) as double", fwd<&BC::getProperty, Int>),
    method("filterData(data() as double) as double()", fwd<&BC::filterData, Doubles>),
};
// clang-format on

TableSpan<MethodEntry> methods() {
    static std::vector<MethodEntry> all;
    return joinTables(
        all, {tableOf(kMethods), colorMakerMethods<BaseChartTarget>(), tableOf(kTailMethods)});
}

const PropertyEntry kProperties[] = {
    readOnlyProperty("Handle", "Integer", getHandle),
    readOnlyProperty("Resources", "Dictionary", getResources),
};

const PropertyEntry kSharedProperties[] = {
    property("ScaleFactor", "Double", &getScaleFactor, &setScaleFactor),
    property("Debugging", "Boolean", &debuggingProperty, &setDebuggingProperty),
};

// "kName as Integer = value", made once from the data table.
TableSpan<ConstantEntry> constantEntries() {
    static std::vector<std::string> texts;
    static std::vector<ConstantEntry> entries;
    if (entries.empty()) {
        for (int i = 0; i < kChartConstantCount; ++i)
            texts.push_back(std::string(kChartConstants[i].name) +
                            " as Integer = " + kChartConstants[i].literal);
        for (const std::string &t : texts) entries.push_back({t.c_str()});
    }
    return {entries.data(), (int)entries.size()};
}

}  // namespace

const ClassTables kBaseChartTables = {
    methods(),
    tableOf(kProperties),
    tableOf(kSharedMethods),
    tableOf(kSharedProperties),
    constantEntries(),
    reinterpret_cast<REALproc>(&InitBlockOf<ClassId::BaseChart>),
    reinterpret_cast<REALproc>(&BaseChartDestructor),
};
