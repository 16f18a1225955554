#pragma once

// Test images and independent readers for the codec tests.

#include <png.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "draw/pixel/PixelImage.h"
#include "foundation/Stream.h"

namespace codectest {

inline std::string bytesOf(qlx::ostrstream &s) {
    return std::string(s.str(), s.tell());
}

// A chart-like picture: white background, grid, bars and a few gradients.
inline std::vector<int> chartPixels(int w, int h) {
    std::vector<int> p((size_t)w * h, 0xffffff);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            int &c = p[(size_t)y * w + x];
            if (y % 50 == 0 || x % 80 == 0) c = 0xc0c0c0;
            if (x > w / 8 && x < w / 4 && y > h / 3) c = 0x3366cc;
            if (x > w / 2 && x < 3 * w / 4 && y > h / 2) c = (y * 255 / h) << 8 | 0x80;
        }
    return p;
}

// n distinct random colours, repeated over w by h pixels.
inline std::vector<int> randomPalettePixels(int w, int h, int n, unsigned seed,
                                            int alphaEvery = 0) {
    std::mt19937 rng(seed);
    std::vector<int> colors;
    while ((int)colors.size() < n) {
        int c = (int)(rng() & 0xffffff);
        if (alphaEvery && colors.size() % alphaEvery == 1) c |= (int)((rng() % 255 + 1) << 24);
        bool seen = false;
        for (int d : colors) seen = seen || d == c;
        if (!seen) colors.push_back(c);
    }
    std::vector<int> p((size_t)w * h);
    for (size_t i = 0; i < p.size(); ++i) p[i] = colors[i < colors.size() ? i : rng() % n];
    return p;
}

struct PngFacts {
    bool ok = false;
    int width = 0, height = 0, bitDepth = 0, colorType = -1, interlace = -1;
    int paletteCount = 0;
    bool hasTRNS = false;
    int transCount = 0;
    png_color_16 transColor = {};
    std::vector<uint8_t> rgba;  // as libpng's simplified reader sees it
};

struct PngBuffer {
    const std::string *bytes;
    size_t pos;
};

inline void readBuffer(png_structp png, png_bytep out, png_size_t n) {
    PngBuffer *b = (PngBuffer *)png_get_io_ptr(png);
    if (b->pos + n > b->bytes->size()) png_error(png, "short");
    memcpy(out, b->bytes->data() + b->pos, n);
    b->pos += n;
}

inline PngFacts readPng(const std::string &bytes) {
    PngFacts f;
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    PngBuffer buffer = {&bytes, 0};
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_read_struct(&png, &info, nullptr);
        return PngFacts();
    }
    png_set_read_fn(png, &buffer, readBuffer);
    png_read_info(png, info);
    png_uint_32 w, h;
    png_get_IHDR(png, info, &w, &h, &f.bitDepth, &f.colorType, &f.interlace, nullptr, nullptr);
    f.width = (int)w;
    f.height = (int)h;
    png_colorp palette;
    if (png_get_PLTE(png, info, &palette, &f.paletteCount) == 0) f.paletteCount = 0;
    png_bytep trans;
    png_color_16p transColor;
    if (png_get_tRNS(png, info, &trans, &f.transCount, &transColor)) {
        f.hasTRNS = true;
        if (transColor) f.transColor = *transColor;
    }
    png_destroy_read_struct(&png, &info, nullptr);

    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size())) return f;
    image.format = PNG_FORMAT_RGBA;
    f.rgba.resize(PNG_IMAGE_SIZE(image));
    f.ok = png_image_finish_read(&image, nullptr, f.rgba.data(), 0, nullptr) != 0;
    return f;
}

// A colour word from libpng's straight RGBA bytes.
inline int wordOf(const std::vector<uint8_t> &rgba, size_t i) {
    return PixelImage::makeColor(255 - rgba[i * 4 + 3], rgba[i * 4], rgba[i * 4 + 1],
                                 rgba[i * 4 + 2]);
}

}  // namespace codectest
