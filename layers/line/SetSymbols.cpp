#include "layers/line/SetSymbols.h"

#include <cmath>
#include <vector>

#include "chart/layer/DataSetImpl.h"
#include "chart/symbol/LayerPainter.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "layers/line/SymbolSizes.h"

SetSymbols::SetSymbols(const LayerImpl &layer, int dataSet, const SymbolSizes *sizes)
    : layer(layer),
      set(layer.dataSetAt(dataSet)),
      pixels(layer, dataSet),
      sizes(sizes && sizes->isSet() ? sizes : nullptr) {}

bool SetSymbols::at(int i, const LayerPainter &painter, int *x, int *y, int *width,
                    int *height) const {
    double px, py, cx, cy;
    if (!set || !pixels.pixel(i, &px, &py)) return false;
    painter.map(px, py, &cx, &cy);
    *x = (int)std::floor(cx + 0.5) + set->getSymbolOffsetX();
    *y = (int)std::floor(cy + 0.5) + set->getSymbolOffsetY();
    const DataSymbol &symbol = set->getSymbol();
    *width = symbol.isVisible() ? symbol.getWidth() : 0;
    *height = symbol.isVisible() ? symbol.getHeight() : 0;
    if (sizes)
        sizes->at(i, layer.xValue(i), pixels.valueAt(i), pixels.xPixels(), pixels.yPixels(),
                  layer.isSwapped(), *width, *height, width, height);
    return true;
}

void SetSymbols::paint(LayerPainter &painter) const {
    if (!set || !set->getSymbol().isVisible()) return;
    DrawArea *d = painter.getDrawArea();
    d->setColorTable(kSameAsMainColor & 0xFFFF, set->getDataColor());
    DataSymbol &symbol = set->getSymbol();
    std::vector<int> centres;
    int x, y, w, h;
    for (int i = layer.firstPoint(); i < layer.endPoint(); ++i) {
        if (!at(i, painter, &x, &y, &w, &h)) continue;
        if (sizes) {
            symbol.paint(d, x, y, w, h);
            continue;
        }
        centres.push_back(x);
        centres.push_back(y);
    }
    symbol.paintAll(d, IntArray(centres.data(), (int)centres.size()));
}
