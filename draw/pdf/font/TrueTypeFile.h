#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The tables of one TrueType font, read from the bytes of a font file or of a
// collection (".ttc") at a face index.  Every read is checked against the
// bytes: a damaged file is refused, never followed.
class TrueTypeFile {
public:
    struct Table {
        uint32_t tag;
        uint32_t offset;
        uint32_t length;
    };

    static uint32_t tagOf(const char name[5]) {
        return (uint32_t)(unsigned char)name[0] << 24 | (uint32_t)(unsigned char)name[1] << 16 |
               (uint32_t)(unsigned char)name[2] << 8 | (uint32_t)(unsigned char)name[3];
    }

    // False when the bytes hold no TrueType outlines at that index.  The bytes
    // are borrowed and must outlive the object.
    bool parse(const unsigned char *data, size_t length, int faceIndex);

    const Table *find(const char name[5]) const;
    const unsigned char *bytes() const { return data; }
    size_t size() const { return length; }

    int glyphCount() const { return numGlyphs; }
    int unitsPerEm() const { return emUnits; }
    // Font units; y up.
    const int *bbox() const { return box; }
    int ascent() const { return ascender; }
    int descent() const { return descender; }
    int capHeight() const { return capitalHeight; }
    double italicAngle() const { return slant; }
    bool isFixedPitch() const { return fixedPitch; }
    // From the name table; empty when the font has none.
    const std::string &postscriptName() const { return psName; }
    // The advance of a glyph in font units.
    int advanceWidth(int glyph) const;
    // Where a glyph's outline lies in the glyf table: false for an id beyond the
    // font or a damaged location table; length 0 for an empty glyph.
    bool glyphLocation(int glyph, uint32_t *offset, uint32_t *length) const;
    // The glyphs a composite glyph is built from (none for a simple one).
    std::vector<int> components(int glyph) const;

    // Big-endian reads that give 0 beyond the bytes.
    uint16_t u16(size_t at) const {
        return at + 2 <= length ? (uint16_t)(data[at] << 8 | data[at + 1]) : 0;
    }
    int16_t s16(size_t at) const { return (int16_t)u16(at); }
    uint32_t u32(size_t at) const {
        return at + 4 <= length ? (uint32_t)u16(at) << 16 | u16(at + 2) : 0;
    }

private:
    bool readDirectory(size_t at);
    bool readMetrics();
    void readName();

    const unsigned char *data = nullptr;
    size_t length = 0;
    std::vector<Table> tables;
    int numGlyphs = 0, emUnits = 1000, numberOfHMetrics = 0;
    int box[4] = {0, 0, 0, 0};
    int ascender = 0, descender = 0, capitalHeight = 0;
    double slant = 0;
    bool fixedPitch = false;
    bool longLocations = false;
    std::string psName;
};
