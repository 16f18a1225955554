#pragma once

#include <set>
#include <vector>

#include "draw/list/DrawBackEnd.h"
#include "draw/pixel/ImageOps.h"
#include "draw/vector/BrushSampler.h"
#include "draw/vector/ColorPlan.h"
#include "draw/vector/PaintResolver.h"
#include "draw/vector/VectorPath.h"

// What the SVG and PDF outputs share: the records turned into outlines in
// canvas space (pixel edges, see VectorBox), colours into paints, and every
// record that only the raster can draw into images.  A format derives from it
// and writes the few things below in its own terms.
//
// Gouraud triangles come out as one image per run of them, drawn twice as fine
// by the raster.  Super-pixel marks draw nothing: the shapes between them are
// outlines, which meet without a seam.
namespace qlx {
class ostream;
}

class VectorBackEnd : public DrawBackEnd {
public:
    VectorBackEnd();
    ~VectorBackEnd() override;

    // The document of everything played so far.
    virtual bool write(qlx::ostream &out) = 0;

    // DrawBackEnd: the run.
    void beginPlay(double scale) override;
    void endPlay() override;
    void reportError(const char *message) override;
    void endSymbol(int id) override;
    bool restoreSnapshot() override;
    void removeSymbol(int id) override;

    // DrawBackEnd: drawing records.
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
    void mergeWithScaling(int id, int x, int y, int width, int height, int transparency) override;
    void mergeWithRotation(int id, double x, double y, double angle) override;
    // The symbol is defined once and placed at each point.
    void mergeAtPoints(int id, int width, int height, IntArray points) override;
    void mergeBitMap(int id, IntArray pixels, int width, int x, int y) override;
    void loadStream(int id, const char *data, int length, int imageType, int width,
                    int height) override;
    void initDynamicLayer() override;

    // DrawBackEnd: colour definitions (VectorBackEndColors.cpp).
    void setSubDrawMode() override;
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

protected:
    // How a stroke is drawn: width in pixels, dash runs (on, off, ...) or none;
    // a wide line ends flush half a pixel beyond its end points and turns round.
    struct StrokeStyle {
        double width = 1;
        const std::vector<double> *dash = nullptr;
        bool wide = false;
    };

    // What becomes of everything drawn so far on the surface when the whole
    // picture is moved, scaled, rounded or given a shadow.
    struct SurfaceWrap {
        Affine map;              // old place to new place
        VectorBox oldCanvas;     // the picture as it was: nothing beyond shows
        const VectorPath *clip;  // a further outline the picture is cut to, or null
        bool shadow = false;     // a blurred copy of the picture's shape under it
        double shadowX = 0, shadowY = 0, shadowBlur = 0;
        int shadowColor = 0;
    };

    // ---- What a format writes.
    // A fresh picture of this size on the current surface: what was drawn is dropped.
    virtual void startSurface(int width, int height) = 0;
    // Drawing from now on is cut to the box, or not at all (null).
    virtual void clipSurface(const VectorBox *clip) = 0;
    // Called with no clip in force.
    virtual void wrapSurface(const SurfaceWrap &wrap) = 0;
    // The records of symbol `id` follow up to closeSymbol, which gives its size.
    virtual void openSymbol(int id) = 0;
    virtual void closeSymbol(int id, int width, int height) = 0;
    // A closed symbol stretched over `dest`, transparency 0 (opaque) to 254.
    virtual void placeSymbol(int id, const VectorBox &dest, int transparency) = 0;
    // A closed symbol centred on (cx, cy), turned clockwise by angle degrees.
    virtual void rotateSymbol(int id, double cx, double cy, double angle) = 0;
    // Pixels (colour words) whose top left corner is at (x, y); id names the
    // block, which may come again.
    virtual void writeBitmap(int id, const int *pixels, int width, int height, double x,
                             double y) = 0;
    // An encoded image (kPNG, kJPG, kGIF, kBMP) filling the fresh surface.
    virtual void writeEncodedImage(int id, const char *data, int length, int imageType, int width,
                                   int height) = 0;
    // An outline filled (even-odd) with one paint and stroked with another;
    // either may be null.
    virtual void writePath(const VectorPath &path, const VectorPaint *fill,
                           const VectorPaint *stroke, const StrokeStyle &style) = 0;
    // Painting between these is cut to the box; they nest inside the surface's clip.
    virtual void beginLayerClip(const VectorBox &clip) = 0;
    virtual void endLayerClip() = 0;
    // Pixels stretched over `dest`.
    virtual void writeImage(const PixelBuffer &image, const VectorBox &dest) = 0;
    // The glyphs of one run in one paint.
    virtual void writeGlyphs(const GlyphText &text, const GlyphRun &run,
                             const VectorPaint *paint) = 0;

    // ---- For the formats.
    // Fills and strokes an outline with colour words, coat by coat.
    void paintPath(const VectorPath &path, int fillColor, int strokeColor,
                   const StrokeStyle &style);
    int surfaceWidth() const { return surface().width; }
    int surfaceHeight() const { return surface().height; }
    VectorBox surfaceBox() const { return VectorBox(0, 0, surfaceWidth(), surfaceHeight()); }
    bool isInsideSymbol() const { return surfaces.size() > 1; }
    bool isSymbolDefined(int id) const { return definedSymbols.count(id) != 0; }

private:
    struct Surface {
        int width = 1, height = 1;
        bool clipped = false;
        VectorBox clip;
        int lineColor = kTransparent, lineWidth = 1;
    };

    Surface &surface() { return surfaces.back(); }
    const Surface &surface() const { return surfaces.back(); }
    void flushTriangles();
    // A fresh picture on the current surface, its size limited as the raster limits it.
    void startFresh(int width, int height);
    void setClip(const VectorBox *clip);
    void wrap(SurfaceWrap &w);
    void coat(const VectorPath &path, const PaintLayer &layer, bool fill, const VectorBox &area,
              const StrokeStyle &style);
    void paintEdges(int fillColor, bool keepOutline, const MetaPathItem *items, int count,
                    VectorPath::Form form);
    VectorBox glyphBounds(const GlyphText &text, const GlyphRun &run) const;
    void definePatternPixels(int handle, int startX, int startY, int width, int height,
                             const int *pixels, int n);

    BrushSampler sampler;
    PaintResolver resolver;
    std::vector<Surface> surfaces;
    std::set<int> definedSymbols;
    std::vector<BrushSampler::Triangle> triangles;
    VectorBox triangleBox;
};
