#pragma once

#include <set>
#include <string>
#include <vector>

namespace qlx {
class ostream;
}

// The numbered objects of a PDF file and the one resource dictionary that
// every page, form and pattern shares (object 1).  Streams are compressed with
// Flate when that makes them shorter.
class PDFDocument {
public:
    static constexpr int kResources = 1;

    PDFDocument();
    // A new object id; the object is empty until set.
    int newObject();
    // The dictionary's entries, without the brackets.
    void setDictionary(int id, const std::string &entries);
    void setStream(int id, const std::string &entries, const std::string &bytes);
    int objectCount() const { return (int)objects.size(); }

    // Names of shared resources, registered on first use: "/X12", "/P7", ...
    std::string xobject(int id);
    std::string pattern(int id);
    std::string font(int id);
    std::string graphicsState(int id);

    // The whole file: header, objects, cross-reference table, trailer.
    void write(qlx::ostream &out, int catalog, int info);

    static std::string reference(int id);

private:
    struct Object {
        std::string entries;
        std::string stream;
        bool hasStream = false;
        bool compressed = false;
    };
    std::string resourceEntries() const;

    std::vector<Object> objects;
    std::set<int> xobjects, patterns, fonts, states;
};
