#pragma once

#include "draw/pixel/PixelImage.h"

namespace qlx {
class ostream;
}

// Wireless bitmap, level 0: one bit a pixel, 1 for white, by the image's
// dither method.
class WBMPEncoder {
public:
    static bool encode(qlx::ostream &out, const PixelImage &image);

private:
    static void writeMultiByte(qlx::ostream &out, unsigned value);
};
