// Times every registered workload: make, render and encode into memory, destroy.
// Counters: the output size in bytes.
#include <benchmark/benchmark.h>

#include "bench/workloads/Workloads.h"

int main(int argc, char **argv) {
    for (const Workload &w : workloads()) {
        benchmark::RegisterBenchmark(w.name, [w](benchmark::State &state) {
            size_t bytes = 0;
            for (auto _ : state) {
                std::string out = renderWorkload(w);
                bytes = out.size();
                benchmark::DoNotOptimize(out.data());
            }
            state.counters["bytes"] = (double)bytes;
        })->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
