// Writes the output of every registered workload into the folder it is given.
#include <cstdio>
#include <string>

#include "bench/workloads/Workloads.h"

int main(int argc, char **argv) {
    std::string dir = argc > 1 ? argv[1] : "out/workloads";
    int failures = 0;
    for (const Workload &w : workloads()) {
        std::string out = renderWorkload(w);
        std::string path = dir + "/" + w.fileName;
        FILE *f = out.empty() ? nullptr : std::fopen(path.c_str(), "wb");
        if (!f || std::fwrite(out.data(), 1, out.size(), f) != out.size()) {
            std::fprintf(stderr, "workloads: %s failed\n", w.name);
            ++failures;
        } else {
            std::printf("%s %s %zu bytes\n", w.name, path.c_str(), out.size());
        }
        if (f) std::fclose(f);
    }
    if (workloads().empty()) std::printf("workloads: none registered yet\n");
    return failures ? 1 : 0;
}
