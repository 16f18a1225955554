#pragma once

#include <atomic>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "draw/canvas/ColorModel.h"
#include "draw/canvas/DrawArea.h"
#include "draw/list/MetaDrawOwner.h"
#include "draw/pixel/ColorWords.h"
#include "draw/pixel/ImageOps.h"
#include "foundation/Stream.h"

// The canvas.  Records every drawing call into its display list and keeps the
// raster only as a cache that is brought up to date by replay.
class DrawAreaImpl : public DrawArea, public MetaDrawOwner {
public:
    DrawAreaImpl();

    void retain() override;
    void destroy() override;

    DrawBMP *getRaster() override;
    void enableVectorOutput(bool) override {}
    void initDynamicLayer() override;
    void removeDynamicLayer() override;

    void setSize(int width, int height, int bgColor) override;
    void resize(int newWidth, int newHeight, int filter, double blur) override;
    int getWidth() const override { return width; }
    int getHeight() const override { return height; }
    void setClipRect(int left, int top, int right, int bottom) override;
    void getClipRect(int *left, int *top, int *right, int *bottom) const override;
    void setBgColor(int color) override;
    void setBgDropShadow(int color, int offsetX, int offsetY, int blurRadius) override;
    void frameRect(double x1, double y1, double x2, double y2, const int radius[4], int n,
                   int color) override;

    void move(double xOffset, double yOffset, int bgColor, int filter, double blur) override;
    void rotate(double angle, int bgColor, double cx, double cy, int filter, double blur) override;
    void hFlip() override;
    void vFlip() override;
    void clone(DrawArea *d, int x, int y, int align, int newWidth, int newHeight, int filter,
               double blur) override;

    void pixel(int x, int y, int color) override;
    int getPixel(int x, int y) override;
    void commitSuperPixels() override;

    void hline(int x1, int x2, int y, int color) override;
    void vline(int y1, int y2, int x, int color) override;
    void line(double x1, double y1, double x2, double y2, int color, int lineWidth) override;
    void rawRect(double x1, double y1, double x2, double y2, int color) override;
    void rawMultiRect(IntArray coords, int color) override;
    void rawExactLine(double x1, double y1, double x2, double y2, int color,
                      int lineWidth) override;
    void arc(double cx, double cy, double rx, double ry, double a1, double a2, int color) override;
    void rect(double x1, double y1, double x2, double y2, int edgeColor, int fillColor,
              int raisedEffect) override;
    void roundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                     const int edgeColor[4], int fillColor) override;
    void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) override;
    void rawPolyline(DoubleArray x, DoubleArray y, int color, int lineWidth) override;
    void polygon2(IntArray x, IntArray y, int edgeColor, int fillColor) override;
    void polygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) override;
    void curve(DoubleArray x, DoubleArray y, int color, int lineWidth) override;
    void polyShape(DoubleArray xy, int edgeColor, int fillColor) override;
    void surface(double x1, double y1, double x2, double y2, double depthX, double depthY,
                 int edgeColor, int fillColor) override;
    void sector(double cx, double cy, double rx, double ry, double a1, double a2, int edgeColor,
                int fillColor) override;
    void cylinder(double cx, double cy, double rx, double ry, double a1, double a2, double depthX,
                  double depthY, int edgeColor, int fillColor) override;
    void circle(double cx, double cy, double rx, double ry, int edgeColor, int fillColor) override;
    void ringSector(double cx, double cy, double rx, double ry, double rx2, double ry2, double a1,
                    double a2, int edgeColor, int fillColor) override;
    void ring(double cx, double cy, double rx, double ry, double rx2, double ry2, int edgeColor,
              int fillColor) override;
    void gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                         double x2, double y2, double i2, int color) override;
    void fill2(int x, int y, int color, int borderColor) override;
    void fill(int x, int y, int color) override;

    TTFText *text(const char *str, const char *font, double fontSize) override;
    TTFText *textw(const wchar_t *str, const char *font, double fontSize) override;
    TTFText *text2(const char *str, const char *font, int fontIndex, double fontHeight,
                   double fontWidth, double angle, bool vertical) override;
    TTFText *text2w(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                    double fontWidth, double angle, bool vertical) override;
    void text3(const char *str, const char *font, double fontSize, int x, int y,
               int color) override;
    void text3w(const wchar_t *str, const char *font, double fontSize, int x, int y,
                int color) override;
    void text4(const char *str, const char *font, int fontIndex, double fontHeight,
               double fontWidth, double angle, bool vertical, int x, int y, int color,
               int alignment) override;
    void text4w(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                double fontWidth, double angle, bool vertical, int x, int y, int color,
                int alignment) override;
    void textBlock(const char *str, const char *font, int fontIndex, double fontHeight,
                   double fontWidth, double angle, int x, int y, int maxWidth, int maxLines,
                   int color, int alignment) override;
    void textBlockw(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                    double fontWidth, double angle, int x, int y, int maxWidth, int maxLines,
                    int color, int alignment) override;
    void renderVSML(const char *markup) override;

    void merge(DrawArea *d, int x, int y, int align, int transparency) override;
    void mergeScaled(DrawArea *d, int x, int y, int width, int height, int transparency) override;
    void mergeRotated(DrawArea *d, double x, double y, double angle) override;
    void mergeAtPoints(DrawArea *d, IntArray xy, int align) override;
    void tile(DrawArea *d, int transparency) override;

    void setSearchPath(const char *path) override;
    bool loadGIF(const char *path) override;
    bool loadPNG(const char *path) override;
    bool loadJPG(const char *path) override;
    bool loadBMP(const char *path) override;
    bool loadWMP(const char *path) override;
    bool load(const char *path) override;
    bool load2(int length, const char *data, int imgType) override;

    void rAffineTransform(double a, double b, double c, double d, double e, double f, int bgColor,
                          int filter, double blur) override;
    void affineTransform(double a, double b, double c, double d, double e, double f, int bgColor,
                         int filter, double blur) override;
    void waveTransform(double period, double amplitude, double phase, int bgColor) override;
    void sphereTransform(int bgColor) override;
    void hCylinderTransform(int bgColor) override;
    void vCylinderTransform(int bgColor) override;
    void vTriangleTransform(int bgColor) override;
    void hTriangleTransform(int bgColor) override;
    void shearTransform(double xShear, double yShear, int bgColor, int filter,
                        double blur) override;

    bool out(const char *path) override;
    bool outGIF(const char *path) override;
    bool outPNG(const char *path) override;
    bool outJPG(const char *path, int quality) override;
    bool outWMP(const char *path) override;
    bool outBMP(const char *path) override;
    bool outSVG(const char *path, const char *options) override;
    bool outPDF(const char *path) override;
    bool outAGF(const char *path) override;
    MemBlock outGIF2() override;
    MemBlock outPNG2() override;
    MemBlock outJPG2(int quality) override;
    MemBlock outWMP2() override;
    MemBlock outBMP2() override;
    MemBlock outSVG2(const char *options) override;
    MemBlock outPDF2() override;
    MemBlock outAGF2() override;
    MemBlock outAlpha2() override;
    void setOutputOptions(const char *options) override;

    void setPaletteMode(int value) override { paletteMode = value; }
    void setDitherMethod(int value) override { ditherMethod = value; }
    void setTransparentColor(int color) override { transparentColor = color; }
    void setAntiAliasText(int value) override { antiAliasText = value; }
    void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) override;
    void setInterlace(int value) override { interlace = value; }
    void setColorTable(int index, int color) override { colors()->setColorTable(index, color); }
    void setColorTable(IntArray table, int offset) override {
        colors()->setColorTable(table, offset);
    }
    void setColorTableRaw(IntArray table, int offset) override {
        colors()->setColorTableRaw(table, offset);
    }
    int getARGBColor(int color) override { return colors()->getARGBColor(color); }
    const int *mapColors(IntArray table) override { return colors()->mapColors(table); }
    const int *mapColorPairs(IntArray pairs) override { return colors()->mapColorPairs(pairs); }
    bool isOpaque(int color) override { return colors()->isOpaque(color); }
    bool isSpecialColor(int color) override { return ColorModel::isSpecialColor(color); }
    int halfColor(int color) override { return colors()->halfColor(color); }
    int adjustBrightness(int color, double brightness) override {
        return colors()->adjustBrightness(color, brightness);
    }
    int allocDynColor() override { return colors()->allocDynColor(); }
    bool isDynamicColor(int color) override { return ColorWord::isDynamicHandle(color); }
    void freeDynColor(int color) override { colors()->freeDynColor(color); }
    void reserveDynColor(int color) override { colors()->reserveDynColor(color); }

    int dashLineColor(int color, int patternCode) override {
        return colors()->dashLineColor(color, patternCode);
    }
    int patternColor(IntArray pixels, int h, int startX, int startY) override {
        return colors()->patternColor(pixels, h, startX, startY);
    }
    int patternColor2(const char *file, int startX, int startY) override {
        return colors()->patternColor(file, startX, startY);
    }
    int gradientColor(int startX, int startY, int endX, int endY, int startColor,
                      int endColor) override {
        return colors()->gradientColor(startX, startY, endX, endY, startColor, endColor);
    }
    int gradientColor2(IntArray table, double angle, double scale, int startX,
                       int startY) override {
        return colors()->gradientColor(table, angle, scale, startX, startY);
    }
    int linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                            int endColor, bool periodic) override {
        return colors()->linearGradientColor(startX, startY, endX, endY, startColor, endColor,
                                             periodic);
    }
    int linearGradientColor2(int startX, int startY, int endX, int endY, IntArray table,
                             bool periodic) override {
        return colors()->linearGradientColor(startX, startY, endX, endY, table, periodic);
    }
    int radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                            bool periodic) override {
        return colors()->radialGradientColor(cx, cy, rx, ry, startColor, endColor, periodic);
    }
    int radialGradientColor2(int cx, int cy, int rx, int ry, IntArray table,
                             bool periodic) override {
        return colors()->radialGradientColor(cx, cy, rx, ry, table, periodic);
    }
    int angleGradientColor(double cx, double cy, double startAngle, double endAngle,
                           double innerRadius, double outerRadius, IntArray table) override {
        return colors()->angleGradientColor(cx, cy, startAngle, endAngle, innerRadius, outerRadius,
                                            table);
    }
    int lightingColor(int color, IntArray lighting, double angle) override {
        return colors()->lightingColor(color, lighting, angle);
    }
    int linearLightingColor(double x1, double y1, double x2, double y2, int color,
                            IntArray lighting, bool periodic) override {
        return colors()->linearLightingColor(x1, y1, x2, y2, color, lighting, periodic);
    }
    int radialLightingColor(int cx, int cy, int rx, int ry, int color, IntArray lighting) override {
        return colors()->radialLightingColor(cx, cy, rx, ry, color, lighting);
    }
    int relativeLightingColor(double x1, double y1, double x2, double y2, int color,
                              IntArray lighting, bool periodic) override {
        return colors()->relativeLightingColor(x1, y1, x2, y2, color, lighting, periodic);
    }
    int multiLayerColor(IntArray layers) override { return colors()->multiLayerColor(layers); }
    int brushedTextureColor(int color, int strength) override {
        return colors()->brushedTextureColor(color, strength);
    }
    int relativeLinearGradient(IntArray gradient, double angle, double radius) override {
        return colors()->relativeLinearGradient(gradient, angle, radius);
    }
    int relativeRadialGradient(IntArray gradient, double radius) override {
        return colors()->relativeRadialGradient(gradient, radius, width, height);
    }
    int xZoneColor(int boundary, int leftColor, int rightColor) override {
        return colors()->xZoneColor(boundary, leftColor, rightColor);
    }
    int yZoneColor(int boundary, int topColor, int bottomColor) override {
        return colors()->yZoneColor(boundary, topColor, bottomColor);
    }
    int transformedColor(int color, const double m[6]) override {
        return colors()->transformedColor(color, m);
    }
    int preciseTransformColor(int color, const double m[6]) override {
        return colors()->preciseTransformColor(color, m);
    }
    int rectColor(double x1, double y1, double x2, double y2, int color) override {
        return colors()->rectColor(x1, y1, x2, y2, color);
    }

    void setDefaultFonts(const char *normal, const char *bold, const char *italic,
                         const char *boldItalic) override;
    void setFontTable(int index, const char *font) override;
    const char *resolveFont(const char *name) override;
    char *getResourceData(const char *id, int *length) override;
    DrawArea *createSubDrawArea(int width, int height) override;
    void removeObject(int index) override;
    const char *getFontTableEntry(int index) override;
    void beginSuperPixelMode() override;
    DrawAreaObject *getFontAttr(const char *name) override;
    void addFontAttr(const char *name, DrawAreaObject *attr) override;
    int addObject(DrawAreaObject *obj) override;
    DrawAreaObject *getObject(int index) override;
    void setResource(const char *id, const char *data, int length) override;
    void setResource2(const char *id, DrawArea *d) override;
    DrawArea *getDrawAreaResource(const char *id) override;
    void drawPath(DoubleArray xy, int edgeColor, int fillColor, int lineWidth) override;
    void smoothPolygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) override;
    char *loadFile(const char *path, int limit, int *length) override;
    DrawBMP *createRaster() override;
    bool writeSVGStream(qlx::ostream &out, const char *options) override;
    void writeAGFStream(qlx::ostream &out) override;

    MetaDraw *getMetaDraw() override { return metaDraw; }

    int getTextAAMode() const override;

    int getReplayPos() const { return replayPos; }

protected:
    friend class SubDrawArea;
    ~DrawAreaImpl() override;
    // The palette and dynamic colours this canvas uses; a sub-canvas shares its
    // parent's.
    virtual ColorModel *colors() { return &colorModel; }
    // The raster a new raster of this canvas copies its set-up from.
    virtual DrawBMP *getTemplateRaster() { return nullptr; }
    // Plays the whole list on the SVG (kSVG) or PDF (kPDF) back end into out.
    virtual bool playVector(int imageType, qlx::ostream &out);
    void destroyRaster();

private:
    void warp(ImageOps::ImageWarp::Kind kind, int bgColor, double period = 0, double amplitude = 0,
              double phase = 0);
    // Whether the stated size is within the pixel limit.
    bool isRasterAllowed() const;
    bool isLineVisible(double x1, double y1, double x2, double y2) const;
    void resetClip();
    int limitLineWidth(int lineWidth) const;
    void strokePoints(const std::vector<double> &x, const std::vector<double> &y, int color,
                      int lineWidth);
    void polygonPoints(const double *x, const double *y, int n, int edgeColor, int fillColor);
    bool loadBlock(char *data, int length, int requiredType);
    bool loadWithType(const char *path, int requiredType);
    char *readFile(const char *path, int limit, int *length);
    char *readResource(const char *id, int *length);
    void applyRasterSettings();
    MemBlock encodeRaster(int imageType, int quality);
    MemBlock memResult();
    bool writeFile(const char *path, MemBlock block);
    bool writeVector(qlx::ostream &out, int imageType, const char *options);

    std::atomic<int> refCount;
    MetaDraw *metaDraw;
    DrawBMP *bitmap;
    int replayPos;
    std::vector<DrawAreaObject *> objects;
    std::map<std::string, DrawArea *> drawAreaResources;
    std::map<std::string, std::vector<char>> dataResources;
    // Global canvases this canvas handed out, each held with a reference.
    std::vector<DrawArea *> heldShared;
    qlx::ostrstream memOut;
    int width, height;
    int dynColorMark, derivedColorMark, dynamicLayerPos;
    int clipLeft, clipTop, clipRight, clipBottom;
    int interlace;
    int transparentColor;
    int antiAliasText;
    int antiAliasShape;
    int paletteMode;
    int ditherMethod;
    ColorModel colorModel;
    std::string searchPath;
    std::vector<std::string> defaultFonts;
    std::vector<std::pair<std::string, DrawAreaObject *>> namedAttrs;
};
