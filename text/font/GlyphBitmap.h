#pragma once

#include <cstddef>
#include <vector>

// A glyph image while it is being finished: 8 bits a sample, `pitch` samples a
// row, three samples a pixel in the LCD formats.  `left` and `top` place it
// against the pen position and the baseline.
class GlyphBitmap {
public:
    GlyphBitmap() : pitch(0), rows(0), left(0), top(0), bytesPerPixel(1) {}

    // Double strike: one pixel wider, each pixel added to the one on its right.
    void embolden();
    // Shifts rows right by slope/256 samples for each row above the baseline.
    void shear(int slope);
    // Raises the intensity of small sizes, where thin stems fade.
    void boostSmallSize(int pixelSize);

    int at(int x, int y) const { return data[y * pitch + x]; }

    std::vector<unsigned char> data;
    int pitch;
    int rows;
    int left;
    int top;
    int bytesPerPixel;
};
