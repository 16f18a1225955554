#include "bench/workloads/Workloads.h"

std::vector<Workload> &workloads() {
    static std::vector<Workload> all;
    return all;
}
