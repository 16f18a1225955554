#pragma once

#include "api/chart/CBaseChart.h"
#include "host/abc/DrawArea.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/UniqueObjContainer.h"
#include "host/abc/Views.h"

namespace abc {

class LegendBox;
class TextBox;
class VSLine;
class VSMLTable;

// The root of the chart wrappers.  Wrappers of one engine chart share a count;
// the last one to go destroys the chart, then its canvas wrappers and the
// wrappers it handed out go.  A borrowed wrapper has no count and destroys
// nothing: its chart belongs to another chart.
class BaseChart : public GarbageContainer {
public:
    // Takes the chart over, the count at 1.
    explicit BaseChart(CBaseChart *handle);
    // Another wrapper of the same chart, sharing the count.
    BaseChart(const BaseChart &other);
    BaseChart &operator=(const BaseChart &) = delete;
    ~BaseChart() override;
    // A wrapper of a chart that something else destroys.
    static BaseChart *borrow(CBaseChart *handle);

    CBaseChart *getHandle() const { return handle; }
    static CBaseChart *handleOf(const BaseChart *c) { return c ? c->handle : nullptr; }
    // Wrappers sharing this one's count, this one included; 0 when borrowed.
    int getRefCount() const { return refCount ? *refCount : 0; }

    void enableVectorOutput() { CBaseChart_enableVectorOutput(handle); }
    void setSize(int width, int height) { CBaseChart_setSize(handle, width, height); }
    int getWidth() { return CBaseChart_getWidth(handle); }
    int getHeight() { return CBaseChart_getHeight(handle); }
    int getWidthWithShadow() { return CBaseChart_getWidthWithShadow(handle); }
    int getHeightWithShadow() { return CBaseChart_getHeightWithShadow(handle); }
    int getAbsOffsetX() { return CBaseChart_getAbsOffsetX(handle); }
    int getAbsOffsetY() { return CBaseChart_getAbsOffsetY(handle); }

    void setBackground(int color, int edgeColor, int raisedEffect) {
        CBaseChart_setBackground(handle, color, edgeColor, raisedEffect);
    }
    void setBorder(int color) { CBaseChart_setBorder(handle, color); }
    void setRoundedFrame(int extColor, int r1, int r2, int r3, int r4) {
        CBaseChart_setRoundedFrame(handle, extColor, r1, r2, r3, r4);
    }
    void setThickFrame(int thickness, int frameColor, int outerEdgeColor, int innerEdgeColor) {
        CBaseChart_setThickFrame(handle, thickness, frameColor, outerEdgeColor, innerEdgeColor);
    }
    void setWallpaper(const char *path) { CBaseChart_setWallpaper(handle, path); }
    void setBgImage(const char *path, int align) { CBaseChart_setBgImage(handle, path, align); }
    void setDropShadow(int color, int offsetX, int offsetY, int blurRadius) {
        CBaseChart_setDropShadow(handle, color, offsetX, offsetY, blurRadius);
    }
    void setTransparentColor(int color) { CBaseChart_setTransparentColor(handle, color); }
    void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) {
        CBaseChart_setAntiAlias(handle, shapeAntiAlias, textAntiAlias);
    }
    void setSearchPath(const char *path) { CBaseChart_setSearchPath(handle, path); }

    // The parts below belong to the chart; their wrappers to this wrapper.
    TextBox *addTitle2(int alignment, const char *text, const char *font, double fontSize,
                       int fontColor, int bgColor, int edgeColor);
    TextBox *addTitle(const char *text, const char *font, double fontSize, int fontColor,
                      int bgColor, int edgeColor);
    LegendBox *addLegend(int x, int y, bool vertical, const char *font, double fontSize);
    LegendBox *addLegend2(int x, int y, int noOfCols, const char *font, double fontSize);
    LegendBox *getLegend();
    DrawArea *getDrawArea() { return drawAreas.get(CBaseChart_getDrawArea(handle)); }
    void setResource(const char *id, MemBlock data) {
        CBaseChart_setResource(handle, id, data.data, data.len);
    }
    void setResource2(const char *id, DrawArea *d) {
        CBaseChart_setResource2(handle, id, DrawArea::handleOf(d));
    }
    DrawArea *initDynamicLayer() { return drawAreas.get(CBaseChart_initDynamicLayer(handle)); }
    void removeDynamicLayer() { CBaseChart_removeDynamicLayer(handle); }
    TextBox *addText(int x, int y, const char *text, const char *font, double fontSize,
                     int fontColor, int alignment, double angle, bool vertical);
    VSLine *addLine(int x1, int y1, int x2, int y2, int color, int lineWidth);
    VSMLTable *addTable(int x, int y, int alignment, int cols, int rows);
    void addExtraField(StringArray texts) {
        CBaseChart_addExtraField(handle, texts.data, texts.len);
    }
    void addExtraField2(DoubleArray numbers) {
        CBaseChart_addExtraField2(handle, numbers.data, numbers.len);
    }

    void setColor(int paletteEntry, int color) { CBaseChart_setColor(handle, paletteEntry, color); }
    void setColors(IntArray colors) { CBaseChart_setColors(handle, colors.data, colors.len); }
    void setColors2(int paletteEntry, IntArray colors) {
        CBaseChart_setColors2(handle, paletteEntry, colors.data, colors.len);
    }
    int getColor(int paletteEntry) { return CBaseChart_getColor(handle, paletteEntry); }
    int halfColor(int color) { return CBaseChart_halfColor(handle, color); }
    int adjustBrightness(int color, double brightness) {
        return CBaseChart_adjustBrightness(handle, color, brightness);
    }
    int autoColor() { return CBaseChart_autoColor(handle); }
    int dashLineColor(int color, int patternCode) {
        return CBaseChart_dashLineColor(handle, color, patternCode);
    }
    int patternColor(IntArray colors, int height, int startX, int startY) {
        return CBaseChart_patternColor(handle, colors.data, colors.len, height, startX, startY);
    }
    int patternColor2(const char *file, int startX, int startY) {
        return CBaseChart_patternColor2(handle, file, startX, startY);
    }
    int gradientColor(int startX, int startY, int endX, int endY, int startColor, int endColor) {
        return CBaseChart_gradientColor(handle, startX, startY, endX, endY, startColor, endColor);
    }
    int gradientColor2(IntArray colors, double angle, double scale, int startX, int startY) {
        return CBaseChart_gradientColor2(handle, colors.data, colors.len, angle, scale, startX,
                                         startY);
    }
    int linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                            int endColor, bool periodic) {
        return CBaseChart_linearGradientColor(handle, startX, startY, endX, endY, startColor,
                                              endColor, periodic);
    }
    int linearGradientColor2(int startX, int startY, int endX, int endY, IntArray colors,
                             bool periodic) {
        return CBaseChart_linearGradientColor2(handle, startX, startY, endX, endY, colors.data,
                                               colors.len, periodic);
    }
    int radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                            bool periodic) {
        return CBaseChart_radialGradientColor(handle, cx, cy, rx, ry, startColor, endColor,
                                              periodic);
    }
    int radialGradientColor2(int cx, int cy, int rx, int ry, IntArray colors, bool periodic) {
        return CBaseChart_radialGradientColor2(handle, cx, cy, rx, ry, colors.data, colors.len,
                                               periodic);
    }

    void setDefaultFonts(const char *normal, const char *bold, const char *italic,
                         const char *boldItalic) {
        CBaseChart_setDefaultFonts(handle, normal, bold, italic, boldItalic);
    }
    void setFontTable(int index, const char *font) { CBaseChart_setFontTable(handle, index, font); }
    void setNumberFormat(char thousandSeparator, char decimalPointChar, char signChar) {
        CBaseChart_setNumberFormat(handle, thousandSeparator, decimalPointChar, signChar);
    }
    void setMonthNames(StringArray names) {
        CBaseChart_setMonthNames(handle, names.data, names.len);
    }
    void setWeekDayNames(StringArray names) {
        CBaseChart_setWeekDayNames(handle, names.data, names.len);
    }
    void setAMPM(const char *am, const char *pm) { CBaseChart_setAMPM(handle, am, pm); }
    const char *formatValue(double value, const char *formatString) {
        return CBaseChart_formatValue(handle, value, formatString);
    }

    LegendBox *layoutLegend();
    void layout() { CBaseChart_layout(handle); }
    void setOutputOptions(const char *options) { CBaseChart_setOutputOptions(handle, options); }
    bool makeChart(const char *path) { return CBaseChart_makeChart(handle, path); }
    // Valid until the chart's canvas makes new output.
    MemBlock makeChart2(int format) {
        MemBlock b = {0, nullptr};
        CBaseChart_makeChart2(handle, format, &b.data, &b.len);
        return b;
    }
    DrawArea *makeChart() { return drawAreas.get(CBaseChart_makeChart4(handle)); }
    const char *getJsChartModel(const char *options) {
        return CBaseChart_getJsChartModel(handle, options);
    }
    const char *getHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                int offsetX, int offsetY) {
        return CBaseChart_getHTMLImageMap(handle, url, queryFormat, extraAttr, offsetX, offsetY);
    }
    int getDynaMap() { return CBaseChart_getDynaMap(handle); }
    const char *getChartMetrics() { return CBaseChart_getChartMetrics(handle); }
    int getFrameThickness() { return CBaseChart_getFrameThickness(handle); }
    DrawArea *getRawDrawArea() { return drawAreas.get(CBaseChart_getRawDrawArea(handle)); }
    DoubleArray filterData(DoubleArray data) {
        DoubleArray out = {0, nullptr};
        CBaseChart_filterData(handle, data.data, data.len, &out.data, &out.len);
        return out;
    }
    double getProperty(int code) { return CBaseChart_getProperty(handle, code); }

protected:
    // refCount null: borrowed.
    BaseChart(CBaseChart *handle, int *refCount);

private:
    // The legend is one object per chart: one wrapper.
    LegendBox *legendOf(CLegendBox *legend);

    CBaseChart *handle;
    int *refCount;
    UniqueObjContainer<DrawArea> drawAreas;
    LegendBox *legend;
};

}  // namespace abc
