#pragma once

// Helpers of the chart fuzz targets: texts cut from the bytes, and the check
// that a text handed out is there and of bounded length.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

// The bytes as texts separated by NUL bytes: at most maxTexts + 1 texts of at
// most maxText bytes each.
inline std::vector<std::string> splitTexts(const uint8_t *data, size_t size, size_t maxTexts,
                                           size_t maxText) {
    std::vector<std::string> texts(1);
    for (size_t i = 0; i < size && texts.size() <= maxTexts; ++i) {
        if (data[i] == 0)
            texts.emplace_back();
        else if (texts.back().size() < maxText)
            texts.back() += (char)data[i];
    }
    return texts;
}

// A data value from one byte: now and then a gap, NaN, infinity, a huge or a
// tiny value; mostly a small one of either sign.
inline double valueOfByte(uint8_t b) {
    switch (b) {
        case 0xFF:
            return 1.7e308;
        case 0xFE:
            return NAN;
        case 0xFD:
            return INFINITY;
        case 0xFC:
            return 1e308;
        case 0xFB:
            return -1e-300;
        default:
            return (int8_t)b * 0.75;
    }
}

inline void checkBounded(const char *s, size_t limit) {
    if (!s || strnlen(s, limit + 1) > limit) abort();
}
