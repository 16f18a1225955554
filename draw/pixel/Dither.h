#pragma once

#include "draw/pixel/PixelImage.h"

class Quantizer;

// Turns true-colour pixels into palette indexes or black and white bits by one
// of the DitherMethod rules.
class Dither {
public:
    // indexes[i] = offset + the quantizer's index for pixel i; the alpha byte is
    // ignored.
    static void mapToPalette(const PixelImage &image, Quantizer &quantizer, int method, int offset,
                             unsigned char *indexes);
    // Rows of rowBytes bytes, most significant bit first, 1 for white.  Pixels
    // are seen over white.
    static void toBits(const PixelImage &image, int method, unsigned char *rows, int rowBytes);
    // The brightness of a pixel over white, 0 to 510.
    static int brightness(int color);

    static const int kBrightnessThreshold = 255;

private:
    static void mapOrdered(const PixelImage &image, Quantizer &quantizer, int offset,
                           unsigned char *indexes);
    static void mapDiffused(const PixelImage &image, Quantizer &quantizer, int offset,
                            unsigned char *indexes);
    static void bitsDiffused(const PixelImage &image, unsigned char *rows, int rowBytes);
};
