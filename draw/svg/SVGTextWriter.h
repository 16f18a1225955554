#pragma once

#include <string>

#include "draw/list/GlyphText.h"

// Text elements for the glyphs of one run: one element for each stretch of
// glyphs that follow each other on a line, placed at its first pen position,
// with the run's font as a style.  A right-to-left run is written in the order
// it shows, with the forms the layout drew, so that no reader reorders or
// reshapes it.
class SVGTextWriter {
public:
    // fill: the attributes that paint the text (fill and fill-opacity).
    // precise: each stretch gets the length the layout measured.
    SVGTextWriter(std::string &out, const std::string &fill, bool precise, int decimals)
        : out(out), fill(fill), precise(precise), decimals(decimals) {}
    void write(const GlyphText &text, const GlyphRun &run);

    // The style attribute's value for a font.
    static std::string styleOf(const GlyphFont &font);

private:
    void writeStretch(const GlyphText &text, const GlyphRun &run, int first, int end);
    std::string transformOf(const GlyphText &text, double widthScale) const;

    std::string &out;
    const std::string &fill;
    bool precise;
    int decimals;
};
