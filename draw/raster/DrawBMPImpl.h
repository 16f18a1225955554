#pragma once

#include <map>
#include <vector>

#include "draw/pixel/ImageOps.h"
#include "draw/raster/DrawBMP.h"
#include "draw/raster/SuperPixels.h"
#include "draw/raster/brush/ColorBrush.h"
#include "draw/raster/scan/ShapeTarget.h"

class AAShape;
class CoverageGrid;

// The raster: one pixel buffer, the clip, the dynamic colours as brushes, and
// the machinery that turns records into anti-aliased pixels.
class DrawBMPImpl : public DrawBMP, public BrushHost, public ShapeTarget {
public:
    // Dynamic colours resolve at most this many levels deep.
    static const int kMaxColorDepth = 20;

    DrawBMPImpl(MetaDraw *metaDraw, DrawBMPImpl *parent);
    ~DrawBMPImpl() override;

    // DrawBMP
    int getWidth() const override { return width; }
    int getHeight() const override { return height; }
    const int *getPixels() const override { return pixels.empty() ? nullptr : pixels.data(); }
    PixelImage getImage() const override;
    int getPixel(int x, int y) const override;
    void setPixel(int x, int y, int color) override;
    void floodFill(int x, int y, int color, int borderColor) override;
    void setAntiAlias(bool shape, int text) override {
        shapeAntiAlias = shape, textAntiAlias = text;
    }
    bool getShapeAntiAlias() const override { return shapeAntiAlias; }
    bool hasRefusedSize() const override { return sizeRefused; }
    void setPixelLimit(long long limit) override;
    int getTextAntiAlias() const override { return textAntiAlias; }
    void setInterlace(int value) override { interlace = value; }
    void setTransparentColor(int color) override { transparentColor = color; }
    void setDitherMethod(int value) override { ditherMethod = value; }
    void setPaletteMode(int value) override { paletteMode = value; }
    void fillGlyph(const unsigned char *coverage, int w, int h, int pitch, int x, int y,
                   int color) override;
    BMPShape *createShape() override;
    void sampleColor(int color, int x, int y, int width, int height, int *out) override;

    // BrushHost
    int resolveColor(int color, int x, int y) override;
    void blendInto(int *out, int x, int y, int color) override;
    bool allowsDirectStores() const override { return !superPixels.isActive(); }

    // ShapeTarget
    void getClip(int *left, int *top, int *right, int *bottom) const override;
    bool isAntiAlias() const override { return shapeAntiAlias; }
    void solidSpan(int x1, int x2, int y, int color) override;
    void fringePixel(int x, int y, int level, int color) override;
    void outlineLine(double x1, double y1, double x2, double y2, int color) override;

    // DrawBackEnd: the run
    void beginPlay(double) override {}
    void endPlay() override {}
    void reportError(const char *) override {}

    // DrawBackEnd: drawing records
    void setSize(int width, int height, int bgColor) override;
    void resize(int width, int height) override;
    void affineTransform(double a, double b, double c, double d, double e, double f, int bgColor,
                         int filter, double blur) override;
    void setClipRect(int left, int top, int right, int bottom) override;
    void setBgColor(int color) override;
    void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) override;
    void setBgDropShadow(int offsetX, int offsetY, int blurRadius, int unused, int color) override;
    void line(double x1, double y1, double x2, double y2, int color, int width) override;
    void polyLine(int color, int width, DoubleArray xy) override;
    void multiLine(const MetaLineEntry *items, int count) override;
    void roundedRect(double x1, double y1, double x2, double y2, int radius, int edgeColor,
                     int fillColor) override;
    void multiRoundedRect(double x1, double y1, double x2, double y2, const int (&radius)[4],
                          const int (&edgeColor)[4], int fillColor) override;
    void polygon(int edgeColor, int fillColor, DoubleArray x, DoubleArray y) override;
    void exactPolygon(int fillColor, DoubleArray x, DoubleArray y) override;
    void shape(int fillColor, bool inset, bool keepOutline, const MetaPathItem *items,
               int count) override;
    void gouraudTriangle(const double (&v)[9], int color) override;
    void beginSuperPixelMode() override;
    void commitSuperPixels() override;
    void drawText(const GlyphText &text) override;
    void beginSymbol(int id) override;
    void endSymbol(int id) override;
    void mergeWithScaling(int id, int x, int y, int width, int height, int transparency) override;
    void mergeWithRotation(int id, double x, double y, double angle) override;
    void mergeAtPoints(int id, int width, int height, IntArray points) override;
    void mergeBitMap(int id, IntArray pixels, int width, int x, int y) override;
    void loadStream(int id, const char *data, int length, int imageType, int width,
                    int height) override;
    void initDynamicLayer() override;
    bool restoreSnapshot() override;
    void removeSymbol(int id) override;

    // DrawBackEnd: colour definitions
    void setSubDrawMode() override {}
    void adjustBrightness(int handle, int source, double factor) override;
    void transformedColor(int handle, int source, const double (&m)[6]) override;
    void preciseTransformColor(int handle, int source, const double (&m)[6]) override;
    void brushedTextureColor(int handle, int color, int texture) override;
    void multiLayerColor(int handle, IntArray layers) override;
    void dashLineColor(int handle, int color, int pattern) override;
    void linearGradientColor(int handle, double x1, double y1, double x2, double y2, bool periodic,
                             IntArray pairs) override;
    void radialGradientColor(int handle, int cx, int cy, int rx, int ry, bool periodic,
                             IntArray pairs) override;
    void angleGradientColor(int handle, double cx, double cy, double startAngle, double endAngle,
                            double innerRadius, double outerRadius, IntArray pairs) override;
    void relativeLinearGradientColor(int handle, double x1, double y1, double x2, double y2,
                                     bool periodic, IntArray pairs) override;
    void lightingColor(int handle, int color, double x1, double y1, double x2, double y2,
                       bool periodic, IntArray lighting) override;
    void linearLightingColor(int handle, int color, double x1, double y1, double x2, double y2,
                             bool periodic, IntArray lighting) override;
    void radialLightingColor(int handle, int color, int cx, int cy, int rx, int ry,
                             IntArray lighting) override;
    void relativeLinearLightingColor(int handle, int color, double x1, double y1, double x2,
                                     double y2, bool periodic, IntArray lighting) override;
    void patternColor(int handle, int startX, int startY, int width, int height,
                      IntArray pixels) override;
    void patternColor2(int handle, int startX, int startY, const char *fileName) override;
    void zoneColor(int handle, bool vertical, int boundary, int before, int after) override;
    void rectColor(int handle, double x1, double y1, double x2, double y2, int color) override;

    // The brush of a dynamic colour word, or null.
    ColorBrush *getBrush(int color) const;
    // Defines (or replaces) the brush of a handle; the raster owns it.
    void setBrush(int handle, ColorBrush *brush);
    // Colour c covering level / 16 of pixel (x, y), inside the clip.
    void coveragePixel(int x, int y, int level, int color);
    // A one-pixel line in the raster's anti-alias mode.
    void drawThinLine(double x1, double y1, double x2, double y2, int color);
    bool isSnapshotValid() const { return snapshotValid; }
    int symbolCount() const { return (int)symbols.size(); }

    // The list this raster plays.
    MetaDraw *getMetaDraw() const { return metaDraw; }
    PixelBuffer copyImage() const override { return copyBuffer(); }
    void replaceImage(PixelBuffer image) override { takeBuffer(image); }

private:
    struct Surface {
        int width, height;
        std::vector<int> pixels;
        int clipLeft, clipTop, clipRight, clipBottom;
        int bgColor;
        bool bgTransparent;
    };

    bool inClip(int x, int y) const {
        return x >= clipLeft && x <= clipRight && y >= clipTop && y <= clipBottom;
    }
    int *pixelAt(int x, int y) { return pixels.data() + (size_t)y * width + x; }
    void store(int *p, unsigned c);
    void resetClip();
    void noteSize(bool made);
    bool fitsBuffer(long long w, long long h) const;
    // A size beyond the limit becomes 1 by 1; false then.
    bool limitSize(int &w, int &h) const;
    void allocate(int w, int h, int fill);
    void takeBuffer(PixelBuffer &buffer);
    PixelBuffer copyBuffer() const;
    void paintShape(AAShape &shape, int color, bool inset, bool keepOutline);
    void strokeWide(const double *xy, int pointCount, int color, int width);
    void strokeThin(const double *xy, int pointCount, int color);
    void saveSurface(Surface &s);
    void restoreSurface(Surface &s);
    void blendImage(const PixelBuffer &image, int x, int y, int transparency);
    // The symbol's picture at width by height, scaled when it has another size.
    const PixelBuffer *symbolAtSize(int id, int width, int height, PixelBuffer &scaled) const;
    // A plain mark at every point, each corner on a point: the stamps gathered
    // into one cover over the points' box in the clip, laid once.  False for a
    // picture that is no plain mark.
    bool stampAtPoints(const PixelBuffer &image, const int *points, int pointCount);

    MetaDraw *metaDraw;
    DrawBMPImpl *parent;
    bool parentMode;
    std::vector<ColorBrush *> brushes;
    int brushCount;
    int width, height;
    std::vector<int> pixels;
    int clipLeft, clipTop, clipRight, clipBottom;
    int bgColor;
    bool bgTransparent;
    bool shapeAntiAlias;
    int textAntiAlias;
    int interlace, transparentColor, ditherMethod, paletteMode;
    bool snapshotValid;
    int snapshotWidth, snapshotHeight;
    std::vector<int> snapshotPixels;
    int curColor, curWidth;
    double curX, curY;
    SuperPixels superPixels;
    std::map<int, PixelBuffer> symbols;
    std::vector<Surface> symbolStack;
    int colorDepth;
    CoverageGrid *outlineCollector;
    // A record asked for an image larger than the buffer can hold.
    bool sizeRefused;
    long long pixelLimit;
};
