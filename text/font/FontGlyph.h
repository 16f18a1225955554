#pragma once

class FontFace;

// One rendered character of one face.  The bitmap belongs to the glyph; the
// glyph belongs to its face and lives as long as the font driver.
class FontGlyph {
public:
    // Pixel formats of the bitmap.
    enum {
        kGrey = 1,        // one byte a pixel
        kLcd = 4,         // three bytes a pixel, unfiltered
        kLcdFiltered = 5  // three bytes a pixel, filtered
    };

    FontGlyph()
        : advance(0),
          leftBearing(0),
          bitmapLeft(0),
          bitmapTop(0),
          pitch(0),
          rows(0),
          bitmap(nullptr),
          pixelFormat(kGrey),
          glyphId(0),
          face(nullptr) {}
    virtual ~FontGlyph() {}
    virtual void addRef() = 0;
    virtual void release() = 0;

    // Width in pixels of the bitmap.
    int getPixelWidth() const { return pixelFormat == kGrey ? pitch : pitch / 3; }

    double advance;   // pixels
    int leftBearing;  // negative of the ascender offset
    int bitmapLeft;   // from the pen position to the first column
    int bitmapTop;    // from the baseline up to the first row
    int pitch;        // bytes a row
    int rows;
    unsigned char *bitmap;
    int pixelFormat;
    unsigned glyphId;  // the glyph's index in the font file
    FontFace *face;    // the face that rendered it, which owns it
};
