#include "draw/pixel/ImagePalette.h"

#include <map>
#include <vector>

#include "draw/pixel/Dither.h"
#include "draw/pixel/OctreeQuantizer.h"

namespace {

// All fully transparent pixels are one colour.
inline int paletteKey(int c) {
    return (unsigned)c >= 0xff000000u ? kTransparent : c;
}

inline bool mostlyTransparent(const PixelImage &image, int c) {
    return (image.hasTransparentColor() && c == image.transparentColor) ||
           PixelImage::alphaOf(c) >= 128;
}

}  // namespace

int ImagePalette::toPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                            unsigned char *alphaTable, bool forcePalette) {
    if (!image.isValid()) return 0;
    int count = exactPalette(image, palette, indexes, alphaTable);
    if (count > 0 || !forcePalette) return count;
    return quantizedPalette(image, palette, indexes, alphaTable);
}

int ImagePalette::exactPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                               unsigned char *alphaTable) {
    std::map<int, int> table;
    if (image.hasTransparentColor()) table[image.transparentColor] = 0;
    int n = image.pixelCount();
    int last = 0, lastIndex = -1;
    for (int i = 0; i < n; ++i) {
        int c = paletteKey(image.pixels[i]);
        if (lastIndex >= 0 && c == last) {
            indexes[i] = (unsigned char)lastIndex;
            continue;
        }
        auto found = table.find(c);
        if (found == table.end()) {
            if (table.size() >= 256) return 0;
            found = table.emplace(c, (int)table.size()).first;
        }
        last = c;
        lastIndex = found->second;
        indexes[i] = (unsigned char)lastIndex;
    }
    for (const auto &entry : table) {
        palette[entry.second] = entry.first;
        alphaTable[entry.second] = (unsigned char)(255 - PixelImage::alphaOf(entry.first));
    }
    if (image.hasTransparentColor()) alphaTable[0] = 0;
    return (int)table.size();
}

int ImagePalette::quantizedPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                                   unsigned char *alphaTable) {
    int n = image.pixelCount();
    bool reserve = image.hasTransparentColor();
    for (int i = 0; i < n && !reserve; ++i) reserve = mostlyTransparent(image, image.pixels[i]);
    int offset = reserve ? 1 : 0;

    OctreeQuantizer quantizer(256 - offset);
    for (int i = 0; i < n; ++i)
        if (!mostlyTransparent(image, image.pixels[i])) quantizer.addColor(image.pixels[i]);
    int count = offset + quantizer.getPalette(palette + offset);
    for (int i = offset; i < count; ++i) alphaTable[i] = 255;
    if (reserve) {
        palette[0] = image.hasTransparentColor() ? image.transparentColor : kTransparent;
        alphaTable[0] = 0;
    }

    Dither::mapToPalette(image, quantizer, image.ditherMethod, offset, indexes);
    if (reserve)
        for (int i = 0; i < n; ++i)
            if (mostlyTransparent(image, image.pixels[i])) indexes[i] = 0;
    return count;
}

int ImagePalette::reduceColors(int *pixels, int width, int height, int colorCount,
                               bool blackAndWhite, int ditherMethod) {
    if (!pixels || width <= 0 || height <= 0 || colorCount < 1) return 0;
    int n = width * height;
    if (blackAndWhite) {
        for (int i = 0; i < n; ++i) {
            int c = pixels[i];
            int gray = (PixelImage::redOf(c) * 299 + PixelImage::greenOf(c) * 587 +
                        PixelImage::blueOf(c) * 114 + 500) /
                       1000;
            pixels[i] = PixelImage::makeColor(PixelImage::alphaOf(c), gray, gray, gray);
        }
    }
    OctreeQuantizer quantizer(colorCount);
    for (int i = 0; i < n; ++i) quantizer.addColor(pixels[i]);
    int palette[256] = {};
    int count = quantizer.getPalette(palette);
    std::vector<unsigned char> indexes(n);
    PixelImage image(pixels, width, height);
    Dither::mapToPalette(image, quantizer, ditherMethod, 0, indexes.data());
    for (int i = 0; i < n; ++i) pixels[i] = (pixels[i] & (int)0xff000000u) | palette[indexes[i]];
    return count;
}
