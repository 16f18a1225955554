#include "text/layout/FontState.h"

#include <cmath>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "text/font/FontDriver.h"
#include "text/font/FontFace.h"
#include "text/layout/Glyph.h"

FontState::FontState()
    : fontIndex(0),
      height(10),
      width(0),
      color(Glyph::kDrawColor),
      bgColor(kTransparent),
      underline(0),
      pendingAdvance(-1),
      pendingAdvanceTo(-1),
      xOffset(0),
      yOffset(0) {}

FontFace *FontState::getFace(DrawArea *d) {
    if (face.get()) return face.get();
    std::string name = font;
    if (d) {
        const char *resolved = d->resolveFont(font.c_str());
        name = resolved ? resolved : "";
    }
    if (fontIndex != 0 && name.find('|') == std::string::npos &&
        name.find(';') == std::string::npos)
        name += "|" + std::to_string(fontIndex);
    face.reset(FontDriver::getDriver()->openFace(name.c_str(), 0, width, height));
    return face.get();
}

double FontState::shrinkSize(double v) {
    v = v * 2 / 3;
    if (v < 7) v = std::floor(2 * v + 0.5) / 2;
    return v;
}

void FontState::shrink(bool up) {
    double s = height > 0 ? height : width;
    if (height > 0) height = shrinkSize(height);
    if (width > 0) width = shrinkSize(width);
    double n = height > 0 ? height : width;
    yOffset = up ? (int)std::floor(s - n * 0.9 + 0.5) : -(int)std::floor(n / 10 + 0.5);
    face.reset(nullptr);
}

bool FontState::apply(const VSMLTag::Pair &p) {
    const std::wstring &k = p.key;
    const std::wstring &v = p.value;
    if (k == L"size") {
        height = VSMLTag::toDouble(v);
        width = 0;
    } else if (k == L"height") {
        height = VSMLTag::toDouble(v);
    } else if (k == L"width") {
        width = VSMLTag::toDouble(v);
    } else if (k == L"color") {
        color = VSMLTag::toColor(v);
    } else if (k == L"bgcolor") {
        bgColor = VSMLTag::toColor(v);
    } else if (k == L"underline") {
        underline = (int)VSMLTag::toInt(v);
    } else if (k == L"advance") {
        pendingAdvance = (int)VSMLTag::toInt(v);
    } else if (k == L"advanceto") {
        pendingAdvanceTo = (int)VSMLTag::toInt(v);
    } else if (k == L"xoffset") {
        xOffset = (int)VSMLTag::toInt(v);
    } else if (k == L"yoffset") {
        yOffset = -(int)VSMLTag::toInt(v);
    } else if (k == L"sub") {
        shrink(false);
    } else if (k == L"super") {
        shrink(true);
    } else {
        return false;
    }
    if (k == L"size" || k == L"height" || k == L"width") {
        // Sizes beyond reason fall back as in text creation.
        if (!(height >= 0 && height <= 4096)) height = 100;
        if (!(width >= 0 && width <= 4096)) width = 100;
        face.reset(nullptr);
    }
    return true;
}
