// Times every registered workload: make, render and encode into memory, destroy.
// Counters: the output size in bytes and, for the workloads that have them,
// the time and size targets and whether the output is within its size.
#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/workloads/Workloads.h"

namespace {

struct Target {
    const char *name;
    double milliseconds;
    // 0: no size target.
    double bytes;
};

// Render and encode, median on the reference machine; output sizes below.
const Target kTargets[] = {
    {"W1", 7, 0},       {"W2", 6, 0},     {"W3", 5, 0},  {"W4", 12, 0},
    {"W5", 1.5, 35000}, {"W6", 4, 15000}, {"W7", 12, 0},
};

const Target *targetOf(const char *name) {
    for (const Target &t : kTargets)
        if (std::strcmp(t.name, name) == 0) return &t;
    return nullptr;
}

}  // namespace

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
            if (const Target *t = targetOf(w.name)) {
                state.counters["target_ms"] = t->milliseconds;
                if (t->bytes > 0) {
                    state.counters["max_bytes"] = t->bytes;
                    state.counters["size_ok"] = bytes < t->bytes ? 1 : 0;
                }
            }
        })->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
