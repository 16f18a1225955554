#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "draw/pdf/font/TrueTypeFile.h"
#include "draw/pdf/font/TrueTypeSubset.h"
#include "tests/draw/vector/VectorTestSupport.h"

namespace {

typedef std::vector<unsigned char> Bytes;

Bytes fontBytes() {
    std::string s = vectortest::readFile(VISTREL_BINARY_DIR "/fonts/LiberationSans-Regular.ttf");
    return Bytes(s.begin(), s.end());
}

uint32_t u32(const Bytes &b, size_t at) {
    return (uint32_t)b[at] << 24 | (uint32_t)b[at + 1] << 16 | (uint32_t)b[at + 2] << 8 | b[at + 3];
}

uint32_t sumOf(const Bytes &b, size_t from, size_t length) {
    uint32_t sum = 0;
    for (size_t i = 0; i < length; i += 4) {
        uint32_t w = 0;
        for (size_t k = 0; k < 4; ++k) w = w << 8 | (i + k < length ? b[from + i + k] : 0);
        sum += w;
    }
    return sum;
}

// The glyph a format-4 cmap gives a character, read independently of the writer.
int glyphOf(const TrueTypeFile &f, int ch) {
    const TrueTypeFile::Table *cmap = f.find("cmap");
    if (!cmap) return -1;
    size_t sub = cmap->offset + f.u32(cmap->offset + 8);
    int segments = f.u16(sub + 6) / 2;
    for (int i = 0; i < segments; ++i) {
        int end = f.u16(sub + 14 + 2 * i), start = f.u16(sub + 16 + 2 * segments + 2 * i);
        int delta = f.s16(sub + 16 + 4 * segments + 2 * i);
        if (ch >= start && ch <= end) return (ch + delta) & 0xFFFF;
    }
    return 0;
}

}  // namespace

TEST(TrueTypeSubset, FontFileIsRead) {
    Bytes bytes = fontBytes();
    ASSERT_FALSE(bytes.empty());
    TrueTypeFile f;
    ASSERT_TRUE(f.parse(bytes.data(), bytes.size(), 0));
    EXPECT_EQ(2048, f.unitsPerEm());
    EXPECT_EQ("LiberationSans", f.postscriptName());
    EXPECT_GT(f.glyphCount(), 200);
    EXPECT_GT(f.ascent(), 0);
    EXPECT_LT(f.descent(), 0);
    EXPECT_FALSE(f.isFixedPitch());
    EXPECT_FALSE(f.parse(bytes.data(), bytes.size(), 1));  // a plain file has face 0 only
}

TEST(TrueTypeSubset, SubsetKeepsIdsOutlinesAndMetrics) {
    Bytes bytes = fontBytes();
    TrueTypeFile f;
    ASSERT_TRUE(f.parse(bytes.data(), bytes.size(), 0));
    int composite = 0;
    for (int g = 1; g < f.glyphCount() && !composite; ++g)
        if (!f.components(g).empty()) composite = g;
    ASSERT_NE(0, composite);
    std::set<int> glyphs = {36, 72, 79, composite};
    std::map<int, int> characters = {{'A', 36}, {'e', 72}, {'l', 79}};
    Bytes subset = TrueTypeSubset::build(f, glyphs, characters);
    TrueTypeFile s;
    ASSERT_TRUE(s.parse(subset.data(), subset.size(), 0));
    std::set<int> kept = glyphs;
    kept.insert(0);
    for (int part : f.components(composite)) kept.insert(part);
    // Ids stay; the file ends at the last glyph kept.
    EXPECT_EQ(s.glyphCount(), *kept.rbegin() + 1);
    for (int g = 0; g < s.glyphCount(); ++g) {
        uint32_t a, an, b, bn;
        ASSERT_TRUE(f.glyphLocation(g, &a, &an));
        ASSERT_TRUE(s.glyphLocation(g, &b, &bn));
        ASSERT_EQ(f.advanceWidth(g), s.advanceWidth(g)) << "glyph " << g;
        if (!kept.count(g)) {
            ASSERT_EQ(0u, bn) << "glyph " << g;
            continue;
        }
        ASSERT_EQ(f.components(g), s.components(g)) << "glyph " << g;
        int contours = f.s16(a);
        if (contours < 0) continue;
        // A simple glyph: the same contours and points, no instructions.
        size_t counts = 10 + 2 * (size_t)contours;
        size_t hints = f.u16(a + counts), from = a, to = b;
        ASSERT_EQ(Bytes(bytes.begin() + from, bytes.begin() + from + counts),
                  Bytes(subset.begin() + to, subset.begin() + to + counts));
        EXPECT_EQ(s.u16(to + counts), 0);
        ASSERT_EQ(Bytes(bytes.begin() + from + counts + 2 + hints, bytes.begin() + from + an),
                  Bytes(subset.begin() + to + counts + 2,
                        subset.begin() + to + counts + 2 + (an - counts - 2 - hints)))
            << "glyph " << g;
    }
    // The hint programs and the names are left out.
    for (const char *tag : {"fpgm", "prep", "cvt ", "name"}) EXPECT_EQ(s.find(tag), nullptr) << tag;
    for (const auto &cg : characters) EXPECT_EQ(cg.second, glyphOf(s, cg.first));
    EXPECT_EQ(0, glyphOf(s, 'Z'));
    // Every table's checksum holds, and the whole file sums to the magic.
    int tables = subset[4] << 8 | subset[5];
    for (int i = 0; i < tables; ++i) {
        size_t entry = 12 + 16 * (size_t)i;
        std::string tag(subset.begin() + entry, subset.begin() + entry + 4);
        if (tag == "head") continue;
        EXPECT_EQ(u32(subset, entry + 4),
                  sumOf(subset, u32(subset, entry + 8), u32(subset, entry + 12)))
            << tag;
    }
    EXPECT_EQ(0xB1B0AFBAu, sumOf(subset, 0, subset.size()));
    EXPECT_LT(subset.size(), bytes.size() / 16);
}

TEST(TrueTypeSubset, CollectionsAndDamagedFiles) {
    Bytes bytes = fontBytes();
    // The font inside a collection of one, its table offsets moved along.
    Bytes ttc = {'t', 't', 'c', 'f', 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 16};
    ttc.insert(ttc.end(), bytes.begin(), bytes.end());
    int tables = bytes[4] << 8 | bytes[5];
    for (int i = 0; i < tables; ++i) {
        size_t at = 16 + 12 + 16 * (size_t)i + 8;
        uint32_t offset = u32(ttc, at) + 16;
        for (int k = 0; k < 4; ++k) ttc[at + k] = (unsigned char)(offset >> (24 - 8 * k));
    }
    TrueTypeFile f;
    EXPECT_TRUE(f.parse(ttc.data(), ttc.size(), 0));
    EXPECT_EQ("LiberationSans", f.postscriptName());
    EXPECT_FALSE(f.parse(ttc.data(), ttc.size(), 1));
    EXPECT_FALSE(f.parse(ttc.data(), ttc.size(), -1));
    // Cut short or scrambled, the file is refused or read without going astray.
    std::mt19937 rng(11);
    for (int round = 0; round < 300; ++round) {
        Bytes broken(bytes.begin(), bytes.begin() + rng() % bytes.size());
        if (round % 2) {
            broken = bytes;
            for (int k = 0; k < 20; ++k) broken[rng() % 4096] = (unsigned char)rng();
        }
        TrueTypeFile b;
        if (b.parse(broken.data(), broken.size(), 0))
            TrueTypeSubset::build(b, {36, 72, 1000, 65535}, {{'A', 36}});
    }
    EXPECT_FALSE(f.parse(nullptr, 100, 0));
}
