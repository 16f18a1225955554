#pragma once

#include "draw/list/DrawBackEnd.h"
#include "draw/pixel/ImageOps.h"
#include "draw/pixel/PixelImage.h"

class MetaDraw;

// The raster back end: plays display-list records into 32-bit pixels in the
// engine's colour word (top byte 0 opaque, 255 transparent).
class DrawBMP : public DrawBackEnd {
public:
    // A filled outline of lines and elliptic arcs, painted with the even-odd rule.
    class BMPShape {
    public:
        virtual ~BMPShape() {}
        virtual void addLine(int color, bool exact, double x1, double y1, double x2, double y2) = 0;
        virtual void addArc(int color, double cx, double cy, double rx, double ry, double x1,
                            double y1, double x2, double y2) = 0;
        virtual void addArc2(int color, bool reverse, double cx, double cy, double rx, double ry,
                             double x1, double y1, double x2, double y2) = 0;
        // inset pulls the fill half a pixel inside the edges; keepOutline leaves
        // the edges undrawn.
        virtual void paint(int color, bool inset, bool keepOutline) = 0;
    };

    // Decodes an encoded image into malloc'ed pixels in colour words.  *width and
    // *height hold the declared size (0 when unknown) and receive the real one.
    // Null on failure.
    typedef int *(*DecodeHook)(const char *data, int length, int imageType, int *width,
                               int *height);

    // floodFill's border colour for a fill of the region of the start pixel's colour.
    static constexpr int kRegionOfSeed = -1;

    // A raster serving metaDraw; a template raster (of a parent canvas) shares its
    // dynamic colours with the new one.  Either may be null.
    static DrawBMP *create(MetaDraw *metaDraw, DrawBMP *templateRaster);
    static void setDecodeHook(DecodeHook hook);
    static DecodeHook getDecodeHook();

    ~DrawBMP() override {}

    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    // Row major, top row first; valid until the next size change.
    virtual const int *getPixels() const = 0;
    virtual PixelImage getImage() const = 0;
    // A copy of the pixels, and the pixels replaced by an image of any size
    // (the clip becomes the whole image).
    virtual PixelBuffer copyImage() const = 0;
    virtual void replaceImage(PixelBuffer image) = 0;
    // kTransparent outside the image.
    virtual int getPixel(int x, int y) const = 0;
    // Blends a colour (plain or dynamic) into one pixel inside the clip.
    virtual void setPixel(int x, int y, int color) = 0;
    // Fills the 4-connected region of the start pixel's colour, or up to
    // borderColor when that isn't kRegionOfSeed.
    virtual void floodFill(int x, int y, int color, int borderColor) = 0;

    virtual void setAntiAlias(bool shapeAntiAlias, int textAntiAlias) = 0;
    virtual bool getShapeAntiAlias() const = 0;
    // True when a record asked for an image larger than a raster can hold: the
    // pixels are then not the image the list describes.
    virtual bool hasRefusedSize() const = 0;
    // Images above this many pixels are refused; 0 or less leaves only the
    // raster's own limit.
    virtual void setPixelLimit(long long limit) = 0;
    virtual int getTextAntiAlias() const = 0;
    virtual void setInterlace(int value) = 0;
    virtual void setTransparentColor(int color) = 0;
    virtual void setDitherMethod(int value) = 0;
    virtual void setPaletteMode(int value) = 0;

    // A glyph's coverage (0 to 255, pitch bytes to a row) blended at (x, y).
    virtual void fillGlyph(const unsigned char *coverage, int width, int height, int pitch, int x,
                           int y, int color) = 0;
    // The colours a fill with `color` (plain or dynamic) lays on a transparent
    // canvas over the pixels x .. x + width - 1, y .. y + height - 1, row by row
    // into out; the raster's own pixels are untouched.
    virtual void sampleColor(int color, int x, int y, int width, int height, int *out) = 0;
    // A shape painted on this raster; the caller deletes it.
    virtual BMPShape *createShape() = 0;
};
