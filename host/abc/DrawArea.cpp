#include "host/abc/DrawArea.h"

#include "host/abc/TTFText.h"

namespace abc {

DrawArea::~DrawArea() {
    if (ownsHandle) CDrawArea_destroy(handle);
}

DrawArea *DrawArea::create() {
    CDrawArea *d = CDrawArea_create();
    return d ? new DrawArea(d, true) : nullptr;
}

TTFText *DrawArea::text(const char *str, const char *font, double fontSize) {
    return TTFText::adopt(CDrawArea_text(handle, str, font, fontSize));
}

TTFText *DrawArea::text2(const char *str, const char *font, int fontIndex, double fontHeight,
                         double fontWidth, double angle, bool vertical) {
    return TTFText::adopt(
        CDrawArea_text2(handle, str, font, fontIndex, fontHeight, fontWidth, angle, vertical));
}

MemBlock DrawArea::outJPG2(int quality) {
    MemBlock b = {0, nullptr};
    CDrawArea_outJPG2(handle, quality, &b.data, &b.len);
    return b;
}

MemBlock DrawArea::outSVG2(const char *options) {
    MemBlock b = {0, nullptr};
    CDrawArea_outSVG2(handle, options, &b.data, &b.len);
    return b;
}

DrawArea *DrawArea::createSubDrawArea(int width, int height) {
    CDrawArea *sub = CDrawArea_createSubDrawArea(handle, width, height);
    return sub ? new DrawArea(sub, true) : nullptr;
}

}  // namespace abc
