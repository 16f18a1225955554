#include "draw/svg/SVGImageData.h"

#include <vector>

#include "draw/codec/ImageEncoder.h"
#include "foundation/Codec.h"
#include "foundation/Stream.h"

std::string SVGImageData::ofPixels(const int *pixels, int width, int height) {
    qlx::ostrstream png;
    if (!pixels || width <= 0 || height <= 0 ||
        !ImageEncoder::encodePNG(png, pixels, width, height))
        return std::string();
    return ofBytes(png.str(), png.tell(), "image/png");
}

std::string SVGImageData::ofBytes(const char *data, int length, const char *mediaType) {
    if (!data || length <= 0) return std::string();
    std::vector<char> text(qlx::getB64EncodeBufferSize(length));
    qlx::b64Encode(text.data(), data, length);
    std::string out = "data:";
    out += mediaType;
    out += ";base64,";
    out += text.data();
    return out;
}
