#pragma once

#include <map>
#include <set>
#include <vector>

class TrueTypeFile;

// A TrueType file holding only the glyphs a document uses.  Glyph ids stay as
// they are (the outlines of the others are empty), so text can name glyphs by
// their ids in the whole font.  The tables are those a PDF reader needs of an
// embedded TrueType font: head, hhea, maxp, hmtx, loca, glyf, a cmap of the
// characters used, post, and the hinting and naming tables the font has.
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
};
