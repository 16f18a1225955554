#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A reference workload: makes its chart from nothing, renders it into memory
// and returns the output bytes (an empty string on failure).  Each workload
// registers itself with VISTREL_WORKLOAD in its own source file; the benchmark
// program times every registered one and the writer saves their outputs.
struct Workload {
    const char *name;      // "W1"
    const char *fileName;  // written into out/workloads/, e.g. "w1_line3.png"
    std::string (*render)();
};

std::vector<Workload> &workloads();

class BaseChart;
// The chart's picture in the image format (kPNG, ...); the chart is destroyed.
std::string outputOf(BaseChart *chart, int format);

struct WorkloadRegistrar {
    explicit WorkloadRegistrar(const Workload &w) { workloads().push_back(w); }
};

#define VISTREL_WORKLOAD_CONCAT2(a, b) a##b
#define VISTREL_WORKLOAD_CONCAT(a, b) VISTREL_WORKLOAD_CONCAT2(a, b)
#define VISTREL_WORKLOAD(name, fileName, fn)                             \
    static WorkloadRegistrar VISTREL_WORKLOAD_CONCAT(workloadRegistrar_, \
                                                     __LINE__)(Workload{name, fileName, fn})

// The generator every random workload input comes from:
// s_k = (1664525 s_{k-1} + 1013904223) mod 2^32, u_k = s_k / 2^32.
class WorkloadLCG {
public:
    explicit WorkloadLCG(uint32_t seed) : state(seed) {}
    double next() {
        state = 1664525u * state + 1013904223u;
        return state / 4294967296.0;
    }

private:
    uint32_t state;
};
