#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "text/font/FontDriver.h"
#include "text/font/FreeTypeHandles.h"
#include "text/font/cache/GlyphCache.h"

class FontFileEntry;
class FontName;
class MultiFontFace;

// The FreeType font driver: finds font files along the search list, remembers
// what it found (and, for a while, what it did not), and hands out sized faces.
class LibTTFFontDriver : public FontDriver {
public:
    LibTTFFontDriver(const char *fontSearchPath, const char *customFontSearchPath);
    ~LibTTFFontDriver() override;
    LibTTFFontDriver(const LibTTFFontDriver &) = delete;
    LibTTFFontDriver &operator=(const LibTTFFontDriver &) = delete;

    FontFace *openFace(const char *fontSpec, int style, double width, double height) override;
    FontFace *openFaceAt(const char *fileName, int collectionIndex, int style, double width,
                         double height) override;
    int testFont(const char *fontSpec, int collectionIndex, char *report, int reportLength,
                 double width, double height) override;

    // One name of a specification, with the stand-in files when it is missing.
    FontFace *openOne(const FontName &name, int style, double width, double height);

    const std::vector<std::string> &getSearchList() const { return searchList; }
    // Faces, glyphs and fall-back lists within the "@GlyphCacheLimit" budget.
    GlyphCache &getGlyphCache() { return glyphCache; }
    int getFallbackListCount() const { return (int)multiFaces.size(); }
    // Drops the table entry of an evicted fall-back list.
    void forgetMultiFace(const std::string &key) { multiFaces.erase(key); }
    bool isReady() const { return library != nullptr; }

protected:
    // Seconds; tests replace the clock.
    virtual long long currentTime();

private:
    typedef std::pair<std::string, int> Key;

    FontFileEntry *openFile(const std::string &name, int collectionIndex, int style);
    FontFileEntry *findCached(const Key &key);
    // Searches like openFile but keeps and caches nothing (testFont).
    bool probe(const std::string &name, int collectionIndex);
    FT_Face searchFile(const std::string &name, int collectionIndex, std::string *foundPath);
    FT_Face searchDirectories(const std::string &name, int collectionIndex, std::string *foundPath);
    FT_Face openOSFont(const std::string &name);
    FT_Face openPath(const std::string &path, int collectionIndex);
    FT_Face openResource(const std::string &path, int collectionIndex);
    void logOpenFailure(const std::string &path, int error);
    void log(const std::string &text);
    static void selectCharmap(FT_Face face);
    void forgetFailures();

    // First, so that it outlives everything it counts.
    GlyphCache glyphCache;
    FT_Library library;
    std::vector<std::string> searchList;
    std::map<Key, FontFileEntry *> faces;
    std::map<Key, Key> aliases;
    std::map<std::string, MultiFontFace *> multiFaces;
    // Set while testFont runs: the report.
    std::string *testLog;
    // Entries that remember a failed search.
    int failureCount;
    static constexpr int kMaxFailures = 4096;
};

FontDriver *createLibTTFFontDriver(const char *fontSearchPath, const char *customFontSearchPath);
