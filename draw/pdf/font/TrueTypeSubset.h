#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <vector>

class TrueTypeFile;

// A TrueType file holding only the glyphs a document uses.  Glyph ids stay as
// they are (the outlines of the others are empty, and ids beyond the last one
// used are gone), so text can name glyphs by their ids in the whole font.  The
// tables are those a PDF reader needs of an embedded TrueType font: head,
// hhea, maxp, hmtx, loca, glyf, a cmap of the characters used, post and OS/2.
// Outlines go without their hints: readers scale glyphs freely, and the hint
// programs are most of a small subset's size.
class TrueTypeSubset {
public:
    // glyphs: the ids to keep; glyph 0 and the parts of composite glyphs come
    // along.  characters: character to glyph, for the cmap.  Empty when the
    // font can't be written.
    static std::vector<unsigned char> build(const TrueTypeFile &font, const std::set<int> &glyphs,
                                            const std::map<int, int> &characters);

private:
    static std::set<int> closure(const TrueTypeFile &font, const std::set<int> &glyphs);
    static std::vector<unsigned char> cmapOf(const std::map<int, int> &characters);
    static std::vector<unsigned char> outlineWithoutHints(const unsigned char *glyph, size_t size);
    // The hmtx table of the first glyphCount glyphs; hhea's count of long
    // metrics follows it.
    static std::vector<unsigned char> metricsOf(const TrueTypeFile &font, int glyphCount,
                                                std::vector<unsigned char> &hhea);
};
