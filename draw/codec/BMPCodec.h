#pragma once

#include "draw/pixel/PixelImage.h"

namespace qlx {
class ostream;
}

// Windows bitmaps with a BITMAPINFOHEADER, rows bottom-up.
class BMPCodec {
public:
    // alphaMode 0: a palette file when the colours allow it, else 24-bit.
    // 2: 24-bit.  4: 32-bit with alpha.  Any other positive value: 32-bit when
    // some pixel has alpha, else 24-bit.
    static bool encode(qlx::ostream &out, const PixelImage &image, int alphaMode);
    // Reads 1, 4, 8, 24 and 32-bit uncompressed bottom-up files of exactly width
    // by height.  On failure all pixels are kTransparent and the result is false.
    static bool decode(const char *data, int length, int width, int height, int *pixels);

private:
    static void writeHeaders(qlx::ostream &out, int width, int height, int bitCount,
                             int paletteCount);
    static void writePaletteRows(qlx::ostream &out, const PixelImage &image, const int *palette,
                                 int count, const unsigned char *indexes);
    static void writeTrueColorRows(qlx::ostream &out, const PixelImage &image, int bitCount);
    static bool readPixels(const unsigned char *data, long length, int width, int height,
                           int *pixels);
};
