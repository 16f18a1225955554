#include "draw/pixel/Dither.h"

#include <cstring>
#include <vector>

#include "draw/pixel/Quantizer.h"

namespace {

// Added to each channel before a palette lookup.
const int kPaletteDitherTable[4][4] = {
    {15, -1, 11, -5}, {-8, 7, -13, 3}, {9, -7, 13, -3}, {-15, 1, -11, 5}};

// Added to the brightness (0 to 510) before the black and white threshold.
const int kBitsDitherTable[4][4] = {
    {179, -11, 131, -59}, {-95, 83, -155, 35}, {107, -83, 155, -35}, {-179, 11, -131, 59}};

inline int clampChannel(int v) {
    return v < 0 ? 0 : (v > 255 ? 255 : v);
}

// Floyd-Steinberg: 7/16 ahead, 3/16, 5/16 and 1/16 on the next row.  Each row
// buffer has one spare entry on both sides.
template <int N>
struct DiffusionRows {
    std::vector<int> current, next;
    explicit DiffusionRows(int width) : current((width + 2) * N, 0), next((width + 2) * N, 0) {}
    int *at(std::vector<int> &row, int x) { return &row[(x + 1) * N]; }
    void spread(int x, const int *error) {
        for (int c = 0; c < N; ++c) {
            at(current, x + 1)[c] += error[c] * 7 / 16;
            at(next, x - 1)[c] += error[c] * 3 / 16;
            at(next, x)[c] += error[c] * 5 / 16;
            at(next, x + 1)[c] += error[c] / 16;
        }
    }
    void advance() {
        current.swap(next);
        std::fill(next.begin(), next.end(), 0);
    }
};

}  // namespace

int Dither::brightness(int color) {
    int a = PixelImage::alphaOf(color);
    int r = PixelImage::redOf(color), g = PixelImage::greenOf(color), b = PixelImage::blueOf(color);
    if (a) {
        r += (255 - r) * a / 255;
        g += (255 - g) * a / 255;
        b += (255 - b) * a / 255;
    }
    return (r * 299 + g * 587 + b * 114) / 500;
}

void Dither::mapToPalette(const PixelImage &image, Quantizer &quantizer, int method, int offset,
                          unsigned char *indexes) {
    if (method == kOrderedDither) return mapOrdered(image, quantizer, offset, indexes);
    if (method == kErrorDiffusion) return mapDiffused(image, quantizer, offset, indexes);
    int n = image.pixelCount();
    for (int i = 0; i < n; ++i)
        indexes[i] = (unsigned char)(offset + quantizer.mapColor(image.pixels[i]));
}

void Dither::mapOrdered(const PixelImage &image, Quantizer &quantizer, int offset,
                        unsigned char *indexes) {
    for (int y = 0; y < image.height; ++y) {
        const int *row = image.row(y);
        unsigned char *out = indexes + (long)y * image.width;
        for (int x = 0; x < image.width; ++x) {
            int d = kPaletteDitherTable[y & 3][x & 3];
            int c = row[x];
            out[x] = (unsigned char)(offset +
                                     quantizer.mapColor(clampChannel(PixelImage::redOf(c) + d),
                                                        clampChannel(PixelImage::greenOf(c) + d),
                                                        clampChannel(PixelImage::blueOf(c) + d)));
        }
    }
}

void Dither::mapDiffused(const PixelImage &image, Quantizer &quantizer, int offset,
                         unsigned char *indexes) {
    int palette[256] = {};
    quantizer.getPalette(palette);
    DiffusionRows<3> rows(image.width);
    for (int y = 0; y < image.height; ++y) {
        const int *row = image.row(y);
        unsigned char *out = indexes + (long)y * image.width;
        for (int x = 0; x < image.width; ++x) {
            const int *carried = rows.at(rows.current, x);
            int want[3] = {clampChannel(PixelImage::redOf(row[x]) + carried[0]),
                           clampChannel(PixelImage::greenOf(row[x]) + carried[1]),
                           clampChannel(PixelImage::blueOf(row[x]) + carried[2])};
            int index = quantizer.mapColor(want[0], want[1], want[2]);
            int got = palette[index];
            int error[3] = {want[0] - PixelImage::redOf(got), want[1] - PixelImage::greenOf(got),
                            want[2] - PixelImage::blueOf(got)};
            rows.spread(x, error);
            out[x] = (unsigned char)(offset + index);
        }
        rows.advance();
    }
}

void Dither::toBits(const PixelImage &image, int method, unsigned char *rows, int rowBytes) {
    memset(rows, 0, (size_t)rowBytes * image.height);
    if (method == kErrorDiffusion) return bitsDiffused(image, rows, rowBytes);
    for (int y = 0; y < image.height; ++y) {
        const int *row = image.row(y);
        unsigned char *out = rows + (long)y * rowBytes;
        for (int x = 0; x < image.width; ++x) {
            int v = brightness(row[x]);
            if (method == kOrderedDither) v += kBitsDitherTable[y & 3][x & 3];
            if (v >= kBrightnessThreshold) out[x >> 3] |= (unsigned char)(0x80 >> (x & 7));
        }
    }
}

void Dither::bitsDiffused(const PixelImage &image, unsigned char *rows, int rowBytes) {
    DiffusionRows<1> carry(image.width);
    for (int y = 0; y < image.height; ++y) {
        const int *row = image.row(y);
        unsigned char *out = rows + (long)y * rowBytes;
        for (int x = 0; x < image.width; ++x) {
            int v = brightness(row[x]) + *carry.at(carry.current, x);
            bool white = v >= kBrightnessThreshold;
            if (white) out[x >> 3] |= (unsigned char)(0x80 >> (x & 7));
            int error = v - (white ? 510 : 0);
            carry.spread(x, &error);
        }
        carry.advance();
    }
}
