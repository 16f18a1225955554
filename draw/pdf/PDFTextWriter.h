#pragma once

#include <string>

#include "draw/list/GlyphText.h"

class PDFContent;
class PDFFont;

// Text objects for the glyphs of one run: one BT ... ET for each stretch of
// glyphs that follow each other, its matrix at the stretch's first pen
// position (y turned up, as fonts are drawn).  Synthetic italic shears the
// matrix and synthetic bold strokes the outlines as well.  Precise text moves
// each glyph to where the layout put it with adjustments in the TJ array.
class PDFTextWriter {
public:
    // The caller has set the fill (and, for synthetic bold, the stroke) paint.
    PDFTextWriter(PDFContent &content, PDFFont &font, const std::string &fontName, bool precise)
        : content(content), font(font), fontName(fontName), precise(precise) {}
    void write(const GlyphText &text, const GlyphRun &run);

private:
    void writeStretch(const GlyphText &text, const GlyphRun &run, int first, int end);

    PDFContent &content;
    PDFFont &font;
    const std::string &fontName;
    bool precise;
};
