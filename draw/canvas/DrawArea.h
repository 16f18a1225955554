#pragma once

#include <cwchar>
#include <string>

#include "foundation/ArrayViews.h"
#include "foundation/Stream.h"

class MetaDraw;
class TTFText;
class DrawBMP;

// Anything a canvas keeps alive for its users (addObject, addFontAttr): deleted
// with the canvas.
class DrawAreaObject {
public:
    virtual ~DrawAreaObject() {}
};

// The canvas: every drawing call is recorded into the canvas's display list;
// pixels are made only when somebody asks for them.  Reference counted: a new
// canvas holds one reference, retain() adds one, destroy() drops one.
//
// Angles of arcs and sectors are degrees, 0 at 12 o'clock, clockwise: the point
// at angle a is (cx + rx sin a, cy - ry cos a).  Rectangles are inclusive pixel
// coordinates.  Colours are canvas colour words.
class DrawArea {
public:
    static DrawArea *create();
    // Drops one reference; null is ignored.
    static void close(DrawArea *d);

    virtual void retain() = 0;
    virtual void destroy() = 0;

    // The raster brought up to date with the list; null when no raster can be made.
    virtual DrawBMP *getRaster() = 0;
    // Recording always happens; kept for the host interface.
    virtual void enableVectorOutput(bool enable) = 0;
    virtual void initDynamicLayer() = 0;
    virtual void removeDynamicLayer() = 0;

    virtual void setSize(int width, int height, int bgColor) = 0;
    virtual void resize(int newWidth, int newHeight, int filter, double blur) = 0;
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    virtual void setClipRect(int left, int top, int right, int bottom) = 0;
    virtual void getClipRect(int *left, int *top, int *right, int *bottom) const = 0;
    virtual void setBgColor(int color) = 0;
    virtual void setBgDropShadow(int color, int offsetX, int offsetY, int blurRadius) = 0;
    // A border n pixels wide along the inside of a rounded rectangle; radius holds
    // the four corners (top-left, top-right, bottom-right, bottom-left).
    virtual void frameRect(double x1, double y1, double x2, double y2, const int radius[4], int n,
                           int color) = 0;

    // Whole-image operations.  The matrix maps x' = a x + b y + e, y' = c x + d y + f.
    virtual void move(double xOffset, double yOffset, int bgColor, int filter, double blur) = 0;
    virtual void rotate(double angle, int bgColor, double cx, double cy, int filter,
                        double blur) = 0;
    virtual void hFlip() = 0;
    virtual void vFlip() = 0;
    // Puts this canvas into d; -1 sizes take this canvas's size.
    virtual void clone(DrawArea *d, int x, int y, int align, int newWidth, int newHeight,
                       int filter, double blur) = 0;

    // Pixel access goes to the raster and is not recorded.
    virtual void pixel(int x, int y, int color) = 0;
    virtual int getPixel(int x, int y) = 0;
    virtual void commitSuperPixels() = 0;

    virtual void hline(int x1, int x2, int y, int color) = 0;
    virtual void vline(int y1, int y2, int x, int color) = 0;
    virtual void line(double x1, double y1, double x2, double y2, int color, int lineWidth) = 0;
    // A filled rectangle without edge, exactly on the given coordinates.
    virtual void rawRect(double x1, double y1, double x2, double y2, int color) = 0;
    // Four integers (x1, y1, x2, y2) per rectangle.
    virtual void rawMultiRect(IntArray coords, int color) = 0;
    // One unbatched Line record.
    virtual void rawExactLine(double x1, double y1, double x2, double y2, int color,
                              int lineWidth) = 0;
    virtual void arc(double cx, double cy, double rx, double ry, double a1, double a2,
                     int color) = 0;
    virtual void rect(double x1, double y1, double x2, double y2, int edgeColor, int fillColor,
                      int raisedEffect) = 0;
    // Edge colours are top, right, bottom, left.
    virtual void roundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                             const int edgeColor[4], int fillColor) = 0;
    virtual void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) = 0;
    virtual void rawPolyline(DoubleArray x, DoubleArray y, int color, int lineWidth) = 0;
    virtual void polygon2(IntArray x, IntArray y, int edgeColor, int fillColor) = 0;
    virtual void polygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) = 0;
    // An open smooth curve through the points.
    virtual void curve(DoubleArray x, DoubleArray y, int color, int lineWidth) = 0;
    // x and y interleaved.
    virtual void polyShape(DoubleArray xy, int edgeColor, int fillColor) = 0;
    // The side face of a box of the given depth under the edge (x1, y1)-(x2, y2).
    virtual void surface(double x1, double y1, double x2, double y2, double depthX, double depthY,
                         int edgeColor, int fillColor) = 0;
    virtual void sector(double cx, double cy, double rx, double ry, double a1, double a2,
                        int edgeColor, int fillColor) = 0;
    // The side of an elliptic cylinder between two angles, extruded by the depth.
    virtual void cylinder(double cx, double cy, double rx, double ry, double a1, double a2,
                          double depthX, double depthY, int edgeColor, int fillColor) = 0;
    virtual void circle(double cx, double cy, double rx, double ry, int edgeColor,
                        int fillColor) = 0;
    virtual void ringSector(double cx, double cy, double rx, double ry, double rx2, double ry2,
                            double a1, double a2, int edgeColor, int fillColor) = 0;
    virtual void ring(double cx, double cy, double rx, double ry, double rx2, double ry2,
                      int edgeColor, int fillColor) = 0;
    virtual void gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                                 double x2, double y2, double i2, int color) = 0;
    // Flood fills on the raster, not recorded: fill2 stops at borderColor.
    virtual void fill2(int x, int y, int color, int borderColor) = 0;
    virtual void fill(int x, int y, int color) = 0;

    // Composition.  merge puts d into this canvas; transparency 0 is opaque.
    // Text.  The forms that return a TTFText give it to the caller, who
    // destroys it; the others draw at (x, y) with the alignment (kTopLeft is 7).
    virtual TTFText *text(const char *str, const char *font, double fontSize) = 0;
    virtual TTFText *textw(const wchar_t *str, const char *font, double fontSize) = 0;
    virtual TTFText *text2(const char *str, const char *font, int fontIndex, double fontHeight,
                           double fontWidth, double angle, bool vertical) = 0;
    virtual TTFText *text2w(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                            double fontWidth, double angle, bool vertical) = 0;
    virtual void text3(const char *str, const char *font, double fontSize, int x, int y,
                       int color) = 0;
    virtual void text3w(const wchar_t *str, const char *font, double fontSize, int x, int y,
                        int color) = 0;
    virtual void text4(const char *str, const char *font, int fontIndex, double fontHeight,
                       double fontWidth, double angle, bool vertical, int x, int y, int color,
                       int alignment) = 0;
    virtual void text4w(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                        double fontWidth, double angle, bool vertical, int x, int y, int color,
                        int alignment) = 0;
    // Wrapped at maxWidth pixels and cut with "..." after maxLines lines.
    virtual void textBlock(const char *str, const char *font, int fontIndex, double fontHeight,
                           double fontWidth, double angle, int x, int y, int maxWidth, int maxLines,
                           int color, int alignment) = 0;
    virtual void textBlockw(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                            double fontWidth, double angle, int x, int y, int maxWidth,
                            int maxLines, int color, int alignment) = 0;
    // Sizes the canvas to the mark-up and draws it; the list is then closed.
    virtual void renderVSML(const char *markup) = 0;
    // The anti-alias mode word that texts made for this canvas are given.
    virtual int getTextAAMode() const = 0;

    virtual void merge(DrawArea *d, int x, int y, int align, int transparency) = 0;
    virtual void mergeScaled(DrawArea *d, int x, int y, int width, int height,
                             int transparency) = 0;
    virtual void mergeRotated(DrawArea *d, double x, double y, double angle) = 0;
    // d once at every point of xy (x, y pairs), aligned to each as merge does,
    // as one record: the marks of a scatter.  Points whose copy misses the
    // canvas are left out.
    virtual void mergeAtPoints(DrawArea *d, IntArray xy, int align) = 0;
    virtual void tile(DrawArea *d, int transparency) = 0;

    virtual void setSearchPath(const char *path) = 0;
    virtual bool loadGIF(const char *path) = 0;
    virtual bool loadPNG(const char *path) = 0;
    virtual bool loadJPG(const char *path) = 0;
    virtual bool loadBMP(const char *path) = 0;
    virtual bool loadWMP(const char *path) = 0;
    virtual bool load(const char *path) = 0;
    // imgType -1 takes whatever the bytes are.
    virtual bool load2(int length, const char *data, int imgType) = 0;

    // Maps destination to source: the inverse of affineTransform's matrix.
    virtual void rAffineTransform(double a, double b, double c, double d, double e, double f,
                                  int bgColor, int filter, double blur) = 0;
    virtual void affineTransform(double a, double b, double c, double d, double e, double f,
                                 int bgColor, int filter, double blur) = 0;
    virtual void shearTransform(double xShear, double yShear, int bgColor, int filter,
                                double blur) = 0;
    // Warps have no record: they work on the raster, so vector outputs and a
    // replay after a dynamic layer's removal don't show them.  Rows are shifted
    // by a sine wave of the period and amplitude in pixels.
    virtual void waveTransform(double period, double amplitude, double phase, int bgColor) = 0;
    virtual void sphereTransform(int bgColor) = 0;
    virtual void hCylinderTransform(int bgColor) = 0;
    virtual void vCylinderTransform(int bgColor) = 0;
    virtual void vTriangleTransform(int bgColor) = 0;
    virtual void hTriangleTransform(int bgColor) = 0;

    // File outputs: true on success.  Paths are UTF-8.
    virtual bool out(const char *path) = 0;
    virtual bool outGIF(const char *path) = 0;
    virtual bool outPNG(const char *path) = 0;
    virtual bool outJPG(const char *path, int quality) = 0;
    virtual bool outWMP(const char *path) = 0;
    virtual bool outBMP(const char *path) = 0;
    virtual bool outSVG(const char *path, const char *options) = 0;
    virtual bool outPDF(const char *path) = 0;
    virtual bool outAGF(const char *path) = 0;
    // In-memory outputs: valid until the next output call on this canvas; length 0
    // on failure.
    virtual MemBlock outGIF2() = 0;
    virtual MemBlock outPNG2() = 0;
    virtual MemBlock outJPG2(int quality) = 0;
    virtual MemBlock outWMP2() = 0;
    virtual MemBlock outBMP2() = 0;
    virtual MemBlock outSVG2(const char *options) = 0;
    virtual MemBlock outPDF2() = 0;
    virtual MemBlock outAGF2() = 0;
    // The transparency byte of each pixel (0 opaque), row by row.
    virtual MemBlock outAlpha2() = 0;
    virtual void setOutputOptions(const char *options) = 0;

    virtual void setPaletteMode(int value) = 0;
    virtual void setDitherMethod(int value) = 0;
    virtual void setTransparentColor(int color) = 0;
    virtual void setAntiAliasText(int value) = 0;
    virtual void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) = 0;
    virtual void setInterlace(int value) = 0;
    virtual void setColorTable(int index, int color) = 0;
    virtual void setColorTable(IntArray colors, int offset) = 0;
    virtual void setColorTableRaw(IntArray colors, int offset) = 0;
    // Final colour word of a colour argument: palette references resolved,
    // dynamic colour handles kept.
    virtual int getARGBColor(int color) = 0;
    // Translated copies in a scratch block that the next call reuses; the pair
    // form translates the colours of (position, colour) pairs.
    virtual const int *mapColors(IntArray colors) = 0;
    virtual const int *mapColorPairs(IntArray pairs) = 0;
    virtual bool isOpaque(int color) = 0;
    virtual bool isSpecialColor(int color) = 0;
    virtual int halfColor(int color) = 0;
    virtual int adjustBrightness(int color, double brightness) = 0;
    virtual int allocDynColor() = 0;
    virtual bool isDynamicColor(int color) = 0;
    virtual void freeDynColor(int color) = 0;
    virtual void reserveDynColor(int color) = 0;

    // Dynamic colour constructors.  Each gives a colour word usable wherever a
    // colour is, or kTransparent for bad arguments.
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
    virtual int angleGradientColor(double cx, double cy, double startAngle, double endAngle,
                                   double innerRadius, double outerRadius, IntArray colors) = 0;
    virtual int lightingColor(int color, IntArray lighting, double angle) = 0;
    virtual int linearLightingColor(double x1, double y1, double x2, double y2, int color,
                                    IntArray lighting, bool periodic) = 0;
    virtual int radialLightingColor(int cx, int cy, int rx, int ry, int color,
                                    IntArray lighting) = 0;
    virtual int relativeLightingColor(double x1, double y1, double x2, double y2, int color,
                                      IntArray lighting, bool periodic) = 0;
    virtual int multiLayerColor(IntArray layers) = 0;
    virtual int brushedTextureColor(int color, int strength) = 0;
    virtual int relativeLinearGradient(IntArray gradient, double angle, double radius) = 0;
    virtual int relativeRadialGradient(IntArray gradient, double radius) = 0;
    virtual int xZoneColor(int boundary, int leftColor, int rightColor) = 0;
    virtual int yZoneColor(int boundary, int topColor, int bottomColor) = 0;
    virtual int transformedColor(int color, const double m[6]) = 0;
    virtual int preciseTransformColor(int color, const double m[6]) = 0;
    virtual int rectColor(double x1, double y1, double x2, double y2, int color) = 0;

    virtual void setDefaultFonts(const char *normal, const char *bold, const char *italic,
                                 const char *boldItalic) = 0;
    virtual void setFontTable(int index, const char *font) = 0;
    // The font file or family a text font name stands for.
    virtual const char *resolveFont(const char *name) = 0;
    // A malloc'ed copy the caller frees; null when not found.
    virtual char *getResourceData(const char *id, int *length) = 0;
    // A canvas of its own list that shares this canvas's colours.
    virtual DrawArea *createSubDrawArea(int width, int height) = 0;
    virtual void removeObject(int index) = 0;
    virtual const char *getFontTableEntry(int index) = 0;
    virtual void beginSuperPixelMode() = 0;
    virtual DrawAreaObject *getFontAttr(const char *name) = 0;
    // The canvas owns attr; a name already present keeps its first attribute.
    virtual void addFontAttr(const char *name, DrawAreaObject *attr) = 0;
    // The canvas owns obj; returns its index.
    virtual int addObject(DrawAreaObject *obj) = 0;
    virtual DrawAreaObject *getObject(int index) = 0;
    virtual void setResource(const char *id, const char *data, int length) = 0;
    virtual void setResource2(const char *id, DrawArea *d) = 0;
    virtual DrawArea *getDrawAreaResource(const char *id) = 0;
    // Cubic path: x0, y0, then c1x, c1y, c2x, c2y, x, y per piece.  Closed and
    // filled when fillColor isn't transparent.
    virtual void drawPath(DoubleArray xy, int edgeColor, int fillColor, int lineWidth) = 0;
    virtual void smoothPolygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) = 0;
    // A malloc'ed block of at most limit bytes the caller frees; null on failure.
    virtual char *loadFile(const char *path, int limit, int *length) = 0;
    // A new raster for this canvas, empty; getRaster makes and fills its own.
    virtual DrawBMP *createRaster() = 0;
    virtual bool writeSVGStream(qlx::ostream &out, const char *options) = 0;
    virtual void writeAGFStream(qlx::ostream &out) = 0;

    virtual MetaDraw *getMetaDraw() = 0;

    // "@/name" gives "name"; anything else, and null, gives null.
    static const char *getResourceId(const char *name);
    static const wchar_t *getResourceId(const wchar_t *name);
    static int alignX(int w, int align);
    static int alignY(int h, int align);
    // An image type number, -1 when the bytes are no known image.
    static int getImageType(int length, const char *data);
    static const char *getMediaType(int imageType);
    // (0, 0) when the size can't be read.
    static void getImageSize(int length, const char *data, int *width, int *height);

    static char *getGlobalResource(const char *id, int *length);
    // Valid until the entry is replaced; a canvas's getDrawAreaResource holds
    // what it hands out.
    static DrawArea *getGlobalDrawAreaResource(const char *id);
    static void setGlobalResource(const char *id, const char *data, int length);
    static void setGlobalDrawAreaResource(const char *id, DrawArea *d);
    static int getPixelLimit();
    static int getFileLimit();
    // Bytes of rendered glyphs that no text holds kept for later texts: the
    // setting "@GlyphCacheLimit", 64 MB by default; 0 or less keeps them all.
    static int getGlyphCacheLimit();
    static int getDefaultTextAA();
    // A colour with its brightness scaled by k / 1024.
    static int adjustBrightnessARGB(int color, int k);
    // A bare block of colour-word pixels as PNG bytes into out.
    static bool encodePNG(qlx::ostream &out, const int *pixels, int width, int height);
    // The font lookup report (at most 2048 bytes) into report; 1 when it ran.
    static int testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                        char *report);
    static void setFontSearchPath(const char *path);
    static std::string getFontSearchPath();
    static void setCustomFontSearchPath(const char *path);
    static std::string getCustomFontSearchPath();

protected:
    virtual ~DrawArea() {}
};
