// Samples that show a reference workload's own output.
#include <cstdio>
#include <cstring>
#include <string>

#include "bench/workloads/Workloads.h"
#include "examples/gallery/Gallery.h"

bool saveWorkload(const char *name, const std::string &path) {
    for (const Workload &w : workloads()) {
        if (strcmp(w.name, name) != 0) continue;
        std::string bytes = w.render();
        FILE *f = fopen(path.c_str(), "wb");
        bool ok = f && !bytes.empty() && fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
        if (f) fclose(f);
        return ok;
    }
    return false;
}
