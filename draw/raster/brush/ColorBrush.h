#pragma once

// What a brush needs of the raster that owns it: resolving a colour word that
// may itself be a dynamic colour, and writing a blended pixel.
class BrushHost {
public:
    virtual ~BrushHost() {}
    // The plain word of `color` at (x, y), following dynamic colours to a bounded depth.
    virtual int resolveColor(int color, int x, int y) = 0;
    // Blends a plain or dynamic colour into the pixel at out[0] for pixel (x, y).
    virtual void blendInto(int *out, int x, int y, int color) = 0;
    // True when plain colours may be blended straight into the pixel words (no
    // pixel holds a sample), so a brush can skip blendInto for them.
    virtual bool allowsDirectStores() const = 0;
};

// A dynamic colour on the raster: the colour of each pixel.  The plain brush is
// one colour everywhere; the rest of the family derives from it.
class ColorBrush {
public:
    explicit ColorBrush(int color = 0) : color(color) {}
    virtual ~ColorBrush() {}
    ColorBrush(const ColorBrush &) = delete;
    ColorBrush &operator=(const ColorBrush &) = delete;

    // May return another dynamic colour: the host follows it.
    virtual int colorAt(int x, int y) { return (void)x, (void)y, color; }
    // At a fractional place: the nearest pixel unless the brush can sample between.
    virtual int colorAtF(double x, double y);
    // Blends pixels x1..x2 of row y into out[outIndex], out[outIndex + 1], ...
    virtual void fillSpan(BrushHost *target, int x1, int x2, int y, int *out, int outIndex);

protected:
    int color;
};
