#pragma once

#include "text/layout/TextSymbolService.h"

// Draws the symbols that texts name in their mark-up ("@circle") as data
// symbols, so that a label's symbol looks like the series' one.
class MarkupSymbolPainter : public TextSymbolService {
public:
    // Plugs data symbols into every text; called by the chart factories.
    static void install();

    bool drawSymbol(DrawArea *d, const ShapeSymbol &symbol, double cx, double cy, int width,
                    int height, int color, int edgeColor) override;
};
