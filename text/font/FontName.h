#pragma once

#include <string>

// One font name of a specification, read into file name, collection index and
// style: "Arial Bold" is "arialbd.ttf", "msgothic.ttc|1" is face 1.
class FontName {
public:
    FontName() : collectionIndex(0), style(0) {}
    // Reads one name (no ";" lists).  Names are cut at 1023 bytes.
    static FontName parse(const char *text);

    // The stand-in file for a well-known font file name, or null.
    static const char *substituteFor(const std::string &fileName);
    // "Arial" or "Times New Roman" for files that stand in under a portable name
    // (matched on the end of the path), or null.
    static const char *portableFamilyFor(const std::string &path);
    // Style bits a stand-in file carries in its name.
    static int portableStyleFor(const std::string &path);

    std::string name;
    int collectionIndex;
    int style;

private:
    static bool takeStyleWord(std::string *text, int *style);
    static void mapFamily(FontName *result);
};
