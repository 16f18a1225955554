#pragma once

#include "draw/pixel/PixelImage.h"

// Palette extraction for palette outputs, and colour reduction of a raster.
class ImagePalette {
public:
    // Up to 256 entries: palette receives colour words, alphaTable their opacity
    // (255 opaque, 0 invisible) and indexes one entry per pixel.  A writable
    // transparent colour takes entry 0.  With more than 256 colours the image is
    // quantized when forcePalette is set, by the image's dither method; mostly
    // transparent pixels then share entry 0.  Returns the entry count, 0 when
    // there is no palette.
    static int toPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                         unsigned char *alphaTable, bool forcePalette);
    // Replaces the pixels by a quantized copy of at most colorCount colours
    // (grays with blackAndWhite), keeping each pixel's alpha byte.  Returns the
    // number of colours used, 0 when nothing was done.
    static int reduceColors(int *pixels, int width, int height, int colorCount, bool blackAndWhite,
                            int ditherMethod);

    // The palette of an image of at most 256 colours, entries in the order
    // the colours turn up; 0 for more colours.  Found through a hash table;
    // exactPaletteByMap is the plain form with an ordered map, which gives the
    // same entries.
    static int exactPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                            unsigned char *alphaTable);
    static int exactPaletteByMap(const PixelImage &image, int *palette, unsigned char *indexes,
                                 unsigned char *alphaTable);

private:
    template <class Colors>
    static int scanColors(const PixelImage &image, int *palette, unsigned char *indexes,
                          unsigned char *alphaTable);
    static int quantizedPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                                unsigned char *alphaTable);
};
