// Automatic axis layouts: 100,000 random data ranges per iteration, each on a new
// axis, through scaling, tick walks and label text.
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "chart/axis/AxisImpl.h"
#include "foundation/ChartStatics.h"
#include "text/template/Formatter.h"

namespace {

const int kLayouts = 100000;

struct Range {
    double lower;
    double upper;
    int length;
};

std::vector<Range> randomRanges(double (*pick)(std::mt19937 &, double *)) {
    std::mt19937 rng(42);
    std::uniform_int_distribution<int> length(100, 800);
    std::vector<Range> ranges(kLayouts);
    for (Range &r : ranges) {
        r.lower = pick(rng, &r.upper);
        r.length = length(rng);
    }
    return ranges;
}

double linearRange(std::mt19937 &rng, double *upper) {
    std::uniform_real_distribution<double> unit(0, 1);
    double magnitude = std::pow(10.0, (int)(unit(rng) * 12) - 6);
    double lower = (unit(rng) * 2 - 1) * magnitude;
    *upper = lower + unit(rng) * magnitude;
    return lower;
}

double dateRange(std::mt19937 &rng, double *upper) {
    std::uniform_real_distribution<double> unit(0, 1);
    double lower = Chart::chartTime(1990, 1, 1, 0, 0, 0) + unit(rng) * 1e9;
    *upper = lower + std::pow(10.0, 2 + unit(rng) * 7);
    return lower;
}

double logRange(std::mt19937 &rng, double *upper) {
    std::uniform_real_distribution<double> unit(0, 1);
    double lower = std::pow(10.0, unit(rng) * 6 - 3);
    *upper = lower * std::pow(10.0, 0.1 + unit(rng) * 6);
    return lower;
}

void layOut(benchmark::State &state, const std::vector<Range> &ranges, bool log) {
    Formatter chartFormatter;
    for (auto _ : state) {
        size_t ticks = 0;
        for (const Range &r : ranges) {
            AxisImpl *axis = AxisImpl::of(Axis::create(nullptr, nullptr, &chartFormatter));
            axis->setLength(r.length);
            if (log) axis->setLogScale3("");
            axis->layoutScale(r.lower, r.upper);
            ticks += axis->getTickMap().size();
            axis->destroy();
        }
        benchmark::DoNotOptimize(ticks);
    }
    state.SetItemsProcessed(state.iterations() * kLayouts);
}

void BM_LinearScales(benchmark::State &state) {
    layOut(state, randomRanges(linearRange), false);
}
BENCHMARK(BM_LinearScales)->Unit(benchmark::kMillisecond);

void BM_DateScales(benchmark::State &state) {
    layOut(state, randomRanges(dateRange), false);
}
BENCHMARK(BM_DateScales)->Unit(benchmark::kMillisecond);

void BM_LogScales(benchmark::State &state) {
    layOut(state, randomRanges(logRange), true);
}
BENCHMARK(BM_LogScales)->Unit(benchmark::kMillisecond);

}  // namespace
