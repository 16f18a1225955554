#pragma once

// Shared by the chart fuzz targets: the texts that follow the control bytes,
// separated by NUL bytes, at most maxTexts of at most maxText bytes each.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

inline std::vector<std::string> splitFuzzTexts(const uint8_t *data, size_t size, size_t maxTexts,
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
