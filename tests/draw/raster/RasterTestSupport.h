#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "draw/raster/DrawBMPImpl.h"

// A raster of the given size and background, owned by the test.
inline std::unique_ptr<DrawBMPImpl> makeRaster(int w, int h, int bg) {
    std::unique_ptr<DrawBMPImpl> r(static_cast<DrawBMPImpl *>(DrawBMP::create(nullptr, nullptr)));
    r->setSize(w, h, bg);
    return r;
}

inline unsigned pixelOf(const DrawBMPImpl &r, int x, int y) {
    return (unsigned)r.getPixel(x, y);
}

// Writes the raster as a PAM file (RGBA) for looking at while developing.
inline void dumpPAM(const DrawBMPImpl &r, const std::string &path) {
    FILE *f = std::fopen(path.c_str(), "wb");
    if (!f) return;
    std::fprintf(f, "P7\nWIDTH %d\nHEIGHT %d\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n",
                 r.getWidth(), r.getHeight());
    for (int y = 0; y < r.getHeight(); ++y)
        for (int x = 0; x < r.getWidth(); ++x) {
            unsigned p = pixelOf(r, x, y);
            unsigned char px[4] = {(unsigned char)(p >> 16), (unsigned char)(p >> 8),
                                   (unsigned char)p, (unsigned char)(255 - (p >> 24))};
            std::fwrite(px, 1, 4, f);
        }
    std::fclose(f);
}

inline int dyn(int n) {
    return (int)(0xFFFE0000u + (unsigned)n);
}
