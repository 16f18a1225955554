#include <gtest/gtest.h>

#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "tests/chart/ChartTestSupport.h"
#include "text/CanvasText.h"
#include "text/layout/TTFText.h"
#include "text/box/TextBoxImpl2.h"
#include "text/box/VSMLTableImpl.h"

namespace {

class TextBoxes : public ::testing::Test {
protected:
    void SetUp() override {
        CanvasText::install();
        canvas = DrawArea::create();
        canvas->setSize(300, 200, 0xFFFFFF);
    }
    void TearDown() override {
        for (BoxImpl *b : boxes) b->release();
        canvas->destroy();
    }
    TextBoxImpl *box(const char *text, int x, int y, int alignment) {
        TextBoxImpl *b = new TextBoxImpl(nullptr);
        boxes.push_back(b);
        b->setText(text);
        b->setPos(x, y);
        b->setAlignment(alignment);
        b->setFontSize(10, 0);
        return b;
    }
    DrawArea *canvas;
    std::vector<BoxImpl *> boxes;
};

}  // namespace

TEST_F(TextBoxes, WithoutSizeTheAlignmentPointOfTheTextLiesAtThePosition) {
    TextBoxImpl *centre = box("Centred", 150, 100, kCenter);
    centre->layout(canvas);
    int tw = centre->getTextObject()->getWidth(), th = centre->getTextObject()->getHeight();
    EXPECT_EQ(centre->getLeftX() + centre->getUsedMargin(0) + tw / 2, 150);
    EXPECT_EQ(centre->getTopY() + centre->getUsedMargin(2) + th / 2, 100);
    EXPECT_EQ(centre->getWidth(), tw + centre->getUsedMargin(0) + centre->getUsedMargin(1));

    TextBoxImpl *corner = box("Corner", 150, 100, kBottomRight);
    corner->layout(canvas);
    EXPECT_EQ(corner->getLeftX() + corner->getWidth() - 1, 150);
    EXPECT_EQ(corner->getTopY() + corner->getHeight() - 1, 100);

    TextBoxImpl *topLeft = box("Top left", 150, 100, kTopLeft);
    topLeft->layout(canvas);
    EXPECT_EQ(topLeft->getLeftX(), 150);
    EXPECT_EQ(topLeft->getTopY(), 100);
}

TEST_F(TextBoxes, WithSizeThePositionIsTheCornerAndTheTextIsAlignedInside) {
    TextBoxImpl *b = box("Mid", 40, 30, kCenter);
    b->setSize(120, 60);
    b->setBackground(kTransparent, 0x000000, 0);
    b->paint(canvas);
    EXPECT_EQ(b->getLeftX(), 40);
    EXPECT_EQ(b->getTopY(), 30);
    InkBox ink = findInk(canvas, 42, 32, 157, 87);
    ASSERT_TRUE(ink.found);
    EXPECT_NEAR((ink.left + ink.right) / 2.0, 40 + 60, 3);
    EXPECT_NEAR((ink.top + ink.bottom) / 2.0, 30 + 30, 4);
    // The border is the given size.
    EXPECT_EQ(canvas->getPixel(40, 30) & 0xFFFFFF, 0x000000);
    EXPECT_EQ(canvas->getPixel(159, 89) & 0xFFFFFF, 0x000000);
    EXPECT_EQ(canvas->getPixel(160, 90) & 0xFFFFFF, 0xFFFFFF);

    // Anchored, a sized box moves by its alignment too.
    TextBoxImpl *anchored = box("A", 200, 150, kBottomRight);
    anchored->setSize(50, 20);
    anchored->setAnchored(true);
    anchored->layout(canvas);
    EXPECT_EQ(anchored->getLeftX(), 151);
    EXPECT_EQ(anchored->getTopY(), 131);
}

TEST_F(TextBoxes, EmptyBoxesPaintOnlyWhenSized) {
    size_t before = listingLines(canvas).size();
    TextBoxImpl *empty = box("", 10, 10, kTopLeft);
    empty->setBackground(0xFF0000, kTransparent, 0);
    empty->paint(canvas);
    EXPECT_EQ(listingLines(canvas).size(), before);
    empty->setSize(20, 10);
    empty->paint(canvas);
    std::vector<std::string> lines = listingLines(canvas);
    ASSERT_EQ(lines.size(), before + 1);
    EXPECT_EQ(lines.back(), "RoundedRect(10, 10, 29, 19, 0, Chart.Transparent, 0xff0000)");
}

TEST_F(TextBoxes, MarginsAutomaticFromTheFontOrGiven) {
    TextBoxImpl *b = box("x", 0, 0, kTopLeft);
    b->setFontSize(8, 0);
    b->layout(canvas);
    // Left, right, top, bottom for an 8-point horizontal text.
    EXPECT_EQ(b->getUsedMargin(0), 7);
    EXPECT_EQ(b->getUsedMargin(1), 6);
    EXPECT_EQ(b->getUsedMargin(2), 4);
    EXPECT_EQ(b->getUsedMargin(3), 3);
    // Turned by 90 degrees, the text's ends face up and down.
    EXPECT_EQ(b->getAdjustedMargin(-1, TextBoxImpl::kTopSide), 4);
    b->setFontAngle(90, false);
    EXPECT_EQ(b->getAdjustedMargin(-1, TextBoxImpl::kTopSide), 6);
    EXPECT_EQ(b->getAdjustedMargin(-1, TextBoxImpl::kLeftSide), 4);
    // A flat border of 3 adds 2 on each side.
    b->setFontAngle(0, false);
    b->setBackground(kTransparent, 0, 0x600003);
    EXPECT_EQ(b->getAdjustedMargin(-1, TextBoxImpl::kLeftSide), 9);

    TextBoxImpl *fixed = box("x", 0, 0, kTopLeft);
    fixed->setMargin(5);
    fixed->layout(canvas);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(fixed->getUsedMargin(i), 5);
    fixed->setMargin2(1, 2, 3, -1);
    fixed->resetLayout();
    fixed->layout(canvas);
    EXPECT_EQ(fixed->getUsedMargin(0), 1);
    EXPECT_EQ(fixed->getUsedMargin(3), (10 + 4) / 6 + 1);
}

TEST_F(TextBoxes, TruncationAndWrapping) {
    const char *longText = "A long sentence that will not fit in one hundred pixels at all";
    TextBoxImpl *one = box("A", 0, 0, kTopLeft);
    one->layout(canvas);
    int lineHeight = one->getTextObject()->getHeight();

    TextBoxImpl *cut = box(longText, 0, 0, kTopLeft);
    cut->setTruncate(100, 1);
    cut->layout(canvas);
    EXPECT_LE(cut->getTextObject()->getWidth(), 100);
    EXPECT_EQ(cut->getTextObject()->getHeight(), lineHeight);

    TextBoxImpl *wrapped = box(longText, 0, 0, kTopLeft);
    wrapped->setMaxWidth(120);
    wrapped->layout(canvas);
    EXPECT_LE(wrapped->getWidth(), 120);
    EXPECT_GE(wrapped->getTextObject()->getHeight(), 3 * lineHeight);

    // A given width wraps the text too.
    TextBoxImpl *sized = box(longText, 0, 0, kTopLeft);
    sized->setWidth(150);
    sized->layout(canvas);
    EXPECT_EQ(sized->getWidth(), 150);
    EXPECT_GE(sized->getHeight(), 2 * lineHeight);
}

TEST_F(TextBoxes, ImageMapShapeIsARectangleOrATurnedOne) {
    TextBoxImpl *flat = box("Label", 50, 40, kTopLeft);
    flat->layout(canvas);
    char expected[128];
    snprintf(expected, sizeof(expected), "shape=\"rect\" coords=\"%d,%d,%d,%d\"", 60, 45,
             50 + flat->getWidth() - 1 + 10, 40 + flat->getHeight() - 1 + 5);
    EXPECT_STREQ(flat->getImageCoor(10, 5), expected);

    TextBoxImpl *turned = box("Label", 150, 100, kCenter);
    turned->setFontAngle(45, false);
    turned->layout(canvas);
    std::string coor = turned->getImageCoor(0, 0);
    EXPECT_EQ(coor.rfind("shape=\"poly\" coords=\"", 0), 0u);
    EXPECT_EQ(std::count(coor.begin(), coor.end(), ','), 7);
    std::vector<int> corners = turned->getPreciseCoor(0, 0);
    ASSERT_EQ(corners.size(), 8u);
    // A square's worth of diagonal: the four corners centre on the box.
    double cx = 0, cy = 0;
    for (int i = 0; i < 4; ++i) cx += corners[2 * i] / 4.0, cy += corners[2 * i + 1] / 4.0;
    EXPECT_NEAR(cx, turned->getLeftX() + turned->getWidth() / 2.0, 2);
    EXPECT_NEAR(cy, turned->getTopY() + turned->getHeight() / 2.0, 2);
}

TEST_F(TextBoxes, RoundedCornersAndRoundChartCorners) {
    TextBoxImpl *b = box("", 10, 10, kTopLeft);
    b->setSize(40, 20);
    b->setBackground(0x00FF00, 0x000000, 0);
    b->setRoundedCorners(10, -1, -1, -1);
    b->paint(canvas);
    EXPECT_EQ(listingLines(canvas).back(), "RoundedRect(10, 10, 49, 29, 10, 0x000000, 0x00ff00)");

    // A box in a corner of a round chart follows the chart's corner.
    Owned<PlainChart> chart(PlainChart::create(200, 100));
    chart->setRoundedFrame(0xFFFFFF, 12, 0, 0, 0);
    TextBoxImpl *title = dynamic_cast<TextBoxImpl *>(
        chart->addTitle("Title", "", 10, kTextColor, 0xDDDDDD, kTransparent));
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_GE(lineWith(lines, "MultiRoundedRect(0, 0, 199, " +
                                  std::to_string(title->getHeight() - 1) + ", 12, 0, 0, 0"),
              0);
}

TEST_F(TextBoxes, PrototypeLeavesUnsetSettingsToItsParent) {
    TextBoxImpl *style = box("{value}", 0, 0, kTopLeft);
    style->setFontStyle("bold", 0);
    style->setFontColor(0x123456);
    style->setBackground(0xFFEEDD, kTransparent, 0);
    TextBoxImpl2 *label = new TextBoxImpl2(nullptr, style);
    boxes.push_back(label);
    EXPECT_FALSE(label->isEmpty());
    EXPECT_EQ(label->getFont(), "bold");
    EXPECT_EQ(label->getBgColor(), 0xFFEEDD);
    label->setText("12");
    label->setFontColor(0xFF0000);
    EXPECT_EQ(label->getText(), "12");
    EXPECT_EQ(label->getFontColor(), 0xFF0000);
    EXPECT_EQ(style->getFontColor(), 0x123456);
    // Changes to the parent show through where the label has no setting.
    style->setFontSize(20, 0);
    EXPECT_EQ(label->getFontHeight(), 20);

    EXPECT_EQ(label->getTextImpl(), nullptr);
    label->layout(canvas);
    TTFText *first = label->getTextImpl();
    ASSERT_NE(first, nullptr);
    TextBoxImpl2 *copy = label->copy();
    boxes.push_back(copy);
    EXPECT_EQ(copy->getText(), "12");
    TTFText *second = copy->getTextImpl();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(second->getWidth(), first->getWidth());

    TextBoxImpl2 *orphan = new TextBoxImpl2(nullptr, nullptr);
    boxes.push_back(orphan);
    EXPECT_TRUE(orphan->isEmpty());
    EXPECT_EQ(orphan->getAlignment(), kCenter);
}

TEST_F(TextBoxes, TableColumnsTakeTheirWidestCellAndCellsShareBorders) {
    VSMLTableImpl table(nullptr, 2, 2);
    table.setPos(250, 150, kBottomRight);
    table.setText(0, 0, "Name");
    table.setText(1, 0, "1");
    table.setText(0, 1, "A much longer name");
    table.setText(1, 1, "22");
    EXPECT_EQ(table.getCell(2, 0), nullptr);
    EXPECT_EQ(table.getCell(0, -1), nullptr);
    EXPECT_EQ(table.getColStyle(2), nullptr);
    table.getColStyle(1)->setAlignment(kRight);
    table.paint(canvas);
    TextBox *a = table.getCell(0, 0), *b = table.getCell(1, 0), *c = table.getCell(0, 1);
    EXPECT_EQ(a->getWidth(), c->getWidth());
    EXPECT_EQ(b->getLeftX(), a->getLeftX() + a->getWidth() - 1);
    EXPECT_EQ(c->getTopY(), a->getTopY() + a->getHeight() - 1);
    EXPECT_EQ(table.getLeftX() + table.getWidth() - 1, 250);
    EXPECT_EQ(table.getTopY() + table.getHeight() - 1, 150);
    EXPECT_EQ(table.getWidth(), a->getWidth() + b->getWidth() - 1);
    EXPECT_EQ(dynamic_cast<TextBoxImpl *>(b)->getAlignment(), kRight);

    VSMLTableImpl empty(nullptr, -3, 4);
    EXPECT_EQ(empty.getRowCount(), 0);
    size_t before = listingLines(canvas).size();
    empty.paint(canvas);
    EXPECT_EQ(listingLines(canvas).size(), before);
}
