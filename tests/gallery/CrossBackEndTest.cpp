// Every gallery picture drawn by the raster, and the same picture drawn from
// its SVG by librsvg and from its PDF by poppler at the same size: the three
// must agree in geometry, colour and text placement.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "examples/gallery/Gallery.h"
#include "tests/draw/codec/CodecTestSupport.h"
#include "tests/draw/vector/VectorTestSupport.h"

using namespace vectortest;

namespace {

// A channel further off than this, with no pixel within one pixel of it that
// comes closer, counts as a pixel that disagrees.
const int kOffLevel = 64;

struct Rgb {
    int width = 0, height = 0;
    std::vector<int> pixels;  // 0xRRGGBB over white
};

// The picture in a PNG file, or its top left corner of width by height.
Rgb readRgb(const std::string &path, int width = 0, int height = 0) {
    Rgb out;
    codectest::PngFacts png = codectest::readPng(readFile(path));
    if (!png.ok) return out;
    out.width = width ? std::min(width, png.width) : png.width;
    out.height = height ? std::min(height, png.height) : png.height;
    for (int y = 0; y < out.height; ++y)
        for (int x = 0; x < out.width; ++x) {
            size_t i = 4 * ((size_t)y * png.width + x);
            int a = png.rgba[i + 3], c = 0;
            for (int k = 0; k < 3; ++k)
                c = c << 8 | (png.rgba[i + k] * a + 255 * (255 - a) + 127) / 255;
            out.pixels.push_back(c);
        }
    return out;
}

int channelGap(int a, int b) {
    int gap = 0;
    for (int shift = 0; shift < 24; shift += 8)
        gap = std::max(gap, std::abs(((a >> shift) & 255) - ((b >> shift) & 255)));
    return gap;
}

struct Difference {
    double mean = 255;  // mean absolute difference per channel
    double off = 1;     // share of pixels that disagree
};

Difference compare(const Rgb &a, const Rgb &b) {
    Difference d;
    if (a.width != b.width || a.height != b.height || a.pixels.empty()) return d;
    double sum = 0;
    long off = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x) {
            int p = a.pixels[(size_t)y * a.width + x], q = b.pixels[(size_t)y * a.width + x];
            for (int shift = 0; shift < 24; shift += 8)
                sum += std::abs(((p >> shift) & 255) - ((q >> shift) & 255));
            // A renderer may place an edge a pixel away: look around.
            int best = 255;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx) {
                    int u = x + dx, v = y + dy;
                    if (u < 0 || v < 0 || u >= a.width || v >= a.height) continue;
                    best = std::min(best, channelGap(p, b.pixels[(size_t)v * a.width + u]));
                }
            off += best > kOffLevel;
        }
    d.mean = sum / (3.0 * a.pixels.size());
    d.off = (double)off / a.pixels.size();
    return d;
}

// The stress picture of a million overlapping strokes is left out: each
// renderer blends the self-overlaps of one path its own way, and its vector
// files run to tens of megabytes.
bool compared(const std::string &name) {
    return name.size() > 4 && name.compare(name.size() - 4, 4, ".png") == 0 &&
           name != "raster_million_points.png";
}

std::vector<GallerySample> pictures() {
    std::vector<GallerySample> out;
    for (const GallerySample &s : gallerySamples())
        if (compared(s.fileName)) out.push_back(s);
    return out;
}

std::string stem(const GallerySample &s) {
    std::string name = s.fileName;
    return name.substr(0, name.size() - 4);
}

}  // namespace

TEST(CrossBackEnd, VectorOutputsLookLikeTheRaster) {
    if (!hasTool("rsvg-convert") || !hasTool("pdftoppm"))
        GTEST_SKIP() << "rsvg-convert or pdftoppm missing";
    std::vector<GallerySample> samples = pictures();
    ASSERT_GE(samples.size(), 8u);
    TempFolder dir;
    for (const GallerySample &s : samples) {
        std::string base = dir.file(stem(s));
        ASSERT_TRUE(s.render(base + ".png")) << s.fileName;
        ASSERT_TRUE(s.render(base + ".svg")) << s.fileName;
        ASSERT_TRUE(s.render(base + ".pdf")) << s.fileName;
        Rgb raster = readRgb(base + ".png");
        ASSERT_GT(raster.width, 0) << s.fileName;
        std::string w = std::to_string(raster.width), h = std::to_string(raster.height), out;
        ASSERT_EQ(0, run("rsvg-convert -w " + w + " -h " + h + " '" + base + ".svg' -o '" + base +
                             "-svg.png'",
                         &out))
            << s.fileName << ": " << out;
        ASSERT_EQ(0, run("pdftoppm -png -singlefile -scale-to-x " + w + " -scale-to-y " + h + " '" +
                             base + ".pdf' '" + base + "-pdf'",
                         &out))
            << s.fileName << ": " << out;
        // The other readers take every file as well.
        ASSERT_TRUE(s.render(base + ".svgz")) << s.fileName;
        EXPECT_EQ(0, run("rsvg-convert '" + base + ".svgz' -o '" + base + "-svgz.png'", &out))
            << s.fileName << ": " << out;
        EXPECT_EQ(0, run("pdftotext '" + base + ".pdf' -", &out)) << s.fileName << ": " << out;
        if (hasTool("qpdf")) {
            EXPECT_EQ(0, run("qpdf --check '" + base + ".pdf'", &out)) << s.fileName << ": " << out;
        }
        Difference svg = compare(raster, readRgb(base + "-svg.png"));
        Difference pdf = compare(raster, readRgb(base + "-pdf.png"));
        // Edges are smoothed by each renderer its own way; poppler also
        // resamples images when it places them.
        EXPECT_LE(svg.mean, 3.0) << s.fileName;
        EXPECT_LE(svg.off, 0.005) << s.fileName;
        EXPECT_LE(pdf.mean, 12.0) << s.fileName;
        EXPECT_LE(pdf.off, 0.02) << s.fileName;
        std::printf("%-28s svg %.2f %.4f   pdf %.2f %.4f\n", s.fileName, svg.mean, svg.off,
                    pdf.mean, pdf.off);
    }
}

TEST(CrossBackEnd, ChromiumRendersTheSvgPages) {
    if (!hasTool("chromium")) GTEST_SKIP() << "chromium missing";
    TempFolder dir;
    for (const GallerySample &s : pictures()) {
        std::string base = dir.file(stem(s));
        ASSERT_TRUE(s.render(base + ".png"));
        ASSERT_TRUE(s.render(base + ".svg"));
        Rgb raster = readRgb(base + ".png");
        std::string out;
        std::string profile = dir.file("profile-" + stem(s));
        int status =
            run("chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run "
                "--disable-background-networking --disable-component-update --disable-sync "
                // A window with room to spare: the page's corner is the picture.
                "--hide-scrollbars --user-data-dir='" +
                    profile + "' --window-size=" + std::to_string(raster.width + 200) + "," +
                    std::to_string(raster.height + 300) + " --screenshot='" + base +
                    "-chromium.png' 'file://" + base + ".svg'",
                &out);
        ASSERT_EQ(0, status) << out;
        Difference d =
            compare(raster, readRgb(base + "-chromium.png", raster.width, raster.height));
        EXPECT_LE(d.mean, 4.0) << s.fileName;
        EXPECT_LE(d.off, 0.01) << s.fileName;
        std::printf("%-28s chromium %.2f %.4f\n", s.fileName, d.mean, d.off);
    }
}
