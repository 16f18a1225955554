#pragma once

#include <vector>

#include "text/layout/TTFText.h"
#include "text/markup/BlockAttributes.h"

class DrawArea;

// A block of lines: the root of every text and each "<*block*>" inside one.
// Children are runs, images and nested blocks; breaks end lines.
class TTFBlocks : public TTFText {
public:
    TTFBlocks(DrawArea *d, const BlockAttributes &attrs, bool isRoot);

    // Takes over the caller's reference.
    void addChild(TTFText *child);
    void addBreak();
    // Whether nothing was added since the last break.
    bool isLineEmpty() const { return children.empty() || children.back().isBreak; }

    void destroy() override;
    int getWidth() override { return boundsWidth; }
    int getHeight() override { return boundsHeight; }
    int getBaseline() override;
    int getLineHeight() override;
    int getLineDistance() override;
    int getAscent() override;
    int getDescent() override;
    bool layout(int startX, int maxWidth, int maxLines) override;
    void draw(int x, int y, int color, int alignment) override;
    void drawAt(const TextTransform &t, double left, double top, int color) override;
    int getVAlign() override { return attrs.valign; }

    const BlockAttributes &getAttributes() const { return attrs; }
    // The unrotated box.
    int getBoxWidth() const { return boxWidth; }
    int getBoxHeight() const { return boxHeight; }
    int getLineCount() const { return (int)lines.size(); }
    // The items of line i, in order, after wrapping.
    std::vector<TTFText *> getLineItems(int line) const;
    // Left edges of those items in the block's unrotated box.
    std::vector<double> getLineItemLefts(int line) const;

private:
    struct Entry {
        TTFText *child;
        bool isBreak;
        int line;
        double x;
        double top;
    };
    struct LineBox {
        int top;
        int height;
        int ascent;
        int descent;
        int width;
    };

    ~TTFBlocks() override;

    bool wrapChildren(int limit, int lineLimit);
    void measureLines();
    void placeItems();
    void computeBounds();
    void drawBox(const TextTransform &frame);

    DrawArea *canvas;
    bool isRoot;
    BlockAttributes attrs;
    std::vector<Entry> children;
    std::vector<Entry> wrapped;
    std::vector<LineBox> lines;
    int boxWidth;
    int boxHeight;
    int boundsWidth;
    int boundsHeight;
    double boundsLeft;  // of the rotated box, relative to its unrotated origin
    double boundsTop;
};
