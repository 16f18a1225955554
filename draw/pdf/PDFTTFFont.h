#pragma once

#include <map>
#include <vector>

#include "draw/pdf/PDFFont.h"
#include "draw/pdf/PDFFontFiles.h"
#include "draw/pdf/font/TrueTypeFile.h"

// An embedded TrueType font: a subset of the file with the glyphs used, a
// CIDFontType2 that names glyphs by their ids, a Type0 font over it with the
// Identity-H encoding, and a ToUnicode map so that text can be extracted.
class PDFTTFFont : public PDFFont {
public:
    // Takes over the file bytes; usable() tells whether they hold a TrueType font.
    PDFTTFFont(int id, PDFFontFiles::Bytes file, int faceIndex, const GlyphFont &font);
    bool usable() const { return parsed; }

    bool isHex() const override { return true; }
    void addGlyph(std::string &operand, const PlacedGlyph &glyph, const GlyphText &text,
                  bool rightToLeft) override;
    double advanceOf(const PlacedGlyph &glyph) const override;
    void write(PDFDocument &doc) override;

    // The ToUnicode map of glyphs and the characters they show.
    static std::string toUnicode(const std::map<int, std::vector<int>> &glyphs);

private:
    std::string baseName() const;
    std::string widths() const;
    int writeDescriptor(PDFDocument &doc, const std::string &name) const;
    double scaled(double fontUnits) const { return fontUnits * 1000.0 / font.unitsPerEm(); }

    PDFFontFiles::Bytes file;
    TrueTypeFile font;
    bool parsed;
    std::string familyName;
    // Glyph id to the characters it shows.
    std::map<int, std::vector<int>> used;
};
