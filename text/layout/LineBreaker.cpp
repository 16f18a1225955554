#include "text/layout/LineBreaker.h"

#include "text/layout/Glyph.h"
#include "text/layout/GlyphContainer.h"

int LineBreaker::trimBreaks(GlyphContainer *glyphs, int begin, int end) {
    while (end > begin && glyphs->at(end - 1).isBreak()) --end;
    return end;
}

int LineBreaker::skipBreaks(GlyphContainer *glyphs, int i, int end) {
    while (i < end && glyphs->at(i).isBreak()) ++i;
    return i;
}

LineBreaker::Line LineBreaker::breakLine(GlyphContainer *glyphs, int begin, int runEnd,
                                         double startX, int maxWidth, bool betweenLetters) {
    double pen = startX;
    int lastBreak = -1;
    for (int i = begin; i < runEnd; ++i) {
        Glyph &g = glyphs->at(i);
        g.setPos(0, pen, 0);
        pen = g.right;
        if (g.isBreak()) {
            lastBreak = i;
            continue;
        }
        if (g.right <= maxWidth + 1e-9) continue;
        int cut;
        if (lastBreak > begin) {
            cut = lastBreak;
        } else if (betweenLetters) {
            cut = i > begin ? i : i + 1;
        } else {
            return {runEnd, runEnd, true};
        }
        return {cut, skipBreaks(glyphs, cut, runEnd), true};
    }
    return {runEnd, runEnd, false};
}
