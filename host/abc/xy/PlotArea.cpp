#include "host/abc/xy/PlotArea.h"

#include "host/abc/xy/Layer.h"

namespace abc {

void PlotArea::moveGridBefore(Layer *layer) {
    CPlotArea_moveGridBefore(handle, Layer::handleOf(layer));
}

}  // namespace abc
