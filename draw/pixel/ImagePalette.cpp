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

namespace {

// Colour words and their entries in a table of twice the palette's size,
// open-addressed: the few colours of a chart are found in a probe or two.
class HashedColors {
public:
    HashedColors() {
        for (unsigned &k : keys) k = kEmpty;
    }
    // The entry of c, added when new; -1 when the palette is full.
    int entryOf(int c) {
        unsigned key = (unsigned)c;
        for (unsigned slot = (key * 0x9E3779B1u) >> (32 - kBits);; slot = (slot + 1) & kMask) {
            if (keys[slot] == key) return entries[slot];
            if (keys[slot] != kEmpty) continue;
            if (count >= 256) return -1;
            keys[slot] = key;
            entries[slot] = (unsigned char)count;
            order[count] = c;
            return count++;
        }
    }
    int size() const { return count; }
    int colorAt(int entry) const { return order[entry]; }

private:
    static const int kBits = 9;
    static const unsigned kMask = (1u << kBits) - 1;
    // No key is a word with the top byte 255 but kTransparent itself.
    static const unsigned kEmpty = 0xFFFFFFFFu;
    unsigned keys[1 << kBits];
    unsigned char entries[1 << kBits];
    int order[256];
    int count = 0;
};

// The same with an ordered map.
class MappedColors {
public:
    int entryOf(int c) {
        auto found = table.find(c);
        if (found != table.end()) return found->second;
        if (table.size() >= 256) return -1;
        int entry = (int)table.size();
        table.emplace(c, entry);
        order.push_back(c);
        return entry;
    }
    int size() const { return (int)table.size(); }
    int colorAt(int entry) const { return order[entry]; }

private:
    std::map<int, int> table;
    std::vector<int> order;
};

}  // namespace

int ImagePalette::exactPalette(const PixelImage &image, int *palette, unsigned char *indexes,
                               unsigned char *alphaTable) {
    return scanColors<HashedColors>(image, palette, indexes, alphaTable);
}

int ImagePalette::exactPaletteByMap(const PixelImage &image, int *palette, unsigned char *indexes,
                                    unsigned char *alphaTable) {
    return scanColors<MappedColors>(image, palette, indexes, alphaTable);
}

template <class Colors>
int ImagePalette::scanColors(const PixelImage &image, int *palette, unsigned char *indexes,
                             unsigned char *alphaTable) {
    Colors colors;
    if (image.hasTransparentColor()) colors.entryOf(image.transparentColor);
    int n = image.pixelCount();
    int last = 0, lastIndex = -1;
    for (int i = 0; i < n; ++i) {
        int c = paletteKey(image.pixels[i]);
        if (lastIndex < 0 || c != last) {
            lastIndex = colors.entryOf(c);
            if (lastIndex < 0) return 0;
            last = c;
        }
        indexes[i] = (unsigned char)lastIndex;
    }
    for (int entry = 0; entry < colors.size(); ++entry) {
        palette[entry] = colors.colorAt(entry);
        alphaTable[entry] = (unsigned char)(255 - PixelImage::alphaOf(palette[entry]));
    }
    if (image.hasTransparentColor()) alphaTable[0] = 0;
    return colors.size();
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
