// Label layout throughput: laying out and measuring 10,000 labels a round.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "text/layout/TTFText.h"

namespace {

const int kLabels = 10000;

std::vector<std::string> makeLabels(bool markup) {
    std::vector<std::string> labels;
    char buffer[128];
    for (int i = 0; i < kLabels; ++i) {
        if (markup)
            snprintf(buffer, sizeof(buffer),
                     "<*font=arialbd.ttf,color=%06X*>%d<*/font*> units<*br*>Q%d", i * 97 % 0xFFFFFF,
                     i * 37, i % 4 + 1);
        else
            snprintf(buffer, sizeof(buffer), "%d.%02d", i * 37, i % 100);
        labels.push_back(buffer);
    }
    return labels;
}

void layoutLabels(benchmark::State &state, bool markup, double angle, int maxWidth) {
    std::vector<std::string> labels = makeLabels(markup);
    DrawArea *canvas = DrawArea::create();
    for (auto _ : state) {
        long total = 0;
        for (const std::string &label : labels) {
            TTFText *t = TTFText::create(canvas, label.c_str(), "arial.ttf", 0, 10, 0, angle, false,
                                         1, maxWidth, 0, 0);
            total += t->getWidth() + t->getHeight();
            t->destroy();
        }
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
    canvas->destroy();
}

void BM_PlainLabels(benchmark::State &state) {
    layoutLabels(state, false, 0, 0);
}
void BM_MarkupLabels(benchmark::State &state) {
    layoutLabels(state, true, 0, 0);
}
void BM_RotatedWrappedLabels(benchmark::State &state) {
    layoutLabels(state, true, 30, 40);
}

}  // namespace

BENCHMARK(BM_PlainLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MarkupLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RotatedWrappedLabels)->Unit(benchmark::kMillisecond);
