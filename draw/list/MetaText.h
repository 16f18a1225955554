#pragma once

class DrawBMP;

// What the display list needs of a laid-out text: a reference count, so the
// list can keep the text alive, the colours of its items, so the colours can
// be registered before the text is played, and its painting on a raster.
class MetaText {
public:
    virtual void retainText() = 0;
    virtual void releaseText() = 0;
    virtual int getItemCount() const = 0;
    // The colour of item i, or defaultColor when the item takes the draw colour.
    virtual int getItemColor(int i, int defaultColor) const = 0;
    // Paints items [first, end) with the baseline origin at (x, y); a text
    // without glyphs of its own paints nothing.
    virtual void paintOn(DrawBMP *raster, int first, int end, int x, int y, int color) {
        (void)raster, (void)first, (void)end, (void)x, (void)y, (void)color;
    }

protected:
    virtual ~MetaText() {}
};
