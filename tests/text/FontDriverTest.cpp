#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "draw/canvas/DrawArea.h"
#include "tests/text/TextTestSupport.h"
#include "text/font/FontFace.h"
#include "text/font/FontGlyph.h"
#include "text/font/FontName.h"
#include "text/font/FontSearchPath.h"
#include "text/font/LibTTFFontDriver.h"
#include "text/font/LibTTFSizedFontFace.h"

namespace {

const char *const kFontDir = testFontDir();

void writeFile(const std::string &path, const std::string &bytes) {
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

std::string makeTempDir() {
    char name[] = "/tmp/vistrel_fontsXXXXXX";
    return mkdtemp(name) ? name : "/tmp";
}

bool endsWith(const std::string &s, const std::string &suffix) {
    return s.size() >= suffix.size() &&
           s.compare(s.size() - suffix.size(), suffix.size(), suffix) == 0;
}

// A driver whose clock the test moves.
class ClockedDriver : public LibTTFFontDriver {
public:
    ClockedDriver(const char *builtIn, const char *custom) : LibTTFFontDriver(builtIn, custom) {}
    long long now = 1000;

protected:
    long long currentTime() override { return now; }
};

}  // namespace

TEST(FontName, StyleWordsIndexAndFamilies) {
    FontName n = FontName::parse("Arial Bold");
    EXPECT_EQ("arialbd.ttf", n.name);
    EXPECT_EQ(0, n.style);
    n = FontName::parse("times new roman  ITALIC bold \t");
    EXPECT_EQ("timesbi.ttf", n.name);
    EXPECT_EQ(0, n.style);
    n = FontName::parse("foo.ttf bold");
    EXPECT_EQ("foo.ttf", n.name);
    EXPECT_EQ(FontFace::kBold, n.style);
    n = FontName::parse("msgothic.ttc|0x1 italic");
    EXPECT_EQ("msgothic.ttc", n.name);
    EXPECT_EQ(1, n.collectionIndex);
    EXPECT_EQ(FontFace::kItalic, n.style);
    // A family with a collection index or a path is a file name, not a family.
    n = FontName::parse("Arial|2 bold");
    EXPECT_EQ("Arial", n.name);
    EXPECT_EQ(FontFace::kBold, n.style);
    n = FontName::parse("bold");
    EXPECT_EQ("bold", n.name);
    n = FontName::parse(std::string(2000, 'x').c_str());
    EXPECT_EQ(1023u, n.name.size());

    EXPECT_STREQ("LiberationSans-BoldItalic.ttf", FontName::substituteFor("ARIALBI.TTF"));
    EXPECT_STREQ("LiberationSerif-Regular.ttf", FontName::substituteFor("times.ttf"));
    EXPECT_EQ(nullptr, FontName::substituteFor("verdana.ttf"));
    EXPECT_STREQ("Arial", FontName::portableFamilyFor("/x/LiberationSans-Bold.ttf"));
    EXPECT_STREQ("Times New Roman", FontName::portableFamilyFor("/x/timBI08.pcf"));
    EXPECT_EQ(nullptr, FontName::portableFamilyFor("/x/DejaVuSans.ttf"));
    EXPECT_EQ(FontFace::kBold | FontFace::kItalic,
              FontName::portableStyleFor("/x/LiberationSerif-BoldItalic.ttf"));
}

TEST(FontSearchPath, SearchListRules) {
    typedef std::vector<std::string> List;
    EXPECT_EQ((List{"/e1/", "/e2/", "", "/b1/", "/b2/"}),
              FontSearchPath::buildSearchList("", "/b1:/b2/", "/e1;/e2"));
    EXPECT_EQ((List{"/a/", "/e/", "", "/b/", "/c/"}),
              FontSearchPath::buildSearchList("/a:%PATH%:/c", "/b", "/e"));
    EXPECT_EQ((List{"/a/", "c:\\f\\"}), FontSearchPath::buildSearchList("/a;;c:\\f\\", "/b", "/e"));
    EXPECT_EQ((List{"", "/b/"}), FontSearchPath::buildSearchList("", "/b", nullptr));
    EXPECT_EQ((List{"", "/b/", "/z/"}), FontSearchPath::buildSearchList("%PATH%;/z", "/b", ""));
}

TEST(FontDriver, FindsTheStandInsByName) {
    LibTTFFontDriver driver(kFontDir, "");
    ASSERT_TRUE(driver.isReady());
    struct Case {
        const char *spec;
        const char *file;
        const char *family;
    } cases[] = {
        {"arial.ttf", "LiberationSans-Regular.ttf", "Arial"},
        {"Arial Bold", "LiberationSans-Bold.ttf", "Arial"},
        {"  ARIAL italic", "LiberationSans-Italic.ttf", "Arial"},
        {"times.ttf", "LiberationSerif-Regular.ttf", "Times New Roman"},
        {"Times New Roman Bold Italic", "LiberationSerif-BoldItalic.ttf", "Times New Roman"},
        {"", "LiberationSans-Regular.ttf", "Arial"},
        {"nosuchfont.ttf", "LiberationSans-Regular.ttf", "Arial"}};
    for (const Case &c : cases) {
        FontFace *face = driver.openFace(c.spec, 0, 0, 10);
        ASSERT_NE(nullptr, face) << c.spec;
        EXPECT_TRUE(endsWith(face->getFileName(), c.file)) << c.spec << " " << face->getFileName();
        EXPECT_STREQ(c.family, face->getFontName());
        EXPECT_EQ(nullptr, face->getPostscriptName());
        EXPECT_FALSE(face->isSyntheticBold());
        EXPECT_FALSE(face->isSyntheticItalic());
        EXPECT_EQ(13, face->getPixelSize());
    }
    FontFace *bold = driver.openFace("Arial Bold", 0, 0, 10);
    EXPECT_TRUE(bold->isBold());
    // Same request, same face.
    EXPECT_EQ(bold, driver.openFace("arialbd.ttf", 0, 0, 10));
}

TEST(FontDriver, GlyphMetricsAreSane) {
    LibTTFFontDriver driver(kFontDir, "");
    FontFace *face = driver.openFace("arial.ttf", 0, 0, 10);
    ASSERT_NE(nullptr, face);
    EXPECT_EQ(13, FontFace::pointsToPixels(10));
    EXPECT_GT(face->ascender, 8);
    EXPECT_LT(face->ascender, 15);
    EXPECT_GT(face->descender, 0);
    EXPECT_LT(face->descender, 6);
    EXPECT_GE(face->lineHeight, face->ascender + face->descender);
    for (int mode : {0, 1, 4, 5}) {
        FontGlyph *a = face->getGlyph('A', mode);
        ASSERT_NE(nullptr, a);
        EXPECT_GT(a->advance, 6);
        EXPECT_LT(a->advance, 12);
        EXPECT_GT(a->rows, 7);
        EXPECT_LE(a->bitmapTop, face->ascender + 1);
        EXPECT_EQ(a->rows, a->bitmapTop);  // 'A' sits on the baseline
        int format = mode == 5   ? FontGlyph::kLcdFiltered
                     : mode == 4 ? FontGlyph::kLcd
                                 : FontGlyph::kGrey;
        EXPECT_EQ(format, a->pixelFormat);
        int maxValue = 0;
        for (int i = 0; i < a->pitch * a->rows; ++i)
            maxValue = std::max(maxValue, (int)a->bitmap[i]);
        EXPECT_EQ(255, maxValue);
        if (mode == 0) {
            for (int i = 0; i < a->pitch * a->rows; ++i)
                EXPECT_TRUE(a->bitmap[i] == 0 || a->bitmap[i] == 255);
        }
        a->release();
    }
    // The cache gives the same glyph; a missing character is null and the
    // missing-glyph box stands in for it.
    FontGlyph *a1 = face->getGlyph('A', 1);
    FontGlyph *a2 = face->getGlyph('A', 1);
    EXPECT_EQ(a1, a2);
    EXPECT_EQ(nullptr, face->getGlyph(0xE123, 1));
    FontGlyph *box = face->getMissingGlyph(0xE123, 1);
    ASSERT_NE(nullptr, box);
    EXPECT_GT(box->advance, 0);
    // Twice the size, about twice the advance.
    FontFace *big = face->scaled(2);
    EXPECT_EQ(26, big->getPixelSize());
    FontGlyph *bigA = big->getGlyph('A', 1);
    EXPECT_NEAR(2 * a1->advance, bigA->advance, 1.5);
}

TEST(FontDriver, SyntheticBoldAndItalic) {
    std::string dir = makeTempDir();
    writeFile(dir + "/plain.ttf", readFile(std::string(kFontDir) + "/LiberationSans-Regular.ttf"));
    LibTTFFontDriver driver("", dir.c_str());
    FontFace *plain = driver.openFace("plain.ttf", 0, 0, 12);
    FontFace *bold = driver.openFace("plain.ttf bold", 0, 0, 12);
    FontFace *italic = driver.openFace("plain.ttf italic", 0, 0, 12);
    ASSERT_TRUE(plain && bold && italic);
    EXPECT_NE(plain, bold);
    EXPECT_TRUE(bold->isSyntheticBold());
    EXPECT_TRUE(italic->isSyntheticItalic());
    EXPECT_FALSE(plain->getPostscriptName() == nullptr);
    for (int mode : {0, 1}) {
        FontGlyph *l = plain->getGlyph('l', mode);
        FontGlyph *lb = bold->getGlyph('l', mode);
        EXPECT_EQ(l->pitch + 1, lb->pitch);
        EXPECT_EQ(l->rows, lb->rows);
        FontGlyph *li = italic->getGlyph('l', mode);
        // Sheared: wider than upright, top row further right than the bottom row.
        EXPECT_GT(li->getPixelWidth(), l->getPixelWidth());
    }
    remove((dir + "/plain.ttf").c_str());
    rmdir(dir.c_str());
}

TEST(FontDriver, TestFontReports) {
    LibTTFFontDriver driver(kFontDir, "");
    char report[2048];
    EXPECT_EQ(1, driver.testFont("nosuchfont.ttf", 0, report, sizeof(report), 10, 10));
    std::string text = report;
    EXPECT_NE(std::string::npos,
              text.find(std::string("Searching for ") + kFontDir +
                        "/nosuchfont.ttf - No such file or directory [err code = 2]\n"))
        << text;
    EXPECT_NE(std::string::npos, text.find("Failed to open as OS font\n"));

    driver.testFont("Arial", 0, report, sizeof(report), 10, 10);
    text = report;
    EXPECT_NE(std::string::npos,
              text.find("Searching for " + std::string(kFontDir) + "/arial.ttf"));
    EXPECT_NE(std::string::npos, text.find("Successfully opened " + std::string(kFontDir) +
                                           "/LiberationSans-Regular.ttf\n"))
        << text;
    // The report is cut to the buffer and stays terminated.
    char small[16];
    driver.testFont("nosuchfont.ttf", 0, small, sizeof(small), 10, 10);
    EXPECT_EQ(15u, strlen(small));
}

TEST(FontDriver, RemembersFailuresForTenSeconds) {
    std::string dir = makeTempDir();
    ClockedDriver driver("", dir.c_str());
    EXPECT_EQ(nullptr, driver.openFaceAt("late.ttf", 0, 0, 0, 10));
    writeFile(dir + "/late.ttf", readFile(std::string(kFontDir) + "/LiberationSerif-Regular.ttf"));
    driver.now += 9;
    EXPECT_EQ(nullptr, driver.openFaceAt("late.ttf", 0, 0, 0, 10));
    driver.now += 1;
    FontFace *face = driver.openFaceAt("late.ttf", 0, 0, 0, 10);
    ASSERT_NE(nullptr, face);
    EXPECT_EQ(dir + "/late.ttf", face->getFileName());
    // Very many failures within the ten seconds: the memory of them is dropped.
    EXPECT_EQ(nullptr, driver.openFaceAt("later.ttf", 0, 0, 0, 10));
    writeFile(dir + "/later.ttf", readFile(std::string(kFontDir) + "/LiberationSerif-Bold.ttf"));
    EXPECT_EQ(nullptr, driver.openFaceAt("later.ttf", 0, 0, 0, 10));
    for (int i = 0; i < 5000; ++i)
        driver.openFaceAt(("missing" + std::to_string(i) + ".ttf").c_str(), 0, 0, 0, 10);
    EXPECT_NE(nullptr, driver.openFaceAt("later.ttf", 0, 0, 0, 10));
    remove((dir + "/later.ttf").c_str());
    remove((dir + "/late.ttf").c_str());
    rmdir(dir.c_str());
}

TEST(FontDriver, FallbackListsAndResources) {
    LibTTFFontDriver driver(kFontDir, "");
    // The stand-in loads only because the item before it failed.
    FontFace *multi = driver.openFace("nosuch.ttf;?times.ttf;arial.ttf", 0, 0, 10);
    ASSERT_NE(nullptr, multi);
    EXPECT_STREQ("Times New Roman", multi->getFontName());
    multi = driver.openFace("arial.ttf;?times.ttf", 0, 0, 10);
    EXPECT_STREQ("Arial", multi->getFontName());
    EXPECT_EQ(nullptr, driver.openFace("nosuch.ttf;?nosuch2.ttf", 0, 0, 10));
    FontGlyph *g = multi->getGlyph('x', 1);
    ASSERT_NE(nullptr, g);
    EXPECT_GT(g->advance, 0);

    std::string bytes = readFile(std::string(kFontDir) + "/LiberationSans-Bold.ttf");
    DrawArea::setGlobalResource("fonttest/bold", bytes.data(), (int)bytes.size());
    FontFace *memory = driver.openFace("@/fonttest/bold", 0, 0, 10);
    ASSERT_NE(nullptr, memory);
    EXPECT_STREQ("@/fonttest/bold", memory->getFileName());
    EXPECT_TRUE(memory->isBold());
    FontGlyph *m = memory->getGlyph('m', 1);
    ASSERT_NE(nullptr, m);
    EXPECT_GT(m->rows, 0);
    DrawArea::setGlobalResource("fonttest/bold", nullptr, 0);
    char report[2048];
    driver.testFont("@/fonttest/none", 0, report, sizeof(report), 10, 10);
    EXPECT_NE(std::string::npos, std::string(report).find("Error opening global resource "));
}

TEST(FontDriver, ScaledSizesLandOnWholePixels) {
    // 10 points are 13 pixels.
    EXPECT_DOUBLE_EQ(26 * 72 / 96.0, LibTTFSizedFontFace::scaledPoints(10, 2));
    // 13 * 1.5 = 19.5: not near a whole pixel, so kept.
    EXPECT_NEAR(19.5 * 72 / 96.0, LibTTFSizedFontFace::scaledPoints(10, 1.5), 1e-6);
    // 13 * 1.538 = 19.994: close enough to 20.
    EXPECT_DOUBLE_EQ(20 * 72 / 96.0, LibTTFSizedFontFace::scaledPoints(10, 1.538));
    EXPECT_EQ((1 << 18) | 'A' | (3 << 26), LibTTFSizedFontFace::glyphKey('A', 1 | (3 << 16)));
}
