#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "draw/codec/ImageEncoder.h"
#include "foundation/Constants.h"
#include "tests/draw/codec/CodecTestSupport.h"

using namespace codectest;

namespace {

void writeFile(const std::string &path, const std::string &bytes) {
    FILE *f = fopen(path.c_str(), "wb");
    ASSERT_NE(f, nullptr) << path;
    fwrite(bytes.data(), 1, bytes.size(), f);
    fclose(f);
}

// Straight RGBA as PIL gives it; invisible pixels as all zero.
std::string rgbaOf(const std::vector<int> &pixels) {
    std::string out;
    for (int c : pixels) {
        int alpha = 255 - PixelImage::alphaOf(c);
        if (alpha == 0) {
            out.append(4, '\0');
            continue;
        }
        out += (char)PixelImage::redOf(c);
        out += (char)PixelImage::greenOf(c);
        out += (char)PixelImage::blueOf(c);
        out += (char)alpha;
    }
    return out;
}

std::string python() {
    return access("/usr/bin/python3", X_OK) == 0 ? "/usr/bin/python3" : "python3";
}

}  // namespace

// Files written by the encoders open in PIL with the pixels we meant.
TEST(CodecIndependentReader, PILReadsOurFiles) {
    std::string dir = std::string(VISTREL_BINARY_DIR) + "/codec_check";
    mkdir(dir.c_str(), 0755);
    std::vector<std::string> args;
    auto add = [&](const std::string &name, const PixelImage &image, int type,
                   const std::vector<int> &expected, const char *alpha = nullptr) {
        qlx::ostrstream out;
        ASSERT_TRUE(ImageEncoder::encode(out, image, type, 80, alpha));
        writeFile(dir + "/" + name, bytesOf(out));
        args.push_back(dir + "/" + name);
        if (expected.empty()) {
            args.push_back("-");
        } else {
            writeFile(dir + "/" + name + ".rgba", rgbaOf(expected));
            args.push_back(dir + "/" + name + ".rgba");
        }
    };

    std::vector<int> chart = chartPixels(120, 90);
    std::vector<int> noise = randomPalettePixels(97, 61, 256, 4);
    std::vector<int> translucent = randomPalettePixels(40, 30, 500, 8, 3);

    PixelImage image(chart.data(), 120, 90);
    add("chart.png", image, kPNG, chart);
    add("chart.gif", image, kGIF, chart);
    add("chart.bmp", image, kBMP, chart);
    add("chart.jpg", image, kJPG, {});
    image.interlace = 1;
    add("chart-interlaced.gif", image, kGIF, chart);
    add("chart-interlaced.png", image, kPNG, chart);
    add("chart-progressive.jpg", image, kJPG, {});

    PixelImage noisy(noise.data(), 97, 61);
    add("noise.gif", noisy, kGIF, noise);
    add("noise.png", noisy, kPNG, noise);
    add("noise.bmp", noisy, kBMP, noise);

    PixelImage glass(translucent.data(), 40, 30);
    glass.bgTransparent = true;
    glass.paletteMode = kNoPalette;
    add("translucent.png", glass, kPNG, translucent);
    // PIL reads a 32-bit BMP as RGB.
    std::vector<int> opaque = translucent;
    for (int &c : opaque) c &= 0xffffff;
    add("translucent.bmp", glass, kBMP, opaque, "4");
    add("translucent24.bmp", glass, kBMP, opaque, "2");

    // GIF: mostly transparent pixels vanish, the others become opaque.
    std::vector<int> few(translucent.begin(), translucent.begin() + 40 * 6), seen = few;
    for (int &c : seen) c = PixelImage::alphaOf(c) >= 128 ? kTransparent : c & 0xffffff;
    PixelImage fewImage(few.data(), 40, 6);
    add("few.gif", fewImage, kGIF, seen);

    std::string command = python() + " " + VISTREL_SOURCE_DIR + "/tests/draw/codec/codec_check.py";
    for (const std::string &a : args) command += " " + a;
    int status = system(command.c_str());
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77) GTEST_SKIP() << "PIL is not installed";
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}
