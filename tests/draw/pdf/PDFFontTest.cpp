#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <string>

#include "draw/list/MetaDraw.h"
#include "draw/pdf/DrawPDF.h"
#include "draw/pdf/PDFTTFFont.h"
#include "draw/pdf/PDFUnknownFont.h"
#include "foundation/Stream.h"
#include "tests/draw/vector/VectorTestSupport.h"

using namespace vectortest;

namespace {

// "Hello" in Liberation Sans glyph ids, 9 pixels apart, on a baseline at y 30.
GlyphText helloText(const char *file, bool bold, bool italic) {
    GlyphText t;
    const double upright[4] = {1, 0, 0, 1};
    t.reset(10, 30, upright);
    const unsigned ids[5] = {43, 72, 79, 79, 82};
    const char *chars = "Hello";
    GlyphFont font{file, 0, "Arial", nullptr, bold, italic, bold, italic, 16, 1};
    t.runs.push_back(GlyphRun{font, 0x000000, false, 0, 5});
    for (int i = 0; i < 5; ++i) {
        t.chars.push_back(chars[i]);
        t.glyphs.push_back(PlacedGlyph{ids[i], i, 1, 9.0 * i, 0, 9, GlyphImage{}, chars[i]});
    }
    return t;
}

std::string pdfWithText(const GlyphText &text, const char *options = "") {
    MetaDraw *list = MetaDraw::create(nullptr);
    list->setOutputOptions(options);
    std::unique_ptr<DrawPDF> pdf(DrawPDF::create(list));
    pdf->beginPlay(1);
    pdf->setSize(200, 50, 0xffffff);
    pdf->drawText(text);
    pdf->endPlay();
    qlx::ostrstream out;
    pdf->write(out);
    list->destroyList();
    return std::string(out.str(), out.tell());
}

std::string formContent(const PdfReader &r) {
    for (int id : r.findAll("/Subtype/Form"))
        if (r.dictionary(id).find("/Matrix[") != std::string::npos) return r.stream(id);
    return std::string();
}

}  // namespace

TEST(PDFFont, StandardFontsByName) {
    EXPECT_EQ("Times-Roman", PDFUnknownFont::standardName("Times New Roman", false, false));
    EXPECT_EQ("Times-BoldItalic", PDFUnknownFont::standardName("TIMES", true, true));
    EXPECT_EQ("Courier-Oblique", PDFUnknownFont::standardName("Courier New", false, true));
    EXPECT_EQ("Helvetica-Bold", PDFUnknownFont::standardName("Arial", true, false));
    EXPECT_EQ("Symbol", PDFUnknownFont::standardName("symbol", true, false));
    EXPECT_EQ("ZapfDingbats", PDFUnknownFont::standardName("ITC Zapf Dingbats", false, false));
    EXPECT_EQ("Helvetica", PDFUnknownFont::standardName("Gentium", false, false));
    EXPECT_EQ("Helvetica", PDFUnknownFont::standardName(nullptr, false, false));
    EXPECT_EQ('A', PDFUnknownFont::winAnsiCode('A'));
    EXPECT_EQ(0x80, PDFUnknownFont::winAnsiCode(0x20AC));  // the euro sign
    EXPECT_EQ(0xE9, PDFUnknownFont::winAnsiCode(0xE9));
    EXPECT_EQ(0, PDFUnknownFont::winAnsiCode(0x5D0));
}

TEST(PDFFont, ToUnicodeMapsGlyphsToTheirCharacters) {
    std::map<int, std::vector<int>> glyphs;
    for (int g = 1; g <= 150; ++g) glyphs[g] = {0x40 + g};
    glyphs[200] = {0x1F600};       // beyond 16 bits: a surrogate pair
    glyphs[201] = {0x644, 0x627};  // a ligature of two
    glyphs[202] = {};              // nothing known: left out
    std::string map = PDFTTFFont::toUnicode(glyphs);
    EXPECT_EQ(0u, map.find("/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"));
    EXPECT_NE(std::string::npos, map.find("100 beginbfchar\n<0001> <0041>\n"));
    EXPECT_NE(std::string::npos, map.find("endbfchar\n52 beginbfchar\n<0065> <00A5>\n"));
    EXPECT_NE(std::string::npos, map.find("<00C8> <D83DDE00>\n<00C9> <06440627>\nendbfchar\n"));
    EXPECT_EQ(std::string::npos, map.find("\n<00CA> <"));
    std::string end = "endbfchar\nendcmap\nCMapName currentdict /CMap defineresource pop\nend\nend";
    EXPECT_EQ(map.size() - end.size(), map.find(end));
}

TEST(PDFFont, EmbeddedTrueTypeSubset) {
    std::string file = pdfWithText(
        helloText(VISTREL_BINARY_DIR "/fonts/LiberationSans-Regular.ttf", false, false));
    PdfReader r(file);
    ASSERT_TRUE(r.offsetsMatch());
    int type0 = r.find("/Subtype/Type0");
    ASSERT_NE(0, type0);
    std::string font = r.dictionary(type0);
    EXPECT_TRUE(std::regex_search(
        font, std::regex("^/Type/Font/Subtype/Type0/BaseFont/[A-Z]{6}\\+LiberationSans/Encoding/"
                         "Identity-H/DescendantFonts\\[\\d+ 0 R\\]/ToUnicode \\d+ 0 R$")));
    std::string cid = r.dictionary(r.find("/CIDFontType2"));
    EXPECT_NE(std::string::npos,
              cid.find("/CIDSystemInfo<</Registry (Adobe)/Ordering (Identity)/Supplement 0>>"));
    EXPECT_NE(std::string::npos, cid.find("/W[43[722]72[556]79[222]82[556]]"));
    std::string descriptor = r.dictionary(r.find("/Type/FontDescriptor"));
    EXPECT_TRUE(std::regex_search(
        descriptor, std::regex("/FontBBox\\[-?\\d+ -?\\d+ \\d+ \\d+\\]/Ascent \\d+/Descent "
                               "-\\d+/CapHeight \\d+/ItalicAngle 0/StemV 0/FontFile2 \\d+ 0 R")));
    int fontFile = r.find("/Length1 ");
    ASSERT_NE(0, fontFile);
    std::string subset = r.stream(fontFile);
    EXPECT_EQ(std::string("\0\1\0\0", 4), subset.substr(0, 4));
    EXPECT_NE(std::string::npos,
              r.dictionary(fontFile).find("/Length1 " + std::to_string(subset.size())));
    std::string content = formContent(r);
    EXPECT_TRUE(std::regex_search(
        content,
        std::regex("BT\n/F\\d+ 16 Tf\n1 0 0 -1 10 30 Tm\n\\[<002B0048004F004F0052>\\] TJ\nET\n")));

    // Precise text moves each glyph to the layout's place (9 pixels apart).
    std::string precise = formContent(PdfReader(
        pdfWithText(helloText(VISTREL_BINARY_DIR "/fonts/LiberationSans-Regular.ttf", false, false),
                    "precisetext")));
    EXPECT_NE(std::string::npos, precise.find("[<002B>160<0048>-6<004F>-340<004F>-340<0052>] TJ"));

    // Synthetic bold strokes the outlines; synthetic italic shears the matrix.
    std::string styled = formContent(PdfReader(pdfWithText(
        helloText(VISTREL_BINARY_DIR "/fonts/LiberationSans-Regular.ttf", true, true))));
    EXPECT_NE(std::string::npos, styled.find("0.6 w\n2 Tr\nBT"));
    EXPECT_NE(std::string::npos, styled.find("Tf\n1 0 0.25 -1 10 30 Tm\n"));
    EXPECT_NE(std::string::npos, styled.find("ET\n0 Tr\n"));
}

TEST(PDFFont, MissingFontFileFallsBackToAStandardFont) {
    std::string file = pdfWithText(helloText("/no/such/font.ttf", false, false));
    PdfReader r(file);
    ASSERT_TRUE(r.offsetsMatch());
    EXPECT_EQ("/Type/Font/Subtype/Type1/BaseFont/Helvetica/Encoding/WinAnsiEncoding",
              r.dictionary(r.find("/Subtype/Type1")));
    EXPECT_EQ(0, r.find("/FontFile2"));
    EXPECT_NE(std::string::npos, formContent(r).find("[(Hello)] TJ"));
    if (!hasTool("pdftotext")) return;
    TempFolder dir;
    for (const std::string &pdf :
         {file, pdfWithText(helloText(VISTREL_BINARY_DIR "/fonts/LiberationSans-Regular.ttf", false,
                                      false))}) {
        std::string path = dir.write("t.pdf", pdf), text;
        EXPECT_EQ(0, run("pdftotext '" + path + "' -", &text));
        EXPECT_EQ("Hello", text.substr(0, 5)) << text;
    }
}
