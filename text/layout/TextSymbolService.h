#pragma once

class DrawArea;
class ShapeSymbol;

// What a text needs to draw a symbol named in its mark-up ("@circle", "@star(7)").
// Symbols belong to the chart layer above, which plugs itself in here; until it
// has, texts draw the plain shapes themselves.
class TextSymbolService {
public:
    static void install(TextSymbolService *service);
    static TextSymbolService *get();

    // Draws the symbol centred at (cx, cy) in a box of width by height; false
    // when it can't.
    virtual bool drawSymbol(DrawArea *d, const ShapeSymbol &symbol, double cx, double cy, int width,
                            int height, int color, int edgeColor) = 0;

protected:
    virtual ~TextSymbolService() {}
};
