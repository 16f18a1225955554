#pragma once

#include <cstdint>
#include <string>
#include <vector>

class BaseChart;

// A reference workload: builds its chart from nothing, ready for output in its
// format (kPNG, kSVG, kPDF ...).  Each workload registers itself with
// VISTREL_WORKLOAD in its own source file; the benchmark program times every
// registered one, the writer saves their outputs, and gallery samples may show
// them in any format.
struct Workload {
    const char *name;      // "W1"
    const char *fileName;  // written into out/workloads/, e.g. "w1_line3.png"
    BaseChart *(*build)();
    int format;
};

std::vector<Workload> &workloads();
// Null when no workload has that name.
const Workload *findWorkload(const char *name);
// Builds, renders into memory and destroys the chart: the timed unit.  The
// output bytes, or an empty string on failure.
std::string renderWorkload(const Workload &w);

struct WorkloadRegistrar {
    explicit WorkloadRegistrar(const Workload &w) { workloads().push_back(w); }
};

#define VISTREL_WORKLOAD_CONCAT2(a, b) a##b
#define VISTREL_WORKLOAD_CONCAT(a, b) VISTREL_WORKLOAD_CONCAT2(a, b)
#define VISTREL_WORKLOAD(name, fileName, build, format) \
    static WorkloadRegistrar VISTREL_WORKLOAD_CONCAT(   \
        workloadRegistrar_, __LINE__)(Workload{name, fileName, build, format})

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
