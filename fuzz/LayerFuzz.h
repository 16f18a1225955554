#pragma once

// The chart of the layer fuzz targets: its size from control bytes 0 and 1,
// swapped and reversed axes from byte 3's low bits.

#include <cstdint>

#include "chart/axis/Axis.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "layers/LayerKinds.h"

inline XYChart *newLayerFuzzChart(const uint8_t *c) {
    LayerKinds::install();
    XYChart *chart = XYChart::create(c[0] % 400 + 1, c[1] % 300 + 1, 0xFFFFFF, kTransparent, 0);
    chart->swapXY(c[3] & 1);
    chart->yAxis()->setReverse(c[3] & 2);
    chart->xAxis()->setReverse(c[3] & 4);
    return chart;
}
