#include "chart/symbol/MarkupSymbolPainter.h"

#include "chart/symbol/DataSymbol.h"
#include "text/markup/ShapeSymbol.h"

void MarkupSymbolPainter::install() {
    static MarkupSymbolPainter painter;
    TextSymbolService::install(&painter);
}

bool MarkupSymbolPainter::drawSymbol(DrawArea *d, const ShapeSymbol &symbol, double cx, double cy,
                                     int width, int height, int color, int edgeColor) {
    if (!d || symbol.tableIndex >= 0 || symbol.code == 0) return false;
    // (cx, cy) is the middle of the item's box, whose first pixel is half the
    // width to the left.
    DataSymbol::draw2(d, symbol.code, symbol.coordinates, cx - width / 2.0, cy - height / 2.0,
                      width, height, color, edgeColor, 1);
    return true;
}
