#pragma once

#include "draw/pdf/PDFFont.h"

// One of the standard fonts every PDF reader has, chosen by the font's name,
// for a font that can't be embedded.  Characters go out in WinAnsi codes; what
// the encoding lacks shows as "?".
class PDFUnknownFont : public PDFFont {
public:
    PDFUnknownFont(int id, const GlyphFont &font);
    bool isHex() const override { return false; }
    void addGlyph(std::string &operand, const PlacedGlyph &glyph, const GlyphText &text,
                  bool rightToLeft) override;
    double advanceOf(const PlacedGlyph &) const override { return -1; }
    void write(PDFDocument &doc) override;
    const std::string &baseFont() const { return base; }

    // The WinAnsi code of a character, or 0 when it has none.
    static int winAnsiCode(int ch);
    // The standard font for a name and style.
    static std::string standardName(const char *name, bool bold, bool italic);

private:
    std::string base;
};
