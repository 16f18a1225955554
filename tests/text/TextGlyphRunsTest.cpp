#include <gtest/gtest.h>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/list/MetaDraw.h"
#include "tests/draw/list/NullBackEnd.h"
#include "text/CanvasText.h"
#include "text/layout/TTFText.h"

// What a vector back end gets of a text: the glyph runs of each Text record.
namespace {

// The font's strings live as long as the font driver.
struct CapturedRun {
    GlyphRun run;
    std::vector<PlacedGlyph> glyphs;
    std::vector<int> chars;
};

struct CapturedText {
    int originX, originY;
    double angle;
    std::vector<CapturedRun> runs;
};

class GlyphCapture : public NullBackEnd {
public:
    std::vector<CapturedText> texts;
    void drawText(const GlyphText &text) override {
        CapturedText t{text.originX, text.originY, text.angle(), {}};
        for (const GlyphRun &run : text.runs) {
            CapturedRun r{run, {}, {}};
            for (int i = 0; i < run.glyphCount; ++i) {
                const PlacedGlyph &g = text.glyphs[run.firstGlyph + i];
                r.glyphs.push_back(g);
                r.chars.insert(r.chars.end(), text.chars.begin() + g.firstChar,
                               text.chars.begin() + g.firstChar + g.charCount);
            }
            t.runs.push_back(r);
        }
        texts.push_back(t);
    }
};

bool endsWith(const std::string &s, const std::string &tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

class GlyphRuns : public ::testing::Test {
protected:
    void SetUp() override {
        CanvasText::install();
        canvas = DrawArea::create();
        canvas->setSize(200, 200, 0xFFFFFF);
    }
    void TearDown() override { canvas->destroy(); }

    // Draws the text with its top-left at (20, 30) and plays the canvas.
    std::vector<CapturedText> play(const wchar_t *text, double height = 10, double width = 0,
                                   double angle = 0, const char *font = "arial.ttf") {
        TTFText *t =
            TTFText::create(canvas, text, font, 0, height, width, angle, false, 1, 0, 0, 0);
        baseline = t->getBaseline();
        t->draw(20, 30, 0x000000, 7);
        t->destroy();
        GlyphCapture capture;
        canvas->getMetaDraw()->play(&capture, 0);
        return capture.texts;
    }

    DrawArea *canvas;
    int baseline = 0;
};

}  // namespace

TEST_F(GlyphRuns, RunsNameTheFontAndPlaceEachGlyph) {
    std::vector<CapturedText> texts = play(L"A<*color=FF0000*>Bc");
    ASSERT_EQ(1u, texts.size());
    const CapturedText &t = texts[0];
    EXPECT_EQ(20, t.originX);
    EXPECT_EQ(30 + baseline, t.originY) << "the origin is the first baseline's start";
    EXPECT_EQ(0, t.angle);
    // A colour change starts a run.
    ASSERT_EQ(2u, t.runs.size());
    EXPECT_EQ(0x000000, t.runs[0].run.color);
    EXPECT_EQ(0xFF0000, t.runs[1].run.color);
    EXPECT_EQ((std::vector<int>{'A'}), t.runs[0].chars);
    EXPECT_EQ((std::vector<int>{'B', 'c'}), t.runs[1].chars);

    const CapturedRun &run = t.runs[1];
    const GlyphFont &font = run.run.font;
    EXPECT_TRUE(endsWith(font.filePath, "/LiberationSans-Regular.ttf")) << font.filePath;
    EXPECT_EQ(0, font.faceIndex);
    EXPECT_STREQ("Arial", font.familyName);
    EXPECT_EQ(nullptr, font.postscriptName) << "a stand-in goes by the family it stands for";
    EXPECT_FALSE(run.run.font.bold || run.run.font.italic);
    EXPECT_FALSE(run.run.font.syntheticBold || run.run.font.syntheticItalic);
    EXPECT_EQ(13, run.run.font.pixelSize);
    EXPECT_EQ(1, run.run.font.widthScale);
    EXPECT_FALSE(run.run.rightToLeft);

    // Glyph ids are the font file's own: FreeType, asked independently, agrees.
    FT_Library library;
    FT_Face face;
    ASSERT_EQ(0, FT_Init_FreeType(&library));
    ASSERT_EQ(0, FT_New_Face(library, font.filePath, 0, &face));
    EXPECT_EQ(FT_Get_Char_Index(face, 'A'), t.runs[0].glyphs[0].glyphId);
    EXPECT_EQ(FT_Get_Char_Index(face, 'B'), run.glyphs[0].glyphId);
    EXPECT_EQ(FT_Get_Char_Index(face, 'c'), run.glyphs[1].glyphId);
    FT_Done_Face(face);
    FT_Done_FreeType(library);

    // Pens follow the advances along the baseline; each glyph brings its bitmap.
    const PlacedGlyph &a = t.runs[0].glyphs[0], &b = run.glyphs[0], &c = run.glyphs[1];
    EXPECT_EQ(0, a.x);
    EXPECT_EQ(a.x + a.advance, b.x);
    EXPECT_EQ(b.x + b.advance, c.x);
    EXPECT_EQ(0, c.y);
    EXPECT_GT(b.image.width, 4);
    EXPECT_EQ(b.image.rows, b.image.top) << "'B' stands on the baseline";
    EXPECT_EQ(1, b.image.bytesPerPixel);
    ASSERT_NE(nullptr, b.image.pixels);
}

TEST_F(GlyphRuns, SizeWidthAndRotation) {
    std::vector<CapturedText> texts = play(L"W", 10, 20, 90);
    ASSERT_EQ(1u, texts.size());
    EXPECT_NEAR(90, texts[0].angle, 1e-9);
    EXPECT_EQ(13, texts[0].runs[0].run.font.pixelSize);
    EXPECT_DOUBLE_EQ(27.0 / 13, texts[0].runs[0].run.font.widthScale) << "20 points on 10";
}

TEST_F(GlyphRuns, RightToLeftRunsAndLigatures) {
    // Hebrew in Latin: the Hebrew run is marked and holds its characters in
    // drawing order, reversed.
    std::vector<CapturedText> texts = play(L"ab \x5D0\x5D1");
    ASSERT_EQ(1u, texts.size());
    ASSERT_EQ(2u, texts[0].runs.size());
    EXPECT_FALSE(texts[0].runs[0].run.rightToLeft);
    EXPECT_EQ((std::vector<int>{'a', 'b', ' '}), texts[0].runs[0].chars);
    EXPECT_TRUE(texts[0].runs[1].run.rightToLeft);
    EXPECT_EQ((std::vector<int>{0x5D1, 0x5D0}), texts[0].runs[1].chars);

    // Beh, lam, alef: the lam-alef ligature stands for both its characters.
    canvas->setSize(200, 200, 0xFFFFFF);
    texts = play(L"\x628\x644\x627");
    ASSERT_EQ(2u, texts.size());
    ASSERT_EQ(1u, texts[1].runs.size());
    const CapturedRun &arabic = texts[1].runs[0];
    ASSERT_EQ(2u, arabic.glyphs.size());
    EXPECT_EQ(2, arabic.glyphs[0].charCount);
    EXPECT_EQ((std::vector<int>{0x644, 0x627, 0x628}), arabic.chars);
}

TEST_F(GlyphRuns, SyntheticStylesAreFlagged) {
    // A regular file under a name of its own, asked for bold and italic: both
    // are made up, and the file goes by its PostScript name.
    std::string plain = ::testing::TempDir() + "glyph_runs_plain.ttf";
    {
        std::ifstream in(std::string(VISTREL_BINARY_DIR) + "/fonts/LiberationSans-Regular.ttf",
                         std::ios::binary);
        std::ofstream out(plain, std::ios::binary);
        out << in.rdbuf();
    }
    std::vector<CapturedText> texts = play(L"x", 10, 0, 0, (plain + " bold italic").c_str());
    ASSERT_EQ(1u, texts.size());
    const CapturedRun &run = texts[0].runs[0];
    EXPECT_EQ(plain, run.run.font.filePath);
    EXPECT_TRUE(run.run.font.bold && run.run.font.syntheticBold);
    EXPECT_TRUE(run.run.font.italic && run.run.font.syntheticItalic);
    EXPECT_STREQ("LiberationSans", run.run.font.postscriptName);
    std::remove(plain.c_str());
}
