#pragma once

#include <string>

// Images inside an SVG document: "data:" addresses holding the bytes in base64.
class SVGImageData {
public:
    // Pixels (colour words, row by row) encoded as PNG; empty when encoding fails.
    static std::string ofPixels(const int *pixels, int width, int height);
    // Encoded bytes as they are, of the given media type.
    static std::string ofBytes(const char *data, int length, const char *mediaType);
};
