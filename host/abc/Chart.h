#pragma once

#include "api/CChart.h"
#include "api/CDrawArea.h"
#include "host/abc/Views.h"

namespace abc {

// The statics of the engine's Chart class.
class Chart {
public:
    static constexpr double kNoValue = CChart_kNoValue;
    static constexpr double kLogTick = CChart_kLogTick;
    static constexpr double kLinearTick = CChart_kLinearTick;
    static constexpr double kTickInc = CChart_kTickInc;
    static constexpr double kMinorTickOnly = CChart_kMinorTickOnly;
    static constexpr double kMicroTickOnly = CChart_kMicroTickOnly;
    static constexpr double kDataBound = CChart_kDataBound;
    static constexpr double kTouchBar = CChart_kTouchBar;

    static double chartTime(int y, int m, int d, int h, int mi, int s) {
        return CChart_chartTime(y, m, d, h, mi, s);
    }
    static double chartTime2(int unixTime) { return CChart_chartTime2(unixTime); }
    static int getChartYMD(double t) { return CChart_getChartYMD(t); }
    static int getChartWeekDay(double t) { return CChart_getChartWeekDay(t); }
    static int xySize(int w, int h) { return CChart_xySize(w, h); }
    static int getWidthFromWH(int v) { return CChart_getWidthFromWH(v); }
    static int getHeightFromWH(int v) { return CChart_getHeightFromWH(v); }
    static double bSearch(DoubleArray a, double v) { return CChart_bSearch(a.data, a.len, v); }

    static int encodeIntensity(double v) { return CChart_encodeIntensity(v); }
    static double decodeIntensity(int code) { return CChart_decodeIntensity(code); }
    static int flatBorder(int thickness) { return CChart_flatBorder(thickness); }
    static bool isFlatBorder(int word) { return CChart_isFlatBorder(word); }
    static int glassEffect(int glareSize, int glareDirection, int raisedEffect) {
        return CChart_glassEffect(glareSize, glareDirection, raisedEffect);
    }
    static int softLighting(int direction, int raisedEffect) {
        return CChart_softLighting(direction, raisedEffect);
    }
    static int cylinderEffect(int orientation, double ambient, double diffuse, double specular,
                              int shininess) {
        return CChart_cylinderEffect(orientation, ambient, diffuse, specular, shininess);
    }
    static int encodeCylinderOrientation(int orientation) {
        return CChart_encodeCylinderOrientation(orientation);
    }
    static bool isCylinderEffect(int word) { return CChart_isCylinderEffect(word); }
    static int getCylinderOrientation(int word) { return CChart_getCylinderOrientation(word); }
    static int phongLighting(double ambient, double diffuse, double specular, int shininess) {
        return CChart_phongLighting(ambient, diffuse, specular, shininess);
    }
    static int setDefaultCylinderOrientation(int word, int orientation) {
        return CChart_setDefaultCylinderOrientation(word, orientation);
    }
    static int barLighting(double startBrightness, double endBrightness) {
        return CChart_barLighting(startBrightness, endBrightness);
    }
    static bool isBarLighting(int word) { return CChart_isBarLighting(word); }
    static int ClearTypeColor(double gamma) { return CChart_ClearTypeColor(gamma); }
    static int ClearTypeMono(double gamma) { return CChart_ClearTypeMono(gamma); }
    static int metalColor(int color, int angle) { return CChart_metalColor(color, angle); }
    static int goldColor(int angle) { return CChart_goldColor(angle); }
    static int silverColor(int angle) { return CChart_silverColor(angle); }
    static int brushedMetalColor(int color, int texture, int angle) {
        return CChart_brushedMetalColor(color, texture, angle);
    }
    static int brushedSilverColor(int texture, int angle) {
        return CChart_brushedSilverColor(texture, angle);
    }
    static int brushedGoldColor(int texture, int angle) {
        return CChart_brushedGoldColor(texture, angle);
    }

    static IntArray defaultPalette() { return table(CChart_defaultPalette); }
    static IntArray whiteOnBlackPalette() { return table(CChart_whiteOnBlackPalette); }
    static IntArray transparentPalette() { return table(CChart_transparentPalette); }
    static IntArray goldGradient() { return table(CChart_goldGradient); }
    static IntArray silverGradient() { return table(CChart_silverGradient); }
    static IntArray redMetalGradient() { return table(CChart_redMetalGradient); }
    static IntArray blueMetalGradient() { return table(CChart_blueMetalGradient); }
    static IntArray greenMetalGradient() { return table(CChart_greenMetalGradient); }

    // Font lookup report, and the user's font search path.
    static const char *testFont(const char *font, int fontIndex, double fontHeight,
                                double fontWidth);
    static void setFontSearchPath(const char *path) { CDrawArea_setCustomFontSearchPath(path); }
    static const char *getFontSearchPath() { return CDrawArea_getCustomFontSearchPath(); }
    static const char *getMediaType(int imageType) { return CDrawArea_getMediaType(imageType); }
    static int getImageType(MemBlock data) { return CDrawArea_getImageType(data.len, data.data); }
    // Process-wide resources and settings ("@PixelLimit", "@FileLimit", "@TextAA").
    static void setGlobalResource(const char *id, MemBlock data) {
        CDrawArea_setGlobalResource(id, data.data, data.len);
    }
    static int getPixelLimit() { return CDrawArea_getPixelLimit(); }
    static int getFileLimit() { return CDrawArea_getFileLimit(); }
    static int getDefaultTextAA() { return CDrawArea_getDefaultTextAA(); }

private:
    static IntArray table(void (*get)(const int **, int *)) {
        IntArray a = {0, nullptr};
        get(&a.data, &a.len);
        return a;
    }
};

}  // namespace abc
