// The gallery's canvas scene and text page written as SVG and as PDF: time per
// picture and the size of the result.
#include <benchmark/benchmark.h>

#include "draw/canvas/DrawArea.h"
#include "examples/gallery/GalleryScenes.h"

namespace {

void writeVector(benchmark::State &state, DrawArea *(*draw)(), bool pdf) {
    DrawArea *d = draw();
    int bytes = 0;
    for (auto _ : state) {
        MemBlock out = pdf ? d->outPDF2() : d->outSVG2("");
        bytes = out.len;
        benchmark::DoNotOptimize(out.data);
    }
    state.counters["bytes"] = bytes;
    d->destroy();
}

void BM_CanvasSceneSVG(benchmark::State &state) {
    writeVector(state, drawCanvasScene, false);
}
void BM_CanvasScenePDF(benchmark::State &state) {
    writeVector(state, drawCanvasScene, true);
}
void BM_TextPageSVG(benchmark::State &state) {
    writeVector(state, drawTextPage, false);
}
void BM_TextPagePDF(benchmark::State &state) {
    writeVector(state, drawTextPage, true);
}

}  // namespace

BENCHMARK(BM_CanvasSceneSVG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CanvasScenePDF)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TextPageSVG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TextPagePDF)->Unit(benchmark::kMillisecond);
