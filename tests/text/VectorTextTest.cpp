#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "draw/canvas/DrawArea.h"
#include "draw/svg/SVGTextWriter.h"
#include "tests/draw/vector/VectorTestSupport.h"
#include "text/CanvasText.h"

using namespace vectortest;

namespace {

class VectorText : public ::testing::Test {
protected:
    void SetUp() override {
        CanvasText::install();
        canvas = DrawArea::create();
        canvas->setSize(300, 200, 0xffffff);
    }
    void TearDown() override { canvas->destroy(); }
    DrawArea *canvas;
};

}  // namespace

TEST(VectorTextStyle, FontNamesAreQuotedForCss) {
    GlyphFont f{"", 0, "My \"Quoted\" 'Font' & Co", nullptr, true, true, false, false, 12, 1};
    EXPECT_EQ(
        "font-family:'My &#34;Quoted&#34; \\'Font\\' &#38; Co';font-size:12px;"
        "font-style:italic;font-weight:bold;",
        SVGTextWriter::styleOf(f));
}

TEST_F(VectorText, SvgTextStandsAtThePenWithItsStyle) {
    canvas->text4("Hello <*color=C0392B*>red", "arial.ttf", 0, 12, 0, 0, false, 20, 30, 0x000000,
                  7);
    canvas->text4("Up", "arial.ttf", 0, 10, 0, 90, false, 200, 150, 0x0000ff, 5);
    std::string svg = svgOf(canvas);
    std::smatch m;
    ASSERT_TRUE(std::regex_search(
        svg, m,
        std::regex(
            "<text style=\"font-family:'Arial';font-size:16px;\" x='20' y='(\\d+)' "
            "fill='#000000'>Hello </text>\n<text style=\"font-family:'Arial';font-size:16px;\" "
            "x='([0-9.]+)' y='(\\d+)' fill='#c0392b'>red</text>")));
    EXPECT_EQ(m[1], m[3]);  // one baseline
    EXPECT_GT(std::stod(m[2]), 60);
    EXPECT_TRUE(std::regex_search(
        svg, std::regex("fill='#0000ff' transform='rotate\\(-90 \\d+ \\d+\\)'>Up</text>")));
    EXPECT_EQ(std::string::npos, svg.find("textLength"));
    std::string precise = svgOf(canvas, "precisetext");
    EXPECT_TRUE(std::regex_search(precise,
                                  std::regex("fill='#000000' textLength='[0-9.]+'>Hello </text>")));
}

TEST_F(VectorText, RightToLeftRunsKeepTheOrderTheyShowIn) {
    // "abc " then the Hebrew word shalom: shin, lamed, vav, final mem.
    canvas->text4("abc \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D", "arial.ttf", 0, 12, 0, 0, false, 10, 10,
                  0x000000, 7);
    std::string svg = svgOf(canvas);
    EXPECT_NE(std::string::npos, svg.find("<tspan "
                                          "style='unicode-bidi:bidi-override;direction:ltr'>&#1501;"
                                          "&#1493;&#1500;&#1513;</tspan>"))
        << svg;
}

TEST_F(VectorText, PdfTextIsEmbeddedAndExtractable) {
    canvas->text4("Charts in vector form", "arial.ttf", 0, 12, 0, 0, false, 10, 10, 0x000000, 7);
    canvas->text4("Serif line", "times.ttf", 0, 12, 0, 0, false, 10, 60, 0x333333, 7);
    std::string pdf = pdfOf(canvas);
    PdfReader r(pdf);
    ASSERT_TRUE(r.offsetsMatch());
    EXPECT_EQ(2u, r.findAll("/Subtype/Type0").size());
    EXPECT_EQ(2u, r.findAll("/Length1 ").size());
    if (!hasTool("pdftotext")) GTEST_SKIP() << "poppler-utils missing";
    TempFolder dir;
    std::string text;
    EXPECT_EQ(0, run("pdftotext '" + dir.write("t.pdf", pdf) + "' -", &text));
    EXPECT_NE(std::string::npos, text.find("Charts in vector form")) << text;
    EXPECT_NE(std::string::npos, text.find("Serif line")) << text;
}
