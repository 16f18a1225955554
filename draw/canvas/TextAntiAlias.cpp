#include "draw/canvas/TextAntiAlias.h"

#include <cctype>
#include <cmath>
#include <cstring>
#include <string>

#include "foundation/CLocale.h"

namespace TextAntiAlias {

namespace {

int clearTypeWord(double gamma, int mode) {
    double v = std::floor(100 * gamma + 0.5);
    if (!(v > 0)) return mode;
    if (v > 1023) v = 1023;
    return ((int)v << 6) | mode;
}

// The words of the setting and what each one sets.
enum Target { kMode, kHint, kForceAuto };
struct Word {
    const char *text;
    Target target;
    int value;
};
const Word kWords[] = {
    {"noantialias", kMode, 0},     {"antialias", kMode, 1},   {"autoantialias", kMode, 2},
    {"compatantialias", kMode, 2}, {"cleartype", kMode, 3},   {"cleartypemono", kMode, 4},
    {"cleartypecolor", kMode, 5},  {"defaulthint", kHint, 0}, {"nativehint", kHint, 1},
    {"autohint", kForceAuto, 1},   {"precisehint", kHint, 3}, {"nohint", kHint, 4},
};

}  // namespace

int clearTypeColor(double gamma) {
    return clearTypeWord(gamma, 5);
}

int clearTypeMono(double gamma) {
    return clearTypeWord(gamma, 4);
}

int parseSetting(const char *text) {
    int mode = -1, hint = 0, forceAuto = 0;
    double gamma = 0;
    for (const char *p = text; p && *p;) {
        std::string item;
        for (; *p && *p != ','; ++p)
            if (*p != ' ' && *p != '\t') item += (char)tolower((unsigned char)*p);
        if (*p == ',') ++p;
        if (item.empty()) continue;
        if (isdigit((unsigned char)item[0]) || item[0] == '.') {
            gamma = qlx::atofCLocale(item.c_str());
            continue;
        }
        for (const Word &w : kWords) {
            if (item != w.text) continue;
            if (w.target == kMode)
                mode = w.value;
            else if (w.target == kHint)
                hint = w.value;
            else
                forceAuto = w.value;
        }
    }
    int modeBits = mode;
    if (mode < 0 || mode == 5)
        modeBits = clearTypeColor(mode < 0 ? 0 : gamma);
    else if (mode == 4)
        modeBits = clearTypeMono(gamma);
    return (hint << 16) | (forceAuto << 20) | modeBits;
}

int modeWord(int antiAliasText, int defaultTextAA) {
    if (antiAliasText == kCompatAntiAlias) return kAutoAntiAlias;
    int w = antiAliasText == kAutoAntiAlias ? defaultTextAA : antiAliasText;
    int hintBits = w & 0xf0000;
    if ((w & 63) == kClearType) return hintBits | 4;
    return hintBits | (w & 63);
}

}  // namespace TextAntiAlias
