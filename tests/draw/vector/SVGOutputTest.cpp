#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <regex>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Codec.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"
#include "tests/draw/vector/VectorTestSupport.h"

using namespace vectortest;

namespace {

const char kXmlDecl[] = "<?xml version='1.0' encoding='UTF-8' standalone='no'?>\n";
const char kDocType[] =
    "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 20010904//EN' "
    "'http://www.w3.org/TR/2001/REC-SVG-20010904/DTD/svg10.dtd'>\n";
const char kRoot[] =
    "<svg viewBox='0 0 40 30' width='40' height='30' xmlns='http://www.w3.org/2000/svg' "
    "xmlns:xlink='http://www.w3.org/1999/xlink' xml:space='preserve'>\n"
    "<style>text,tspan {white-space:pre}</style>\n";
const char kBody[] =
    "<g font-family='Arial' font-size='11px' fill='none' fill-rule='evenodd' "
    "stroke-linecap='square' stroke-miterlimit='1.42'>\n";

bool startsWith(const std::string &s, const std::string &head) {
    return s.compare(0, head.size(), head) == 0;
}

// The base64 data of the first data address of the given media type.
std::string dataOf(const std::string &svg, const std::string &media) {
    std::string key = "data:" + media + ";base64,";
    size_t at = svg.find(key);
    if (at == std::string::npos) return std::string();
    at += key.size();
    return svg.substr(at, svg.find('\'', at) - at);
}

}  // namespace

TEST(SVGOutput, DocumentHeadAndItsOptions) {
    CanvasHolder c;
    c->setSize(40, 30, 0xffffff);
    std::string whole = svgOf(c.get());
    EXPECT_EQ(std::string(kXmlDecl) + kDocType + kRoot + kBody +
                  "<rect x='0' y='0' width='40' height='30' fill='#ffffff'/>\n</g>\n</svg>\n",
              whole);
    EXPECT_EQ(std::string::npos, whole.find("<defs>"));  // nothing defined, no defs
    EXPECT_TRUE(startsWith(svgOf(c.get(), "noxmldecl"), kDocType));
    EXPECT_TRUE(startsWith(svgOf(c.get(), "nodoctype"), kXmlDecl + std::string("<svg ")));
    EXPECT_TRUE(startsWith(svgOf(c.get(), "NoXmlDecl;nodoctype"), "<svg viewBox='0 0 40 30'"));
    std::string sized = svgOf(c.get(), "width=100%;height=5cm");
    EXPECT_NE(std::string::npos, sized.find("viewBox='0 0 40 30' width='100%' height='5cm'"));
    // Options last one output only.
    EXPECT_TRUE(startsWith(svgOf(c.get()), kXmlDecl));
}

TEST(SVGOutput, ShapesLieOnPixelCentresAndColoursCarryTheirOpacity) {
    CanvasHolder c;
    c->setSize(100, 80, kTransparent);
    c->rect(10, 10, 29, 19, 0x102030, (int)0x80ff0000u, 0);
    c->rect(40, 10, 49, 19, kTransparent, 0x00ff00, 0);
    c->line(5, 60, 95, 60, 0x000000, 1);
    const double x[3] = {10, 30, 20}, y[3] = {30, 30, 50};
    c->polygon(DoubleArray(x, 3), DoubleArray(y, 3), kTransparent, 0x0000ff);
    c->circle(70, 40, 10, 10, 0x333333, kTransparent);
    std::string s = svgOf(c.get());
    // An edged rectangle: its edge through the centres of its border pixels.
    EXPECT_NE(std::string::npos,
              s.find("<rect x='10.5' y='10.5' width='19' height='9' fill='#ff0000' "
                     "fill-opacity='0.498' stroke='#102030'/>"));
    // Without an edge the fill covers the border pixels whole.
    EXPECT_NE(std::string::npos,
              s.find("<rect x='40' y='10' width='10' height='10' fill='#00ff00'/>"));
    EXPECT_NE(std::string::npos,
              s.find("<polyline points='5.5,60.5 95.5,60.5' stroke='#000000'/>"));
    EXPECT_NE(std::string::npos,
              s.find("<polygon points='10.5,30.5 30.5,30.5 20.5,50.5' fill='#0000ff'/>"));
    EXPECT_NE(std::string::npos, s.find("<path d='M70.5 30.5 A10 10 0 1 1 70.5 50.5 A10 10 0 1 1 "
                                        "70.5 30.5 Z' stroke='#333333'/>"));
    // The transparent background draws nothing.
    EXPECT_EQ(std::string::npos, s.find("width='100' height='80' fill"));
}

TEST(SVGOutput, VeryLongLinesGoOutInPiecesSharingTheirEnds) {
    CanvasHolder c;
    c->setSize(100, 100, kTransparent);
    const int n = 120000;
    std::vector<double> x(n), y(n);
    for (int i = 0; i < n; ++i) x[i] = i % 100, y[i] = (i / 100) % 100;
    c->rawPolyline(DoubleArray(x.data(), n), DoubleArray(y.data(), n), 0x000000, 1);
    std::string s = svgOf(c.get());
    std::vector<size_t> counts;
    for (size_t at = s.find("<polyline points='"); at != std::string::npos;
         at = s.find("<polyline points='", at + 1)) {
        size_t end = s.find('\'', at + 18);
        counts.push_back(std::count(s.begin() + at, s.begin() + end, ','));
    }
    // 120000 points in pieces of at most 50000, each starting where the last ended.
    ASSERT_EQ(3u, counts.size());
    EXPECT_EQ(50000u, counts[0]);
    EXPECT_EQ(50000u, counts[1]);
    EXPECT_EQ(20002u, counts[2]);
}

TEST(SVGOutput, DynamicColoursBecomeDefinitions) {
    CanvasHolder c;
    c->setSize(200, 100, 0xffffff);
    int fade = c->linearGradientColor(10, 10, 110, 10, 0x3366cc, kTransparent, false);
    c->rect(10, 10, 109, 29, kTransparent, fade, 0);
    c->rect(10, 40, 109, 59, kTransparent, fade, 0);
    c->line(0, 70, 199, 70, c->dashLineColor(0x102030, kDashLine), 2);
    c->rect(120, 10, 189, 59, kTransparent, c->xZoneColor(150, 0xff0000, 0x0000ff), 0);
    const int tile[4] = {0x000000, 0xffffff, 0xffffff, 0x000000};
    c->rect(10, 80, 49, 95, kTransparent, c->patternColor(IntArray(tile, 4), 2, 0, 0), 0);
    c->circle(170, 85, 10, 10, kTransparent,
              c->radialGradientColor(170, 85, 10, 5, 0xffffff, 0x000000, false));
    std::string s = svgOf(c.get());
    // One gradient for both rectangles, through pixel centres, fading to the
    // colour at opacity 0.
    EXPECT_EQ(1u, countOf(s, "<linearGradient"));
    EXPECT_NE(std::string::npos, s.find("x1='10.5' y1='10.5' x2='110.5' y2='10.5' "
                                        "spreadMethod='pad' gradientUnits='userSpaceOnUse'"));
    EXPECT_NE(std::string::npos,
              s.find("<stop offset='1' stop-color='#3366cc' stop-opacity='0'/>"));
    EXPECT_EQ(2u, countOf(s, "fill='url(#b0)'"));
    EXPECT_NE(std::string::npos,
              s.find("stroke-width='2' stroke-dasharray='5 5' stroke-linecap='butt'"));
    // The zone: the rectangle twice, each half under its own clip.
    std::regex zone(
        "<g clip-path='url\\(#cp\\d+\\)'>\n<rect x='120' y='10' width='70' height='50' "
        "fill='#ff0000'/>\n</g>\n"
        "<g clip-path='url\\(#cp\\d+\\)'>\n<rect x='120' y='10' width='70' height='50' "
        "fill='#0000ff'/>");
    EXPECT_TRUE(std::regex_search(s, zone));
    EXPECT_NE(std::string::npos, s.find("<pattern id='b"));
    std::string png = dataOf(s, "image/png");
    EXPECT_TRUE(startsWith(png, "iVBORw0KGgo"));  // base64 of the PNG signature
    EXPECT_NE(std::string::npos, s.find("<radialGradient"));
    EXPECT_NE(std::string::npos, s.find("gradientTransform='matrix(1 0 0 0.5 0 42.75)'"));
}

TEST(SVGOutput, SymbolsAndWholePictureOperations) {
    CanvasHolder c, part;
    part->setSize(20, 10, 0x00ff00);
    c->setSize(100, 60, 0xffffff);
    c->merge(part.get(), 5, 5, 7, 0);
    c->mergeScaled(part.get(), 30, 5, 40, 20, 128);
    c->mergeRotated(part.get(), 80, 40, 30);
    std::string s = svgOf(c.get());
    EXPECT_EQ(1u, countOf(s, "<symbol id='g"));
    EXPECT_NE(std::string::npos, s.find("viewBox='0 0 20 10' preserveAspectRatio='none'"));
    EXPECT_EQ(3u, countOf(s, "<use xlink:href='#g"));
    EXPECT_NE(std::string::npos, s.find("x='30' y='5' width='40' height='20' opacity='0.498'"));
    EXPECT_NE(std::string::npos, s.find("transform='translate(80.5 40.5) rotate(30)'"));

    c->setBgRoundedClip(8, 8, 8, 8, kTransparent);
    c->setBgDropShadow(0x80000000, 4, 4, 5);
    EXPECT_EQ(110, c->getWidth());
    s = svgOf(c.get());
    EXPECT_NE(std::string::npos, s.find("viewBox='0 0 110 70'"));
    EXPECT_NE(std::string::npos,
              s.find("<feGaussianBlur result='brR' in='ofA' stdDeviation='2.5'/>"));
    EXPECT_NE(std::string::npos, s.find("values='0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0.498 0'"));
    EXPECT_NE(std::string::npos, s.find("<g transform='matrix(1 0 0 1 1 1)'>"));

    CanvasHolder moved;
    moved->setSize(50, 50, 0xffffff);
    moved->move(10, 5, 0x000000, 1, 1);
    s = svgOf(moved.get());
    EXPECT_NE(std::string::npos, s.find("<g transform='matrix(1 0 0 1 10 5)'>"));
    // The background shows where the old picture no longer lies.
    EXPECT_NE(std::string::npos, s.find("fill='#000000'"));
}

TEST(SVGOutput, BitmapAndCompressOptions) {
    CanvasHolder c;
    c->setSize(30, 20, 0xffffff);
    c->circle(15, 10, 8, 8, 0x000000, 0xff0000);
    std::string picture = svgOf(c.get(), "bitmap");
    EXPECT_EQ(1u, countOf(picture, "<image"));
    EXPECT_EQ(std::string::npos, picture.find("<path"));
    std::string png = qlx::getB64EncodeBufferSize(8) ? dataOf(picture, "image/png") : "";
    EXPECT_TRUE(startsWith(png, "iVBORw0KGgo"));

    std::string plain = svgOf(c.get());
    std::string packed = svgOf(c.get(), "compress");
    ASSERT_GE(packed.size(), 10u);
    EXPECT_EQ("\x1f\x8b", packed.substr(0, 2));
    EXPECT_EQ(plain, inflateBytes(packed, 31));
    // out() by the file ending does the same.
    TempFolder dir;
    ASSERT_TRUE(c->out(dir.file("a.svgz").c_str()));
    EXPECT_EQ(plain, inflateBytes(readFile(dir.file("a.svgz")), 31));
}

TEST(SVGOutput, NumbersIgnoreTheLocale) {
    const char *old = std::setlocale(LC_ALL, nullptr);
    std::string saved = old ? old : "C";
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) GTEST_SKIP() << "no de_DE.UTF-8 locale";
    CanvasHolder c;
    c->setSize(60, 40, 0xffffff);
    c->circle(30.25, 20.5, 12.75, 9.5, 0x000000,
              c->linearGradientColor(1, 1, 50, 30, 0xff, 0xff00, false));
    c->setOutputOptions("width=61.5");
    std::string s = svgOf(c.get(), "+height=40.5");
    std::string pdf = pdfOf(c.get());
    std::setlocale(LC_ALL, saved.c_str());
    EXPECT_NE(std::string::npos, s.find("30.75"));
    // A decimal comma would show as a digit, a comma and another number's digits.
    EXPECT_FALSE(std::regex_search(s, std::regex("[0-9],[0-9]+[ ,'][0-9]*,")));
    EXPECT_EQ(std::string::npos, s.find("30,75"));
    PdfReader r(pdf);
    ASSERT_TRUE(r.offsetsMatch());
    std::string content = r.stream(r.find("/Subtype/Form"));
    EXPECT_NE(std::string::npos, content.find("30.75"));
    EXPECT_FALSE(std::regex_search(content, std::regex("[0-9],[0-9]")));
    EXPECT_FALSE(std::regex_search(pdf.substr(0, pdf.find("stream")), std::regex("[0-9],[0-9]")));
}

TEST(SVGOutput, OutsideReadersAcceptTheDocuments) {
    if (!hasTool("rsvg-convert")) GTEST_SKIP() << "rsvg-convert missing";
    CanvasHolder c;
    c->setSize(80, 60, 0xffffff);
    c->rect(5, 5, 74, 54, 0x000000, c->linearGradientColor(5, 5, 75, 55, 0xff0000, 0x0000ff, true),
            0);
    c->line(0, 30, 79, 30, c->dashLineColor(0x00ff00, kDotLine), 3);
    TempFolder dir;
    for (const char *name : {"a.svg", "a.svgz"}) {
        ASSERT_TRUE(c->out(dir.file(name).c_str()));
        std::string out;
        EXPECT_EQ(0,
                  run("rsvg-convert '" + dir.file(name) + "' -o '" + dir.file("r.png") + "'", &out))
            << name << ": " << out;
        EXPECT_TRUE(startsWith(readFile(dir.file("r.png")), "\x89PNG")) << name;
    }
}
