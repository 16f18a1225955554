// Samples that show a reference workload's own chart, in the format of the path.
#include <string>

#include "bench/workloads/Workloads.h"
#include "chart/base/BaseChart.h"
#include "examples/gallery/Gallery.h"

bool saveWorkload(const char *name, const std::string &path) {
    const Workload *w = findWorkload(name);
    BaseChart *c = w ? w->build() : nullptr;
    if (!c) return false;
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    return ok;
}
