#include <gtest/gtest.h>

#include "chart/legend/LegendBoxImpl.h"
#include "chart/legend/LegendText.h"
#include "chart/symbol/DataSymbol.h"
#include "chart/symbol/ShapeWords.h"
#include "tests/chart/ChartTestSupport.h"
#include "text/template/TemplateHelpers.h"

namespace {

LegendBoxImpl *legendOf(PlainChart *chart, int x, int y, int cols) {
    return static_cast<LegendBoxImpl *>(chart->addLegend2(x, y, cols, "", 10));
}

void addKeys(LegendBox *legend, int n) {
    for (int i = 0; i < n; ++i)
        legend->addKey(("Key " + std::to_string(i)).c_str(), 0x100000 * (i + 1), -1, nullptr);
}

// The names in the order the image map lists them.
std::string namesInOrder(LegendBox *legend) {
    std::string map = legend->getHTMLImageMap("x.html", "n={dataSetName}", "", 0, 0);
    std::string names;
    for (size_t at = map.find("n="); at != std::string::npos; at = map.find("n=", at + 1))
        names += map.substr(at + 2, map.find('"', at) - at - 2) + ";";
    return names;
}

class Series : public LegendText {
public:
    explicit Series(const char *name) : name(name) {}
    std::string getText(const char *templateText, int) override {
        lastTemplate = templateText;
        return replaceString(templateText, "{dataSetName}", name.c_str());
    }
    static std::string lastTemplate;

private:
    std::string name;
};

std::string Series::lastTemplate;

}  // namespace

TEST(Legend, GridOfTwoColumnsPutsFiveKeysInThreeRows) {
    Owned<PlainChart> chart(PlainChart::create(400, 300));
    LegendBoxImpl *legend = legendOf(chart.get(), 10, 20, 2);
    addKeys(legend, 5);
    chart->layoutLegend();
    EXPECT_EQ(legend->getRowCount(), 3);
    // Columns line up; rows stack.
    std::string first = legend->getImageCoor2(0, 0, 0), second = legend->getImageCoor2(1, 0, 0),
                third = legend->getImageCoor2(2, 0, 0);
    int x0, y0, x1, y1, x2, y2, r, b;
    sscanf(first.c_str(), "shape=\"rect\" coords=\"%d,%d,%d,%d", &x0, &y0, &r, &b);
    sscanf(second.c_str(), "shape=\"rect\" coords=\"%d,%d,", &x1, &y1);
    sscanf(third.c_str(), "shape=\"rect\" coords=\"%d,%d,", &x2, &y2);
    EXPECT_EQ(y0, y1);
    EXPECT_GT(x1, r);
    EXPECT_EQ(x2, x0);
    EXPECT_GT(y2, b);
    // Automatic margins: font width left and right, font height top and bottom.
    EXPECT_EQ(x0, 10 + 10);
    EXPECT_EQ(y0, 20 + 10);
    EXPECT_EQ(legend->getLeftX(), 10);
    EXPECT_EQ(legend->getKeyStyle().keyWidth, 10);
    EXPECT_EQ(legend->getKeyStyle().keyHeight, 10);
    EXPECT_EQ(legend->getKeyStyle().keyGap, 5);
    EXPECT_EQ(legend->getImageCoor2(5, 0, 0), std::string());
}

TEST(Legend, FlowingKeysWrapAtTheRoomLeftOnTheChart) {
    Owned<PlainChart> chart(PlainChart::create(220, 300));
    LegendBoxImpl *legend = static_cast<LegendBoxImpl *>(chart->addLegend(20, 10, false, "", 10));
    addKeys(legend, 8);
    chart->layoutLegend();
    EXPECT_GT(legend->getRowCount(), 1);
    EXPECT_LE(legend->getLeftX() + legend->getWidth(), 220);
    // Flowing keys have no border unless one is given; addLegend gives one.
    EXPECT_EQ(legend->getEdgeColor(), kLineColor);

    Owned<PlainChart> wide(PlainChart::create(2000, 300));
    LegendBoxImpl *row = static_cast<LegendBoxImpl *>(wide->addLegend(20, 10, false, "", 10));
    addKeys(row, 8);
    wide->layoutLegend();
    EXPECT_EQ(row->getRowCount(), 1);
}

TEST(Legend, GivenPlaceLeftToTheChartAndBorderByMode) {
    Owned<PlainChart> chart(PlainChart::create(300, 200));
    LegendBoxImpl *legend = static_cast<LegendBoxImpl *>(chart->getLegend());
    addKeys(legend, 2);
    // No position: the chart's kind places the legend; nothing is drawn.
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(lines.size(), 1u);
    EXPECT_EQ(legend->getEdgeColor(), kTransparent);

    Owned<PlainChart> grid(PlainChart::create(300, 200));
    LegendBoxImpl *g = static_cast<LegendBoxImpl *>(grid->getLegend());
    g->setCols(1);
    g->setPos(5, 5);
    grid->layoutLegend();
    EXPECT_EQ(g->getEdgeColor(), kLineColor);
}

TEST(Legend, EmptyLegendPaintsJustItsBox) {
    Owned<PlainChart> chart(PlainChart::create(300, 200));
    LegendBoxImpl *legend = legendOf(chart.get(), 30, 40, 1);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1], "RoundedRect(30, 40, 49, 59, 0, 0x000000, Chart.Transparent)");
    EXPECT_EQ(legend->getRowCount(), 0);
}

TEST(Legend, ReverseShowsTheLastKeyFirstAfterSorting) {
    Owned<PlainChart> chart(PlainChart::create(400, 300));
    LegendBoxImpl *legend = legendOf(chart.get(), 10, 10, 1);
    legend->addKey("user", 0x00FF00, -1, nullptr);
    legend->addLegendItem(2, new Series("two"), 0x0000FF, 0, nullptr);
    legend->addLegendItem(1, new Series("one"), 0xFF0000, 0, nullptr);
    legend->addKey2(0, "first", 0x888888, -1, nullptr);
    legend->addText("note");
    Owned<PlainChart> reversed(PlainChart::create(400, 300));
    LegendBoxImpl *r = legendOf(reversed.get(), 10, 10, 1);
    r->addKey("user", 0x00FF00, -1, nullptr);
    r->addLegendItem(2, new Series("two"), 0x0000FF, 0, nullptr);
    r->addLegendItem(1, new Series("one"), 0xFF0000, 0, nullptr);
    r->setReverse(true);
    chart->layoutLegend();
    reversed->layoutLegend();
    EXPECT_EQ(namesInOrder(legend), "first;one;two;user;note;");
    EXPECT_EQ(namesInOrder(r), "user;two;one;");
}

TEST(Legend, KeySizesFollowSymbolsLinesAndSettings) {
    Owned<PlainChart> chart(PlainChart::create(400, 300));
    LegendBoxImpl *legend = legendOf(chart.get(), 10, 10, 1);
    DataSymbol symbol;
    symbol.setShape(kCircleShape, 14, -1, -1, 1);
    symbol.layoutLegend(chart->getDrawArea());
    symbol.layoutChart(chart->getDrawArea(), 0xFF0000, 0x000000);
    legend->addLegendItem(0, new Series("line"), 0xFF0000, 2, &symbol);
    legend->setLineStyleKey(true);
    chart->layoutLegend();
    // The symbol is forced to 15; a line key with a symbol is twice as wide.
    EXPECT_EQ(legend->getKeyStyle().keyWidth, 30);
    EXPECT_EQ(legend->getKeyStyle().keyHeight, 15);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_GE(lineWith(lines, "PolyLine(0xff0000, 2, [20, "), 0);
    EXPECT_EQ(countLinesWith(lines, "MergeWithScaling("), 1);

    Owned<PlainChart> bare(PlainChart::create(400, 300));
    LegendBoxImpl *keyless = legendOf(bare.get(), 10, 10, 1);
    addKeys(keyless, 1);
    keyless->setKeySize(0, -1, -1);
    Owned<PlainChart> keyed(PlainChart::create(400, 300));
    LegendBoxImpl *withKeys = legendOf(keyed.get(), 10, 10, 1);
    addKeys(withKeys, 1);
    withKeys->setKeySpacing(7, 3);
    bare->layoutLegend();
    keyed->layoutLegend();
    // Without keys only the texts remain: narrower by the key and its gap.
    EXPECT_EQ(withKeys->getWidth() - keyless->getWidth(), 10 + 5);
    std::vector<std::string> bareLines = listingLines(bare->makeChart());
    EXPECT_EQ(countLinesWith(bareLines, "0x100000"), 0);
}

TEST(Legend, UserKeysWithIconsAndTemplates) {
    Owned<PlainChart> chart(PlainChart::create(400, 300));
    LegendBoxImpl *legend = legendOf(chart.get(), 10, 10, 1);
    DrawArea *icon = DrawArea::create();
    icon->setSize(12, 6, 0x00FF00);
    legend->addKey("iconic", 0xFF0000, -1, icon);
    icon->destroy();
    legend->setText("[{dataSetName}]");
    legend->setKeyBorder(0x0000FF, 0);
    legend->addKey("plain", 0xFF0000, -1, nullptr);
    std::vector<std::string> lines = listingLines(chart->makeChart());
    EXPECT_EQ(countLinesWith(lines, "MergeWithScaling("), 1);
    EXPECT_EQ(countLinesWith(lines, "0x0000ff, 0xff0000)"), 1);
    EXPECT_EQ(legend->getKeyStyle().keyWidth, 12);
    EXPECT_EQ(namesInOrder(legend), "iconic;plain;");
    std::string map = legend->getHTMLImageMap("a.html", "", "title='{dataSetName}'", 0, 0);
    EXPECT_NE(map.find("title='iconic'"), std::string::npos);
    EXPECT_NE(map.find("href=\"a.html?dataSet={dataSet}&dataSetName=plain\""), std::string::npos);

    // Layers' keys get the legend's template; an empty one means the data set name.
    Owned<PlainChart> layered(PlainChart::create(400, 300));
    LegendBoxImpl *keys = legendOf(layered.get(), 10, 10, 1);
    keys->addLegendItem(0, new Series("s"), 0xFF0000, 0, nullptr);
    layered->layoutLegend();
    EXPECT_EQ(Series::lastTemplate, "{dataSetName}");
    Owned<PlainChart> templated(PlainChart::create(400, 300));
    LegendBoxImpl *styled = legendOf(templated.get(), 10, 10, 1);
    styled->setText("[{dataSetName}]");
    styled->addLegendItem(0, new Series("s"), 0xFF0000, 0, nullptr);
    templated->layoutLegend();
    EXPECT_EQ(Series::lastTemplate, "[{dataSetName}]");
}
