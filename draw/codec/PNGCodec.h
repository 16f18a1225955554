#pragma once

#include <string>

#include "draw/pixel/PixelImage.h"

namespace qlx {
class ostream;
}

// PNG through libpng, written to a stream and read from memory.
class PNGCodec {
public:
    // Palette or true colour by the image's palette mode; false when libpng
    // reports an error.
    static bool encode(qlx::ostream &out, const PixelImage &image);
    // A bare pixel block: palette when it fits, alpha kept when some pixel has it.
    static bool encodePixels(qlx::ostream &out, const int *pixels, int width, int height);
    // Decodes an image of exactly width by height into pixels.  On failure the
    // pixels are all kTransparent, false is returned and error (if given) holds
    // libpng's or the reader's message.
    static bool decode(const char *data, int length, int width, int height, int *pixels,
                       std::string *error = nullptr);

private:
    struct WriteJob;
    struct ReadJob;
    static bool runWrite(WriteJob &job);
    static bool runRead(ReadJob &job);
    static void convertRows(int *pixels, int count);
};
