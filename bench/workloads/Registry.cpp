#include <cstring>

#include "bench/workloads/Workloads.h"
#include "chart/base/BaseChart.h"

std::vector<Workload> &workloads() {
    static std::vector<Workload> all;
    return all;
}

const Workload *findWorkload(const char *name) {
    for (const Workload &w : workloads())
        if (std::strcmp(w.name, name) == 0) return &w;
    return nullptr;
}

std::string renderWorkload(const Workload &w) {
    BaseChart *c = w.build();
    if (!c) return std::string();
    MemBlock out = c->makeChart2(w.format);
    std::string bytes(out.data ? out.data : "", out.len > 0 ? out.len : 0);
    c->destroy();
    return bytes;
}
