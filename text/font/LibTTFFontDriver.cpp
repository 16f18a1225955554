#include "text/font/LibTTFFontDriver.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_LCD_FILTER_H

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "draw/canvas/DrawArea.h"
#include "text/font/FontFileEntry.h"
#include "text/font/FontName.h"
#include "text/font/FontSearchPath.h"
#include "text/font/LibTTFSizedFontFace.h"
#include "text/font/MultiFontFace.h"

namespace {

void freeFaceMemory(void *object) {
    FT_Face face = (FT_Face)object;
    free(face->generic.data);
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string skipBlanks(const char *s) {
    while (isBlank(*s)) ++s;
    return s;
}

}  // namespace

FontDriver *createLibTTFFontDriver(const char *fontSearchPath, const char *customFontSearchPath) {
    return new LibTTFFontDriver(fontSearchPath, customFontSearchPath);
}

LibTTFFontDriver::LibTTFFontDriver(const char *fontSearchPath, const char *customFontSearchPath)
    : glyphCache(DrawArea::getGlyphCacheLimit()),
      library(nullptr),
      testLog(nullptr),
      failureCount(0) {
    if (FT_Init_FreeType(&library) != 0) library = nullptr;
    // The engine filters LCD glyphs itself.
    if (library) FT_Library_SetLcdFilter(library, FT_LCD_FILTER_NONE);
    searchList =
        FontSearchPath::buildSearchList(customFontSearchPath ? customFontSearchPath : "",
                                        fontSearchPath ? fontSearchPath : "", getenv("FONTPATH"));
}

LibTTFFontDriver::~LibTTFFontDriver() {
    for (auto &m : multiFaces) delete m.second;
    for (auto &f : faces) delete f.second;
    if (library) FT_Done_FreeType(library);
}

long long LibTTFFontDriver::currentTime() {
    return (long long)time(nullptr);
}

void LibTTFFontDriver::log(const std::string &text) {
    if (testLog) *testLog += text;
}

FontFace *LibTTFFontDriver::openFace(const char *fontSpec, int style, double width, double height) {
    if (!library) return nullptr;
    if (!fontSpec) fontSpec = "";
    if (strchr(fontSpec, ';')) {
        char key[64];
        snprintf(key, sizeof(key), "|%d|%.4f|%.4f|", style, width, height);
        std::string mapKey = std::string(fontSpec) + key;
        auto it = multiFaces.find(mapKey);
        MultiFontFace *multi;
        if (it != multiFaces.end()) {
            multi = it->second;
        } else {
            multi = new MultiFontFace(this, mapKey, fontSpec, style, width, height);
            multiFaces[mapKey] = multi;
            glyphCache.add(multi, multi->cacheBytes());
        }
        return multi->hasFont() ? multi : nullptr;
    }
    std::string spec = skipBlanks(fontSpec);
    FontFace *face = nullptr;
    if (!spec.empty()) face = openOne(FontName::parse(spec.c_str()), style, width, height);
    if (!face) face = openFaceAt("arial.ttf", 0, 0, width, height);
    return face;
}

FontFace *LibTTFFontDriver::openFaceAt(const char *fileName, int collectionIndex, int style,
                                       double width, double height) {
    if (!library || !fileName) return nullptr;
    FontName name;
    name.name = fileName;
    name.collectionIndex = collectionIndex;
    return openOne(name, style, width, height);
}

FontFace *LibTTFFontDriver::openOne(const FontName &name, int style, double width, double height) {
    style |= name.style;
    FontFileEntry *entry = openFile(name.name, name.collectionIndex, style);
    if (!entry) {
        const char *substitute = FontName::substituteFor(name.name);
        if (substitute) entry = openFile(substitute, name.collectionIndex, style);
    }
    return entry ? entry->getSizedFace(style, width, height) : nullptr;
}

FontFileEntry *LibTTFFontDriver::findCached(const Key &key) {
    auto it = faces.find(key);
    if (it == faces.end()) return nullptr;
    FontFileEntry *entry = it->second;
    if (entry->getFace()) return entry;
    // A failure is remembered for ten seconds, so that labels asking again and
    // again for a missing font don't walk the directories each time.
    if (llabs(currentTime() - entry->getFailTime()) <= 9) return entry;
    delete entry;
    faces.erase(it);
    --failureCount;
    return nullptr;
}

FontFileEntry *LibTTFFontDriver::openFile(const std::string &requested, int collectionIndex,
                                          int style) {
    Key key(requested, collectionIndex);
    auto alias = aliases.find(Key(requested, style));
    if (alias != aliases.end()) key = alias->second;
    FontFileEntry *cached = findCached(key);
    if (cached) return cached->getFace() ? cached : nullptr;
    std::string foundPath;
    FT_Face face = searchFile(key.first, key.second, &foundPath);
    FontFileEntry *entry;
    if (face) {
        key = Key(foundPath, key.second);
        aliases[Key(requested, style)] = key;
        // Another name or style led to a file already open: its faces are in use.
        auto open = faces.find(key);
        if (open != faces.end() && open->second->getFace()) {
            FT_Done_Face(face);
            return open->second;
        }
        entry = new FontFileEntry(this, foundPath, key.second, face, 0);
    } else {
        entry = new FontFileEntry(this, key.first, key.second, nullptr, currentTime());
    }
    auto old = faces.find(key);
    if (old != faces.end()) {
        if (!old->second->getFace()) --failureCount;
        delete old->second;
        faces.erase(old);
    }
    faces[key] = entry;
    if (face) return entry;
    if (++failureCount > kMaxFailures) forgetFailures();
    return nullptr;
}

void LibTTFFontDriver::forgetFailures() {
    // Failures only spare searches: with very many names asked for, the old
    // ones go first, and all of them if that isn't enough.
    long long now = currentTime();
    for (int pass = 0; pass < 2 && failureCount > kMaxFailures / 2; ++pass) {
        for (auto it = faces.begin(); it != faces.end();) {
            FontFileEntry *e = it->second;
            if (!e->getFace() && (pass == 1 || llabs(now - e->getFailTime()) > 9)) {
                delete e;
                it = faces.erase(it);
                --failureCount;
            } else {
                ++it;
            }
        }
    }
}

FT_Face LibTTFFontDriver::searchFile(const std::string &name, int collectionIndex,
                                     std::string *foundPath) {
    if (name.empty()) return nullptr;
    if (name[0] == '\\' || name[0] == '/' || name[0] == '@') {
        *foundPath = name;
        return openPath(name, collectionIndex);
    }
    bool hasDot = name.find('.') != std::string::npos;
    FT_Face face = hasDot ? searchDirectories(name, collectionIndex, foundPath) : openOSFont(name);
    if (!face)
        face = hasDot ? openOSFont(name) : searchDirectories(name, collectionIndex, foundPath);
    return face;
}

FT_Face LibTTFFontDriver::searchDirectories(const std::string &name, int collectionIndex,
                                            std::string *foundPath) {
    for (const std::string &dir : searchList) {
        FT_Face face = openPath(dir + name, collectionIndex);
        if (face) {
            *foundPath = dir + name;
            return face;
        }
    }
    return nullptr;
}

FT_Face LibTTFFontDriver::openOSFont(const std::string &) {
    // There is no system font service to ask on this platform.
    log("Failed to open as OS font\n");
    return nullptr;
}

FT_Face LibTTFFontDriver::openResource(const std::string &path, int collectionIndex) {
    const char *id = DrawArea::getResourceId(path.c_str());
    int length = 0;
    char *data = id ? DrawArea::getGlobalResource(id, &length) : nullptr;
    if (!data) {
        log("Error opening global resource " + path + "\n");
        return nullptr;
    }
    FT_Face face = nullptr;
    int error = FT_New_Memory_Face(library, (const FT_Byte *)data, length, collectionIndex, &face);
    if (error != 0) {
        free(data);
        logOpenFailure(path, error);
        return nullptr;
    }
    face->generic.data = data;
    face->generic.finalizer = freeFaceMemory;
    return face;
}

FT_Face LibTTFFontDriver::openPath(const std::string &path, int collectionIndex) {
    FT_Face face = nullptr;
    if (path.compare(0, 2, "@/") == 0) {
        face = openResource(path, collectionIndex);
        if (!face) return nullptr;
    } else {
        int error = FT_New_Face(library, path.c_str(), collectionIndex, &face);
        if (error != 0) {
            logOpenFailure(path, error);
            return nullptr;
        }
    }
    log("Successfully opened " + path + "\n");
    selectCharmap(face);
    return face;
}

void LibTTFFontDriver::logOpenFailure(const std::string &path, int error) {
    if (!testLog) return;
    char text[128];
    FILE *f = path.compare(0, 2, "@/") == 0 ? nullptr : fopen(path.c_str(), "rb");
    if (f || path.compare(0, 2, "@/") == 0) {
        if (f) fclose(f);
        snprintf(text, sizeof(text), "[FT err code = %d]\n", error);
        log("Error loading " + path + text);
    } else {
        int code = errno;
        snprintf(text, sizeof(text), " [err code = %d]\n", code);
        log("Searching for " + path + " - " + strerror(code) + text);
    }
}

void LibTTFFontDriver::selectCharmap(FT_Face face) {
    if (face->charmap || face->num_charmaps <= 0) return;
    if (FT_Select_Charmap(face, FT_ENCODING_APPLE_ROMAN) != 0)
        FT_Set_Charmap(face, face->charmaps[0]);
}

bool LibTTFFontDriver::probe(const std::string &name, int collectionIndex) {
    std::string foundPath;
    FT_Face face = searchFile(name, collectionIndex, &foundPath);
    if (face) FT_Done_Face(face);
    return face != nullptr;
}

int LibTTFFontDriver::testFont(const char *fontSpec, int collectionIndex, char *report,
                               int reportLength, double, double) {
    if (!report || reportLength <= 0) return 0;
    report[0] = 0;
    if (!library) return 0;
    std::string text;
    testLog = &text;
    std::string spec = fontSpec ? fontSpec : "";
    size_t start = 0;
    while (start <= spec.size()) {
        size_t end = spec.find(';', start);
        if (end == std::string::npos) end = spec.size();
        std::string item = skipBlanks(spec.substr(start, end - start).c_str());
        if (!item.empty() && item[0] == '?') item.erase(0, 1);
        FontName name = FontName::parse(item.c_str());
        if (name.collectionIndex == 0) name.collectionIndex = collectionIndex;
        if (!name.name.empty() && !probe(name.name, name.collectionIndex)) {
            const char *substitute = FontName::substituteFor(name.name);
            if (substitute) probe(substitute, name.collectionIndex);
        }
        start = end + 1;
    }
    testLog = nullptr;
    snprintf(report, reportLength, "%s", text.c_str());
    return 1;
}
