#pragma once

// Helpers of the chart fuzz targets: texts cut from the bytes, and the check
// that a text handed out is there and of bounded length.

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

inline void checkBounded(const char *s, size_t limit) {
    if (!s || strnlen(s, limit + 1) > limit) abort();
}
