#pragma once

// Shared body of the decoder fuzz targets: the declared size comes from the
// header, as the canvas takes it, and is capped to keep runs fast.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageSniffer.h"

inline int fuzzDecode(const uint8_t *data, size_t size, int type) {
    const long kMaxPixels = 1 << 22;
    if (size > (1 << 20)) return 0;
    int width = 0, height = 0;
    if (!ImageSniffer::getSize((int)size, data, &width, &height)) return 0;
    if (width <= 0 || height <= 0 || (long)width * height > kMaxPixels) return 0;
    std::vector<int> pixels((size_t)width * height);
    ImageDecoder::decodeImage(reinterpret_cast<const char *>(data), (int)size, type, width, height,
                              pixels.data());
    return 0;
}
