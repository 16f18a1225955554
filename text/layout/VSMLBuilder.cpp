#include "text/layout/VSMLBuilder.h"

#include "text/font/FontFace.h"
#include "text/layout/BidiRun.h"
#include "text/layout/Glyph.h"
#include "text/layout/GlyphContainerImpl.h"
#include "text/layout/TTFBlocks.h"
#include "text/layout/TTFImage.h"
#include "text/layout/TTFTextImpl.h"

namespace {
// Nested blocks deeper than this are read as plain content.
const int kMaxDepth = 64;
}  // namespace

VSMLBuilder::VSMLBuilder(DrawArea *d, int f, bool v)
    : canvas(d), flags(f), vertical(v), p(nullptr), run(nullptr), runHasRtl(false) {}

TTFBlocks *VSMLBuilder::build(const wchar_t *text, const FontState &initial,
                              const BlockAttributes &rootAttrs) {
    p = text ? text : L"";
    stack.assign(1, initial);
    directions.assign(1, rootAttrs.direction);
    TTFBlocks *root = new TTFBlocks(canvas, rootAttrs, true);
    readBlock(root, false);
    return root;
}

void VSMLBuilder::readBlock(TTFBlocks *block, bool nested) {
    while (*p) {
        if (p[0] == L'<' && p[1] == L'<' && p[2] == L'*') {
            appendChar(L'<');
            appendChar(L'*');
            p += 3;
        } else if (p[0] == L'<' && p[1] == L'*') {
            const wchar_t *start = p + 2;
            const wchar_t *end = start;
            while (*end && !(end[0] == L'*' && end[1] == L'>')) ++end;
            std::wstring content(start, end - start);
            p = *end ? end + 2 : end;
            if (!handleTag(block, content, nested)) break;
        } else if (*p == L'\n') {
            endLine(block);
            ++p;
        } else {
            if (*p != L'\r') appendChar(*p);
            ++p;
        }
    }
    flushRun(block);
    keepLineHeight(block);
}

bool VSMLBuilder::handleTag(TTFBlocks *block, const std::wstring &content, bool nested) {
    VSMLTag tag(content);
    switch (tag.getKind()) {
        case VSMLTag::kBreak:
            endLine(block);
            return true;
        case VSMLTag::kEndBlock:
            if (!nested) return true;
            return false;
        case VSMLTag::kImage: {
            flushRun(block);
            BlockAttributes attrs;
            attrs.apply(tag);
            block->addChild(TTFImage::create(canvas, attrs));
            return true;
        }
        case VSMLTag::kBlock: {
            if ((int)directions.size() >= kMaxDepth) return true;
            flushRun(block);
            BlockAttributes attrs;
            attrs.apply(tag);
            TTFBlocks *child = new TTFBlocks(canvas, attrs, false);
            // The block's style ends with it, however its font levels were left.
            std::vector<FontState> outer = stack;
            stack.assign(1, state());
            directions.push_back(attrs.direction);
            readBlock(child, true);
            directions.pop_back();
            stack.swap(outer);
            child->layout(0, TTFText::kUnlimited, TTFText::kUnlimited);
            block->addChild(child);
            return true;
        }
        default:
            applyInline(tag);
            return true;
    }
}

void VSMLBuilder::applyInline(const VSMLTag &tag) {
    for (const VSMLTag::Pair &pair : tag.getPairs()) {
        if (pair.key == L"font") {
            stack.push_back(state());
            if (pair.hasValue) state().setFont(VSMLTag::toNarrow(pair.value));
        } else if (pair.key == L"/font") {
            if (stack.size() > 1) stack.pop_back();
        } else {
            state().apply(pair);
        }
    }
    appendSpacers();
}

void VSMLBuilder::appendSpacers() {
    FontState &s = state();
    if (s.pendingAdvance < 0 && s.pendingAdvanceTo < 0) return;
    if (!run) run = new GlyphContainerImpl(flags);
    Glyph g;
    g.setFace(s.getFace(canvas), flags);
    g.bgColor = s.bgColor;
    if (s.pendingAdvance >= 0) {
        g.makeSpacer(s.pendingAdvance, g.lineSpacing);
        run->append(g);
    }
    if (s.pendingAdvanceTo >= 0) {
        g.makeSpacer(0, g.lineSpacing);
        g.advanceTo = s.pendingAdvanceTo;
        run->append(g);
    }
    s.pendingAdvance = s.pendingAdvanceTo = -1;
}

void VSMLBuilder::appendChar(int ch) {
    FontState &s = state();
    if (!run) run = new GlyphContainerImpl(flags);
    if (ch >= 0x590 && ch <= 0x8FF) runHasRtl = true;
    Glyph g;
    g.setFace(s.getFace(canvas), flags);
    g.color = s.color;
    g.bgColor = s.bgColor;
    g.underline = s.underline;
    g.xOffset = s.xOffset;
    g.yOffset = s.yOffset;
    // A tab draws as a blank.
    g.makeGlyph(ch == L'\t' ? L' ' : ch, false);
    g.ch = ch;
    run->append(g);
}

void VSMLBuilder::flushRun(TTFBlocks *block) {
    if (!run) return;
    if (runHasRtl) BidiRun::apply(run, directions.back());
    block->addChild(
        new TTFTextImpl(canvas, run, 0, run->size(), state().getFace(canvas), vertical));
    run->release();
    run = nullptr;
    runHasRtl = false;
}

void VSMLBuilder::keepLineHeight(TTFBlocks *block) {
    if (!block->isLineEmpty()) return;
    // An empty line keeps the height of the current font.
    GlyphContainer *empty = new GlyphContainerImpl(flags);
    block->addChild(new TTFTextImpl(canvas, empty, 0, 0, state().getFace(canvas), vertical));
    empty->release();
}

void VSMLBuilder::endLine(TTFBlocks *block) {
    flushRun(block);
    keepLineHeight(block);
    block->addBreak();
}
