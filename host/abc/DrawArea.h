#pragma once

#include "api/CDrawArea.h"
#include "host/abc/VSObject.h"
#include "host/abc/Views.h"

namespace abc {

class TTFText;

// The canvas as the host layer sees it.  A canvas made here owns its engine
// canvas; one handed out by a chart only borrows it.
class DrawArea : public VSObject {
public:
    explicit DrawArea(CDrawArea *handle, bool ownsHandle = false)
        : handle(handle), ownsHandle(ownsHandle) {}
    ~DrawArea() override;
    DrawArea(const DrawArea &) = delete;
    DrawArea &operator=(const DrawArea &) = delete;

    // A new canvas of its own; null if the engine made none.
    static DrawArea *create();

    CDrawArea *getHandle() const { return handle; }
    // The engine canvas of d; null for null.
    static CDrawArea *handleOf(const DrawArea *d) { return d ? d->handle : nullptr; }
    bool ownsEngineCanvas() const { return ownsHandle; }

    void enableVectorOutput(bool enable) { CDrawArea_enableVectorOutput(handle, enable); }
    void initDynamicLayer() { CDrawArea_initDynamicLayer(handle); }
    void removeDynamicLayer() { CDrawArea_removeDynamicLayer(handle); }

    void setSize(int width, int height, int bgColor) {
        CDrawArea_setSize(handle, width, height, bgColor);
    }
    void resize(int newWidth, int newHeight, int filter, double blur) {
        CDrawArea_resize(handle, newWidth, newHeight, filter, blur);
    }
    int getWidth() { return CDrawArea_getWidth(handle); }
    int getHeight() { return CDrawArea_getHeight(handle); }
    void setClipRect(int left, int top, int right, int bottom) {
        CDrawArea_setClipRect(handle, left, top, right, bottom);
    }
    void getClipRect(int *left, int *top, int *right, int *bottom) {
        CDrawArea_getClipRect(handle, left, top, right, bottom);
    }
    void setBgColor(int color) { CDrawArea_setBgColor(handle, color); }
    void setBgDropShadow(int color, int offsetX, int offsetY, int blurRadius) {
        CDrawArea_setBgDropShadow(handle, color, offsetX, offsetY, blurRadius);
    }
    void frameRect(double x1, double y1, double x2, double y2, const int *radius, int n,
                   int color) {
        CDrawArea_frameRect(handle, x1, y1, x2, y2, radius, n, color);
    }

    void move(double xOffset, double yOffset, int bgColor, int filter, double blur) {
        CDrawArea_move(handle, xOffset, yOffset, bgColor, filter, blur);
    }
    void rotate(double angle, int bgColor, double cx, double cy, int filter, double blur) {
        CDrawArea_rotate(handle, angle, bgColor, cx, cy, filter, blur);
    }
    void hFlip() { CDrawArea_hFlip(handle); }
    void vFlip() { CDrawArea_vFlip(handle); }
    void clone(DrawArea *target, int x, int y, int align, int newWidth, int newHeight, int filter,
               double blur) {
        CDrawArea_clone(handle, handleOf(target), x, y, align, newWidth, newHeight, filter, blur);
    }

    void pixel(int x, int y, int color) { CDrawArea_pixel(handle, x, y, color); }
    int getPixel(int x, int y) { return CDrawArea_getPixel(handle, x, y); }
    void commitSuperPixels() { CDrawArea_commitSuperPixels(handle); }

    void hline(int x1, int x2, int y, int color) { CDrawArea_hline(handle, x1, x2, y, color); }
    void vline(int y1, int y2, int x, int color) { CDrawArea_vline(handle, y1, y2, x, color); }
    void line(double x1, double y1, double x2, double y2, int color, int lineWidth) {
        CDrawArea_line(handle, x1, y1, x2, y2, color, lineWidth);
    }
    void rawRect(double x1, double y1, double x2, double y2, int color) {
        CDrawArea_rawRect(handle, x1, y1, x2, y2, color);
    }
    void rawMultiRect(IntArray coords, int color) {
        CDrawArea_rawMultiRect(handle, coords.data, coords.len, color);
    }
    void rawExactLine(double x1, double y1, double x2, double y2, int color, int lineWidth) {
        CDrawArea_rawExactLine(handle, x1, y1, x2, y2, color, lineWidth);
    }
    void arc(double cx, double cy, double rx, double ry, double a1, double a2, int color) {
        CDrawArea_arc(handle, cx, cy, rx, ry, a1, a2, color);
    }
    void rect(double x1, double y1, double x2, double y2, int edgeColor, int fillColor,
              int raisedEffect) {
        CDrawArea_rect(handle, x1, y1, x2, y2, edgeColor, fillColor, raisedEffect);
    }
    void roundedRect(double x1, double y1, double x2, double y2, const int *radius,
                     const int *edgeColor, int fillColor) {
        CDrawArea_roundedRect(handle, x1, y1, x2, y2, radius, edgeColor, fillColor);
    }
    void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) {
        CDrawArea_setBgRoundedClip(handle, r1, r2, r3, r4, color);
    }
    void rawPolyline(DoubleArray x, DoubleArray y, int color, int lineWidth) {
        CDrawArea_rawPolyline(handle, x.data, x.len, y.data, y.len, color, lineWidth);
    }
    void polygon2(IntArray x, IntArray y, int edgeColor, int fillColor) {
        CDrawArea_polygon2(handle, x.data, x.len, y.data, y.len, edgeColor, fillColor);
    }
    void polygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) {
        CDrawArea_polygon(handle, x.data, x.len, y.data, y.len, edgeColor, fillColor);
    }
    void curve(DoubleArray x, DoubleArray y, int color, int lineWidth) {
        CDrawArea_curve(handle, x.data, x.len, y.data, y.len, color, lineWidth);
    }
    void polyShape(DoubleArray xy, int edgeColor, int fillColor) {
        CDrawArea_polyShape(handle, xy.data, xy.len, edgeColor, fillColor);
    }
    void surface(double x1, double y1, double x2, double y2, double depthX, double depthY,
                 int edgeColor, int fillColor) {
        CDrawArea_surface(handle, x1, y1, x2, y2, depthX, depthY, edgeColor, fillColor);
    }
    void sector(double cx, double cy, double rx, double ry, double a1, double a2, int edgeColor,
                int fillColor) {
        CDrawArea_sector(handle, cx, cy, rx, ry, a1, a2, edgeColor, fillColor);
    }
    void cylinder(double cx, double cy, double rx, double ry, double a1, double a2, double depthX,
                  double depthY, int edgeColor, int fillColor) {
        CDrawArea_cylinder(handle, cx, cy, rx, ry, a1, a2, depthX, depthY, edgeColor, fillColor);
    }
    void circle(double cx, double cy, double rx, double ry, int edgeColor, int fillColor) {
        CDrawArea_circle(handle, cx, cy, rx, ry, edgeColor, fillColor);
    }
    void ringSector(double cx, double cy, double rx, double ry, double rx2, double ry2, double a1,
                    double a2, int edgeColor, int fillColor) {
        CDrawArea_ringSector(handle, cx, cy, rx, ry, rx2, ry2, a1, a2, edgeColor, fillColor);
    }
    void ring(double cx, double cy, double rx, double ry, double rx2, double ry2, int edgeColor,
              int fillColor) {
        CDrawArea_ring(handle, cx, cy, rx, ry, rx2, ry2, edgeColor, fillColor);
    }
    void gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                         double x2, double y2, double i2, int color) {
        CDrawArea_gouraudTriangle(handle, x0, y0, i0, x1, y1, i1, x2, y2, i2, color);
    }
    void fill2(int x, int y, int color, int borderColor) {
        CDrawArea_fill2(handle, x, y, color, borderColor);
    }
    void fill(int x, int y, int color) { CDrawArea_fill(handle, x, y, color); }

    // The caller owns the text; null when the engine made none.
    TTFText *text(const char *str, const char *font, double fontSize);
    TTFText *text2(const char *str, const char *font, int fontIndex, double fontHeight,
                   double fontWidth, double angle, bool vertical);
    void text3(const char *str, const char *font, double fontSize, int x, int y, int color) {
        CDrawArea_text3(handle, str, font, fontSize, x, y, color);
    }
    void text4(const char *str, const char *font, int fontIndex, double fontHeight,
               double fontWidth, double angle, bool vertical, int x, int y, int color,
               int alignment) {
        CDrawArea_text4(handle, str, font, fontIndex, fontHeight, fontWidth, angle, vertical, x, y,
                        color, alignment);
    }
    void textBlock(const char *str, const char *font, int fontIndex, double fontHeight,
                   double fontWidth, double angle, int x, int y, int maxWidth, int maxLines,
                   int color, int alignment) {
        CDrawArea_textBlock(handle, str, font, fontIndex, fontHeight, fontWidth, angle, x, y,
                            maxWidth, maxLines, color, alignment);
    }
    void renderVSML(const char *markup) { CDrawArea_renderVSML(handle, markup); }

    void merge(DrawArea *source, int x, int y, int align, int transparency) {
        CDrawArea_merge(handle, handleOf(source), x, y, align, transparency);
    }
    void mergeScaled(DrawArea *source, int x, int y, int width, int height, int transparency) {
        CDrawArea_mergeScaled(handle, handleOf(source), x, y, width, height, transparency);
    }
    void mergeRotated(DrawArea *source, double x, double y, double angle) {
        CDrawArea_mergeRotated(handle, handleOf(source), x, y, angle);
    }
    void tile(DrawArea *source, int transparency) {
        CDrawArea_tile(handle, handleOf(source), transparency);
    }

    void setSearchPath(const char *path) { CDrawArea_setSearchPath(handle, path); }
    bool loadGIF(const char *path) { return CDrawArea_loadGIF(handle, path); }
    bool loadPNG(const char *path) { return CDrawArea_loadPNG(handle, path); }
    bool loadJPG(const char *path) { return CDrawArea_loadJPG(handle, path); }
    bool loadBMP(const char *path) { return CDrawArea_loadBMP(handle, path); }
    bool loadWMP(const char *path) { return CDrawArea_loadWMP(handle, path); }
    bool load(const char *path) { return CDrawArea_load(handle, path); }
    bool load2(MemBlock data, int imgType) {
        return CDrawArea_load2(handle, data.len, data.data, imgType);
    }

    void rAffineTransform(double a, double b, double c, double d, double e, double f, int bgColor,
                          int filter, double blur) {
        CDrawArea_rAffineTransform(handle, a, b, c, d, e, f, bgColor, filter, blur);
    }
    void affineTransform(double a, double b, double c, double d, double e, double f, int bgColor,
                         int filter, double blur) {
        CDrawArea_affineTransform(handle, a, b, c, d, e, f, bgColor, filter, blur);
    }
    void shearTransform(double xShear, double yShear, int bgColor, int filter, double blur) {
        CDrawArea_shearTransform(handle, xShear, yShear, bgColor, filter, blur);
    }
    void waveTransform(double period, double amplitude, double phase, int bgColor) {
        CDrawArea_waveTransform(handle, period, amplitude, phase, bgColor);
    }
    void sphereTransform(int bgColor) { CDrawArea_sphereTransform(handle, bgColor); }
    void hCylinderTransform(int bgColor) { CDrawArea_hCylinderTransform(handle, bgColor); }
    void vCylinderTransform(int bgColor) { CDrawArea_vCylinderTransform(handle, bgColor); }
    void vTriangleTransform(int bgColor) { CDrawArea_vTriangleTransform(handle, bgColor); }
    void hTriangleTransform(int bgColor) { CDrawArea_hTriangleTransform(handle, bgColor); }

    bool out(const char *path) { return CDrawArea_out(handle, path); }
    bool outGIF(const char *path) { return CDrawArea_outGIF(handle, path); }
    bool outPNG(const char *path) { return CDrawArea_outPNG(handle, path); }
    bool outJPG(const char *path, int quality) { return CDrawArea_outJPG(handle, path, quality); }
    bool outWMP(const char *path) { return CDrawArea_outWMP(handle, path); }
    bool outBMP(const char *path) { return CDrawArea_outBMP(handle, path); }
    bool outSVG(const char *path, const char *options) {
        return CDrawArea_outSVG(handle, path, options);
    }
    bool outPDF(const char *path) { return CDrawArea_outPDF(handle, path); }
    bool outAGF(const char *path) { return CDrawArea_outAGF(handle, path); }
    // In-memory outputs: valid until the next output call on this canvas.
    MemBlock outGIF2() { return block(CDrawArea_outGIF2); }
    MemBlock outPNG2() { return block(CDrawArea_outPNG2); }
    MemBlock outJPG2(int quality);
    MemBlock outWMP2() { return block(CDrawArea_outWMP2); }
    MemBlock outBMP2() { return block(CDrawArea_outBMP2); }
    MemBlock outSVG2(const char *options);
    MemBlock outPDF2() { return block(CDrawArea_outPDF2); }
    MemBlock outAGF2() { return block(CDrawArea_outAGF2); }
    MemBlock outAlpha2() { return block(CDrawArea_outAlpha2); }
    void setOutputOptions(const char *options) { CDrawArea_setOutputOptions(handle, options); }

    void setPaletteMode(int value) { CDrawArea_setPaletteMode(handle, value); }
    void setDitherMethod(int value) { CDrawArea_setDitherMethod(handle, value); }
    void setTransparentColor(int color) { CDrawArea_setTransparentColor(handle, color); }
    void setAntiAliasText(int value) { CDrawArea_setAntiAliasText(handle, value); }
    void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) {
        CDrawArea_setAntiAlias(handle, shapeAntiAlias, textAntiAlias);
    }
    void setInterlace(bool value) { CDrawArea_setInterlace(handle, value ? 1 : 0); }
    void setColorTable(int index, int color) { CDrawArea_setColorTable(handle, index, color); }
    void setColorTable2(IntArray colors, int offset) {
        CDrawArea_setColorTable2(handle, colors.data, colors.len, offset);
    }
    void setColorTableRaw(IntArray colors, int offset) {
        CDrawArea_setColorTableRaw(handle, colors.data, colors.len, offset);
    }
    int getARGBColor(int color) { return CDrawArea_getARGBColor(handle, color); }
    const int *mapColors(IntArray colors) {
        return CDrawArea_mapColors(handle, colors.data, colors.len);
    }
    const int *mapColorPairs(IntArray pairs) {
        return CDrawArea_mapColorPairs(handle, pairs.data, pairs.len);
    }
    bool isOpaque(int color) { return CDrawArea_isOpaque(handle, color); }
    bool isSpecialColor(int color) { return CDrawArea_isSpecialColor(handle, color); }
    int halfColor(int color) { return CDrawArea_halfColor(handle, color); }
    int adjustBrightness(int color, double brightness) {
        return CDrawArea_adjustBrightness(handle, color, brightness);
    }
    int allocDynColor() { return CDrawArea_allocDynColor(handle); }
    bool isDynamicColor(int color) { return CDrawArea_isDynamicColor(handle, color); }
    void freeDynColor(int color) { CDrawArea_freeDynColor(handle, color); }
    void reserveDynColor(int color) { CDrawArea_reserveDynColor(handle, color); }

    int dashLineColor(int color, int patternCode) {
        return CDrawArea_dashLineColor(handle, color, patternCode);
    }
    int patternColor(IntArray colors, int height, int startX, int startY) {
        return CDrawArea_patternColor(handle, colors.data, colors.len, height, startX, startY);
    }
    int patternColor2(const char *file, int startX, int startY) {
        return CDrawArea_patternColor2(handle, file, startX, startY);
    }
    int gradientColor(int startX, int startY, int endX, int endY, int startColor, int endColor) {
        return CDrawArea_gradientColor(handle, startX, startY, endX, endY, startColor, endColor);
    }
    int gradientColor2(IntArray colors, double angle, double scale, int startX, int startY) {
        return CDrawArea_gradientColor2(handle, colors.data, colors.len, angle, scale, startX,
                                        startY);
    }
    int linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                            int endColor, bool periodic) {
        return CDrawArea_linearGradientColor(handle, startX, startY, endX, endY, startColor,
                                             endColor, periodic);
    }
    int linearGradientColor2(int startX, int startY, int endX, int endY, IntArray colors,
                             bool periodic) {
        return CDrawArea_linearGradientColor2(handle, startX, startY, endX, endY, colors.data,
                                              colors.len, periodic);
    }
    int radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                            bool periodic) {
        return CDrawArea_radialGradientColor(handle, cx, cy, rx, ry, startColor, endColor,
                                             periodic);
    }
    int radialGradientColor2(int cx, int cy, int rx, int ry, IntArray colors, bool periodic) {
        return CDrawArea_radialGradientColor2(handle, cx, cy, rx, ry, colors.data, colors.len,
                                              periodic);
    }
    int angleGradientColor(double cx, double cy, double startAngle, double endAngle,
                           double innerRadius, double outerRadius, IntArray colors) {
        return CDrawArea_angleGradientColor(handle, cx, cy, startAngle, endAngle, innerRadius,
                                            outerRadius, colors.data, colors.len);
    }
    int lightingColor(int color, IntArray lighting, double angle) {
        return CDrawArea_lightingColor(handle, color, lighting.data, lighting.len, angle);
    }
    int multiLayerColor(IntArray layers) {
        return CDrawArea_multiLayerColor(handle, layers.data, layers.len);
    }
    int brushedTextureColor(int color, int strength) {
        return CDrawArea_brushedTextureColor(handle, color, strength);
    }
    int relativeLinearGradient(IntArray gradient, double angle, double radius) {
        return CDrawArea_relativeLinearGradient(handle, gradient.data, gradient.len, angle, radius);
    }
    int relativeRadialGradient(IntArray gradient, double radius) {
        return CDrawArea_relativeRadialGradient(handle, gradient.data, gradient.len, radius);
    }
    int xZoneColor(int boundary, int leftColor, int rightColor) {
        return CDrawArea_xZoneColor(handle, boundary, leftColor, rightColor);
    }
    int yZoneColor(int boundary, int topColor, int bottomColor) {
        return CDrawArea_yZoneColor(handle, boundary, topColor, bottomColor);
    }
    int rectColor(double x1, double y1, double x2, double y2, int color) {
        return CDrawArea_rectColor(handle, x1, y1, x2, y2, color);
    }

    void setDefaultFonts(const char *normal, const char *bold, const char *italic,
                         const char *boldItalic) {
        CDrawArea_setDefaultFonts(handle, normal, bold, italic, boldItalic);
    }
    void setFontTable(int index, const char *font) { CDrawArea_setFontTable(handle, index, font); }
    const char *resolveFont(const char *name) { return CDrawArea_resolveFont(handle, name); }
    const char *getFontTableEntry(int index) { return CDrawArea_getFontTableEntry(handle, index); }
    // The caller owns the canvas.
    DrawArea *createSubDrawArea(int width, int height);
    void beginSuperPixelMode() { CDrawArea_beginSuperPixelMode(handle); }
    void setResource(const char *id, MemBlock data) {
        CDrawArea_setResource(handle, id, data.data, data.len);
    }
    void setResource2(const char *id, DrawArea *resource) {
        CDrawArea_setResource2(handle, id, handleOf(resource));
    }
    void drawPath(DoubleArray xy, int edgeColor, int fillColor, int lineWidth) {
        CDrawArea_drawPath(handle, xy.data, xy.len, edgeColor, fillColor, lineWidth);
    }
    void smoothPolygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) {
        CDrawArea_smoothPolygon(handle, x.data, x.len, y.data, y.len, edgeColor, fillColor);
    }

private:
    MemBlock block(void (*output)(CDrawArea *, const char **, int *)) {
        MemBlock b = {0, nullptr};
        output(handle, &b.data, &b.len);
        return b;
    }

    CDrawArea *handle;
    bool ownsHandle;
};

}  // namespace abc
