#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <set>
#include <string>

namespace {

// Output and exit status of a shell command.
std::string run(const std::string &command, int *status) {
    FILE *p = popen(command.c_str(), "r");
    std::string out;
    if (!p) return out;
    char buf[512];
    for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;) out.append(buf, n);
    int s = pclose(p);
    *status = WIFEXITED(s) ? WEXITSTATUS(s) : -1;
    return out;
}

}  // namespace

TEST(PluginFile, RunsAsAProgramThatPrintsItsVersion) {
    int status = -1;
    std::string out = run(std::string("'") + VISTREL_PLUGIN_PATH + "'", &status);
    EXPECT_EQ(0, status);
    EXPECT_EQ("XPG Plugin, version 26.2, built May  4 2026\n", out);
    EXPECT_EQ(44u, out.size());
}

TEST(PluginFile, ExportsOnlyItsEntryPoints) {
    int status = -1;
    std::string out =
        run(std::string("nm -D --defined-only '") + VISTREL_PLUGIN_PATH + "'", &status);
    ASSERT_EQ(0, status);
    std::set<std::string> names;
    size_t start = 0;
    for (size_t end; (end = out.find('\n', start)) != std::string::npos; start = end + 1) {
        std::string line = out.substr(start, end - start);
        names.insert(line.substr(line.rfind(' ') + 1));
    }
    EXPECT_EQ((std::set<std::string>{"REALPluginMain", "libEntry"}), names);
}
