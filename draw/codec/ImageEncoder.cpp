#include "draw/codec/ImageEncoder.h"

#include <cstdlib>
#include <vector>

#include "draw/codec/BMPCodec.h"
#include "draw/codec/GIFEncoder.h"
#include "draw/codec/JPEGCodec.h"
#include "draw/codec/PNGCodec.h"
#include "draw/codec/WBMPEncoder.h"
#include "draw/pixel/ImagePalette.h"
#include "foundation/Constants.h"
#include "foundation/Stream.h"

bool ImageEncoder::encode(qlx::ostream &out, const PixelImage &image, int type, int quality,
                          const char *alphaOption) {
    if (!image.isValid()) return false;
    switch (type) {
        case kPNG:
            return PNGCodec::encode(out, image);
        case kGIF:
            return encodeGIF(out, image);
        case kJPG:
            return JPEGCodec::encode(out, image, quality);
        case kWMP:
            return WBMPEncoder::encode(out, image);
        case kBMP:
            return BMPCodec::encode(out, image, bmpAlphaMode(alphaOption));
        default:
            return false;
    }
}

int ImageEncoder::bmpAlphaMode(const char *alphaOption) {
    if (!alphaOption) return 0;
    if (!*alphaOption) return 1;
    return atoi(alphaOption);
}

bool ImageEncoder::encodePNG(qlx::ostream &out, const int *pixels, int width, int height) {
    return PNGCodec::encodePixels(out, pixels, width, height);
}

bool ImageEncoder::encodeAlpha(qlx::ostream &out, const PixelImage &image) {
    if (!image.isValid()) return false;
    std::vector<unsigned char> row(image.width);
    for (int y = 0; y < image.height; ++y) {
        const int *src = image.row(y);
        for (int x = 0; x < image.width; ++x) row[x] = (unsigned char)PixelImage::alphaOf(src[x]);
        out.write(row.data(), image.width);
    }
    return true;
}

// GIF has one transparent entry: every mostly transparent entry becomes the
// first of them.
bool ImageEncoder::encodeGIF(qlx::ostream &out, const PixelImage &image) {
    int palette[256];
    unsigned char alphaTable[256];
    std::vector<unsigned char> indexes((size_t)image.pixelCount());
    int count = ImagePalette::toPalette(image, palette, indexes.data(), alphaTable, true);
    if (count <= 0) return false;
    int transparentIndex = -1;
    unsigned char remap[256];
    bool remapped = false;
    for (int i = 0; i < count; ++i) {
        remap[i] = (unsigned char)i;
        if (alphaTable[i] >= 128) continue;
        if (transparentIndex < 0)
            transparentIndex = i;
        else
            remapped = true;
        remap[i] = (unsigned char)transparentIndex;
    }
    if (remapped)
        for (unsigned char &index : indexes) index = remap[index];
    return GIFEncoder::encode(out, indexes.data(), image.width, image.height, palette, count,
                              transparentIndex, image.interlace != 0);
}
