#include "draw/codec/ImageDecoder.h"

#include <climits>
#include <cstdio>
#include <cstdlib>

#include "draw/codec/BMPCodec.h"
#include "draw/codec/GIFDecoder.h"
#include "draw/codec/ImageSniffer.h"
#include "draw/codec/JPEGCodec.h"
#include "draw/codec/PNGCodec.h"
#include "foundation/Constants.h"

bool ImageDecoder::decodeImage(const char *data, int length, int type, int width, int height,
                               int *pixels) {
    switch (type) {
        case kPNG:
            return PNGCodec::decode(data, length, width, height, pixels);
        case kGIF:
            return GIFDecoder::decode(data, length, width, height, pixels);
        case kJPG:
            return JPEGCodec::decode(data, length, width, height, pixels);
        case kBMP:
            return BMPCodec::decode(data, length, width, height, pixels);
        default:
            return false;
    }
}

int *ImageDecoder::decodeAllocated(const char *data, int length, int type, int *width,
                                   int *height) {
    if (!data || length <= 0 || !width || !height) return nullptr;
    if (*width <= 0 || *height <= 0) {
        if (!ImageSniffer::getSize(length, reinterpret_cast<const unsigned char *>(data), width,
                                   height))
            return nullptr;
    }
    if (*width <= 0 || *height <= 0 || (long)*width * *height > INT_MAX / 4) return nullptr;
    int *pixels = static_cast<int *>(malloc(sizeof(int) * (size_t)*width * *height));
    if (!pixels) return nullptr;
    if (!decodeImage(data, length, type, *width, *height, pixels)) {
        free(pixels);
        return nullptr;
    }
    return pixels;
}

std::vector<char> ImageDecoder::readFile(const char *path, long long limit) {
    std::vector<char> bytes;
    FILE *f = path && *path ? std::fopen(path, "rb") : nullptr;
    if (!f) return bytes;
    char buf[65536];
    size_t got;
    while ((got = std::fread(buf, 1, sizeof buf, f)) > 0) {
        if ((long long)(bytes.size() + got) > limit) {
            bytes.clear();
            break;
        }
        bytes.insert(bytes.end(), buf, buf + got);
    }
    std::fclose(f);
    return bytes;
}
