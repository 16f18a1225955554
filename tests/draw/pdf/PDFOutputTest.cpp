#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"
#include "tests/draw/vector/VectorTestSupport.h"

using namespace vectortest;

namespace {

std::string pageOf(const PdfReader &r) {
    return r.dictionary(r.find("/Type/Page/"));
}

// The canvas's form: the one that turns pixels with y down into points.
int canvasForm(const PdfReader &r) {
    for (int id : r.findAll("/Subtype/Form"))
        if (r.dictionary(id).find("/Matrix[") != std::string::npos) return id;
    return 0;
}

std::string canvasContent(const PdfReader &r) {
    return r.stream(canvasForm(r));
}

}  // namespace

TEST(PDFOutput, FileStructure) {
    CanvasHolder c;
    c->setSize(200, 100, 0xffffff);
    std::string pdf = pdfOf(c.get());
    EXPECT_EQ("%PDF-1.4\n", pdf.substr(0, 9));
    EXPECT_EQ("%%EOF", pdf.substr(pdf.size() - 5));
    PdfReader r(pdf);
    ASSERT_TRUE(r.offsetsMatch());
    EXPECT_NE(std::string::npos,
              pdf.find("trailer\n<<\n/Size " + std::to_string(r.count() + 1) + "\n"));
    // Object 1 is the one resource dictionary.
    EXPECT_EQ(0u, r.dictionary(1).find("/ProcSet[/PDF /Text /ImageB /ImageC]/XObject<<"));
    EXPECT_TRUE(
        std::regex_search(r.dictionary(r.find("/Type/Info")) + r.dictionary(r.find("/Creator")),
                          std::regex("/CreationDate\\(D:\\d{14}\\)/Creator\\(Vistrel\\)")));
    EXPECT_TRUE(std::regex_search(
        r.dictionary(r.find("/Type/Catalog")),
        std::regex("^/Type/Catalog/Pages \\d+ 0 R/OpenAction\\[\\d+ 0 R /XYZ 0 0 1\\]$")));
    EXPECT_EQ("/Type/Pages/Kids[" + std::to_string(r.find("/Type/Page/")) + " 0 R]/Count 1",
              r.dictionary(r.find("/Type/Pages")));
    // A pixel is 0.75 point by default; the form turns y over.
    std::string page = pageOf(r);
    EXPECT_EQ(0u, page.find("/Type/Page/MediaBox[0 0 150 75]/Parent "));
    EXPECT_NE(std::string::npos, page.find("/Group<</S/Transparency/CS/DeviceRGB/I true>>"));
    std::string form = r.dictionary(canvasForm(r));
    EXPECT_NE(std::string::npos, form.find("/Subtype/Form/Resources 1 0 R"));
    EXPECT_NE(std::string::npos, form.find("/BBox[0 0 200 100]/Matrix[0.75 0 0 -0.75 0 75]"));
    EXPECT_EQ(0u, canvasContent(r).find("2 J 1.42 M\n"));
}

TEST(PDFOutput, PageOptions) {
    CanvasHolder c;
    c->setSize(200, 100, 0xffffff);
    std::string oneFile = pdfOf(c.get(), "dpi=72");
    PdfReader r72(oneFile);
    EXPECT_EQ(0u, pageOf(r72).find("/Type/Page/MediaBox[0 0 200 100]"));
    std::string wide = pdfOf(c.get(), "pagewidth=400;pageheight=300");
    PdfReader rw(wide);
    EXPECT_EQ(0u, pageOf(rw).find("/Type/Page/MediaBox[0 0 400 300]"));
    // Centred: (400 - 150) / 2 from the left, (300 - 75) / 2 from the top.
    int contents = std::stoi(pageOf(rw).substr(pageOf(rw).find("/Contents ") + 10));
    EXPECT_EQ(0u, rw.stream(contents).find("q 1 0 0 1 125 112.5 cm /X"));
    std::string placed = pdfOf(c.get(), "width=100;height=50;leftx=10;topy=20;pagewidth=300");
    PdfReader rp(placed);
    int placedContents = std::stoi(pageOf(rp).substr(pageOf(rp).find("/Contents ") + 10));
    EXPECT_EQ(0u, pageOf(rp).find("/Type/Page/MediaBox[0 0 300 50]"));
    EXPECT_EQ(0u, rp.stream(placedContents).find("q 1 0 0 1 10 -20 cm /X"));
    EXPECT_NE(std::string::npos, rp.dictionary(canvasForm(rp)).find("/Matrix[0.5 0 0 -0.5 0 50]"));
}

TEST(PDFOutput, ColoursPatternsAndMasks) {
    CanvasHolder c;
    c->setSize(200, 100, 0xffffff);
    c->rect(10, 10, 49, 49, 0x000000, (int)0x80ff0000u, 0);
    int opaque = c->linearGradientColor(60, 10, 100, 10, 0xff0000, 0x0000ff, false);
    c->rect(60, 10, 99, 49, kTransparent, opaque, 0);
    std::string plain = pdfOf(c.get());
    PdfReader r(plain);
    std::string content = canvasContent(r);
    std::regex alpha("/G(\\d+) gs\n1 0 0 rg\n");
    std::smatch m;
    ASSERT_TRUE(std::regex_search(content, m, alpha));
    EXPECT_EQ("/Type/ExtGState/ca 0.498/CA 1", r.dictionary(std::stoi(m[1])));
    EXPECT_NE(std::string::npos, content.find("/Pattern cs /P"));
    int shading = r.find("/ShadingType 2");
    ASSERT_NE(0, shading);
    EXPECT_NE(std::string::npos,
              r.dictionary(shading).find("/Coords[60.5 10.5 100.5 10.5]/Domain[0 1]/Extend[true "
                                         "true]/ColorSpace/DeviceRGB/Function "));
    EXPECT_EQ(0, r.find("/SMask"));  // an opaque gradient needs no mask

    int fade = c->linearGradientColor(110, 10, 150, 10, 0x00ff00, kTransparent, false);
    c->rect(110, 10, 149, 49, kTransparent, fade, 0);
    c->line(0, 80, 199, 80, c->dashLineColor(0x000000, kDashLine), 1);
    std::string faded = pdfOf(c.get());
    PdfReader f(faded);
    EXPECT_NE(0, f.find("/ColorSpace/DeviceGray/Function"));
    int state = f.find("/SMask<</S/Luminosity/G ");
    ASSERT_NE(0, state);
    int maskForm = std::stoi(f.dictionary(state).substr(f.dictionary(state).find("/G ") + 3));
    EXPECT_NE(std::string::npos,
              f.dictionary(maskForm).find("/Group<</S/Transparency/CS/DeviceGray/I true>>"));
    EXPECT_NE(std::string::npos, f.stream(maskForm).find("scn\n110 10 m\n"));
    EXPECT_NE(std::string::npos, canvasContent(f).find("[5 5] 0 d\n0 J\n"));
}

TEST(PDFOutput, ImagesSymbolsAndTheBitmapOption) {
    CanvasHolder c, part;
    part->setSize(20, 10, (int)0x4000ff00u);
    c->setSize(100, 60, 0xffffff);
    c->merge(part.get(), 5, 5, 7, 0);
    c->mergeScaled(part.get(), 30, 5, 40, 20, 0);
    std::string pdf = pdfOf(c.get());
    PdfReader r(pdf);
    std::vector<int> forms = r.findAll("/Subtype/Form");
    EXPECT_EQ(2u, forms.size());  // the canvas and the symbol, written once
    std::string content = canvasContent(r);
    EXPECT_NE(std::string::npos, content.find("1 0 0 1 5 5 cm\n/X"));
    EXPECT_NE(std::string::npos, content.find("2 0 0 2 30 5 cm\n/X"));

    std::string picture = pdfOf(c.get(), "bitmap");
    PdfReader b(picture);
    int image = b.find(
        "/Subtype/Image/Width 100/Height 60/BitsPerComponent 8/Interpolate "
        "true/ColorSpace/DeviceRGB");
    ASSERT_NE(0, image);
    EXPECT_EQ(100u * 60 * 3, b.stream(image).size());
    EXPECT_NE(std::string::npos, canvasContent(b).find("100 0 0 -60 0 60 cm\n/X"));
}

TEST(PDFOutput, OutsideReadersAcceptTheFiles) {
    if (!hasTool("qpdf") || !hasTool("pdftoppm")) GTEST_SKIP() << "qpdf or poppler-utils missing";
    TempFolder dir;
    CanvasHolder empty;
    CanvasHolder c;
    c->setSize(120, 80, 0xffffff);
    c->circle(60, 40, 30, 30, 0x000000,
              c->radialGradientColor(60, 40, 30, 20, 0xffffff, (int)0x800000ffu, true));
    c->rect(5, 5, 50, 30, 0x000000, c->brushedTextureColor(0x909090, 2), 0);
    for (DrawArea *d : {empty.get(), c.get()}) {
        std::string path = dir.write("a.pdf", pdfOf(d));
        std::string out;
        EXPECT_EQ(0, run("qpdf --check '" + path + "'", &out)) << out;
        EXPECT_EQ(
            0, run("pdftoppm -png -singlefile -r 72 '" + path + "' '" + dir.file("p") + "'", &out))
            << out;
        EXPECT_EQ("\x89PNG", readFile(dir.file("p.png")).substr(0, 4));
        std::string info;
        run("pdfinfo '" + path + "'", &info);
        EXPECT_TRUE(std::regex_search(info, std::regex("Pages:\\s+1\n"))) << info;
    }
}
