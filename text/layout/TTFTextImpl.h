#pragma once

#include <vector>

#include "text/font/FaceRef.h"
#include "text/layout/Glyph.h"
#include "text/layout/TTFText.h"

class DrawArea;
class FontFace;
class GlyphContainer;

// A run of glyphs on one line.  A run that wraps hands the rest of its glyphs to
// a continuation of the same class, which shares the glyph container.
class TTFTextImpl : public TTFText {
public:
    // Takes a reference on glyphs.  face gives the metrics of an empty run.
    TTFTextImpl(DrawArea *d, GlyphContainer *glyphs, int begin, int end, FontFace *face,
                bool vertical);

    int getWidth() override { return width; }
    int getHeight() override { return ascent + descent; }
    int getBaseline() override { return ascent; }
    int getLineHeight() override { return lineDistance; }
    int getLineDistance() override { return lineDistance; }
    int getAscent() override { return ascent; }
    int getDescent() override { return descent; }
    bool layout(int startX, int maxWidth, int maxLines) override;
    TTFText *nextLine() override { return next; }
    void draw(int x, int y, int color, int alignment) override;
    void drawAt(const TextTransform &t, double left, double top, int color) override;

    int getItemCount() const override;
    int getItemColor(int i, int defaultColor) const override;

    void getGlyphRuns(int first, int end, int x, int y, int color, GlyphText &out) const override;

    int getGlyphBegin() const { return begin; }
    int getGlyphEnd() const { return end; }
    GlyphContainer *getGlyphs() const { return glyphs; }
    const std::vector<Glyph> &getEllipsis() const { return ellipsis; }
    // The characters on this line in drawing order, dots included.
    std::vector<int> getCharacters() const;

private:
    // The rest of `line` from glyph `begin` on: measured when it is laid out,
    // so that wrapping costs each glyph once, not once per line before it.
    TTFTextImpl(const TTFTextImpl &line, int begin);
    struct Unmeasured {};
    TTFTextImpl(DrawArea *d, GlyphContainer *glyphs, int begin, int end, FontFace *face,
                bool vertical, Unmeasured);
    ~TTFTextImpl() override;
    // Drops a chain of continuations without recursing, one run at a time.
    static void releaseChain(TTFTextImpl *first);

    const Glyph &itemAt(int i) const;
    void addToRuns(const Glyph &g, int color, FontFace *&runFace, GlyphText &out) const;
    void measure();
    void layoutVertical(int startX);
    void truncate(int maxWidth);
    void drawBackgrounds(const TextTransform &t, double left, double top);
    void drawUnderlines(const TextTransform &t, double left, double top);
    void fillQuad(const TextTransform &t, double x1, double y1, double x2, double y2, int color);

    DrawArea *canvas;
    GlyphContainer *glyphs;
    int begin;
    int runEnd;  // end of the glyphs this run was given
    int end;     // end of the glyphs on its line
    FaceRef face;
    bool vertical;
    std::vector<Glyph> ellipsis;
    TTFTextImpl *next;
    double startX;
    int width;
    int ascent;
    int descent;
    int lineDistance;
    double matrix[4];  // linear part of the frame last drawn in
    int underlineColor;
};
