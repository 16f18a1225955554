#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>

#include "tests/host/ShellCommand.h"
#include "tests/host/simhost/SimHost.h"

namespace fs = std::filesystem;

namespace {

const std::string kFolder = VISTREL_PACKAGE_FOLDER;
const std::string kPlatformDir = std::string("Vistrel/Build Resources/") + VISTREL_PLUGIN_PLATFORM;
const std::string kPlugin = kFolder + "/" + kPlatformDir + "/libvistrel_xojo.so";

std::string contentsOf(const fs::path &file) {
    std::stringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

// Every file under a folder, by its path inside it, with its bytes.
std::map<std::string, std::string> filesUnder(const std::string &folder) {
    std::map<std::string, std::string> files;
    for (const auto &entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[fs::relative(entry.path(), folder).string()] = contentsOf(entry.path());
    return files;
}

std::string python() {
    return access("/usr/bin/python3", X_OK) == 0 ? "/usr/bin/python3" : "python3";
}

}  // namespace

TEST(PluginPackage, HoldsThePluginItsFontsAndAReadMeListingThem) {
    std::map<std::string, std::string> files = filesUnder(kFolder);
    std::set<std::string> names;
    for (const auto &f : files) names.insert(f.first);
    std::set<std::string> expected = {"ReadMe.txt", kPlatformDir + "/libvistrel_xojo.so",
                                      kPlatformDir + "/fonts/LICENSE-Liberation.txt"};
    for (const char *family : {"Sans", "Serif"})
        for (const char *style : {"Regular", "Bold", "Italic", "BoldItalic"})
            expected.insert(kPlatformDir + "/fonts/Liberation" + family + "-" + style + ".ttf");
    EXPECT_EQ(expected, names);

    const std::string &readMe = files["ReadMe.txt"];
    for (const auto &f : files) {
        if (f.first == "ReadMe.txt") continue;
        std::string line = "  " + f.first + "  (" + std::to_string(f.second.size()) + " bytes)\n";
        EXPECT_NE(std::string::npos, readMe.find(line)) << line;
    }
}

TEST(PluginPackage, PackagedPluginExportsItsEntryPointsAndNeedsOnlyRuntimePackages) {
    int status = -1;
    std::string out = runCommand("nm -D --defined-only '" + kPlugin + "'", &status);
    ASSERT_EQ(0, status);
    EXPECT_EQ((std::set<std::string>{"REALPluginMain", "libEntry"}), lastWords(out));
    // Stripped: no symbol table beyond the dynamic one.
    EXPECT_EQ("", runCommand("nm '" + kPlugin + "' 2>/dev/null", &status));

    out = runCommand("readelf -d '" + kPlugin + "'", &status);
    ASSERT_EQ(0, status);
    std::set<std::string> allowed = {"libz.so.1",        "libpng16.so.16", "libjpeg.so.62",
                                     "libfreetype.so.6", "libstdc++.so.6", "libm.so.6",
                                     "libgcc_s.so.1",    "libc.so.6",      "ld-linux-x86-64.so.2"};
    if (VISTREL_SANITIZED) allowed.insert({"libasan.so.8", "libubsan.so.1"});
    std::regex needed("Shared library: \\[([^\\]]+)\\]");
    int count = 0;
    for (std::sregex_iterator m(out.begin(), out.end(), needed), end; m != end; ++m, ++count)
        EXPECT_EQ(1u, allowed.count((*m)[1].str())) << (*m)[1].str();
    EXPECT_GE(count, 4);

    out = runCommand("'" + kPlugin + "'", &status);
    EXPECT_EQ(0, status);
    EXPECT_EQ("XPG Plugin, version 26.2, built May  4 2026\n", out);
}

// The zip, read back by Python's zipfile, holds the folder's files byte for byte.
TEST(PluginPackage, ZipHoldsTheSameFilesAsTheFolder) {
    std::string target = ::testing::TempDir() + "vistrel_package_unzipped";
    fs::remove_all(target);
    int status = -1;
    std::string out = runCommand(
        python() + " -m zipfile -e '" + VISTREL_PACKAGE_ZIP + "' '" + target + "' 2>&1", &status);
    ASSERT_EQ(0, status) << out;
    EXPECT_EQ(filesUnder(kFolder), filesUnder(target));
    fs::remove_all(target);
}

// The simulated host loads the packaged plug-in as the IDE would, and the
// plug-in takes its fonts from the package.
TEST(PluginPackage, SimulatedHostLoadsThePackagedPlugin) {
    size_t classCount = 0;
    {
        simhost::SimHost built(VISTREL_PLUGIN_PATH);
        ASSERT_TRUE(built.loaded()) << built.loadError();
        classCount = built.pluginClasses().size();
    }
    simhost::SimHost host(kPlugin);
    ASSERT_TRUE(host.loaded()) << host.loadError();
    EXPECT_EQ(classCount, host.pluginClasses().size());
    EXPECT_EQ(std::vector<std::string>(), host.declarationErrors());

    simhost::CallResult report =
        host.callShared("VSBaseChartXPG", "testFont", {simhost::S("arial.ttf")});
    ASSERT_FALSE(report.raised) << report.exception.message;
    std::string opened = "Successfully opened " + kFolder + "/" + kPlatformDir +
                         "/fonts/LiberationSans-Regular.ttf\n";
    EXPECT_NE(std::string::npos, report.value.s.find(opened)) << report.value.s;
    EXPECT_EQ(std::vector<std::string>(), host.liveObjects());
}
