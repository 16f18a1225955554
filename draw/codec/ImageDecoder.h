#pragma once

#include <vector>

// One entry for all image decoders.
class ImageDecoder {
public:
    // Decodes an encoded image of the given type (kPNG, kGIF, kJPG, kBMP) and of
    // exactly width by height into pixels (width * height colour words).  A
    // failing decoder leaves all pixels kTransparent and gives false; an unknown
    // type leaves the pixels untouched and gives false.
    static bool decodeImage(const char *data, int length, int type, int width, int height,
                            int *pixels);
    // The same into a malloc'ed block the caller frees.  *width and *height hold
    // the declared size (0 to read it from the header) and receive the size
    // used.  Null on failure.
    static int *decodeAllocated(const char *data, int length, int type, int *width, int *height);
    // The bytes of a file, or none when it can't be read or is longer than limit.
    static std::vector<char> readFile(const char *path, long long limit);
};
