#pragma once

struct GlyphText;

// What the display list needs of a laid-out text: a reference count, so the
// list can keep the text alive, the colours of its items, so the colours can
// be registered before the text is played, and its glyphs, which the player
// hands to the back end.
class MetaText {
public:
    virtual void retainText() = 0;
    virtual void releaseText() = 0;
    virtual int getItemCount() const = 0;
    // The colour of item i, or defaultColor when the item takes the draw colour.
    virtual int getItemColor(int i, int defaultColor) const = 0;
    // Fills `out` with the glyphs of items [first, end), the frame's origin
    // (the first baseline's start) at (x, y); items that take the draw colour
    // get `color`.  A text without glyphs of its own leaves `out` empty.
    virtual void getGlyphRuns(int first, int end, int x, int y, int color,
                              GlyphText &out) const = 0;

protected:
    virtual ~MetaText() {}
};
