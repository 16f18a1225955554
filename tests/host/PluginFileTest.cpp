#include <gtest/gtest.h>

#include <string>

#include "tests/host/ShellCommand.h"

TEST(PluginFile, RunsAsAProgramThatPrintsItsVersion) {
    int status = -1;
    std::string out = runCommand(std::string("'") + VISTREL_PLUGIN_PATH + "'", &status);
    EXPECT_EQ(0, status);
    EXPECT_EQ("XPG Plugin, version 26.2, built May  4 2026\n", out);
    EXPECT_EQ(44u, out.size());
}

TEST(PluginFile, ExportsOnlyItsEntryPoints) {
    int status = -1;
    std::string out =
        runCommand(std::string("nm -D --defined-only '") + VISTREL_PLUGIN_PATH + "'", &status);
    ASSERT_EQ(0, status);
    EXPECT_EQ((std::set<std::string>{"REALPluginMain", "libEntry"}), lastWords(out));
}
