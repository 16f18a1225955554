#include "draw/codec/ImageSniffer.h"

#include "foundation/Constants.h"

namespace {

int bigEndian16(const unsigned char *p) {
    return (p[0] << 8) | p[1];
}

int bigEndian32(const unsigned char *p) {
    return (int)(((unsigned)p[0] << 24) | ((unsigned)p[1] << 16) | ((unsigned)p[2] << 8) | p[3]);
}

int littleEndian16(const unsigned char *p) {
    return p[0] | (p[1] << 8);
}

int littleEndian32(const unsigned char *p) {
    return (int)(p[0] | ((unsigned)p[1] << 8) | ((unsigned)p[2] << 16) | ((unsigned)p[3] << 24));
}

// Start-of-frame markers, the ones that carry the frame size.
bool isFrameMarker(int m) {
    return (m >= 192 && m <= 195) || (m >= 197 && m <= 199) || (m >= 201 && m <= 203) ||
           (m >= 205 && m <= 207);
}

}  // namespace

int ImageSniffer::getType(int length, const unsigned char *data) {
    if (!data || length < 3) return -1;
    if (data[0] == 137 && data[1] == 'P' && data[2] == 'N') return kPNG;
    if (data[0] == 'G' && data[1] == 'I' && data[2] == 'F') return kGIF;
    if (data[0] == 'B' && data[1] == 'M') return kBMP;
    if (data[0] == 255 && data[1] == 216 && data[2] == 255) return kJPG;
    return -1;
}

bool ImageSniffer::getSize(int length, const unsigned char *data, int *width, int *height) {
    *width = *height = 0;
    switch (getType(length, data)) {
        case kPNG:
            if (length < 24) return false;
            *width = bigEndian32(data + 16);
            *height = bigEndian32(data + 20);
            return true;
        case kGIF:
            if (length < 10) return false;
            *width = littleEndian16(data + 6);
            *height = littleEndian16(data + 8);
            return true;
        case kBMP:
            if (length < 26) return false;
            *width = littleEndian32(data + 18);
            *height = littleEndian32(data + 22);
            return true;
        case kJPG:
            return jpegSize(length, data, width, height);
        default:
            return false;
    }
}

bool ImageSniffer::jpegSize(int length, const unsigned char *data, int *width, int *height) {
    int pos = 2;
    for (;;) {
        while (pos < length && data[pos] != 255) ++pos;
        while (pos < length && data[pos] == 255) ++pos;
        if (pos >= length) return false;
        int marker = data[pos];
        if (marker == 218 || marker == 217) return false;
        if (isFrameMarker(marker)) {
            if (pos + 7 >= length) return false;
            *height = bigEndian16(data + pos + 4);
            *width = bigEndian16(data + pos + 6);
            return true;
        }
        if (pos + 2 >= length) return false;
        int segment = bigEndian16(data + pos + 1);
        if (segment < 2) return false;
        pos += 1 + segment;
    }
}

const char *ImageSniffer::getMediaType(int imageType) {
    static const char *const kMediaTypes[] = {
        "image/png", "image/gif",     "image/jpeg",    "image/unknown",
        "image/bmp", "image/svg+xml", "image/svg+xml", "application/pdf",
    };
    if (imageType < 0 || imageType >= (int)(sizeof kMediaTypes / sizeof *kMediaTypes))
        return "image/unknown";
    return kMediaTypes[imageType];
}
