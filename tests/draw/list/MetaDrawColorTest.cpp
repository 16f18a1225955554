#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "tests/draw/list/MetaDrawTestSupport.h"

using namespace metadraw_test;

namespace {

const int h0 = kDynamicColorBase, h1 = kDynamicColorBase + 1, h2 = kDynamicColorBase + 2;

struct ColorFixture : ::testing::Test {
    MetaDrawImpl *list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    ~ColorFixture() override { list->destroyList(); }
};

int countOf(const std::string &text, const std::string &what) {
    int n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

class LinearScale : public MetaDraw::PixelScale {
public:
    double toPixel(double value) const override { return 10 * value + 3; }
};

class Values : public MetaDraw::LineValues {
public:
    explicit Values(std::vector<double> v) : v(std::move(v)) {}
    double value(int i) const override { return v[i]; }
    std::vector<double> v;
};

}  // namespace

TEST_F(ColorFixture, DeferredBrushIsWrittenOnFirstUseOnly) {
    list->defineDash(h0, 0xff0000, 0x0505);
    list->defineBrightness(h1, h0, 0.5);
    list->setSize(10, 10, 0);
    EXPECT_EQ(listingOf(list), "SetSize(10, 10, 0x000000)\n") << "unused colours cost nothing";

    // The dependency first, then the colour, then the record that uses it;
    // a colour record doesn't end the line batch.
    list->addLine(0xff, 1, 0, 0, 1, 1);
    list->addLine(h1, 1, 1, 1, 2, 2);
    list->addLine(h1, 1, 2, 2, 3, 3);
    list->line(0, 0, 5, 5, h0, 1);
    EXPECT_EQ(listingOf(list),
              "SetSize(10, 10, 0x000000)\n"
              "DashLineColor(0xfffe0000, 0xff0000, 1285)\n"
              "AdjustBrightness(0xfffe0001, 0xfffe0000, 0.5)\n"
              "MultiLine(style, 0x0000ff, 1, coor, 0, 0, coor, 1, 1, style, 0xfffe0001, 1, coor, "
              "2, 2, coor, 3, 3)\n"
              "Line(0, 0, 5, 5, 0xfffe0000, 1)\n");

    // A new definition of a handle replaces the brush and is written on its next use.
    list->defineDash(h0, 0x00ff00, 0x0202);
    list->setBgColor(h0);
    std::string all = listingOf(list);
    EXPECT_NE(all.find("DashLineColor(0xfffe0000, 0x00ff00, 514)\nSetBgColor(0xfffe0000)\n"),
              std::string::npos);
    // A handle that is written at once drops a pending brush of the same number.
    list->defineRect(h1, 0, 0, 1, 1, 0xff);
    list->setBgColor(h1);
    EXPECT_EQ(countOf(listingOf(list), "AdjustBrightness"), 1);
}

TEST_F(ColorFixture, RecursionGuardStopsCycles) {
    list->defineBrightness(h0, h1, 0.5);
    list->defineBrightness(h1, h0, 2);
    list->setBgColor(h0);
    std::string all = listingOf(list);
    EXPECT_EQ(countOf(all, "AdjustBrightness(0xfffe0000"), 1);
    EXPECT_EQ(countOf(all, "AdjustBrightness(0xfffe0001"), 1);
    EXPECT_NE(all.find("SetBgColor(0xfffe0000)"), std::string::npos);

    list->defineBrightness(h2, h2, 0.5);
    list->setBgColor(h2);
    EXPECT_EQ(countOf(listingOf(list), "AdjustBrightness(0xfffe0002"), 1);
}

TEST_F(ColorFixture, RelativeGradientTakesTheSizeOfSetSize) {
    const int pairs[] = {0, 0xff0000, 256, 0x0000ff};
    list->defineRelativeGradient(h0, 0, 0.5, 1, 1, false, IntArray(pairs, 4));
    list->setSize(200, 100, h0);
    const double x[] = {0, 1, 1}, y[] = {0, 0, 1};
    list->polygon(x, y, 3, kTransparent, h0);
    list->polygon(x, y, 3, kTransparent, h0);
    EXPECT_EQ(listingOf(list),
              "LinearGradientColor(0xfffe0000, 0, 50, 200, 100, false, [0x000000, 0xff0000, "
              "0x000100, 0x0000ff])\n"
              "SetSize(200, 100, 0xfffe0000)\n"
              "RelativeLinearGradientColor(0xfffe0000, 0, 0.5, 1, 1, false, [0x000000, 0xff0000, "
              "0x000100, 0x0000ff])\n"
              "Polygon(Chart.Transparent, 0xfffe0000, [0, 1, 1], [0, 0, 1])\n"
              "Polygon(Chart.Transparent, 0xfffe0000, [0, 1, 1], [0, 0, 1])\n");
}

TEST_F(ColorFixture, ScaleBrushesAndDependents) {
    LinearScale scale;
    list->defineXYZone(h0, &scale, true, 5, 0xff0000, h1);
    list->defineDash(h1, 0x00ff00, 0x0505);
    const double values[] = {0, 10};
    const int colors[] = {0x111111, 0x222222};
    list->defineScaleColor(h2, &scale, false, DoubleArray(values, 2), IntArray(colors, 2));
    const int dependents[] = {h1};
    list->defineRegisterDependent(kDynamicColorBase + 3, IntArray(dependents, 1));
    list->setBgColor(h0);
    list->setBgColor(h2);
    EXPECT_EQ(listingOf(list),
              "DashLineColor(0xfffe0001, 0x00ff00, 1285)\n"
              "ZoneColor(0xfffe0000, true, 53, 0xff0000, 0xfffe0001)\n"
              "SetBgColor(0xfffe0000)\n"
              "LinearGradientColor(0xfffe0002, 3, 0, 103, 0, false, [0x000000, 0x111111, "
              "0x000100, 0x222222])\n"
              "SetBgColor(0xfffe0002)\n");

    // Only registers: nothing of its own, and the dependents were written already.
    MetaDrawImpl *other = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    other->defineDash(h1, 0x00ff00, 0x0505);
    other->defineRegisterDependent(h0, IntArray(dependents, 1));
    other->setBgColor(h0);
    EXPECT_EQ(listingOf(other),
              "DashLineColor(0xfffe0001, 0x00ff00, 1285)\n"
              "SetBgColor(0xfffe0000)\n");
    other->destroyList();
}

TEST_F(ColorFixture, NestedListDefinesInTheOutermostList) {
    MetaDrawImpl *inner = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    inner->setParentList(list);
    list->defineDash(h0, 0xff0000, 0x0505);
    inner->setBgColor(h0);
    EXPECT_EQ(listingOf(list), "DashLineColor(0xfffe0000, 0xff0000, 1285)\n");
    EXPECT_EQ(listingOf(inner), "SetBgColor(0xfffe0000)\n");
    inner->destroyList();
}

TEST_F(ColorFixture, TextColorsAreRegisteredFirst) {
    list->defineDash(h0, 0xff0000, 0x0505);
    list->defineDash(h1, 0x00ff00, 0x0505);
    FakeText text;
    text.colors = {h1, h1, 0, 0};
    list->drawText(&text, 1, 4, 0, 0, h0);
    std::string all = listingOf(list);
    EXPECT_EQ(all.find("DashLineColor(0xfffe0001"), 0u);
    EXPECT_LT(all.find("DashLineColor(0xfffe0000"), all.find("Text("));
    FakeText empty;
    list->drawText(&empty, 0, 0, 0, 0, 0);
    list->drawText(nullptr, 0, 0, 0, 0, 0);
    EXPECT_EQ(countOf(listingOf(list), "Text("), 2);
    list->destroyList();  // before the texts it holds
    list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    EXPECT_EQ(text.refs, 1);
}

TEST_F(ColorFixture, InterLineFillSplitsAtCrossings) {
    Values a({0, 10}), b({10, 0});
    list->interLineFill(false, &a, &b, 0xff0000, 0x0000ff, 0, 10, 0, 0, 2, -100, 100);
    EXPECT_EQ(listingOf(list),
              "Polygon(Chart.Transparent, 0x0000ff, [-5, 0, 5, 5, 0, -5], [0, 0, 5, 5, 10, 10])\n"
              "Polygon(Chart.Transparent, 0xff0000, [5, 10, 15, 15, 10, 5], [5, 10, 10, 0, 0, "
              "5])\n");

    // Missing values end a run; values are clamped; swapXY and offsets.
    MetaDrawImpl *other = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    Values c({50, kNoValue, NAN, 2, 2}), d({0, 0, 0, 0, INFINITY});
    other->interLineFill(true, &c, &d, 0xff0000, 0x0000ff, 0, 10, 100, 200, 5, 0, 20);
    EXPECT_EQ(listingOf(other),
              "Polygon(Chart.Transparent, 0xff0000, [120, 120, 100, 100], [195, 205, 205, "
              "195])\n"
              "Polygon(Chart.Transparent, 0xff0000, [102, 102, 100, 100], [225, 235, 235, "
              "225])\n");
    other->destroyList();

    // Lines that touch everywhere fill nothing.
    MetaDrawImpl *flat = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    Values e({1, 2, 3});
    flat->interLineFill(false, &e, &e, 1, 2, 0, 1, 0, 0, 3, 0, 10);
    flat->interLineFill(false, nullptr, &e, 1, 2, 0, 1, 0, 0, 3, 0, 10);
    EXPECT_EQ(listingOf(flat), "");
    flat->destroyList();
}

TEST(MetaDrawOptions, AddRemoveClearAndLookups) {
    MetaDraw *list = MetaDraw::create(nullptr);
    list->setOutputOptions(" Bitmap ; DPI = 200 ;;compress=Yes;=7");
    ASSERT_NE(list->getOption("bitmap"), nullptr);
    EXPECT_STREQ(list->getOption("bitmap"), "");
    EXPECT_STREQ(list->getOption("dpi"), "200");
    EXPECT_STREQ(list->getOption("compress"), "yes");
    EXPECT_STREQ(list->getOption("BITMAP"), "");
    EXPECT_EQ(list->getOption("alpha"), nullptr);
    EXPECT_EQ(list->getOption(nullptr), nullptr);
    EXPECT_EQ(list->getOptionNumber("dpi", 96), 200);
    EXPECT_EQ(list->getOptionNumber("bitmap", 7), 7) << "a key alone gives the default";
    EXPECT_EQ(list->getOptionNumber("alpha", 3), 3);

    list->setOutputOptions("+alpha=1.5");
    EXPECT_STREQ(list->getOption("dpi"), "200");
    EXPECT_EQ(list->getOptionNumber("alpha", 0), 1.5);
    list->setOutputOptions("-dpi; COMPRESS");
    EXPECT_EQ(list->getOption("dpi"), nullptr);
    EXPECT_EQ(list->getOption("compress"), nullptr);
    EXPECT_STREQ(list->getOption("bitmap"), "");
    list->setOutputOptions("dpi=72");
    EXPECT_EQ(list->getOption("bitmap"), nullptr) << "anything else replaces";
    list->setOutputOptions("");
    EXPECT_EQ(list->getOption("dpi"), nullptr);
    list->setOutputOptions(nullptr);

    // Parent list, then option parent, then the list's own map.
    MetaDraw *parent = MetaDraw::create(nullptr);
    MetaDraw *optionParent = MetaDraw::create(nullptr);
    list->setOptionParent(optionParent);
    list->setOutputOptions("dpi=100;own=1");
    optionParent->setOutputOptions("dpi=300;pagewidth=5");
    EXPECT_STREQ(list->getOption("dpi"), "300");
    EXPECT_STREQ(list->getOption("own"), "1");
    list->setParentList(parent);
    parent->setOutputOptions("pagewidth=9");
    EXPECT_STREQ(list->getOption("pagewidth"), "9");
    EXPECT_STREQ(list->getOption("dpi"), "300");
    // A loop of parents ends.
    parent->setOptionParent(list);
    EXPECT_EQ(list->getOption("nothing"), nullptr);

    // Numbers are read in the C locale whatever the process locale.
    const char *old = std::setlocale(LC_NUMERIC, nullptr);
    std::string saved = old ? old : "C";
    if (std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) {
        list->setOutputOptions("bmpscale=2.5");
        EXPECT_EQ(list->getOptionNumber("bmpscale", 1), 2.5);
        std::setlocale(LC_NUMERIC, saved.c_str());
    }
    list->destroyList();
    parent->destroyList();
    optionParent->destroyList();
}
