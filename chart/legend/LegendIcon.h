#pragma once

class DrawArea;

// A key that draws itself, for layers whose keys are more than a colour patch,
// a line or a symbol: bars with their shape, border and lighting.
class LegendIcon {
public:
    virtual ~LegendIcon() {}
    // The size the key asks for; 0 or less leaves that side to the legend.
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    // Draws into the key's box, inclusive pixels from (left, top); the legend's
    // key border and raised effect come along for icons that want them.
    virtual void paint(DrawArea *d, int left, int top, int width, int height, int keyEdgeColor,
                       int keyRaisedEffect) = 0;
};
