#pragma once

#include <vector>

#include "text/layout/FontState.h"
#include "text/markup/BlockAttributes.h"

class DrawArea;
class GlyphContainer;
class TTFBlocks;

// Reads a text with its inline mark-up into the tree of a TTFText: blocks,
// runs of glyphs, images and line breaks.  The caller holds the font mutex.
class VSMLBuilder {
public:
    // flags: the antialias word the glyphs are rendered with.
    VSMLBuilder(DrawArea *d, int flags, bool vertical);

    TTFBlocks *build(const wchar_t *text, const FontState &initial, const BlockAttributes &root);

private:
    void readBlock(TTFBlocks *block, bool nested);
    // Returns false at a "/block" that closes the block being read.
    bool handleTag(TTFBlocks *block, const std::wstring &content, bool nested);
    void applyInline(const VSMLTag &tag);
    void appendChar(int ch);
    void appendSpacers();
    void flushRun(TTFBlocks *block);
    void endLine(TTFBlocks *block);
    void keepLineHeight(TTFBlocks *block);
    FontState &state() { return stack.back(); }

    DrawArea *canvas;
    int flags;
    bool vertical;
    const wchar_t *p;
    std::vector<FontState> stack;
    std::vector<int> directions;  // of the open blocks
    GlyphContainer *run;
    bool runHasRtl;
};
