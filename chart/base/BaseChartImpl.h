#pragma once

#include <string>
#include <vector>

#include "chart/base/BaseChart.h"
#include "foundation/Stream.h"
#include "text/template/ExtraFields.h"
#include "text/template/Formatter.h"

class LegendBoxImpl;

// What every chart kind shares: the canvas, the free objects in z order, the
// legend, titles, the frame, and the pipeline layout - paint - output.  A
// concrete chart derives from its public interface and from this class, builds
// its own state, calls initChart(), and provides the four hooks.
//
// paint() goes once through: sort the objects by z order; layout() (canvas and
// wallpaper, onLayoutLegend, the legend, onLayoutChart); objects up to z 4095;
// onPaint; the legend; the remaining objects; frame, edge, rounded corners and
// drop shadow.  Later calls paint only objects added since.
class BaseChartImpl : public virtual BaseChart {
public:
    // Objects up to this z order paint before the chart's content.
    static constexpr int kBackObjectsZ = 4095;

    void destroy() override { delete this; }
    void enableVectorOutput() override {}
    void setSize(int width, int height) override;
    int getWidth() const override { return width; }
    int getHeight() const override { return height; }
    int getWidthWithShadow() const override;
    int getHeightWithShadow() const override;
    int getAbsOffsetX() override;
    int getAbsOffsetY() override;

    void setBackground(int color, int edgeColor, int raisedEffect) override;
    void setBorder(int color) override { edgeColor = color; }
    void setRoundedFrame(int extColor, int r1, int r2, int r3, int r4) override;
    void setThickFrame(int thickness, int frameColor, int outerEdgeColor,
                       int innerEdgeColor) override;
    void setWallpaper(const char *path) override;
    void setBgImage(const char *path, int align) override;
    void setDropShadow(int color, int offsetX, int offsetY, int blurRadius) override;
    void setTransparentColor(int color) override;
    void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) override;
    void setSearchPath(const char *path) override;

    TextBox *addTitle2(int alignment, const char *text, const char *font, double fontSize,
                       int fontColor, int bgColor, int edgeColor) override;
    TextBox *addTitle(const char *text, const char *font, double fontSize, int fontColor,
                      int bgColor, int edgeColor) override;
    LegendBox *addLegend(int x, int y, bool vertical, const char *font, double fontSize) override;
    LegendBox *addLegend2(int x, int y, int noOfCols, const char *font, double fontSize) override;
    LegendBox *getLegend() override;
    DrawArea *getDrawArea() override;
    void setResource(const char *id, const char *data, int length) override;
    void setResource2(const char *id, DrawArea *d) override;
    DrawArea *initDynamicLayer() override;
    void removeDynamicLayer() override;

    TextBox *addText(int x, int y, const char *text, const char *font, double fontSize,
                     int fontColor, int alignment, double angle, bool vertical) override;
    Line *addLine(int x1, int y1, int x2, int y2, int color, int lineWidth) override;
    VSMLTable *addTable(int x, int y, int alignment, int cols, int rows) override;
    void addExtraField(StringArray texts) override { extraFields.addExtraField(texts); }
    void addExtraField2(DoubleArray numbers) override { extraFields.addExtraField(numbers); }

    void setColor(int paletteEntry, int color) override;
    void setColors(IntArray colors) override;
    void setColors2(int paletteEntry, IntArray colors) override;
    int getColor(int paletteEntry) override;
    int halfColor(int color) override;
    int adjustBrightness(int color, double brightness) override;
    int autoColor() override { return nextAutoColor++; }
    int dashLineColor(int color, int patternCode) override;
    int patternColor(IntArray colors, int height, int startX, int startY) override;
    int patternColor2(const char *file, int startX, int startY) override;
    int gradientColor(int startX, int startY, int endX, int endY, int startColor,
                      int endColor) override;
    int gradientColor2(IntArray colors, double angle, double scale, int startX,
                       int startY) override;
    int linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                            int endColor, bool periodic) override;
    int linearGradientColor2(int startX, int startY, int endX, int endY, IntArray colors,
                             bool periodic) override;
    int radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                            bool periodic) override;
    int radialGradientColor2(int cx, int cy, int rx, int ry, IntArray colors,
                             bool periodic) override;

    void setDefaultFonts(const char *normal, const char *bold, const char *italic,
                         const char *boldItalic) override;
    void setFontTable(int index, const char *font) override;
    void setNumberFormat(char thousandSeparator, char decimalPointChar, char signChar) override;
    void setMonthNames(StringArray names) override;
    void setWeekDayNames(StringArray names) override;
    void setAMPM(const char *am, const char *pm) override;
    const char *formatValue(double value, const char *formatString) override;

    LegendBox *layoutLegend() override;
    void layout() override;
    void setOutputOptions(const char *options) override;
    bool makeChart(const char *path) override;
    MemBlock makeChart2(int format) override;
    bool makeChart3(int format, const char **bytes, int *length) override;
    DrawArea *makeChart() override;
    const char *getJsChartModel(const char *options) override;
    const char *getHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                int offsetX, int offsetY) override;
    int getDynaMap() override { return -1; }
    const char *getChartMetrics() override;
    void setContainer(MultiChart *c) override { container = c; }
    int getFrameThickness() const override { return frameThickness; }
    DrawArea *getRawDrawArea() override { return drawArea; }
    Formatter *getFormatter() override { return &formatter; }
    bool formatCustomAttr(VSParser *, const char *) override { return false; }
    DoubleArray filterData(DoubleArray data) override { return data; }
    StringArray filterData2(StringArray data) override { return data; }
    DrawObj *addDrawObj(DrawObj *obj) override;
    double getProperty(int code) override;

protected:
    // A chart with the defaults of a new chart: 480 by 360, the default palette,
    // a white background.  The chart kind builds its state, then calls initChart.
    BaseChartImpl();
    ~BaseChartImpl() override;
    BaseChartImpl(const BaseChartImpl &) = delete;
    BaseChartImpl &operator=(const BaseChartImpl &) = delete;

    // The second step of a factory: setSize, then setBackground.
    void initChart(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    // The hooks, in the order the pipeline reaches them.  onLayoutLegend adds
    // the chart's keys to getLegend(); onLayoutChart lays out the content on the
    // prepared canvas; onPaint paints it, and may paint objects of the list
    // between parts of it with paintObjects(); onGetHTMLImageMap gives the image
    // map of the content with the offsets already adjusted, or null.
    virtual void onLayoutLegend() = 0;
    virtual void onLayoutChart() = 0;
    virtual void onPaint() = 0;
    virtual const char *onGetHTMLImageMap(const char *url, const char *queryFormat,
                                          const char *extraAttr, int offsetX, int offsetY) = 0;
    // Adds the chart kind's members to the client-side model.
    virtual void onJSONize(qlx::ostream &) {}

    // Runs the pipeline; repeated calls paint only what was added since.
    void paint();
    // Paints the objects from the paint cursor on while their z order is at
    // most maxZ.
    void paintObjects(int maxZ);
    // The chart's area that the titles on its sides leave, as inclusive
    // left, top, right, bottom; lays the titles out.
    void getFreeArea(int *left, int *top, int *right, int *bottom);
    // The legend if the application asked for one; null otherwise.
    LegendBoxImpl *existingLegend() const { return legend; }
    // The chart-level {fieldN} columns.
    ExtraFields *getExtraFields() { return &extraFields; }
    // Keeps text for the caller until the next such call.
    const char *keepText(const std::string &text);

private:
    class TitleTextBox;

    void prepareCanvas();
    void drawWallpaper();
    void paintFrame();
    bool hasShadow() const;

    int width;
    int height;
    DrawArea *drawArea;
    Formatter formatter;
    LegendBoxImpl *legend;
    MultiChart *container;
    std::string scratchText;
    bool layoutDone;
    bool legendLayoutDone;
    int edgeColor;
    std::string wallpaperPath;
    int wallpaperAlign;
    bool backgroundReady;
    int raisedEffect;
    int cornerRadius[4];
    int frameExteriorColor;
    int frameThickness;
    int frameColor;
    int frameInnerEdgeColor;
    int shadowColor;
    int shadowOffsetX;
    int shadowOffsetY;
    int shadowBlur;
    std::vector<DrawObj *> drawObjs;
    int paintCursor;
    int nextAutoColor;
    ExtraFields extraFields;
    std::vector<TitleTextBox *> titles;
};
