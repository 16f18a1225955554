#pragma once

#include <map>
#include <string>

#include "text/font/FreeTypeHandles.h"

class LibTTFFontDriver;
class LibTTFSizedFontFace;

// One opened font file (or remembered failure) with its faces by size and style.
class FontFileEntry {
public:
    // A null face marks a failure remembered since failTime.
    FontFileEntry(LibTTFFontDriver *driver, const std::string &path, int collectionIndex,
                  FT_Face face, long long failTime);
    ~FontFileEntry();
    FontFileEntry(const FontFileEntry &) = delete;
    FontFileEntry &operator=(const FontFileEntry &) = delete;

    // Sizes in points; a width of 0 is the height.
    LibTTFSizedFontFace *getSizedFace(int style, double width, double height);
    // Drops the table entry of an evicted face.
    void forgetFace(unsigned long long key) { sizes.erase(key); }
    // Sets the FreeType pixel size unless it is the current one.
    bool setPixelSize(int width, int height);

    FT_Face getFace() const { return face; }
    long long getFailTime() const { return failTime; }
    const std::string &getPath() const { return path; }
    int getCollectionIndex() const { return collectionIndex; }
    LibTTFFontDriver *getDriver() const { return driver; }
    // "Arial" or "Times New Roman" for stand-in files, else null.
    const char *getFamilyName() const { return familyName; }
    // Read when the file is opened, so that drawing needn't ask FreeType; null
    // when the file has none.
    const char *getPostscriptName() const {
        return postscriptName.empty() ? nullptr : postscriptName.c_str();
    }
    // The style the file has by itself, from FreeType and its name.
    int getNativeStyle() const;

private:
    static unsigned long long sizeKey(int style, double width, double height);

    std::string path;
    int collectionIndex;
    LibTTFFontDriver *driver;
    FT_Face face;
    long long failTime;
    std::map<unsigned long long, LibTTFSizedFontFace *> sizes;
    int currentWidth;
    int currentHeight;
    const char *familyName;
    int familyStyle;
    std::string postscriptName;
};
