#include "bench/workloads/Workloads.h"

#include "chart/base/BaseChart.h"

std::vector<Workload> &workloads() {
    static std::vector<Workload> all;
    return all;
}

std::string outputOf(BaseChart *chart, int format) {
    MemBlock bytes = chart->makeChart2(format);
    std::string out(bytes.data ? bytes.data : "", bytes.len > 0 ? bytes.len : 0);
    chart->destroy();
    return out;
}
