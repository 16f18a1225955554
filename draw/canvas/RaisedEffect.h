#pragma once

class DrawArea;

// Decodes an effect word (the raisedEffect argument of rectangles) and paints
// the filled rectangle with it: bevelled rims, soft rims, glass lighting with an
// optional glare band, and cylinder or bar lighting of the fill.
class RaisedEffect {
public:
    enum Side { kTopSide, kRightSide, kBottomSide, kLeftSide };

    explicit RaisedEffect(int word);

    // Rim thickness in pixels for a box of the given size.
    int thickness(double width, double height) const;
    bool isSunken() const { return sunken; }
    bool isFlat() const { return flat; }
    bool hasSoftRim() const { return softRim; }
    int glassLevel() const { return glass; }
    // The side the glass lighting and glare come from.
    Side lightSide() const { return light; }
    // Whether the rim of a side is a highlight (else a shadow).
    bool isHighlight(Side side) const;

    // Fills (x1, y1) - (x2, y2), inclusive pixel coordinates, and draws the effect.
    void paint(DrawArea *d, double x1, double y1, double x2, double y2, int edgeColor,
               int fillColor) const;

private:
    int fillWithLighting(DrawArea *d, double x1, double y1, double x2, double y2,
                         int fillColor) const;
    void paintRims(DrawArea *d, double x1, double y1, double x2, double y2, int t) const;
    void paintSoftRims(DrawArea *d, double x1, double y1, double x2, double y2, int t) const;
    void paintGlare(DrawArea *d, double x1, double y1, double x2, double y2) const;

    int word;
    unsigned bits;  // the word without its sign
    bool sunken;
    bool flat;
    bool softRim;
    int glass;
    Side light;
    int rimFlags;
};
