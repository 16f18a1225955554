#pragma once

// While one stands, glyphs larger than the canvas being written on are made
// for their text alone and not kept: a label at 4096 points pins no memory
// once it is drawn.  Made and dropped under the font mutex.
class CanvasGlyphLimit {
public:
    // A canvas of 1 by 1, not sized yet, sets no limit.
    CanvasGlyphLimit(int canvasWidth, int canvasHeight);
    ~CanvasGlyphLimit();
    CanvasGlyphLimit(const CanvasGlyphLimit &) = delete;
    CanvasGlyphLimit &operator=(const CanvasGlyphLimit &) = delete;

    // Whether a glyph of this many pixels may be kept by its face.
    static bool allowsKeeping(int width, int rows);

private:
    int savedWidth, savedHeight;
    // 0 when no canvas sets a limit.
    static int width, height;
};
