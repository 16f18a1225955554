#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <regex>
#include <set>
#include <vector>

#include "draw/pixel/ImagePalette.h"
#include "foundation/Constants.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"
#include "tests/draw/vector/VectorTestSupport.h"

namespace {

const int kMark = 0x1F77B4;

// Centres all over a 160 by 120 canvas and beyond its edges, many
// overlapping.
std::vector<int> scatteredCentres(int count, unsigned seed) {
    std::mt19937 rng(seed);
    std::vector<int> xy;
    for (int i = 0; i < count; ++i) {
        xy.push_back((int)(rng() % 170) - 5);
        xy.push_back((int)(rng() % 130) - 5);
    }
    return xy;
}

// A filled circle of radius 2.5 about the middle of a 5 by 5 canvas.
void drawMark(DrawArea *symbol, int fill) {
    symbol->setSize(5, 5, kTransparent);
    symbol->circle(2, 2, 2.5, 2.5, kTransparent, fill);
}

// The largest difference of any channel between the two canvases.
int largestDifference(DrawArea *a, DrawArea *b) {
    int largest = 0;
    for (int y = 0; y < a->getHeight(); ++y)
        for (int x = 0; x < a->getWidth(); ++x) {
            int p = a->getPixel(x, y), q = b->getPixel(x, y);
            for (int shift : {0, 8, 16})
                largest = std::max(largest, std::abs(((p >> shift) & 255) - ((q >> shift) & 255)));
        }
    return largest;
}

}  // namespace

// The stamps of a plain mark gathered into one cover give the pixels of the
// marks blended one after the other, and those of the shape filled at each
// point, within the rounding of the blends: 1 of 255 in any channel.
TEST(SymbolStamp, StampedMarksMatchMarksDrawnOneByOne) {
    std::vector<int> centres = scatteredCentres(3000, 5);
    CanvasHolder symbol, stamped, blended, filled;
    drawMark(symbol.get(), kMark);
    for (DrawArea *d : {stamped.get(), blended.get(), filled.get()}) d->setSize(160, 120, 0xFFFFFF);
    stamped->mergeAtPoints(symbol.get(), IntArray(centres.data(), (int)centres.size()), kCenter);
    for (size_t i = 0; i < centres.size(); i += 2) {
        blended->merge(symbol.get(), centres[i], centres[i + 1], kCenter, 0);
        filled->circle(centres[i], centres[i + 1], 2.5, 2.5, kTransparent, kMark);
    }
    EXPECT_LE(largestDifference(stamped.get(), blended.get()), 1);
    EXPECT_LE(largestDifference(stamped.get(), filled.get()), 1);
    EXPECT_EQ(stamped->getPixel(80, 60), kMark);
    // One record for all the points.
    EXPECT_EQ(vectortest::countOf(listingOf(stamped.get()), "MergeAtPoints("), 1u);
}

// A mark of more than one colour is no stamp: its copies are blended one
// after the other, the same pixels as merge gives.
TEST(SymbolStamp, MarksOfTwoColoursAreBlendedOneByOne) {
    std::vector<int> centres = scatteredCentres(400, 9);
    CanvasHolder symbol, together, oneByOne;
    drawMark(symbol.get(), kMark);
    symbol->rect(2, 0, 4, 4, kTransparent, 0x80FF0000, 0);
    for (DrawArea *d : {together.get(), oneByOne.get()}) d->setSize(160, 120, 0xFFFFFF);
    together->mergeAtPoints(symbol.get(), IntArray(centres.data(), (int)centres.size()), kCenter);
    for (size_t i = 0; i < centres.size(); i += 2)
        oneByOne->merge(symbol.get(), centres[i], centres[i + 1], kCenter, 0);
    EXPECT_EQ(largestDifference(together.get(), oneByOne.get()), 0);
}

// Bad input draws nothing: no points, an odd count, the canvas itself, points
// far outside.
TEST(SymbolStamp, BadPointsDrawNothing) {
    CanvasHolder symbol, d;
    drawMark(symbol.get(), kMark);
    d->setSize(50, 50, 0xFFFFFF);
    int far[] = {-2000000000, 2000000000, 2000000000, -2000000000, 7};
    d->mergeAtPoints(symbol.get(), IntArray(far, 5), kCenter);
    d->mergeAtPoints(symbol.get(), IntArray(nullptr, 4), kCenter);
    d->mergeAtPoints(d.get(), IntArray(far, 4), kCenter);
    d->mergeAtPoints(nullptr, IntArray(far, 4), kCenter);
    EXPECT_EQ(vectortest::countOf(listingOf(d.get()), "MergeAtPoints("), 0u);
}

// SVG and PDF define the mark once and place it at every point.
TEST(SymbolStamp, VectorOutputsDefineTheMarkOnce) {
    std::vector<int> centres = scatteredCentres(50, 3);
    // Only points whose mark touches the canvas are placed.
    int inside = 0;
    for (size_t i = 0; i < centres.size(); i += 2)
        inside +=
            centres[i] > -3 && centres[i] < 163 && centres[i + 1] > -3 && centres[i + 1] < 123;
    CanvasHolder symbol, d;
    drawMark(symbol.get(), kMark);
    d->setSize(160, 120, 0xFFFFFF);
    d->mergeAtPoints(symbol.get(), IntArray(centres.data(), (int)centres.size()), kCenter);
    std::string svg = vectortest::svgOf(d.get());
    EXPECT_EQ(vectortest::countOf(svg, "<symbol "), 1u);
    EXPECT_EQ(vectortest::countOf(svg, "<use "), (size_t)inside);
    std::string pdf = vectortest::pdfOf(d.get());
    vectortest::PdfReader reader(pdf);
    std::string streams;
    for (int id : reader.findAll("/Length")) streams += reader.stream(id);
    // Every placement names the same form.
    std::regex place("(/X\\d+) Do\n");
    std::set<std::string> forms;
    size_t placed = 0;
    for (std::sregex_iterator m(streams.begin(), streams.end(), place), end; m != end; ++m)
        forms.insert((*m)[1]), ++placed;
    EXPECT_EQ(placed, (size_t)inside);
    EXPECT_EQ(forms.size(), 1u);
}

// The hashed palette scan gives the entries, order, indexes and opacities of
// the ordered map, and gives up past 256 colours as it does.
TEST(ImagePaletteScan, HashedScanMatchesTheMap) {
    std::mt19937 rng(21);
    for (int colors : {1, 2, 17, 255, 256, 257, 5000}) {
        std::vector<int> choices;
        for (int c = 0; c < colors; ++c)
            choices.push_back((int)(rng() & 0xFFFFFF) |
                              (c % 5 == 0 ? (int)(rng() & 0xFF) << 24 : 0));
        std::vector<int> pixels(97 * 61);
        for (int &p : pixels) p = choices[rng() % choices.size()];
        PixelImage image(pixels.data(), 97, 61);
        int palette[2][256] = {};
        unsigned char alpha[2][256] = {};
        std::vector<unsigned char> indexes[2] = {std::vector<unsigned char>(pixels.size()),
                                                 std::vector<unsigned char>(pixels.size())};
        int hashed = ImagePalette::exactPalette(image, palette[0], indexes[0].data(), alpha[0]);
        int mapped =
            ImagePalette::exactPaletteByMap(image, palette[1], indexes[1].data(), alpha[1]);
        ASSERT_EQ(hashed, mapped) << colors;
        EXPECT_EQ(hashed == 0, colors > 256) << colors;
        for (int e = 0; e < hashed; ++e) {
            EXPECT_EQ(palette[0][e], palette[1][e]);
            EXPECT_EQ(alpha[0][e], alpha[1][e]);
        }
        if (hashed) {
            EXPECT_EQ(indexes[0], indexes[1]) << colors;
        }
    }
}
