#include "draw/codec/BMPCodec.h"

#include <algorithm>
#include <vector>

#include "draw/pixel/ImagePalette.h"
#include "foundation/Stream.h"

namespace {

const int kFileHeaderSize = 14;
const int kInfoHeaderSize = 40;
const int kPixelsPerMeter = 2835;  // 72 dpi

void putLE(std::vector<unsigned char> &b, unsigned v, int bytes) {
    for (int i = 0; i < bytes; ++i) b.push_back((unsigned char)(v >> (8 * i)));
}

unsigned getLE(const unsigned char *p, int bytes) {
    unsigned v = 0;
    for (int i = bytes - 1; i >= 0; --i) v = (v << 8) | p[i];
    return v;
}

int rowBytes(int width, int bitCount) {
    return (int)((((long)width * bitCount + 31) / 32) * 4);
}

int paletteBits(int count) {
    return count <= 2 ? 1 : count <= 16 ? 4 : 8;
}

}  // namespace

bool BMPCodec::encode(qlx::ostream &out, const PixelImage &image, int alphaMode) {
    if (!image.isValid()) return false;
    if (alphaMode > 0) {
        bool alpha = alphaMode == 4 || (alphaMode != 2 && image.hasAlpha());
        int bitCount = alpha ? 32 : 24;
        writeHeaders(out, image.width, image.height, bitCount, 0);
        writeTrueColorRows(out, image, bitCount);
        return true;
    }
    int count = 0;
    int palette[256];
    unsigned char alphaTable[256];
    std::vector<unsigned char> indexes;
    bool tryPalette = image.paletteMode != kNoPalette && image.paletteMode < 128;
    if (tryPalette) {
        indexes.resize((size_t)image.pixelCount());
        count = ImagePalette::toPalette(image, palette, indexes.data(), alphaTable,
                                        image.paletteMode == kForcePalette);
    }
    if (count > 0) {
        writeHeaders(out, image.width, image.height, paletteBits(count), count);
        writePaletteRows(out, image, palette, count, indexes.data());
    } else {
        writeHeaders(out, image.width, image.height, 24, 0);
        writeTrueColorRows(out, image, 24);
    }
    return true;
}

void BMPCodec::writeHeaders(qlx::ostream &out, int width, int height, int bitCount,
                            int paletteCount) {
    unsigned dataSize = (unsigned)rowBytes(width, bitCount) * (unsigned)height;
    unsigned offset = kFileHeaderSize + kInfoHeaderSize + 4 * paletteCount;
    std::vector<unsigned char> h;
    h.push_back('B');
    h.push_back('M');
    putLE(h, offset + dataSize, 4);
    putLE(h, 0, 4);
    putLE(h, offset, 4);
    putLE(h, kInfoHeaderSize, 4);
    putLE(h, (unsigned)width, 4);
    putLE(h, (unsigned)height, 4);
    putLE(h, 1, 2);
    putLE(h, (unsigned)bitCount, 2);
    putLE(h, 0, 4);  // uncompressed
    putLE(h, dataSize, 4);
    putLE(h, kPixelsPerMeter, 4);
    putLE(h, kPixelsPerMeter, 4);
    putLE(h, (unsigned)paletteCount, 4);
    putLE(h, 0, 4);
    out.write(h.data(), (int)h.size());
}

void BMPCodec::writePaletteRows(qlx::ostream &out, const PixelImage &image, const int *palette,
                                int count, const unsigned char *indexes) {
    std::vector<unsigned char> entries;
    for (int i = 0; i < count; ++i) {
        entries.push_back((unsigned char)PixelImage::blueOf(palette[i]));
        entries.push_back((unsigned char)PixelImage::greenOf(palette[i]));
        entries.push_back((unsigned char)PixelImage::redOf(palette[i]));
        entries.push_back(0);
    }
    out.write(entries.data(), (int)entries.size());
    int bits = paletteBits(count);
    int perByte = 8 / bits;
    std::vector<unsigned char> row(rowBytes(image.width, bits));
    for (int y = image.height - 1; y >= 0; --y) {
        std::fill(row.begin(), row.end(), 0);
        const unsigned char *src = indexes + (long)y * image.width;
        for (int x = 0; x < image.width; ++x) {
            int shift = 8 - bits * (x % perByte + 1);
            row[x / perByte] |= (unsigned char)(src[x] << shift);
        }
        out.write(row.data(), (int)row.size());
    }
}

void BMPCodec::writeTrueColorRows(qlx::ostream &out, const PixelImage &image, int bitCount) {
    int bytes = bitCount / 8;
    std::vector<unsigned char> row(rowBytes(image.width, bitCount), 0);
    for (int y = image.height - 1; y >= 0; --y) {
        const int *src = image.row(y);
        unsigned char *p = row.data();
        for (int x = 0; x < image.width; ++x, p += bytes) {
            int c = src[x];
            p[0] = (unsigned char)PixelImage::blueOf(c);
            p[1] = (unsigned char)PixelImage::greenOf(c);
            p[2] = (unsigned char)PixelImage::redOf(c);
            if (bytes == 4) p[3] = (unsigned char)(255 - PixelImage::alphaOf(c));
        }
        out.write(row.data(), (int)row.size());
    }
}

bool BMPCodec::decode(const char *data, int length, int width, int height, int *pixels) {
    if (!pixels || width <= 0 || height <= 0) return false;
    bool ok =
        data && length > 0 &&
        readPixels(reinterpret_cast<const unsigned char *>(data), length, width, height, pixels);
    if (!ok) std::fill(pixels, pixels + (long)width * height, kTransparent);
    return ok;
}

bool BMPCodec::readPixels(const unsigned char *data, long length, int width, int height,
                          int *pixels) {
    if (length < kFileHeaderSize + kInfoHeaderSize || data[0] != 'B' || data[1] != 'M')
        return false;
    long offset = getLE(data + 10, 4);
    long headerSize = getLE(data + 14, 4);
    int fileWidth = (int)getLE(data + 18, 4);
    int fileHeight = (int)getLE(data + 22, 4);  // negative: top-down, refused
    int bitCount = (int)getLE(data + 28, 2);
    unsigned compression = getLE(data + 30, 4);
    unsigned used = getLE(data + 46, 4);
    if (headerSize < kInfoHeaderSize || headerSize > length) return false;
    if (fileWidth != width || fileHeight != height || compression != 0) return false;
    if (bitCount != 1 && bitCount != 4 && bitCount != 8 && bitCount != 24 && bitCount != 32)
        return false;

    int palette[256] = {};
    int paletteCount = 0;
    if (bitCount <= 8) {
        paletteCount = used > 0 && used < (1u << bitCount) ? (int)used : 1 << bitCount;
        long start = kFileHeaderSize + headerSize;
        if (start + 4L * paletteCount > length) return false;
        for (int i = 0; i < paletteCount; ++i) {
            const unsigned char *e = data + start + 4 * i;
            palette[i] = (e[2] << 16) | (e[1] << 8) | e[0];
        }
    }
    long stride = rowBytes(width, bitCount);
    if (offset < kFileHeaderSize + headerSize || offset + stride * height > length) return false;

    bool hasAlpha = false;
    if (bitCount == 32)
        for (int y = 0; y < height && !hasAlpha; ++y)
            for (int x = 0; x < width && !hasAlpha; ++x)
                hasAlpha = data[offset + stride * y + 4 * x + 3] != 0;
    for (int y = 0; y < height; ++y) {
        const unsigned char *src = data + offset + stride * (height - 1 - y);
        int *out = pixels + (long)y * width;
        for (int x = 0; x < width; ++x) {
            if (bitCount <= 8) {
                int perByte = 8 / bitCount;
                int shift = 8 - bitCount * (x % perByte + 1);
                int index = (src[x / perByte] >> shift) & ((1 << bitCount) - 1);
                out[x] = palette[index];  // entries past the table are black
            } else {
                const unsigned char *p = src + x * (bitCount / 8);
                int alpha = hasAlpha ? 255 - p[3] : 0;
                out[x] = PixelImage::makeColor(alpha, p[2], p[1], p[0]);
            }
        }
    }
    return true;
}
