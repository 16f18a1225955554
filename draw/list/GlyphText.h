#pragma once

#include <cmath>
#include <vector>

// The glyphs of one Text record, as a back end gets them: a raster paints the
// rendered bitmaps; a vector output names or embeds the font and places each
// glyph by its id and characters.  Positions are pixels in the text's frame:
// x along the baseline, y down, from the frame's origin; `matrix` maps the
// frame onto the canvas.

// The font of a run.  The strings live as long as the font driver.
struct GlyphFont {
    const char *filePath;        // the font file, "" when the font has none
    int faceIndex;               // the face in a collection file
    const char *familyName;      // never null
    const char *postscriptName;  // null when the file stands in under a family name
    bool bold, italic;           // as drawn
    bool syntheticBold;          // made up by a double strike
    bool syntheticItalic;        // made up by a shear
    int pixelSize;               // the em height
    double widthScale;           // the em width over the em height
};

// A glyph as rendered: coverage 0 to 255, one byte a pixel, or three (LCD
// samples, left to right); rows top first, `pitch` bytes apart.  `left` runs
// from the pen to the first column, `top` from the baseline up to the first row.
struct GlyphImage {
    const unsigned char *pixels;  // null for a glyph with no ink
    int width, rows, pitch;
    int left, top;
    int bytesPerPixel;
};

struct PlacedGlyph {
    unsigned glyphId;  // the glyph's index in the font file
    // The characters it stands for, in GlyphText::chars: one, or two for a ligature.
    int firstChar, charCount;
    double x, y;  // the pen position in the frame
    double advance;
    GlyphImage image;
    // The character whose glyph is drawn: the first character, or its mirrored
    // or contextual form in right-to-left text.
    int drawnChar = 0;
};

// Glyphs of one font, one colour and one direction, in drawing order (left to
// right; a right-to-left run holds its characters reversed).
struct GlyphRun {
    GlyphFont font;
    int color;  // a final colour word: plain, or a dynamic colour
    bool rightToLeft;
    int firstGlyph, glyphCount;  // in GlyphText::glyphs
};

struct GlyphText {
    int originX = 0, originY = 0;     // where the frame's origin lands on the canvas
    double matrix[4] = {1, 0, 0, 1};  // canvas = origin + (m0 x + m1 y, m2 x + m3 y)
    std::vector<GlyphRun> runs;
    std::vector<PlacedGlyph> glyphs;
    std::vector<int> chars;  // Unicode characters

    // Empties the text and sets its frame.
    void reset(int x, int y, const double m[4]) {
        originX = x, originY = y;
        for (int k = 0; k < 4; ++k) matrix[k] = m[k];
        runs.clear(), glyphs.clear(), chars.clear();
    }
    // The rotation of the frame, degrees counter-clockwise on the canvas.
    double angle() const { return std::atan2(-matrix[2], matrix[0]) * 180 / 3.14159265358979; }
    void toCanvas(double x, double y, double *cx, double *cy) const {
        *cx = originX + matrix[0] * x + matrix[1] * y;
        *cy = originY + matrix[2] * x + matrix[3] * y;
    }
};
