// Chart frame throughput: whole charts with many titles and a large legend,
// made and encoded as PNG; and data symbols at many points, merged from their
// prepared canvas against drawn in place.
#include <benchmark/benchmark.h>

#include <string>

#include "chart/base/MultiChart.h"
#include "chart/legend/LegendBox.h"
#include "chart/symbol/DataSymbol.h"
#include "chart/symbol/ShapeWords.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "foundation/Constants.h"

namespace {

const int kTitles = 20;
const int kKeys = 30;
const int kPoints = 2000;

BaseChart *titledChart() {
    MultiChart *c = MultiChart::create(640, 480, 0xF4F6FA, 0x1F3A5F, 0);
    c->setRoundedFrame(0xFFFFFF, 16, -1, -1, -1);
    c->setDropShadow(0xAAAAAA, 5, 0x7FFFFFFF, 5);
    const int alignments[] = {kTopCenter, kBottomLeft, kLeft, kRight, kTopLeft, kBottomRight};
    for (int i = 0; i < kTitles; ++i) {
        std::string text = "Title <*font=bold*>" + std::to_string(i) + "<*/font*> of the chart";
        c->addTitle2(alignments[i % 6], text.c_str(), "", 9 + i % 4, kTextColor, kTransparent,
                     kTransparent);
    }
    LegendBox *legend = c->addLegend2(60, 60, 3, "", 9);
    for (int i = 0; i < kKeys; ++i)
        legend->addKey(("Series " + std::to_string(i)).c_str(), 0x102030 * (i + 1) & 0xFFFFFF,
                       i % 3 ? -1 : 2, nullptr);
    legend->setLineStyleKey(true);
    return c;
}

void BM_TitledChartToPNG(benchmark::State &state) {
    for (auto _ : state) {
        BaseChart *c = titledChart();
        MemBlock png = c->makeChart2(kPNG);
        benchmark::DoNotOptimize(png.len);
        c->destroy();
    }
    state.SetItemsProcessed(state.iterations());
    state.SetLabel("charts");
}

void scatter(benchmark::State &state, bool merged) {
    for (auto _ : state) {
        DrawArea *d = DrawArea::create();
        d->setSize(800, 600, 0xFFFFFF);
        DataSymbol s;
        s.setShape(Chart::StarShape(5), 11, -1, -1, 1);
        s.layoutLegend(d);
        s.layoutChart(d, 0xE4572E, 0x333333);
        for (int i = 0; i < kPoints; ++i) {
            int x = (i * 37) % 780 + 10, y = (i * 53) % 580 + 10;
            if (merged)
                s.paint(d, x, y, s.getWidth(), s.getHeight());
            else
                s.draw(d, x - s.getWidth() / 2, y - s.getHeight() / 2, s.getWidth(), s.getHeight());
        }
        MemBlock png = d->outPNG2();
        benchmark::DoNotOptimize(png.len);
        d->destroy();
    }
    state.SetItemsProcessed(state.iterations() * kPoints);
}

void BM_SymbolsMerged(benchmark::State &state) {
    scatter(state, true);
}
void BM_SymbolsDrawnInPlace(benchmark::State &state) {
    scatter(state, false);
}

}  // namespace

BENCHMARK(BM_TitledChartToPNG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SymbolsMerged)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SymbolsDrawnInPlace)->Unit(benchmark::kMillisecond);
