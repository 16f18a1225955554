#pragma once

#include "draw/pixel/PixelImage.h"

namespace qlx {
class ostream;
}

// JPEG through libjpeg.  libjpeg's errors jump back here instead of ending the
// process.
class JPEGCodec {
public:
    // quality 0 to 100; progressive when the image is interlaced.  Transparent
    // pixels are seen over white.
    static bool encode(qlx::ostream &out, const PixelImage &image, int quality);
    // Decodes an image of exactly width by height into pixels; on failure the
    // pixels are all kTransparent and the result is false.
    static bool decode(const char *data, int length, int width, int height, int *pixels);

private:
    struct WriteJob;
    struct ReadJob;
    static bool runWrite(WriteJob &job);
    static bool runRead(ReadJob &job);
};
