#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "draw/pixel/PixelBlend.h"
#include "draw/raster/CoverageGrid.h"
#include "draw/raster/DrawBMPImpl.h"
#include "draw/raster/PlotCollector.h"
#include "draw/raster/scan/LineRasterizer.h"

namespace {

std::unique_ptr<DrawBMPImpl> raster(int w, int h) {
    std::unique_ptr<DrawBMPImpl> r(static_cast<DrawBMPImpl *>(DrawBMP::create(nullptr, nullptr)));
    r->setSize(w, h, 0x00FFFFFF);
    return r;
}

int dyn(int n) {
    return (int)(0xFFFE0000u + (unsigned)n);
}

void BM_LargeAAPolygon(benchmark::State &state) {
    auto r = raster(1000, 1000);
    std::vector<double> x, y;
    int n = (int)state.range(0);
    for (int i = 0; i < n; ++i) {
        double a = i * 2 * 3.14159265358979 / n, rr = i % 2 ? 300 : 480;
        x.push_back(500 + rr * std::sin(a)), y.push_back(500 - rr * std::cos(a));
    }
    for (auto _ : state)
        r->polygon(kTransparent, 0x40336699, DoubleArray(x.data(), n), DoubleArray(y.data(), n));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_LargeAAPolygon)->Arg(8)->Arg(20)->Arg(200);

void BM_LargeAAEllipse(benchmark::State &state) {
    auto r = raster(1000, 1000);
    for (auto _ : state) {
        auto s = r->createShape();
        s->addArc(kTransparent, 500, 500, 480, 400, 500, 900, 500, 100);
        s->addArc(kTransparent, 500, 500, 480, 400, 500, 100, 500, 900);
        s->paint(0x00336699, false, true);
        delete s;
    }
}
BENCHMARK(BM_LargeAAEllipse);

void BM_ShortAALines(benchmark::State &state) {
    auto r = raster(1000, 1000);
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> c(0, 999), d(-6, 6);
    std::vector<double> v;
    for (int i = 0; i < 100000; ++i) {
        double x = c(rng), y = c(rng);
        v.insert(v.end(), {x, y, x + d(rng), y + d(rng)});
    }
    for (auto _ : state)
        for (size_t i = 0; i < v.size(); i += 4)
            r->line(v[i], v[i + 1], v[i + 2], v[i + 3], 0x20000000, 1);
    state.SetItemsProcessed(state.iterations() * 100000);
}
BENCHMARK(BM_ShortAALines)->Unit(benchmark::kMillisecond);

// A noisy series of 20,000 points across a 1000 by 600 raster, each segment
// crossing about a third of it: the joined walk through the listed plots (the
// reference), the coverage grid asked for each step's colour (the general
// path), and the grid written directly for a plain colour (the fast path).
void BM_NoisyPolyline(benchmark::State &state) {
    auto r = raster(1000, 600);
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> noise(10, 590);
    const int n = 20000;
    std::vector<double> xy;
    for (int i = 0; i < n; ++i) xy.insert(xy.end(), {10 + 980.0 * i / (n - 1), noise(rng)});
    const int color = 0x3366CC;
    for (auto _ : state) {
        if (state.range(0) == 0) {
            LineRasterizer walker(0, 0, 999, 599, true);
            PlotCollector list(r.get(), color);
            for (int i = 0; i + 1 < n; ++i)
                walker.drawJoined(xy[2 * i], xy[2 * i + 1], xy[2 * i + 2], xy[2 * i + 3], &list,
                                  i > 0);
            list.flush(r.get());
        } else {
            CoverageGrid grid(r.get(), color, 0, 0, 999, 599);
            grid.addPolyline(xy.data(), n, true, state.range(0) == 2);
            grid.flush(r.get());
        }
    }
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_NoisyPolyline)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void BM_GradientSpans(benchmark::State &state) {
    auto r = raster(1000, 1000);
    const int pairs[6] = {0, 0x00FF0000, 128, 0x0000FF00, 256, 0x000000FF};
    r->linearGradientColor(dyn(1), 0, 0, 1000, 300, false, IntArray(pairs, 6));
    for (auto _ : state)
        for (int y = 0; y < 1000; ++y) r->solidSpan(0, 999, y, dyn(1));
    state.SetItemsProcessed(state.iterations() * 1000000);
}
BENCHMARK(BM_GradientSpans)->Unit(benchmark::kMillisecond);

void BM_BlendLoop(benchmark::State &state) {
    std::vector<unsigned> d(1 << 16);
    for (size_t i = 0; i < d.size(); ++i) d[i] = (unsigned)(i * 2654435761u) & 0x00FFFFFFu;
    unsigned s = 0x80336699u;
    for (auto _ : state) {
        for (unsigned &p : d) p = PixelBlend::blend(p, s);
        benchmark::DoNotOptimize(d.data());
    }
    state.SetItemsProcessed(state.iterations() * d.size());
}
BENCHMARK(BM_BlendLoop);

}  // namespace
