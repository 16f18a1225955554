#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "chart/legend/LegendBox.h"
#include "tests/families/PieTestSupport.h"
#include "text/box/TextBoxImpl2.h"

namespace {

std::string labelText(OwnedPie &pie, int i) {
    pie->layout();
    return pie.sector(i)->getLabel().getBox()->getText();
}

std::vector<Rect> labelRects(OwnedPie &pie, const std::vector<int> &sectors) {
    pie->layout();
    std::vector<Rect> rects;
    for (int i : sectors) rects.push_back(rectOf(pie->sector(i)->getLabelCoor(0, 0)));
    return rects;
}

}  // namespace

TEST(PieLabels, TemplatesDefaultByLayoutAndFillTheSectorsAttributes) {
    OwnedPie circle(300, 300);
    circle.setData({35, 25, 18, 12, 9, 6, 4, 3});
    circle->setPieSize(150, 150, 80);
    EXPECT_EQ(labelText(circle, 0), "A\n31.25%");

    OwnedPie side(300, 300);
    side.setData({35, 65});
    side->setPieSize(150, 150, 80);
    side->setLabelLayout(kSideLayout, -1, -1, -1);
    EXPECT_EQ(labelText(side, 1), "B (65.00%)");

    OwnedPie own(300, 300);
    own.setData({1234.5, 10});
    own->setPieSize(150, 150, 80);
    own->setNumberFormat(',', '.', '-');
    const char *notes[] = {"first", "second"};
    own->addExtraField(StringArray(notes, 2));
    own->setLabelFormat("{sector}/{dataSet} {dataSetName} {value|1} {percent|0}% {field0}");
    own->sector(1)->setLabelFormat("<*b*>{label}<*/*>");
    EXPECT_EQ(labelText(own, 0), "0/0 A 1,234.5 99% first");
    EXPECT_EQ(labelText(own, 1), "<*b*>B<*/*>");
}

TEST(PieLabels, ABlankLabelDrawsNeitherLabelNorJoinLine) {
    OwnedPie pie(300, 300);
    pie.setData({3, 2, 1});
    pie->setPieSize(150, 150, 80);
    pie->setLabelPos(20, 0x000000);
    pie->setLabelFormat("{label}");
    pie->sector(1)->setLabelFormat(" ");
    std::vector<std::string> lines = listingLines(pie->makeChart());
    EXPECT_EQ(countLinesStarting(lines, "Text("), 2);
    EXPECT_EQ(countLinesStarting(lines, "PolyLine(0x000000"), 2);
    EXPECT_EQ(std::string(pie->sector(1)->getLabelCoor(0, 0)), "");
    EXPECT_TRUE(rectOf(pie->sector(0)->getLabelCoor(0, 0)).found);
    // Circle labels have no join line unless given a colour; an invisible font hides a label.
    OwnedPie plain(300, 300);
    plain.setData({3, 2, 1});
    plain->setPieSize(150, 150, 80);
    plain->sector(2)->setLabelStyle("", 8, kTransparent);
    lines = listingLines(plain->makeChart());
    EXPECT_EQ(countLinesStarting(lines, "PolyLine("), 0);
    EXPECT_EQ(countLinesStarting(lines, "Text("), 4);
}

TEST(PieLabels, CircleLabelsStandBeyondTheRimByTheirOctant) {
    OwnedPie pie(400, 400);
    pie.setData({1, 1, 1, 1});
    pie->setPieSize(200, 200, 100);
    pie->setStartAngle(10, true);
    pie->setLabelPos(30, -1);
    pie->setLabelFormat("{label}");
    std::vector<Rect> r = labelRects(pie, {0, 1, 2, 3});
    // Bisectors at 55, 145, 235 and 325 degrees, 130 pixels out: each label
    // stands off its point away from the pie (left, top-left, right, bottom-right).
    EXPECT_EQ(r[0].left, 306);
    EXPECT_NEAR((r[0].top + r[0].bottom) / 2.0, 125, 1.5);
    EXPECT_EQ(r[1].left, 275);
    EXPECT_EQ(r[1].top, 306);
    EXPECT_EQ(r[2].right, 94);
    EXPECT_NEAR((r[2].top + r[2].bottom) / 2.0, 275, 1.5);
    EXPECT_EQ(r[3].right, 125);
    EXPECT_EQ(r[3].bottom, 94);
    // A negative position puts the label inside, centred on its point.
    OwnedPie inside(400, 400);
    inside.setData({1, 1, 1, 1});
    inside->setPieSize(200, 200, 100);
    inside->setLabelPos(-50, -1);
    Rect in = labelRects(inside, {0})[0];
    EXPECT_NEAR((in.left + in.right) / 2.0, 235, 3);
    EXPECT_NEAR((in.top + in.bottom) / 2.0, 165, 3);
}

TEST(PieLabels, TinyNeighboursInSideLayoutSpreadWithinTheBounds) {
    OwnedPie pie(400, 300);
    pie.setData({40, 0.1, 0.1, 60});
    pie->setPieSize(200, 150, 100);
    pie->setLabelLayout(kSideLayout, 30, 20, 280);
    std::vector<Rect> r = labelRects(pie, {0, 1, 2, 3});
    EXPECT_FALSE(r[1].overlaps(r[2]));
    EXPECT_LT(r[1].top, r[2].top);
    for (const Rect &rect : r) {
        EXPECT_GE(rect.top, 20);
        EXPECT_LT(rect.bottom, 280);
    }
    // The right column stands at the radius plus the position from the centre.
    EXPECT_EQ(r[1].left, 200 + 100 + 30);
    EXPECT_EQ(r[2].left, 200 + 100 + 30);
    EXPECT_EQ(r[3].right, 200 - 100 - 30);
}

TEST(PieLabels, ATooTallSideColumnIsPressedAgainstTheBottomBound) {
    OwnedPie pie(400, 300);
    std::vector<double> data = {48};
    for (int i = 0; i < 10; ++i) data.push_back(0.1);
    data.push_back(51);
    pie.setData(data);
    pie->setPieSize(200, 150, 100);
    pie->setLabelLayout(kSideLayout, 30, 200, 270);
    std::vector<int> right;
    for (int i = 0; i <= 10; ++i) right.push_back(i);
    std::vector<Rect> r = labelRects(pie, right);
    bool overlap = false;
    for (size_t i = 0; i < r.size(); ++i) {
        EXPECT_GE(r[i].top, 200) << i;
        EXPECT_LE(r[i].bottom, 269) << i;
        if (i > 0) overlap = overlap || r[i].overlaps(r[i - 1]);
    }
    EXPECT_EQ(r.back().bottom, 269);
    EXPECT_EQ(r.front().top, 200);
    EXPECT_TRUE(overlap);
}

TEST(PieLabels, AnAntiClockwisePieKeepsTheOrderOfItsColumns) {
    std::vector<double> data = {0.2, 0.2, 0.2, 0.2, 0.2, 90, 0.2, 0.2, 0.2};
    for (bool clockwise : {true, false}) {
        OwnedPie pie(400, 300);
        pie.setData(data);
        pie->setPieSize(200, 150, 90);
        pie->setStartAngle(0, clockwise);
        pie->setLabelLayout(kSideLayout, 20, -1, -1);
        std::vector<Rect> r = labelRects(pie, {0, 1, 2, 3, 4});
        // The first five sectors are one column's top, in the order of the pie.
        for (int i = 1; i < 5; ++i) {
            EXPECT_GT(r[i].top, r[i - 1].bottom) << "sector " << i << (clockwise ? "" : " anti");
            EXPECT_EQ(clockwise ? r[i].left : r[i].right, clockwise ? r[0].left : r[0].right);
        }
        EXPECT_EQ(r[0].left > 200, clockwise);
        // Labels that had to move still lead their lines from the right rim points.
        for (int i = 0; i < 9; ++i) {
            const SectorLabel &label = pie.sector(i)->getLabel();
            EXPECT_EQ(label.getAnchorY() - label.getShift(),
                      pie.sector(i)->getGeometry().y -
                          (int)std::floor(92 * std::cos(pie.sector(i)->getGeometry().mid) + 0.5));
        }
    }
}

TEST(PieLegend, EachSectorAddsAKeyWithItsAttributes) {
    OwnedPie pie(400, 300);
    pie.setData({30, 70});
    pie->setPieSize(100, 150, 80);
    LegendBox *legend = pie->addLegend(250, 50, true, "", 10);
    legend->setText("{label} {value} {percent|0}%");
    pie->layout();
    std::string map = legend->getHTMLImageMap("k.html", "{dataSetName}={value}", "", 0, 0);
    EXPECT_NE(map.find("k.html?A=30"), std::string::npos);
    EXPECT_NE(map.find("k.html?B=70"), std::string::npos);
    // Without a legend, none is made.
    OwnedPie bare(400, 300);
    bare.setData({30, 70});
    bare->makeChart();
    EXPECT_EQ(countLinesStarting(listingLines(bare->makeChart()), "Text("), 4);
}

TEST(PieImageMap, SectorsAndLabelsGetHotSpots) {
    OwnedPie pie(300, 300);
    pie.setData({35, 77});
    pie->setPieSize(150, 150, 80);
    std::string map = pie->getHTMLImageMap("p.html", "", "title='{label}: {percent|0}%'", 5, 0);
    EXPECT_NE(map.find("<area shape=\"poly\" coords=\"155,70,"), std::string::npos);
    EXPECT_NE(map.find("href=\"p.html?sector=0&label=A&value=35&percent=31.25\" title='A: 31%'>"),
              std::string::npos);
    EXPECT_EQ(std::count(map.begin(), map.end(), '\n'), 4);
    EXPECT_EQ(std::string(pie->getHTMLImageMap("p.html", "{disable}", "", 0, 0)), "");
}
