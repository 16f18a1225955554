// Font file bytes as PDF output reads them: the table directory of a file or
// a collection, the glyph locations, composite glyphs, and the subset built
// from whatever glyphs the bytes ask for.
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>

#include "draw/pdf/font/TrueTypeFile.h"
#include "draw/pdf/font/TrueTypeSubset.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 2) return 0;
    int face = data[0] & 3;
    TrueTypeFile font;
    if (!font.parse(data + 1, size - 1, face)) return 0;
    std::set<int> glyphs;
    std::map<int, int> characters;
    // The glyph ids the file's own last bytes name, and a few at the ends of the range.
    for (size_t i = size > 64 ? size - 64 : 1; i + 1 < size; i += 2) {
        int g = data[i] << 8 | data[i + 1];
        glyphs.insert(g);
        characters[0x20 + (int)(i % 200)] = g;
    }
    glyphs.insert(font.glyphCount() - 1);
    glyphs.insert(font.glyphCount());
    for (int g : glyphs) {
        font.advanceWidth(g);
        font.components(g);
    }
    TrueTypeSubset::build(font, glyphs, characters);
    return 0;
}
