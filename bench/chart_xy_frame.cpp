// XY chart frame throughput: a data-less 640 by 480 chart with four labelled
// axes, titles, grid, bands, a zone and marks, laid out and painted into its
// display list (charts per second), and the same encoded as PNG.
#include <benchmark/benchmark.h>

#include "chart/axis/Axis.h"
#include "chart/axis/paint/Mark.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace {

// With packed set, the chart fits the plot between its axes by itself, which
// measures every axis on the way.
XYChart *frameChart(bool packed) {
    XYChart *c = XYChart::create(640, 480, 0xFFFFFF, kTransparent, 0);
    c->addTitle("A chart frame", "", 12, kTextColor, kTransparent, kTransparent);
    if (packed)
        c->getPlotArea()->setBackground(0xF8F8F8, 0xEEEEEE, kLineColor);
    else
        c->setPlotArea(80, 60, 480, 340, 0xF8F8F8, 0xEEEEEE, kLineColor, 0xCCCCCC, 0xCCCCCC);
    c->xAxis()->setLinearScale(0, 120, 10, 2);
    c->xAxis2()->setLinearScale(0, 1, 0.1, 0);
    c->yAxis()->setLinearScale(-50, 150, 25, 5);
    c->yAxis2()->setLogScale(1, 10000, 10, 0);
    const char *titles[] = {"Bottom", "Top", "Left", "Right"};
    Axis *axes[] = {c->xAxis(), c->xAxis2(), c->yAxis(), c->yAxis2()};
    for (int i = 0; i < 4; ++i) axes[i]->setTitle(titles[i], "", 9, kTextColor);
    c->yAxis()->addZone(0, 50, 0xE0F0E0);
    c->yAxis()->addMark(100, 0xCC0000, "Limit", "", 8);
    c->xAxis()->addMark(60, 0x0000CC, "Middle", "", 8)->setAlignment(kTopLeft);
    return c;
}

void layoutAndPaint(benchmark::State &state, bool packed) {
    for (auto _ : state) {
        XYChart *c = frameChart(packed);
        DrawArea *d = c->makeChart();
        benchmark::DoNotOptimize(d);
        c->destroy();
    }
    state.SetItemsProcessed(state.iterations());
    state.SetLabel("charts");
}

void BM_XYFrameLayoutAndPaint(benchmark::State &state) {
    layoutAndPaint(state, false);
}

void BM_XYFramePackedLayoutAndPaint(benchmark::State &state) {
    layoutAndPaint(state, true);
}

void BM_XYFrameToPNG(benchmark::State &state) {
    for (auto _ : state) {
        XYChart *c = frameChart(false);
        MemBlock png = c->makeChart2(kPNG);
        benchmark::DoNotOptimize(png.len);
        c->destroy();
    }
    state.SetItemsProcessed(state.iterations());
    state.SetLabel("charts");
}

}  // namespace

BENCHMARK(BM_XYFrameLayoutAndPaint)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_XYFramePackedLayoutAndPaint)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_XYFrameToPNG)->Unit(benchmark::kMillisecond);
