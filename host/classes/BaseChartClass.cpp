// VSBaseChartXPG: the chart root.  So far its shared side: the engine's
// statics, the sentinels, ScaleFactor, Debugging and the constants.
#include <cstring>
#include <string>
#include <vector>

#include "host/abc/Chart.h"
#include "host/classes/ClassTables.h"
#include "host/glue/Forward.h"
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
constexpr auto fwd = forwardShared<Function, Arg...>;

// clang-format off
const MethodEntry kSharedMethods[] = {
    method("chartTime(y as integer, m as integer, d as integer, h as integer = 0, "
           "n as integer = 0, s as integer = 0) as double",
           fwd<&Chart::chartTime, Int, Int, Int, Int, Int, Int>),
    method("chartTime(t as integer) as double", fwd<&Chart::chartTime2, Int>),
    method("getChartYMD(t as double) as integer", fwd<&Chart::getChartYMD, Dbl>),
    method("getChartWeekDay(t as double) as integer", fwd<&Chart::getChartWeekDay, Dbl>),
    method("xySize(width as integer, height as integer) as integer",
           fwd<&Chart::xySize, Int, Int>),
    method("getWidthFromWH(v as integer) as integer", fwd<&Chart::getWidthFromWH, Int>),
    method("getHeightFromWH(v as integer) as integer", fwd<&Chart::getHeightFromWH, Int>),
    method("bSearch(a() as double, v as double) as double", fwd<&Chart::bSearch, Doubles, Dbl>),
    method("testFont(font as string, fontIndex as integer = 0, fontHeight as double = 8, "
           "fontWidth as double = 0) as string", fwd<&Chart::testFont, Str, Int, Dbl, Dbl>),
    method("setFontSearchPath(path as string)", fwd<&Chart::setFontSearchPath, Str>),
    method("getFontSearchPath() as string", fwd<&Chart::getFontSearchPath>),
    method("getMediaType(imageType as integer) as string", fwd<&Chart::getMediaType, Int>),
    method("getImageType(data as MemoryBlock) as integer", fwd<&Chart::getImageType, Bytes>),
    method("setGlobalResource(id as string, data as MemoryBlock)",
           fwd<&Chart::setGlobalResource, Str, Bytes>),
    method("setGlobalResource(id as string, value as string)", fwd<&setGlobalText, Str, Str>),
    method("getPixelLimit() as integer", fwd<&Chart::getPixelLimit>),
    method("getFileLimit() as integer", fwd<&Chart::getFileLimit>),
    method("getDefaultTextAA() as integer", fwd<&Chart::getDefaultTextAA>),
    method("metalColor(c as integer, angle as integer = 90) as integer",
           fwd<&Chart::metalColor, Color, Int>),
    method("metalColor(c as color, angle as integer = 90) as integer",
           fwd<&Chart::metalColor, ColorC, Int>),
    method("goldColor(angle as integer = 90) as integer", fwd<&Chart::goldColor, Int>),
    method("silverColor(angle as integer = 90) as integer", fwd<&Chart::silverColor, Int>),
    method("brushedMetalColor(c as integer, texture as integer = 2, angle as integer = 90) "
           "as integer", fwd<&Chart::brushedMetalColor, Color, Int, Int>),
    method("brushedMetalColor(c as color, texture as integer = 2, angle as integer = 90) "
           "as integer", fwd<&Chart::brushedMetalColor, ColorC, Int, Int>),
    method("brushedSilverColor(texture as integer = 2, angle as integer = 90) as integer",
           fwd<&Chart::brushedSilverColor, Int, Int>),
    method("brushedGoldColor(texture as integer = 2, angle as integer = 90) as integer",
           fwd<&Chart::brushedGoldColor, Int, Int>),
    method("glassEffect(glareSize as integer = 3, glareDirection as integer = 8, "
           "raisedEffect as integer = 5) as integer", fwd<&Chart::glassEffect, Int, Int, Px>),
    method("softLighting(direction as integer = 8, raisedEffect as integer = 4) as integer",
           fwd<&Chart::softLighting, Int, Px>),
    method("cylinderEffect(orientation as integer = 5, ambientIntensity as double = 0.5, "
           "diffuseIntensity as double = 0.5, specularIntensity as double = 0.75, "
           "shininess as integer = 8) as integer",
           fwd<&Chart::cylinderEffect, Int, Dbl, Dbl, Dbl, Int>),
    method("phongLighting(ambientIntensity as double = 0.5, diffuseIntensity as double = 0.5, "
           "specularIntensity as double = 0.75, shininess as integer = 8) as integer",
           fwd<&Chart::phongLighting, Dbl, Dbl, Dbl, Int>),
    method("barLighting(startBrightness as double = 0.75, endBrightness as double = 1.5) "
           "as integer", fwd<&Chart::barLighting, Dbl, Dbl>),
    method("flatBorder(thickness as integer) as integer", fwd<&Chart::flatBorder, Px>),
    method("ClearTypeColor(gamma as double = 0) as integer", fwd<&Chart::ClearTypeColor, Dbl>),
    method("ClearTypeMono(gamma as double = 0) as integer", fwd<&Chart::ClearTypeMono, Dbl>),
    method("RGB(r as integer, g as integer, b as integer, a as integer = 0) as integer",
           fwd<&rgb, Int, Int, Int, Int>),
    method("ColorToInteger(c as color, alpha as integer = 0) as integer",
           fwd<&colorToInteger, ColorC, Int>),
    method("encodeIntensity(v as double) as integer", fwd<&Chart::encodeIntensity, Dbl>),
    method("decodeIntensity(code as integer) as double", fwd<&Chart::decodeIntensity, Int>),
    method("isFlatBorder(effect as integer) as boolean", fwd<&Chart::isFlatBorder, Int>),
    method("encodeCylinderOrientation(orientation as integer) as integer",
           fwd<&Chart::encodeCylinderOrientation, Int>),
    method("isCylinderEffect(effect as integer) as boolean",
           fwd<&Chart::isCylinderEffect, Int>),
    method("getCylinderOrientation(effect as integer) as integer",
           fwd<&Chart::getCylinderOrientation, Int>),
    method("setDefaultCylinderOrientation(effect as integer, orientation as integer) "
           "as integer", fwd<&Chart::setDefaultCylinderOrientation, Int, Int>),
    method("isBarLighting(effect as integer) as boolean", fwd<&Chart::isBarLighting, Int>),
    method("defaultPalette() as integer()", fwd<&Chart::defaultPalette>),
    method("whiteOnBlackPalette() as integer()", fwd<&Chart::whiteOnBlackPalette>),
    method("transparentPalette() as integer()", fwd<&Chart::transparentPalette>),
    method("goldGradient() as integer()", fwd<&Chart::goldGradient>),
    method("silverGradient() as integer()", fwd<&Chart::silverGradient>),
    method("redMetalGradient() as integer()", fwd<&Chart::redMetalGradient>),
    method("blueMetalGradient() as integer()", fwd<&Chart::blueMetalGradient>),
    method("greenMetalGradient() as integer()", fwd<&Chart::greenMetalGradient>),
    method("kNoValue() as double", fwd<&sentinel<&Chart::kNoValue>>),
    method("kLogTick() as double", fwd<&sentinel<&Chart::kLogTick>>),
    method("kLinearTick() as double", fwd<&sentinel<&Chart::kLinearTick>>),
    method("kTickInc() as double", fwd<&sentinel<&Chart::kTickInc>>),
    method("kMinorTickOnly() as double", fwd<&sentinel<&Chart::kMinorTickOnly>>),
    method("kMicroTickOnly() as double", fwd<&sentinel<&Chart::kMicroTickOnly>>),
    method("kDataBound() as double", fwd<&sentinel<&Chart::kDataBound>>),
    method("kTouchBar() as double", fwd<&sentinel<&Chart::kTouchBar>>),
    method("getScaleFactor() as double", fwd<&scaleFactor>),
    method("setScaleFactor(factor as double)", fwd<&changeScaleFactor, Dbl>),
    method("getDebugging() as boolean", fwd<&debugging>),
    method("setDebugging(on as boolean)", fwd<&changeDebugging, Bool>),
    method("LogMessage(message as string)", fwd<&logMessage, Str>),
    method("getVersion() as string", fwd<&pluginVersion>),
};
// clang-format on

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
    {nullptr, 0},
    {nullptr, 0},
    tableOf(kSharedMethods),
    tableOf(kSharedProperties),
    constantEntries(),
    reinterpret_cast<REALproc>(&InitBlockOf<ClassId::BaseChart>),
    reinterpret_cast<REALproc>(&BaseChartDestructor),
};
