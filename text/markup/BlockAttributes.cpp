#include "text/markup/BlockAttributes.h"

#include <cmath>
#include <cwctype>

#include "draw/pixel/ColorWords.h"

namespace {

struct AlignWord {
    const wchar_t *word;
    int code;
};

const AlignWord kAlignWords[] = {
    {L"baseline", 0},  {L"top", 1},       {L"bottom", 2}, {L"center", 3}, {L"middle", 3},
    {L"abscenter", 4}, {L"absmiddle", 4}, {L"left", 5},   {L"right", 6},
};

}  // namespace

BlockAttributes::BlockAttributes()
    : valign(kBaseline),
      halign(kLeft),
      width(-1),
      height(-1),
      maxWidth(-1),
      truncate(-1),
      angle(0),
      bgColor(kTransparent),
      edgeColor(kTransparent),
      raisedEffect(0),
      roundedCorners{0, 0, 0, 0},
      margin{0, 0, 0, 0},
      lineSpacing(1),
      direction(0) {}

int BlockAttributes::alignCode(const std::wstring &word) {
    std::wstring w = word;
    for (wchar_t &c : w) c = (wchar_t)towlower(c);
    for (const AlignWord &a : kAlignWords)
        if (w == a.word) return a.code;
    return 0;
}

double BlockAttributes::normaliseAngle(double a) {
    if (!std::isfinite(a)) return 0;
    a = std::fmod(a, 360);
    if (a < 0) a += 360;
    return a;
}

bool BlockAttributes::hasBox() const {
    for (int i = 0; i < 4; ++i)
        if (margin[i] || roundedCorners[i]) return true;
    return raisedEffect != 0 || bgColor != kTransparent || edgeColor != kTransparent;
}

void BlockAttributes::readFour(const std::wstring &value, int out[4]) {
    double v[4];
    int n = 0;
    const wchar_t *p = value.c_str();
    while (n < 4) {
        while (*p == L' ' || *p == L'\t' || *p == L',' || *p == L';') ++p;
        if (!*p) break;
        std::wstring item;
        while (*p && *p != L' ' && *p != L'\t' && *p != L',' && *p != L';') item += *p++;
        v[n++] = VSMLTag::toDouble(item);
    }
    if (n == 0) return;
    for (int i = 0; i < 4; ++i) {
        double x = n == 4 ? v[i] : v[0];
        out[i] = std::isfinite(x) && std::fabs(x) < 1e6 ? (int)std::floor(x + 0.5) : 0;
    }
}

void BlockAttributes::apply(const VSMLTag &tag) {
    for (const VSMLTag::Pair &p : tag.getPairs()) {
        const std::wstring &k = p.key;
        const std::wstring &v = p.value;
        if (k == L"halign")
            halign = alignCode(v);
        else if (k == L"valign")
            valign = alignCode(v);
        else if (k == L"angle")
            angle = normaliseAngle(VSMLTag::toDouble(v));
        else if (k == L"linespacing")
            lineSpacing = VSMLTag::toDouble(v);
        else if (k == L"width")
            width = (int)VSMLTag::toInt(v);
        else if (k == L"height")
            height = (int)VSMLTag::toInt(v);
        else if (k == L"size")
            width = height = (int)VSMLTag::toInt(v);
        else if (k == L"maxwidth")
            maxWidth = (int)VSMLTag::toInt(v);
        else if (k == L"truncate")
            truncate = (int)VSMLTag::toInt(v);
        else if (k == L"bgcolor" || k == L"color")
            bgColor = VSMLTag::toColor(v);
        else if (k == L"edgecolor")
            edgeColor = VSMLTag::toColor(v);
        else if (k == L"margin")
            readFour(v, margin);
        else if (k == L"roundedcorners")
            readFour(v, roundedCorners);
        else if (k == L"raisedeffect")
            raisedEffect = (int)VSMLTag::toInt(v);
        else if (k == L"img")
            image = v;
        else if (k == L"rtl") {
            long r = VSMLTag::toInt(v);
            direction = r > 0 ? 1 : r < 0 ? -1 : 0;
        }
    }
    if (width == 0) width = -1;
    if (height == 0) height = -1;
    if (!std::isfinite(lineSpacing) || lineSpacing < 0 || lineSpacing > 100) lineSpacing = 1;
    // Cap sizes so that a careless tag can't ask for a huge canvas.
    if (width > 100000) width = 100000;
    if (height > 100000) height = 100000;
}
