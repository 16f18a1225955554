#include "draw/pdf/PDFImageWriter.h"

#include <cstdio>
#include <string>

#include "draw/pdf/PDFDocument.h"

namespace {

std::string imageEntries(int width, int height, const char *space) {
    char buf[160];
    std::snprintf(buf, sizeof buf,
                  "/Type/XObject/Subtype/Image/Width %d/Height %d/BitsPerComponent 8/Interpolate "
                  "true/ColorSpace/%s",
                  width, height, space);
    return buf;
}

}  // namespace

int PDFImageWriter::write(PDFDocument &doc, const int *pixels, int width, int height) {
    size_t n = (size_t)width * height;
    std::string rgb(3 * n, '\0'), opacity(n, '\0');
    bool alpha = false;
    for (size_t i = 0; i < n; ++i) {
        unsigned c = (unsigned)pixels[i];
        rgb[3 * i] = (char)(c >> 16), rgb[3 * i + 1] = (char)(c >> 8), rgb[3 * i + 2] = (char)c;
        opacity[i] = (char)(255 - (c >> 24));
        alpha = alpha || (c >> 24) != 0;
    }
    int id = doc.newObject();
    std::string entries = imageEntries(width, height, "DeviceRGB");
    if (alpha) {
        int mask = doc.newObject();
        doc.setStream(mask, imageEntries(width, height, "DeviceGray"), opacity);
        entries += "/SMask " + PDFDocument::reference(mask);
    }
    doc.setStream(id, entries, rgb);
    return id;
}
