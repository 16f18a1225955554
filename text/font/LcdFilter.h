#pragma once

class GlyphBitmap;

// The engine's own sub-pixel filter for LCD glyphs: a five-tap kernel across the
// samples of a row.  FreeType's filter is switched off so this one alone applies.
class LcdFilter {
public:
    // Widens each row by 6 samples and moves the left edge one pixel.
    static void apply(GlyphBitmap *bitmap);
    // One output sample from its five neighbours, b3 the centre.
    static int filterSample(int b1, int b2, int b3, int b4, int b5);
};
