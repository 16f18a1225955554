#include "text/font/FontName.h"

#include <strings.h>

#include <cstdlib>
#include <cstring>

#include "text/font/FontFace.h"

namespace {

// Regular, bold, italic, bold italic.
struct FamilyFiles {
    const char *family;
    const char *files[4];
    const char *substitutes[4];
};

const FamilyFiles kFamilies[] = {
    {"Arial",
     {"arial.ttf", "arialbd.ttf", "ariali.ttf", "arialbi.ttf"},
     {"LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf", "LiberationSans-Italic.ttf",
      "LiberationSans-BoldItalic.ttf"}},
    {"Times New Roman",
     {"times.ttf", "timesbd.ttf", "timesi.ttf", "timesbi.ttf"},
     {"LiberationSerif-Regular.ttf", "LiberationSerif-Bold.ttf", "LiberationSerif-Italic.ttf",
      "LiberationSerif-BoldItalic.ttf"}},
};

// Bitmap fonts that stand in for the two families, with their style.
struct BitmapStandIn {
    const char *suffix;
    int style;
};

const BitmapStandIn kArialBitmaps[] = {{"helvR.pfc", 0},   {"helvR08.pcf", 0}, {"helvR10.pcf", 0},
                                       {"helvR12.pcf", 0}, {"helvR14.pcf", 0}, {"helvB.pfc", 2},
                                       {"helvB08.pcf", 2}, {"helvI.pfc", 4},   {"helvI08.pcf", 4},
                                       {"helvI10.pcf", 4}, {"helvI12.pcf", 4}, {"helvI14.pcf", 4},
                                       {"helvBI.pfc", 6},  {"helvBI08.pcf", 6}};
const BitmapStandIn kTimesBitmaps[] = {
    {"timR.pfc", 0},   {"timR08.pcf", 0}, {"timR10.pcf", 0}, {"timR12.pcf", 0}, {"timR14.pcf", 0},
    {"timB.pfc", 2},   {"timB08.pcf", 2}, {"timI.pfc", 4},   {"timI08.pcf", 4}, {"timI10.pcf", 4},
    {"timI12.pcf", 4}, {"timI14.pcf", 4}, {"timBI.pfc", 6},  {"timBI08.pcf", 6}};

int styleIndex(int style) {
    return ((style & FontFace::kBold) ? 1 : 0) + ((style & FontFace::kItalic) ? 2 : 0);
}

bool endsWith(const std::string &s, const char *suffix) {
    size_t n = strlen(suffix);
    return s.size() >= n && s.compare(s.size() - n, n, suffix) == 0;
}

const BitmapStandIn *findBitmap(const std::string &path, const BitmapStandIn *table, int n) {
    for (int i = 0; i < n; ++i)
        if (endsWith(path, table[i].suffix)) return &table[i];
    return nullptr;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

bool FontName::takeStyleWord(std::string *text, int *style) {
    size_t end = text->size();
    while (end > 0 && isBlank((*text)[end - 1])) --end;
    size_t start = end;
    while (start > 0 && !isBlank((*text)[start - 1])) --start;
    // A lone word is the name itself.
    if (start == 0) return false;
    std::string word = text->substr(start, end - start);
    int bit = 0;
    if (strcasecmp(word.c_str(), "bold") == 0) bit = FontFace::kBold;
    if (strcasecmp(word.c_str(), "italic") == 0) bit = FontFace::kItalic;
    if (!bit) return false;
    *style |= bit;
    while (start > 0 && isBlank((*text)[start - 1])) --start;
    text->resize(start);
    return true;
}

void FontName::mapFamily(FontName *result) {
    const std::string &n = result->name;
    if (result->collectionIndex != 0 || n.empty() || n[0] == '@' ||
        n.find('/') != std::string::npos)
        return;
    for (const FamilyFiles &f : kFamilies) {
        if (strcasecmp(n.c_str(), f.family) == 0) {
            result->name = f.files[styleIndex(result->style)];
            result->style = 0;
            return;
        }
    }
}

FontName FontName::parse(const char *text) {
    FontName result;
    std::string s = text ? text : "";
    while (!s.empty() && isBlank(s[s.size() - 1])) s.resize(s.size() - 1);
    while (takeStyleWord(&s, &result.style)) {
    }
    size_t bar = s.rfind('|');
    if (bar != std::string::npos) {
        result.collectionIndex = (int)strtol(s.c_str() + bar + 1, nullptr, 0);
        s.resize(bar);
    }
    if (s.size() > 1023) s.resize(1023);
    result.name = s;
    mapFamily(&result);
    return result;
}

const char *FontName::substituteFor(const std::string &fileName) {
    for (const FamilyFiles &f : kFamilies)
        for (int i = 0; i < 4; ++i)
            if (strcasecmp(fileName.c_str(), f.files[i]) == 0) return f.substitutes[i];
    return nullptr;
}

const char *FontName::portableFamilyFor(const std::string &path) {
    if (path.find("LiberationSans-") != std::string::npos) return kFamilies[0].family;
    if (path.find("LiberationSerif-") != std::string::npos) return kFamilies[1].family;
    if (findBitmap(path, kArialBitmaps, sizeof(kArialBitmaps) / sizeof(kArialBitmaps[0])))
        return kFamilies[0].family;
    if (findBitmap(path, kTimesBitmaps, sizeof(kTimesBitmaps) / sizeof(kTimesBitmaps[0])))
        return kFamilies[1].family;
    return nullptr;
}

int FontName::portableStyleFor(const std::string &path) {
    for (const FamilyFiles &f : kFamilies)
        for (int i = 0; i < 4; ++i)
            if (endsWith(path, f.substitutes[i]))
                return (i & 1 ? FontFace::kBold : 0) | (i & 2 ? FontFace::kItalic : 0);
    const BitmapStandIn *b =
        findBitmap(path, kArialBitmaps, sizeof(kArialBitmaps) / sizeof(kArialBitmaps[0]));
    if (!b) b = findBitmap(path, kTimesBitmaps, sizeof(kTimesBitmaps) / sizeof(kTimesBitmaps[0]));
    return b ? b->style : 0;
}
