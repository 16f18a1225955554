// Label formatting throughput: one million numbers or dates per iteration.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "foundation/ChartStatics.h"
#include "text/template/Formatter.h"
#include "text/template/VSParser.h"

namespace {

const int kCount = 1000000;

std::vector<double> randomValues(double low, double high) {
    std::mt19937_64 rng(42);
    std::uniform_real_distribution<double> value(low, high);
    std::vector<double> values(kCount);
    for (double &v : values) v = value(rng);
    return values;
}

void BM_FormatNumbers(benchmark::State &state) {
    std::vector<double> values = randomValues(-1e7, 1e7);
    Formatter formatter;
    for (auto _ : state) {
        size_t total = 0;
        for (double v : values) total += formatter.format("2,.", v)[0];
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}
BENCHMARK(BM_FormatNumbers)->Unit(benchmark::kMillisecond);

void BM_FormatDates(benchmark::State &state) {
    std::vector<double> values =
        randomValues(Chart::chartTime(1900, 1, 1, 0, 0, 0), Chart::chartTime(2100, 1, 1, 0, 0, 0));
    Formatter formatter;
    for (auto _ : state) {
        size_t total = 0;
        for (double v : values) total += formatter.format("mmm dd, yyyy", v)[0];
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}
BENCHMARK(BM_FormatDates)->Unit(benchmark::kMillisecond);

// The whole label path: scan the template, format, replace, finish.
void BM_FillNumberTemplate(benchmark::State &state) {
    std::vector<double> values = randomValues(-1e7, 1e7);
    Formatter formatter;
    VSParser parser;
    for (auto _ : state) {
        size_t total = 0;
        for (double v : values) {
            parser.init("{value|2,.}", 0);
            while (const char *name = parser.getNextAttr())
                if (name[0] == 'v')
                    parser.replaceAttr(formatter.format(parser.getFormatString(), v));
            total += parser.getResult(&formatter)[0];
        }
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}
BENCHMARK(BM_FillNumberTemplate)->Unit(benchmark::kMillisecond);

}  // namespace
