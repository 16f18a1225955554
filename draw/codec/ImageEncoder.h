#pragma once

#include "draw/pixel/PixelImage.h"

namespace qlx {
class ostream;
}

// One entry for all raster encoders.
class ImageEncoder {
public:
    // Encodes by image type (kPNG, kGIF, kJPG, kWMP, kBMP); false for other
    // types, an empty image or a codec error.  quality serves JPEG (0 to 100);
    // alphaOption is the value of the "alpha" output option for BMP: null when
    // the option is absent, "" when given without a value.
    static bool encode(qlx::ostream &out, const PixelImage &image, int type, int quality = 80,
                       const char *alphaOption = nullptr);
    // PNG of a bare pixel block, for image data inside vector outputs.
    static bool encodePNG(qlx::ostream &out, const int *pixels, int width, int height);
    // The transparency byte of each pixel, row by row (0 opaque, 255 invisible).
    static bool encodeAlpha(qlx::ostream &out, const PixelImage &image);
    // The BMP alpha mode of an "alpha" option value.
    static int bmpAlphaMode(const char *alphaOption);

private:
    static bool encodeGIF(qlx::ostream &out, const PixelImage &image);
};
