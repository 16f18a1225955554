#include <gtest/gtest.h>

#include <cstring>

#include "draw/list/MetaListing.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/list/MetaRecordCall.h"
#include "draw/list/MetaRecordReader.h"
#include "draw/pixel/ColorWords.h"
#include "tests/draw/list/MetaDrawTestSupport.h"

using namespace metadraw_test;

namespace {

std::string colorName(unsigned word) {
    char buf[64];
    MetaListing::formatColor(buf, sizeof buf, (int)word);
    return buf;
}

struct ListFixture : ::testing::Test {
    MetaDrawImpl *list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    ~ListFixture() override { list->destroyList(); }
    std::vector<int> words() const {
        return std::vector<int>(list->streamWords(), list->streamWords() + list->getEndPos());
    }
};

}  // namespace

TEST(MetaDrawListing, ColorNames) {
    EXPECT_EQ(colorName(0xff000000u), "Chart.Transparent");
    EXPECT_EQ(colorName(0x00123456u), "0x123456");
    EXPECT_EQ(colorName(0x1234u), "0x001234");
    EXPECT_EQ(colorName(0x80123456u), "0x80123456");
    EXPECT_EQ(colorName(0xfffe0003u), "0xfffe0003");
    EXPECT_EQ(colorName(0xffff8123u), "0xffff8123");
    EXPECT_EQ(colorName(0xffff0000u), "Chart.BackgroundColor");
    EXPECT_EQ(colorName(0xffff0001u), "Chart.LineColor");
    EXPECT_EQ(colorName(0xffff0002u), "Chart.TextColor");
    EXPECT_EQ(colorName(0xffff0004u), "Chart.ContextColor0");
    EXPECT_EQ(colorName(0xffff0005u), "Chart.ContextColor1");
    EXPECT_EQ(colorName(0xffff0006u), "Chart.ContextColor2");
    EXPECT_EQ(colorName(0xffff0007u), "Chart.SameAsMainColor");
    EXPECT_EQ(colorName(0xffff0008u), "Chart.DataColor + 0");
    EXPECT_EQ(colorName(0xffff0009u), "Chart.DataColor + 1");
    EXPECT_EQ(colorName(0xffff7fffu), "Chart.DataColor + 32759");
}

TEST_F(ListFixture, RecordLayoutAndWordCounts) {
    list->setSize(100, 50, 0xffffff);
    // The open record has a length of 0 until the next one starts.
    EXPECT_EQ(words(), (std::vector<int>{0, 0, 100, 50, 0xffffff}));
    list->line(1, 2, 3, 4, 0xff, 2);
    std::vector<int> w = words();
    ASSERT_EQ(w.size(), 5u + 2 + 8 + 2);
    EXPECT_EQ(w[0], 5);
    EXPECT_EQ(w[5], 0);
    EXPECT_EQ(w[6], (int)kOpLine);
    double x1;
    std::memcpy(&x1, &w[7], sizeof x1);
    EXPECT_EQ(x1, 1.0);

    // A string of 5 bytes takes 3 words: the length and two words of bytes.
    int before = list->getEndPos();
    list->definePatternFile(kDynamicColorBase, 1, 2, "abcde");
    EXPECT_EQ(list->getEndPos() - before, 2 + 3 + 3);
    EXPECT_EQ(list->streamWords()[before + 5], 5);
    EXPECT_EQ(list->streamWords()[before + 6], 'a' | 'b' << 8 | 'c' << 16 | 'd' << 24);
    EXPECT_EQ(list->streamWords()[before + 7], 'e');
    listingOf(list);
    EXPECT_EQ(list->streamWords()[5], 12);
    EXPECT_EQ(list->streamWords()[before], 8);
}

TEST(MetaDrawListing, EncodeAndDecodeEveryLetter) {
    const double d[] = {1.5, -2};
    const int ints[] = {7, -8, 9};
    const uint16_t wide[] = {'h', 0xe9, 'y'};
    std::vector<int> w;
    const char *bytes = "abcde";
    putSlots(w, true, -3, 0x123456, 0.25, bytes);
    // No record writes 16-bit units: their words by hand, low half first.
    w.insert(w.end(), {3, wide[0] | wide[1] << 16, wide[2]});
    putSlots(w, DoubleArray(d, 2), IntArray(ints, 3), IntArray(ints, 2));
    EXPECT_EQ(w.size(), 1u + 1 + 1 + 2 + 3 + 3 + 5 + 4 + 3);
    static_assert(slotsFit<bool, int, int, double, const char *>("bixds"), "");
    static_assert(!slotsFit<bool>("i"), "a boolean where an integer belongs");
    static_assert(!slotsFit<int>("ii") && !slotsFit<int, int>("i"), "counts differ");
    static_assert(slotsFit<const double(&)[2], IntArray>("ddX"), "an array takes a letter each");

    MetaRecordReader r;
    r.reset(w.data(), 0, (int)w.size());
    ASSERT_EQ(r.decode("bixdswDIX", nullptr, 1), MetaRecordReader::kOk);
    EXPECT_TRUE(r.atEnd());
    EXPECT_TRUE(r.flag(0));
    EXPECT_EQ(r.integer(1), -3);
    EXPECT_EQ(r.integer(2), 0x123456);
    EXPECT_EQ(r.number(3), 0.25);
    EXPECT_EQ(std::string(r.bytes(4), r.length(4)), "abcde");
    EXPECT_EQ(r.length(5), 3);
    EXPECT_EQ(r.units(5)[1], 0xe9);
    EXPECT_EQ(r.doubles(6)[1], -2);
    EXPECT_EQ(r.ints(7)[2], 9);
    EXPECT_EQ(r.length(8), 2);

    // Scaling touches only the marked arguments, integers rounded.
    r.reset(w.data(), 0, (int)w.size());
    ASSERT_EQ(r.decode("bixdswDI", ".s.s..ss", 2.5), MetaRecordReader::kOk);
    EXPECT_EQ(r.integer(1), -7);
    EXPECT_EQ(r.integer(2), 0x123456);
    EXPECT_EQ(r.number(3), 0.625);
    EXPECT_EQ(r.doubles(6)[0], 3.75);
    EXPECT_EQ(r.ints(7)[0], 18);

    // Short input and unknown letters.
    r.reset(w.data(), 0, 3);
    EXPECT_EQ(r.decode("bixd", nullptr, 1), MetaRecordReader::kShortInput);
    r.reset(w.data(), 0, (int)w.size());
    EXPECT_EQ(r.decode("bq", nullptr, 1), MetaRecordReader::kBadFormat);
}

TEST_F(ListFixture, ListingOfEachFormat) {
    const int h = kDynamicColorBase;
    list->setSize(100, 50, 0xffffff);
    list->affineTransform(1, 0, 0, 1, 5, 0.1, kTransparent, 2, 1.5);
    list->setClipRect(0, 0, 99, 49);
    list->setBgColor((int)0xffff0005u);
    list->setBgRoundedClip(1, 2, 3, 4, (int)0xffff0000u);
    list->line(1.5, -2, 3, 4, (int)0xffff0009u, 2);
    const int radius[4] = {3, 3, 3, 3}, edges[4] = {1, 1, 1, 1};
    list->roundedRect(0, 0, 10, 10, radius, edges, 0xff);
    const int radius2[4] = {1, 2, 3, 4}, edges2[4] = {1, 2, 3, 4};
    list->roundedRect(0, 0, 10, 10, radius2, edges2, 0xff);
    const double x[] = {1, 2, 3}, y[] = {4, 5, 6.5};
    list->polygon(x, y, 3, 0xff0000, 0x00ff00);
    list->exactPolygon(x, y, 2, 0xffff0001);
    list->gouraudTriangle(0, 0, 1, 10, 0, 0.5, 0, 10, 0, 0x808080);
    list->beginSuperPixelMode();
    list->commitSuperPixels();
    const int layers[] = {0x112233, (int)0xffff0001u};
    list->defineMultiLayer(h + 1, IntArray(layers, 2));
    const int lighting[] = {0, 1024, 256, 2048};
    list->defineLighting(h + 2, 0x808080, 0, 0, 10, 10, true, IntArray(lighting, 4));
    list->definePatternFile(h + 3, 1, 2, "a\"b\nc\x01\\");
    list->defineZone(h + 4, true, 20, 0xff0000, kTransparent);
    list->setSubDrawMode();
    EXPECT_EQ(listingOf(list),
              "SetSize(100, 50, 0xffffff)\n"
              "AffineTransform(1, 0, 0, 1, 5, 0.10000000000000000555, Chart.Transparent, 2, "
              "1.5)\n"
              "SetClipRect(0, 0, 99, 49)\n"
              "SetBgColor(Chart.ContextColor1)\n"
              "SetBgRoundedClip(1, 2, 3, 4, Chart.BackgroundColor)\n"
              "Line(1.5, -2, 3, 4, Chart.DataColor + 1, 2)\n"
              "RoundedRect(0, 0, 10, 10, 3, 0x000001, 0x0000ff)\n"
              "MultiRoundedRect(0, 0, 10, 10, 1, 2, 3, 4, 0x000001, 0x000002, 0x000003, "
              "0x000004, 0x0000ff)\n"
              "Polygon(0xff0000, 0x00ff00, [1, 2, 3], [4, 5, 6.5])\n"
              "ExactPolygon(Chart.LineColor, [1, 2], [4, 5])\n"
              "GouraudShadedTriangle(0, 0, 1, 10, 0, 0.5, 0, 10, 0, 0x808080)\n"
              "BeginSuperPixelMode()\n"
              "CommitSuperPixels()\n"
              "MultiLayerColor(0xfffe0001, [0x112233, Chart.LineColor])\n"
              "LightingColor(0xfffe0002, 0x808080, 0, 0, 10, 10, true, [0, 1024, 256, 2048])\n"
              "PatternColor2(0xfffe0003, 1, 2, \"a\\\"b\\nc\\x01\\\")\n"
              "ZoneColor(0xfffe0004, true, 20, 0xff0000, Chart.Transparent)\n"
              "SetSubDrawMode()\n");
}

TEST_F(ListFixture, LineBatching) {
    // Joined segments of one style: one PolyLine.  A jump starts a new batch.
    list->addLine(0xff0000, 1, 0, 0, 10, 0);
    list->addLine(0xff0000, 1, 10, 0, 20, 5);
    list->addLine(0xff0000, 1, 30, 0, 40, 0);
    // A colour definition doesn't end the batch; a drawing record does.
    list->defineRect(kDynamicColorBase, 0, 0, 1, 1, 0x00ff00);
    list->addLine(0xff0000, 1, 40, 0, 50, 0);
    list->line(0, 0, 1, 1, 0xff, 1);
    // Styles change inside a batch: MultiLine.
    list->addLine(0xff0000, 1, 0, 0, 10, 0);
    list->addLine(0x0000ff, 2, 10, 0, 10, 10);
    list->addLine(0x0000ff, 2, 10, 10, 0, 10);
    list->flushLines();
    // A batch that only moved draws nothing, and is dropped.
    list->moveLineTo(0xff, 3, 3, 4);
    list->flushLines();
    // A style that no segment followed is dropped with it.
    list->addLine(0xff, 1, 0, 0, 5, 5);
    list->moveLineTo(0xff00, 2, 5, 5);
    list->moveLineTo(0xff0000, 3, 5, 5);
    list->flushLines();
    // The style set at the first point is the one of the first segment.
    list->moveLineTo(0xff00, 2, 1, 1);
    list->addLine(0xff, 1, 1, 1, 2, 2);
    list->addLine(0xff, 2, 2, 2, 3, 3);
    list->flushLines();
    EXPECT_EQ(listingOf(list),
              "PolyLine(0xff0000, 1, [0, 0, 10, 0, 20, 5])\n"
              "RectColor(0xfffe0000, 0, 0, 1, 1, 0x00ff00)\n"
              "PolyLine(0xff0000, 1, [30, 0, 40, 0, 50, 0])\n"
              "Line(0, 0, 1, 1, 0x0000ff, 1)\n"
              "MultiLine(style, 0xff0000, 1, coor, 0, 0, coor, 10, 0, style, 0x0000ff, 2, coor, "
              "10, 10, coor, 0, 10)\n"
              "PolyLine(0x0000ff, 1, [0, 0, 5, 5])\n"
              "MultiLine(style, 0x0000ff, 1, coor, 1, 1, coor, 2, 2, style, 0x0000ff, 2, coor, 3, "
              "3)\n");
    // Nothing pending: flushing again adds nothing.
    int end = list->getEndPos();
    list->flushLines();
    EXPECT_EQ(list->getEndPos(), end);
}

TEST_F(ListFixture, ShapeTextAndSymbols) {
    MetaDraw::MetaShape *shape = list->createShape();
    shape->addLine(0xff0000, true, 0, 0, 10, 0);
    shape->addArc(0x00ff00, 5, 5, 5, 5, 0, 5, 10, 5);
    shape->addArc2(0x0000ff, false, 5, 5, 2, 3, 0, 90, 1, 2, 3, 4);
    shape->paint(0x123456, true, false);
    shape->destroy();

    FakeText text;
    text.colors = {0, 0x00ff00, 0};
    list->drawText(&text, 0, 3, 10, 20, 0xff);
    EXPECT_EQ(text.refs, 2);

    MetaDrawImpl *source = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->setSize(10, 10, 0);
    list->mergeScaled(source, 1, 2, 10, 10, 0);
    list->mergeRotated(source, 1, 2, 45);
    std::string id = str(source->getId());

    std::string all = listingOf(list);
    size_t textAt = all.find("Text(");
    ASSERT_NE(textAt, std::string::npos);
    size_t comma = all.find(',', textAt);
    std::string textId = all.substr(textAt + 5, comma - textAt - 5);
    EXPECT_EQ(all,
              "Shape(0x123456, true, false, Line, 0, 0, 10, 0, 0xff0000, true, Arc, 5, 5, 5, 5, "
              "0, 5, 10, 5, 0x00ff00, Arc2, 5, 5, 2, 3, 0, 90, 1, 2, 3, 4, 0x0000ff, false)\n"
              "Text(" +
                  textId +
                  ", (0, 3), 10, 20, 0x0000ff)\n"
                  "DefineSymbol(" +
                  id +
                  ")\n"
                  "SetSize(10, 10, 0x000000)\n"
                  "EndDefineSymbol(" +
                  id +
                  ")\n"
                  "MergeWithScaling(" +
                  id +
                  ", 1, 2, 10, 10, 0)\n"
                  "MergeWithRotation(" +
                  id + ", 1, 2, 45)\n");
    list->destroyList();
    list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    EXPECT_EQ(text.refs, 1) << "the list releases its texts";
    source->destroyList();
}

TEST_F(ListFixture, FaultsInACorruptedStream) {
    list->setSize(10, 10, 0);
    const int tooShort[] = {4, (int)kOpResize, 10, 0};  // Resize needs "ii": 10 and 0 fit
    const int resize[] = {3, (int)kOpResize, 10};
    const int extra[] = {5, (int)kOpSetBgColor, 1, 2, 3};
    const int badPath[] = {7, (int)kOpShape, 0, 0, 0, 7, 1};
    const int badCount[] = {5, (int)kOpPolyLine, 0, 1, -1};
    const int badItem[] = {4, (int)kOpMultiLine, 5, 0};
    const int unknown[] = {3, 99, 0};
    for (const auto &raw :
         {std::vector<int>(tooShort, tooShort + 4), std::vector<int>(resize, resize + 3),
          std::vector<int>(extra, extra + 5), std::vector<int>(badPath, badPath + 7),
          std::vector<int>(badCount, badCount + 5), std::vector<int>(badItem, badItem + 4),
          std::vector<int>(unknown, unknown + 3)})
        list->appendRawWords(raw.data(), (int)raw.size());
    list->setBgColor(0xff);
    EXPECT_EQ(listingOf(list),
              "SetSize(10, 10, 0x000000)\n"
              "Resize(10, 0)\n"
              "Resize(10)\n"
              "/* Insufficient input when reading format list ii at 1, skipping 0 bytes*/\n"
              "SetBgColor(0x000001)\n"
              "/* Extra bytes following OpCode 4, skipping 8 bytes*/\n"
              "Shape(0x000000, false, false)\n"
              "/* Unknown path type 7, skipping 4 bytes*/\n"
              "PolyLine(0x000000, 1)\n"
              "/* Insufficient input when reading format list xiD at 8, skipping 0 bytes*/\n"
              "MultiLine()\n"
              "/* Unknown path type 5, skipping 4 bytes*/\n"
              "/* Unknown OpCode 99, skipping 4 bytes*/\n");

    // Play goes on behind an unknown opcode and reports each fault.
    RecordingBackEnd backEnd;
    list->play(&backEnd, 0);
    std::vector<std::string> errors;
    for (const std::string &c : backEnd.calls)
        if (c.compare(0, 6, "error ") == 0) errors.push_back(c.substr(6));
    EXPECT_EQ(errors,
              (std::vector<std::string>{
                  "Insufficient input when reading format list ii at 1, skipping 0 bytes",
                  "Extra bytes following OpCode 4, skipping 8 bytes",
                  "Unknown path type 7, skipping 4 bytes",
                  "Insufficient input when reading format list xiD at 8, skipping 0 bytes",
                  "Unknown path type 5, skipping 4 bytes", "Unknown OpCode 99, skipping 4 bytes"}));
    EXPECT_EQ(backEnd.calls[backEnd.calls.size() - 2], "setBgColor 255");
}

TEST(MetaDrawListing, TablesAreIndexedByCode) {
    for (unsigned op = 0; op <= kOpMergeAtPoints; ++op) {
        ASSERT_NE(findMetaOpcode(op), nullptr);
        EXPECT_EQ(findMetaOpcode(op)->code, op);
        EXPECT_EQ(std::strlen(findMetaOpcode(op)->format), std::strlen(findMetaOpcode(op)->scaled));
    }
    for (unsigned op = kOpSetSubDrawMode; op <= kOpRectColor; ++op) {
        ASSERT_NE(findMetaOpcode(op), nullptr);
        EXPECT_EQ(findMetaOpcode(op)->code, op);
        EXPECT_EQ(std::strlen(findMetaOpcode(op)->format), std::strlen(findMetaOpcode(op)->scaled));
    }
    EXPECT_EQ(findMetaOpcode(kOpMergeAtPoints + 1), nullptr);
    EXPECT_EQ(findMetaOpcode(kOpRectColor + 1), nullptr);
    for (unsigned t = 0; t < 3; ++t) EXPECT_EQ(findMetaPathType(t)->code, t);
    EXPECT_EQ(findMetaPathType(3), nullptr);
    EXPECT_STREQ(findMetaLineItem(kLineItemCoor)->name, "coor");
    EXPECT_STREQ(findMetaLineItem(kLineItemStyle)->name, "style");
}
