#pragma once

#include "draw/pixel/ColorWords.h"

// How the raster encoders choose between palette and true-colour output.
// Values 128 to 137 mean no palette and a PNG compression level of value - 128.
enum PaletteMode {
    kTryPalette = 0,
    kForcePalette = 1,
    kNoPalette = 2,
};

// How true colours are mapped to a palette or to black and white.
enum DitherMethod {
    kQuantize = 0,
    kOrderedDither = 1,
    kErrorDiffusion = 2,
};

// A read-only view of raster pixels with the settings the encoders read.
// Pixels are colour words, row major, top row first, width words to a row.
struct PixelImage {
    const int *pixels = nullptr;
    int width = 0;
    int height = 0;
    int transparentColor = kTransparent;
    int paletteMode = kTryPalette;
    int ditherMethod = kQuantize;
    int interlace = 0;
    bool bgTransparent = false;

    PixelImage() {}
    PixelImage(const int *p, int w, int h) : pixels(p), width(w), height(h) {}

    bool isValid() const { return pixels && width > 0 && height > 0; }
    int pixelCount() const { return width * height; }
    const int *row(int y) const { return pixels + (long)y * width; }
    // A transparent colour that can be written: any word but kTransparent.
    bool hasTransparentColor() const { return ((unsigned)transparentColor >> 24) != 255; }
    // Channels of a colour word.
    static int alphaOf(int c) { return (int)((unsigned)c >> 24); }
    static int redOf(int c) { return (c >> 16) & 0xff; }
    static int greenOf(int c) { return (c >> 8) & 0xff; }
    static int blueOf(int c) { return c & 0xff; }
    static int makeColor(int alpha, int r, int g, int b) {
        return (int)(((unsigned)alpha << 24) | ((unsigned)r << 16) | ((unsigned)g << 8) |
                     (unsigned)b);
    }

    // True when some pixel isn't opaque.
    bool hasAlpha() const {
        int n = pixelCount();
        for (int i = 0; i < n; ++i)
            if ((unsigned)pixels[i] >= 0x1000000u) return true;
        return false;
    }
};
