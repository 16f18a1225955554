#pragma once

#include <string>

#include "chart/axis/Axis.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "layers/LayerKinds.h"

// The engine's side of a host chart test: the chart made straight on the
// engine, to compare listings with the one made through the host.

// An XY chart as the host's constructor makes it at the ScaleFactor scale:
// pixels scaled, and above 1 the standing axes' labels and ticks raised.
inline XYChart *engineXYChart(int width, int height, int bgColor, double scale) {
    LayerKinds::install();
    XYChart *c =
        XYChart::create((int)(width * scale), (int)(height * scale), bgColor, kTransparent, 0);
    if (scale > 1)
        for (Axis *a : {c->yAxis(), c->yAxis2(), c->xAxis(), c->xAxis2()}) {
            a->setLabelStyle("", 8 * scale, kTextColor, 0);
            a->setTickWidth((int)scale, -1);
        }
    return c;
}

// The chart's listing; the chart is destroyed.
inline std::string engineListing(BaseChart *c) {
    MemBlock b = c->makeChart()->outAGF2();
    std::string listing(b.data ? b.data : "", b.len);
    c->destroy();
    return listing;
}
