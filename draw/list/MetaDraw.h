#pragma once

#include "foundation/ArrayViews.h"
#include "foundation/Stream.h"

class DrawBackEnd;
class MetaDrawOwner;
class MetaText;

// The display list of a canvas: every drawing call becomes a record in one array
// of 32-bit words, and play() replays the records on a back end (raster, PDF, SVG).
// Colour arguments are canvas colour words; the list registers them through its
// owner, so a dynamic colour is defined in the stream before first use.
class MetaDraw {
public:
    // A path of lines and elliptic arcs filled as one shape (even-odd rule).
    class MetaShape {
    public:
        virtual ~MetaShape() {}
        virtual void reset() = 0;
        virtual void addLine(int color, bool flag, double x1, double y1, double x2, double y2) = 0;
        virtual void addArc(int color, double cx, double cy, double rx, double ry, double x1,
                            double y1, double x2, double y2) = 0;
        virtual void addArc2(int color, bool flag, double cx, double cy, double rx, double ry,
                             double a1, double a2, double x1, double y1, double x2, double y2) = 0;
        // Writes the Shape record into the list that made the shape.
        virtual void paint(int fillColor, bool inset, bool keepOutline) = 0;
        virtual void destroy() = 0;
    };

    // Maps a data value to a pixel when a colour is first used; an axis whose
    // scale is known only at paint time.  Borrowed: it must outlive the list's
    // recording.
    class PixelScale {
    public:
        virtual ~PixelScale() {}
        virtual double toPixel(double value) const = 0;
    };

    // One of the two lines of interLineFill: the pixel of point `index` on the
    // value axis, or 1.7e308, a NaN or an infinity where the point is missing.
    class LineValues {
    public:
        virtual ~LineValues() {}
        virtual double value(int index) const = 0;
    };

    // A list whose colours are translated by owner (may be null: words stay as given).
    static MetaDraw *create(MetaDrawOwner *owner);
    virtual MetaDrawOwner *getOwner() const = 0;

    virtual ~MetaDraw() {}
    // Deletes the list and frees its symbols and brushes.
    virtual void destroyList() = 0;
    virtual void freeze() = 0;
    virtual bool isFrozen() const = 0;
    // Word index of the end of the stream.
    virtual int getEndPos() const = 0;

    // Output options: "+..." adds, "-..." removes, anything else replaces.
    virtual void setOutputOptions(const char *options) = 0;
    virtual void setOptionParent(MetaDraw *parent) = 0;
    virtual void setParentList(MetaDraw *parent) = 0;
    virtual const char *getOption(const char *name) const = 0;
    virtual double getOptionNumber(const char *name, double defaultValue) const = 0;

    // The text listing of the stream.
    virtual void writeListing(qlx::ostream &out) = 0;
    // Replays the records from fromPos; returns the position reached, or 0 when
    // the back end must be rebuilt and the play started again from 0.
    virtual int play(DrawBackEnd *backEnd, int fromPos) = 0;
    // Replays every record once at scale 1, for a vector output: it sizes the
    // picture with its own page matrix, so "bmpscale" and "dpi" don't apply.
    virtual void playAll(DrawBackEnd *backEnd) = 0;

    // Dynamic layer: the mark returns the position of the InitDynamicLayer record.
    virtual int markDynamicLayer() = 0;
    // Cuts the stream back to the mark and returns it (0 when no mark is set).
    // raster may be null.
    virtual int rollback(DrawBackEnd *raster) = 0;

    // Recording.
    virtual void setSize(int width, int height, int bgColor) = 0;
    virtual void resize(int width, int height) = 0;
    virtual void affineTransform(double a, double b, double c, double d, double e, double f,
                                 int bgColor, int filter, double blur) = 0;
    virtual void setClipRect(int left, int top, int right, int bottom) = 0;
    virtual void setBgColor(int color) = 0;
    virtual void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) = 0;
    virtual void setBgDropShadow(int a, int b, int c, int d, int color) = 0;
    // A single Line record; most lines should go through addLine.
    virtual void line(double x1, double y1, double x2, double y2, int color, int width) = 0;
    // Batched lines: joined segments of one style become one PolyLine record.
    virtual void addLine(int color, int width, double x1, double y1, double x2, double y2) = 0;
    virtual void flushLines() = 0;
    // Starts (or continues) a batch at (x, y) without drawing: a batch that
    // gets no further point is played as a PolyLine of one point.
    virtual void moveLineTo(int color, int width, double x, double y) = 0;
    // Records RoundedRect when radii and edge colours are all equal, else MultiRoundedRect.
    // Edge colours are top, right, bottom, left.
    virtual void roundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                             const int edgeColor[4], int fillColor) = 0;
    virtual void polygon(const double *x, const double *y, int n, int edgeColor, int fillColor) = 0;
    virtual void exactPolygon(const double *x, const double *y, int n, int fillColor) = 0;
    // The shape belongs to the caller, who calls destroy() on it.
    virtual MetaShape *createShape() = 0;
    virtual void gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                                 double x2, double y2, double i2, int color) = 0;
    virtual void beginSuperPixelMode() = 0;
    virtual void commitSuperPixels() = 0;
    // Draws items first..end-1 of a laid-out text; the list retains the text.
    virtual void drawText(MetaText *text, int first, int end, int x, int y, int color) = 0;
    virtual void mergeScaled(MetaDraw *source, int x, int y, int width, int height,
                             int transparency) = 0;
    virtual void mergeRotated(MetaDraw *source, double x, double y, double angle) = 0;
    // The source once at every point: its top-left corner at each x, y pair
    // of points, unscaled.  One record however many points.
    virtual void mergeAtPoints(MetaDraw *source, int width, int height, IntArray points) = 0;
    // The pixel block is borrowed: it must outlive the list.
    virtual void mergeBitMap(const int *pixels, int count, int width, int x, int y) = 0;
    // Takes ownership of an encoded image block allocated with malloc.
    virtual void loadStream(char *data, int length, int imageType, int width, int height) = 0;
    virtual void setSubDrawMode() = 0;

    // Fills between two lines, where both points of an index are valid: colorAB
    // where A's value is at least B's, colorBA where it is below, each run cut
    // at the crossings.  Point i lies at start + i * step on the index axis;
    // values are clamped to [rangeMin, rangeMax].  With swapXY the index axis
    // is y.  offsetX and offsetY shift every point (3D depth).
    virtual void interLineFill(bool swapXY, const LineValues *lineA, const LineValues *lineB,
                               int colorAB, int colorBA, double start, double step, double offsetX,
                               double offsetY, int count, double rangeMin, double rangeMax) = 0;

    // Dynamic colour definitions.  `handle` is a dynamic colour word the canvas
    // allocated (kDynamicColorBase + n); the other colours are canvas words and
    // are registered like drawing colours.  A new definition of a handle
    // replaces the old one.  Gradient pairs are position (0 to 256) and colour,
    // alternately; lighting pairs position and brightness (1024 = unchanged).
    //
    // Written at once:
    virtual void defineTransformed(int handle, int source, const double m[6]) = 0;
    virtual void definePreciseTransform(int handle, int source, const double m[6]) = 0;
    virtual void defineBrushedTexture(int handle, int color, int texture) = 0;
    virtual void defineMultiLayer(int handle, IntArray layers) = 0;
    virtual void defineLinearGradient(int handle, double x1, double y1, double x2, double y2,
                                      bool periodic, IntArray pairs) = 0;
    virtual void defineRadialGradient(int handle, int cx, int cy, int rx, int ry, bool periodic,
                                      IntArray pairs) = 0;
    virtual void defineAngleGradient(int handle, double cx, double cy, double startAngle,
                                     double endAngle, double innerRadius, double outerRadius,
                                     IntArray pairs) = 0;
    virtual void defineLighting(int handle, int color, double x1, double y1, double x2, double y2,
                                bool periodic, IntArray lighting) = 0;
    virtual void defineLinearLighting(int handle, int color, double x1, double y1, double x2,
                                      double y2, bool periodic, IntArray lighting) = 0;
    virtual void defineRadialLighting(int handle, int color, int cx, int cy, int rx, int ry,
                                      IntArray lighting) = 0;
    // pixels: width * height colour words, row by row.
    virtual void definePattern(int handle, int startX, int startY, int width, int height,
                               IntArray pixels) = 0;
    virtual void definePatternFile(int handle, int startX, int startY, const char *file) = 0;
    // vertical: the colour changes along y at pixel `boundary`.
    virtual void defineZone(int handle, bool vertical, int boundary, int before, int after) = 0;
    virtual void defineRect(int handle, double x1, double y1, double x2, double y2, int color) = 0;
    //
    // Deferred until the handle is first drawn with (nothing is written for a
    // colour never used), then written into the outermost list ahead of the
    // record that uses it, and written again only when what they depend on
    // has changed:
    virtual void defineBrightness(int handle, int source, double factor) = 0;
    // pattern: run lengths from the top byte down, on, off, on, off.
    virtual void defineDash(int handle, int color, int pattern) = 0;
    // Coordinates are fractions of the canvas; resolved to pixels when the
    // colour is the background of a SetSize, else left to the back end.
    virtual void defineRelativeGradient(int handle, double x1, double y1, double x2, double y2,
                                        bool periodic, IntArray pairs) = 0;
    virtual void defineRelativeLighting(int handle, int color, double x1, double y1, double x2,
                                        double y2, bool periodic, IntArray lighting) = 0;
    // A zone whose boundary is a data value, mapped through scale on use.
    virtual void defineXYZone(int handle, const PixelScale *scale, bool vertical, double value,
                              int before, int after) = 0;
    // A gradient along an axis: colors[i] at the pixel of values[i].
    virtual void defineScaleColor(int handle, const PixelScale *scale, bool vertical,
                                  DoubleArray values, IntArray colors) = 0;
    // No record of its own: using the handle registers these colours (for a
    // handle whose record is made elsewhere but refers to them).
    virtual void defineRegisterDependent(int handle, IntArray colors) = 0;
};
