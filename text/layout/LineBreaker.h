#pragma once

class GlyphContainer;

// Places the glyphs of a run on one line and finds where the line must end.
class LineBreaker {
public:
    struct Line {
        int end;        // behind the last glyph on the line
        int nextStart;  // first glyph of the continuation; == runEnd when none
        bool overflow;  // a glyph passed the width
    };

    // Positions glyphs [begin, runEnd) from startX.  The line breaks at the last
    // blank before the glyph that passes maxWidth or, with no blank and
    // betweenLetters set, before that glyph (one glyph stays at least).
    static Line breakLine(GlyphContainer *glyphs, int begin, int runEnd, double startX,
                          int maxWidth, bool betweenLetters);
    // End of [begin, end) without the blanks at its end.
    static int trimBreaks(GlyphContainer *glyphs, int begin, int end);
    // First glyph from i on that is no break character.
    static int skipBreaks(GlyphContainer *glyphs, int i, int end);
};
