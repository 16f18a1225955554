#pragma once

#include <cmath>

#include "draw/list/GlyphText.h"

// The stretches of a run that a vector output writes as one piece of text:
// glyphs on one line, each where the advance of the one before left the pen.
// A wrapped line, a tab or a vertical text starts a new stretch.
class GlyphStretches {
public:
    // Calls out(first, end) for the glyphs [first, end) of each stretch.
    template <class Out>
    static void forEach(const GlyphText &text, const GlyphRun &run, Out out) {
        int first = run.firstGlyph, end = run.firstGlyph + run.glyphCount, start = first;
        for (int i = first + 1; i <= end; ++i)
            if (i == end || !follows(text.glyphs[i - 1], text.glyphs[i])) {
                out(start, i);
                start = i;
            }
    }

    static bool follows(const PlacedGlyph &a, const PlacedGlyph &b) {
        return std::fabs(b.y - a.y) < 0.01 && std::fabs(b.x - (a.x + a.advance)) < 0.51;
    }
};
