#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "finance/ArrayMath.h"
#include "foundation/Constants.h"

// Moving windows over a million prices with a few gaps, interval 20.

namespace {

const int kCount = 1000000;
const int kInterval = 20;

const std::vector<double> &prices() {
    static const std::vector<double> series = [] {
        std::mt19937 rng(1);
        std::normal_distribution<double> step(0, 1);
        std::vector<double> v(kCount);
        double price = 100;
        for (int i = 0; i < kCount; ++i) {
            price += step(rng);
            v[i] = i % 97 == 0 ? kNoValue : price;
        }
        return v;
    }();
    return series;
}

template <class Op>
void runWindow(benchmark::State &state, Op op) {
    DoubleArray input(prices().data(), kCount);
    for (auto _ : state) {
        ArrayMath *m = ArrayMath::create(input);
        op(m);
        benchmark::DoNotOptimize(m->result().data);
        m->destroy();
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}

void BM_Copy(benchmark::State &state) {
    runWindow(state, [](ArrayMath *) {});
}

void BM_MovAvg(benchmark::State &state) {
    runWindow(state, [](ArrayMath *m) { m->movAvg(kInterval); });
}

void BM_MovStdDev(benchmark::State &state) {
    runWindow(state, [](ArrayMath *m) { m->movStdDev(kInterval); });
}

void BM_MovMax(benchmark::State &state) {
    runWindow(state, [](ArrayMath *m) { m->movMax(kInterval); });
}

}  // namespace

BENCHMARK(BM_Copy)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MovAvg)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MovStdDev)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MovMax)->Unit(benchmark::kMillisecond);
