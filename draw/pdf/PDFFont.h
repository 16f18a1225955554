#pragma once

#include <string>

#include "draw/list/GlyphText.h"

class PDFDocument;

// A font of a PDF file.  Text names its glyphs through the font: an embedded
// TrueType font by glyph id, a standard font by character code.
class PDFFont {
public:
    virtual ~PDFFont() {}
    // The embedded font when the file can be read, else the standard font that
    // looks most like it.  The font's dictionary gets an object of doc now;
    // the rest is written by write().
    static PDFFont *create(PDFDocument &doc, const GlyphFont &font);
    // Fonts that share a key share their objects.
    static std::string keyOf(const GlyphFont &font);

    int objectId() const { return id; }
    // Glyph names in strings are 2 bytes in hexadecimal, or character codes.
    virtual bool isHex() const = 0;
    // Appends what shows the glyph to a string operand, and notes it as used.
    virtual void addGlyph(std::string &operand, const PlacedGlyph &glyph, const GlyphText &text,
                          bool rightToLeft) = 0;
    // The advance the font itself gives the glyph, in thousandths of the em.
    virtual double advanceOf(const PlacedGlyph &glyph) const = 0;
    // The objects of the font, once every glyph is known.
    virtual void write(PDFDocument &doc) = 0;

protected:
    explicit PDFFont(int id) : id(id) {}
    int id;
};
