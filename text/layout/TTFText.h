#pragma once

#include <cwchar>

#include "draw/list/MetaText.h"

class DrawArea;
struct TextTransform;

// A laid-out text: a tree of blocks, runs of glyphs and images.  Made by
// create(); the canvas draws it at a point with an alignment.  Reference
// counted through MetaText, so a display list can keep a drawn run alive;
// destroy() drops the creator's reference.
class TTFText : public MetaText {
public:
    static constexpr int kUnlimited = 0x7FFFFFFF;

    // fontHeight and fontWidth are points (a width of 0 is the height); angle is
    // degrees counter-clockwise; antialias is the canvas's mode word.  A
    // maxWidth or maxLines of 0 or less means no limit.
    static TTFText *create(DrawArea *d, const char *text, const char *fontName, int fontIndex,
                           double fontHeight, double fontWidth, double angle, bool vertical,
                           int antialias, int maxWidth, int maxLines, int compactMode);
    static TTFText *create(DrawArea *d, const wchar_t *text, const char *fontName, int fontIndex,
                           double fontHeight, double fontWidth, double angle, bool vertical,
                           int antialias, int maxWidth, int maxLines, int compactMode);

    virtual void destroy() { releaseText(); }
    // Bounding box, rotation included.
    virtual int getWidth() = 0;
    virtual int getHeight() = 0;
    // From the top of the unrotated box to the first baseline.
    virtual int getBaseline() = 0;
    virtual int getLineHeight() = 0;
    virtual int getLineDistance() = 0;
    // Above and below the baseline, for placing the item in a line.
    virtual int getAscent() = 0;
    virtual int getDescent() = 0;
    // Places the content from startX; true when everything fitted.
    virtual bool layout(int startX, int maxWidth, int maxLines) = 0;
    // What did not fit on the line, or null.
    virtual TTFText *nextLine() { return nullptr; }
    // Puts the text on the canvas with the point of the alignment at (x, y).
    virtual void draw(int x, int y, int color, int alignment) = 0;
    // Draws the item with its box's top-left at (left, top) of the frame t maps.
    virtual void drawAt(const TextTransform &t, double left, double top, int color) = 0;
    // Valign code of an item in its line.
    virtual int getVAlign() { return 0; }

    // MetaText: items are the glyphs of a run; other items have none.
    void retainText() override { ++refCount; }
    void releaseText() override {
        if (--refCount <= 0) delete this;
    }
    int getItemCount() const override { return 0; }
    int getItemColor(int, int defaultColor) const override { return defaultColor; }
    void getGlyphRuns(int first, int end, int x, int y, int color, GlyphText &out) const override;

protected:
    TTFText() : refCount(1) {}
    ~TTFText() override {}
    // Whether releaseText would delete the object now.
    bool isLastReference() const { return refCount <= 1; }

private:
    int refCount;
};
