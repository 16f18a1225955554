// Samples that show a reference workload's own chart, in the format of the path,
// and the writing of any sample chart.
#include <string>

#include "bench/workloads/Workloads.h"
#include "chart/base/BaseChart.h"
#include "examples/gallery/Gallery.h"

bool saveChart(BaseChart *c, const std::string &path) {
    if (!c) return false;
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    return ok;
}

bool saveWorkload(const char *name, const std::string &path) {
    const Workload *w = findWorkload(name);
    return saveChart(w ? w->build() : nullptr, path);
}
