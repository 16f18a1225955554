#pragma once

#include "foundation/ArrayViews.h"
#include "text/box/BoxContainer.h"

class DrawArea;
class DrawObj;
class Formatter;
class LegendBox;
class Line;
class MultiChart;
class TextBox;
class VSMLTable;
class VSParser;

// The root of every chart kind.  A chart owns its canvas and everything it
// hands out (titles, texts, lines, tables, the legend): they die with it.
// Setters only store; makeChart lays the chart out, paints it and gives the
// picture.
class BaseChart : public BoxContainer {
public:
    // Deletes the chart and everything it owns.
    virtual void destroy() = 0;

    // Charts always record vector-ready drawing; kept for the host interface.
    virtual void enableVectorOutput() = 0;
    virtual void setSize(int width, int height) = 0;
    int getWidth() const override = 0;
    int getHeight() const override = 0;
    // The size of the picture with its drop shadow.
    virtual int getWidthWithShadow() const = 0;
    virtual int getHeightWithShadow() const = 0;
    // Where this chart stands in the picture of the charts that hold it.
    virtual int getAbsOffsetX() = 0;
    virtual int getAbsOffsetY() = 0;

    virtual void setBackground(int color, int edgeColor, int raisedEffect) = 0;
    virtual void setBorder(int color) = 0;
    // -1 for r2 to r4 takes r1.
    virtual void setRoundedFrame(int extColor, int r1, int r2, int r3, int r4) = 0;
    virtual void setThickFrame(int thickness, int frameColor, int outerEdgeColor,
                               int innerEdgeColor) = 0;
    // A picture tiled over the background; setBgImage places one at an alignment.
    virtual void setWallpaper(const char *path) = 0;
    virtual void setBgImage(const char *path, int align) = 0;
    // A transparent colour means no shadow; an offsetY of 0x7FFFFFFF takes offsetX.
    virtual void setDropShadow(int color, int offsetX, int offsetY, int blurRadius) = 0;
    virtual void setTransparentColor(int color) = 0;
    virtual void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) = 0;
    virtual void setSearchPath(const char *path) = 0;

    virtual TextBox *addTitle2(int alignment, const char *text, const char *font, double fontSize,
                               int fontColor, int bgColor, int edgeColor) = 0;
    // A title at the top centre.
    virtual TextBox *addTitle(const char *text, const char *font, double fontSize, int fontColor,
                              int bgColor, int edgeColor) = 0;
    virtual LegendBox *addLegend(int x, int y, bool vertical, const char *font,
                                 double fontSize) = 0;
    // noOfCols 0 lets keys flow, -2 makes as many columns as fit.
    virtual LegendBox *addLegend2(int x, int y, int noOfCols, const char *font,
                                  double fontSize) = 0;
    // Never null: made on first use.
    virtual LegendBox *getLegend() = 0;
    // The canvas with the chart's background on it, for drawing beneath the chart.
    virtual DrawArea *getDrawArea() = 0;
    virtual void setResource(const char *id, const char *data, int length) = 0;
    virtual void setResource2(const char *id, DrawArea *d) = 0;
    virtual DrawArea *initDynamicLayer() = 0;
    virtual void removeDynamicLayer() = 0;

    virtual TextBox *addText(int x, int y, const char *text, const char *font, double fontSize,
                             int fontColor, int alignment, double angle, bool vertical) = 0;
    virtual Line *addLine(int x1, int y1, int x2, int y2, int color, int lineWidth) = 0;
    virtual VSMLTable *addTable(int x, int y, int alignment, int cols, int rows) = 0;
    virtual void addExtraField(StringArray texts) = 0;
    virtual void addExtraField2(DoubleArray numbers) = 0;

    // Palette entries; setColors loads from entry 0 up to an entry of -1,
    // setColors2 from the entry given up to 0xFFFFFFFF.
    virtual void setColor(int paletteEntry, int color) = 0;
    virtual void setColors(IntArray colors) = 0;
    virtual void setColors2(int paletteEntry, IntArray colors) = 0;
    virtual int getColor(int paletteEntry) = 0;
    virtual int halfColor(int color) = 0;
    virtual int adjustBrightness(int color, double brightness) = 0;
    // The next data colour of the palette, one a call.
    virtual int autoColor() = 0;
    virtual int dashLineColor(int color, int patternCode) = 0;
    virtual int patternColor(IntArray colors, int height, int startX, int startY) = 0;
    virtual int patternColor2(const char *file, int startX, int startY) = 0;
    virtual int gradientColor(int startX, int startY, int endX, int endY, int startColor,
                              int endColor) = 0;
    virtual int gradientColor2(IntArray colors, double angle, double scale, int startX,
                               int startY) = 0;
    virtual int linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                                    int endColor, bool periodic) = 0;
    virtual int linearGradientColor2(int startX, int startY, int endX, int endY, IntArray colors,
                                     bool periodic) = 0;
    virtual int radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                                    bool periodic) = 0;
    virtual int radialGradientColor2(int cx, int cy, int rx, int ry, IntArray colors,
                                     bool periodic) = 0;

    virtual void setDefaultFonts(const char *normal, const char *bold, const char *italic,
                                 const char *boldItalic) = 0;
    virtual void setFontTable(int index, const char *font) = 0;
    virtual void setNumberFormat(char thousandSeparator, char decimalPointChar, char signChar) = 0;
    virtual void setMonthNames(StringArray names) = 0;
    virtual void setWeekDayNames(StringArray names) = 0;
    virtual void setAMPM(const char *am, const char *pm) = 0;
    // The value formatted by a bare format or by the {value} fields of a
    // template; valid until the next call that returns text.
    virtual const char *formatValue(double value, const char *formatString) = 0;

    // Each runs once; an application may call them early to ask for coordinates.
    virtual LegendBox *layoutLegend() = 0;
    virtual void layout() = 0;
    virtual void setOutputOptions(const char *options) = 0;
    // By file extension; a null or empty path writes nothing and succeeds.
    virtual bool makeChart(const char *path) = 0;
    // The picture in an image format (kPNG ... kPDF); the bytes live in the
    // canvas until its next output.
    virtual MemBlock makeChart2(int format) = 0;
    virtual bool makeChart3(int format, const char **bytes, int *length) = 0;
    // The painted canvas.
    virtual DrawArea *makeChart() = 0;
    virtual const char *getJsChartModel(const char *options) = 0;
    virtual const char *getHTMLImageMap(const char *url, const char *queryFormat,
                                        const char *extraAttr, int offsetX, int offsetY) = 0;
    virtual int getDynaMap() = 0;
    // "w=..&h=..&vl=..&vt=..&vw=..&vh=..": canvas size and view area.
    virtual const char *getChartMetrics() = 0;
    virtual void setContainer(MultiChart *container) = 0;
    virtual int getFrameThickness() const = 0;
    // The canvas as it is, not prepared.
    virtual DrawArea *getRawDrawArea() = 0;
    virtual Formatter *getFormatter() = 0;
    // Fills a chart-specific template attribute; false when it is not one.
    virtual bool formatCustomAttr(VSParser *parser, const char *attrName) = 0;
    virtual DoubleArray filterData(DoubleArray data) = 0;
    virtual StringArray filterData2(StringArray data) = 0;
    // Takes the object into the chart's paint list; returns it.
    virtual DrawObj *addDrawObj(DrawObj *obj) = 0;
    // 0x100 + alignment: rounded frame radius at that corner; 0x200 + 2, 4, 6,
    // 8: bottom, left, right, top of the view area.
    double getProperty(int code) override = 0;

protected:
    ~BaseChart() override {}
};
