#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

// scripts/check-layers on a copy of the sources with includes planted in it.
namespace {

const std::string kSource = VISTREL_SOURCE_DIR;

struct Result {
    int status;
    std::string output;
};

Result runChecker(const std::string &root) {
    std::string command = "python3 " + kSource + "/scripts/check-layers " + root + " 2>&1";
    Result r{-1, ""};
    FILE *p = popen(command.c_str(), "r");
    if (!p) return r;
    char buf[4096];
    size_t n;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) r.output.append(buf, n);
    r.status = pclose(p);
    return r;
}

class LayerCheck : public ::testing::Test {
protected:
    void SetUp() override {
        char pattern[] = "/tmp/vistrel_layers_XXXXXX";
        ASSERT_NE(nullptr, mkdtemp(pattern));
        root = pattern;
        std::string copy = "cp -r";
        for (const char *folder : {"foundation", "draw", "text", "finance"})
            copy += " " + kSource + "/" + folder;
        ASSERT_EQ(0, std::system((copy + " " + root).c_str()));
    }
    void TearDown() override { EXPECT_EQ(0, std::system(("rm -rf " + root).c_str())); }

    // Appends an include to a source of the copy, making its folder if needed.
    void plant(const std::string &file, const std::string &included) {
        std::string path = root + "/" + file;
        ASSERT_EQ(0, std::system(("mkdir -p $(dirname " + path + ")").c_str()));
        std::ofstream(path, std::ios::app) << "#include \"" << included << "\"\n";
    }

    std::string root;
};

}  // namespace

TEST_F(LayerCheck, PassesTheSourcesAndFailsAnIncludeUpward) {
    Result clean = runChecker(root);
    EXPECT_EQ(0, clean.status) << clean.output;

    plant("draw/pixel/ColorWords.h", "draw/canvas/DrawArea.h");
    Result upward = runChecker(root);
    EXPECT_NE(0, upward.status);
    EXPECT_NE(std::string::npos, upward.output.find("draw/pixel/ColorWords.h:")) << upward.output;
    EXPECT_NE(std::string::npos, upward.output.find("draw/canvas is not below draw/pixel"))
        << upward.output;
}

TEST_F(LayerCheck, SubFoldersOfTheDrawingEngine) {
    // The raster may use the list; the list may not reach the raster, even by
    // a relative path.
    plant("draw/raster/DrawBMP.h", "draw/list/MetaDraw.h");
    plant("draw/list/MetaOpcodes.h", "../raster/DrawBMP.h");
    Result r = runChecker(root);
    EXPECT_NE(0, r.status);
    EXPECT_NE(std::string::npos, r.output.find("draw/list/MetaOpcodes.h:")) << r.output;
    EXPECT_NE(std::string::npos, r.output.find("draw/raster is not below draw/list")) << r.output;
    EXPECT_EQ(std::string::npos, r.output.find("DrawBMP.h:")) << r.output;
}

TEST_F(LayerCheck, FoldersStillToComeFollowTheSubsystems) {
    plant("chart/later/Scale.cpp", "text/layout/TTFText.h");
    plant("chart/later/Scale.cpp", "chart/Layer.h");
    plant("layers/BarLayer.cpp", "chart/Layer.h");
    plant("chart/Scale.cpp", "finance/ArrayMath.h");
    Result fine = runChecker(root);
    EXPECT_EQ(0, fine.status) << fine.output;

    plant("layers/BarLayer.cpp", "families/PieChart.h");
    plant("chart/Layer.h", "api/API.h");
    plant("text/template/Formatter.h", "text/font/FontFace.h");
    Result r = runChecker(root);
    EXPECT_NE(std::string::npos, r.output.find("families is not below layers")) << r.output;
    EXPECT_NE(std::string::npos, r.output.find("api is not below chart")) << r.output;
    EXPECT_NE(std::string::npos, r.output.find("text/font is not below text/template")) << r.output;
    EXPECT_NE(std::string::npos, r.output.find("3 include(s) against the layers")) << r.output;
}
