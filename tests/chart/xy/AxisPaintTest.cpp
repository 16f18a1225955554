#include <gtest/gtest.h>

#include <climits>

#include "chart/axis/paint/AxisFrame.h"
#include "chart/axis/paint/LabelAnchor.h"
#include "chart/axis/paint/LineObj.h"
#include "chart/axis/paint/Mark.h"
#include "tests/chart/xy/XYTestSupport.h"
#include "text/box/TextBoxImpl2.h"

namespace {

const int kAxisColor = 0x0000AA, kLabelColor = 0x0000BB, kTickColor = 0x0000CC;

// A chart whose bottom axis draws in colours of its own, on a plot of 300 by 200 at (50, 20).
struct AxisChart {
    Owned<XYChartImpl> chart{newXYChart(400, 300)};
    AxisImpl *axis;

    explicit AxisChart(bool bottom = true) {
        chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, -1, kTransparent, kTransparent);
        axis = impl(bottom ? chart->xAxis() : chart->yAxis());
        axis->setColors(kAxisColor, kLabelColor, -1, kTickColor);
    }
    std::vector<std::string> listing() { return listingLines(chart->makeChart()); }
    int labelTexts() { return countLinesWith(listing(), "0x0000bb)"); }
};

std::string tickLine(int x1, int y1, int x2, int y2) {
    return "PolyLine(0x0000cc, 1, [" + std::to_string(x1) + ", " + std::to_string(y1) + ", " +
           std::to_string(x2) + ", " + std::to_string(y2) + "])";
}

std::vector<const TextBox *> keptBoxes(const AxisImpl &axis) {
    std::vector<const TextBox *> boxes;
    for (const auto &tick : axis.getTickMap())
        if (tick.second.getTextBox()) boxes.push_back(tick.second.getTextBox());
    return boxes;
}

}  // namespace

TEST(AxisTicks, MinorLengthIsHalfTheMajorRoundedAwayFromZero) {
    AxisChart c;
    const TickStyle &style = c.axis->getPainter().getTickStyle();
    EXPECT_EQ(style.getLength(false), 4);
    EXPECT_EQ(style.getLength(true), 3);
    c.axis->setTickLength(5);
    EXPECT_EQ(style.getLength(true), 3);
    c.axis->setTickLength(-5);
    EXPECT_EQ(style.getLength(false), -5);
    EXPECT_EQ(style.getLength(true), -3);
    c.axis->setTickLength(INT_MIN);
    EXPECT_EQ(style.getLength(true), INT_MIN / 2);
    c.axis->setTickLength2(7, 1);
    EXPECT_EQ(style.getLength(true), 1);
}

TEST(AxisColors, UnsetTickAndTitleColoursFollowTheAxisAndTheLabels) {
    AxisChart c;
    AxisPainter &painter = c.axis->getPainter();
    c.axis->setColors(0x000000, kTextColor, -1, -1);
    EXPECT_EQ(painter.getAxisColor(), 0x000000);
    EXPECT_EQ(painter.getTickStyle().getColor(false), 0x000000);
    EXPECT_EQ(painter.getTickStyle().getColor(true), 0x000000);
    EXPECT_EQ(painter.getTitle().getFontColor(), kTextColor);
    EXPECT_EQ(painter.getLabelStyle().getFontColor(), kTextColor);

    c.axis->setColors(0x111111, 0x222222, 0x333333, 0x444444);
    EXPECT_EQ(painter.getTitle().getFontColor(), 0x333333);
    EXPECT_EQ(painter.getLabelStyle().getFontColor(), 0x222222);
    EXPECT_EQ(painter.getTickStyle().getColor(false), 0x444444);
    // Minor ticks keep their own colour and width once given.
    c.axis->setTickColor(0x555555, 0x666666);
    c.axis->setTickWidth(2, -1);
    EXPECT_EQ(painter.getTickStyle().getColor(true), 0x666666);
    EXPECT_EQ(painter.getTickStyle().getWidth(true), 2);
}

TEST(AxisPaint, TicksPointOutwardAndLabelsFollowThem) {
    AxisChart c;
    c.axis->setLinearScale(0, 100, 25, 0);
    std::vector<std::string> lines = c.listing();
    // Bottom axis at y 220: ticks of 4 pixels downward at every 75 pixels.
    for (int x : {50, 125, 200, 275, 350}) EXPECT_GE(lineWith(lines, tickLine(x, 220, x, 224)), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000aa, 1, [50, 220, 350, 220])"), 0);
    EXPECT_EQ(countLinesWith(lines, "0x0000bb)"), 5);
    // Each label box hangs below its tick at the gap, centred on it.
    for (const auto &tick : c.axis->getTickMap()) {
        const TextBox *box = tick.second.getTextBox();
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->getTopY(), 220 + 4 + 1);
        EXPECT_NEAR(box->getLeftX() + box->getWidth() / 2.0, 50 + tick.first * 3, 1);
    }
    // A tick length of 0 draws the labels without ticks, closer to the axis.
    AxisChart bare;
    bare.axis->setLinearScale(0, 100, 25, 0);
    bare.axis->setTickLength(0);
    lines = bare.listing();
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000cc"), 0);
    EXPECT_EQ(countLinesWith(lines, "0x0000bb)"), 5);
    EXPECT_EQ(keptBoxes(*bare.axis)[0]->getTopY(), 221);
    // Inward ticks leave the labels at the gap.
    AxisChart inward;
    inward.axis->setLinearScale(0, 100, 50, 0);
    inward.axis->setTickLength(-6);
    lines = inward.listing();
    EXPECT_GE(lineWith(lines, tickLine(200, 220, 200, 214)), 0);
    EXPECT_EQ(keptBoxes(*inward.axis)[0]->getTopY(), 221);
}

TEST(AxisPaint, LabelMarksDecideTickAndBox) {
    AxisChart c;
    c.axis->setLinearScale(0, 100, kNoValue, 0);
    c.axis->addLabel(20, "-~hidden");
    c.axis->addLabel(50, "~bare");
    c.axis->addLabel(80, "plain");
    std::vector<std::string> lines = c.listing();
    // Flag 4: a minor tick (flag 1) of 3 pixels, no box.
    EXPECT_GE(lineWith(lines, tickLine(110, 220, 110, 223)), 0);
    EXPECT_EQ(c.axis->getTickMap().find(20)->getTextBox(), nullptr);
    // Flag 2: a box, no tick.
    EXPECT_EQ(lineWith(lines, tickLine(200, 220, 200, 224)), -1);
    EXPECT_NE(c.axis->getTickMap().find(50)->getTextBox(), nullptr);
    EXPECT_GE(lineWith(lines, tickLine(290, 220, 290, 224)), 0);
    EXPECT_EQ(countLinesWith(lines, "0x0000bb)"), 2);
}

TEST(AxisPaint, OverlappingLabelsAreDroppedAndTheirTicksStay) {
    AxisChart c;
    const char *texts[] = {"first long label",  "second long label", "third long label",
                           "fourth long label", "fifth long label",  "sixth long label",
                           "seventh long label"};
    c.axis->setLinearScale2(0, 6, StringArray(texts, 7));
    std::vector<std::string> lines = c.listing();
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000cc"), 7);
    std::vector<const TextBox *> kept = keptBoxes(*c.axis);
    int shown = countLinesWith(lines, "0x0000bb)");
    EXPECT_EQ(shown, (int)kept.size());
    EXPECT_LT(shown, 7);
    EXPECT_GE(shown, 2);
    // The first label always stays; the kept ones do not touch.
    EXPECT_NE(c.axis->getTickMap().find(0)->getTextBox(), nullptr);
    for (size_t i = 1; i < kept.size(); ++i)
        EXPECT_LE(kept[i - 1]->getLeftX() + kept[i - 1]->getWidth(), kept[i]->getLeftX());

    // A minimum space between labels drops more of them.
    AxisChart spaced;
    spaced.axis->setLinearScale2(0, 6, StringArray(texts, 7));
    spaced.axis->setLabelAlignment(0, 40);
    spaced.listing();
    EXPECT_LT(keptBoxes(*spaced.axis).size(), kept.size());
}

TEST(AxisPaint, ThicknessIsWhatTheAxisTakesOutsideThePlot) {
    AxisChart c;
    c.chart->layout();
    // No ticks, no labels: nothing outside the line.
    EXPECT_EQ(c.axis->getThickness(), 0);
    c.axis->setTickLength(9);
    c.axis->setLinearScale(0, 100, 50, 0);
    c.chart->layoutAxes();
    int thickness = c.axis->getThickness();
    const TextBox *box = keptBoxes(*c.axis)[0];
    EXPECT_EQ(thickness, box->getTopY() + box->getHeight() - 220);
    EXPECT_EQ(box->getTopY(), 220 + 9 + 1);
    // The title stands beyond the labels at its gap.
    c.axis->setTitle("Title", "", 10, kTextColor);
    c.axis->setTitlePos(kCenter, 6);
    int titled = c.axis->getThickness();
    TextBoxImpl2 *title = c.axis->getPainter().getTitleBox();
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->getTopY(), thickness + 220 + 6);
    EXPECT_EQ(titled, title->getTopY() + title->getHeight() - 220);
    // The offset of an added axis counts as its own.
    Axis *extra = c.chart->addAxis(kBottom, 30);
    c.chart->layoutAxes();
    EXPECT_EQ(impl(extra)->getThickness(), 30);

    // A left axis measures to the left, a turned one not at all.
    AxisChart left(false);
    left.axis->setLinearScale(0, 10, 5, 0);
    left.chart->layoutAxes();
    int leftThickness = left.axis->getThickness();
    int leftmost = 1 << 30;
    for (const TextBox *b : keptBoxes(*left.axis)) leftmost = std::min(leftmost, b->getLeftX());
    EXPECT_EQ(leftThickness, 50 - leftmost);
    left.axis->setAlignment(kCenter);
    EXPECT_EQ(left.axis->getThickness(), 0);
}

TEST(AxisTitle, TurnsAlongSideAxesUnlessGivenAnAngle) {
    Owned<XYChartImpl> chart(newXYChart(400, 300));
    chart->setPlotArea(60, 30, 280, 220, kTransparent, -1, -1, kTransparent, kTransparent);
    chart->yAxis()->setTitle("Left", "", 8, kTextColor);
    chart->yAxis2()->setTitle("Right", "", 8, kTextColor);
    chart->xAxis()->setTitle("Bottom", "", 8, kTextColor);
    TextBox *top = chart->xAxis2()->setTitle("Top", "", 8, kTextColor);
    top->setFontAngle(10, false);
    chart->makeChart();
    auto angle = [&](Axis *a) { return impl(a)->getPainter().getTitleBox()->getFontAngle(); };
    EXPECT_EQ(angle(chart->yAxis()), 90);
    EXPECT_EQ(angle(chart->yAxis2()), 270);
    EXPECT_EQ(angle(chart->xAxis()), 0);
    EXPECT_EQ(angle(chart->xAxis2()), 10);
    // The title the caller holds keeps its unset angle and its font.
    AxisTitle &title = impl(chart->yAxis())->getPainter().getTitle();
    EXPECT_FALSE(title.isAngleSet());
    EXPECT_EQ(title.getFont(), "bold");
    // Along the axis: the middle, or the end that setTitlePos names.
    TextBoxImpl2 *left = impl(chart->yAxis())->getPainter().getTitleBox();
    EXPECT_NEAR(left->getTopY() + left->getHeight() / 2.0, 30 + 110, 1);
    // Its last pixel at the gap from the axis, as a bottom title's first.
    EXPECT_EQ(left->getLeftX() + left->getWidth() - 1, 60 - 3);
}

TEST(LabelAnchors, ByAngleAndSide) {
    struct Case {
        int side;
        double angle;
        int anchor;
    } cases[] = {
        {kBottom, 0, kTopCenter},  {kTop, 0, kBottomCenter},   {kLeft, 0, kRight},
        {kRight, 0, kLeft},        {kBottom, 45, kTopRight},   {kTop, 45, kBottomLeft},
        {kLeft, 45, kTopRight},    {kRight, 45, kBottomLeft},  {kBottom, -45, kTopLeft},
        {kTop, 135, kBottomRight}, {kLeft, 135, kBottomRight}, {kRight, -45, kTopLeft},
        {kBottom, 90, kTopCenter}, {kLeft, 90, kRight},        {kBottom, 15, kTopCenter},
        {kBottom, 75, kTopCenter}, {kBottom, 180, kTopCenter}, {kBottom, 405, kTopRight},
    };
    for (const Case &k : cases) {
        AxisFrame frame = AxisFrame::upright(k.side, 0, 0);
        EXPECT_EQ(LabelAnchor::forLabel(frame, k.angle, 0), k.anchor)
            << "side " << k.side << " angle " << k.angle;
    }
    // A label alignment slides upright labels along the axis.
    AxisFrame bottom = AxisFrame::upright(kBottom, 0, 0), left = AxisFrame::upright(kLeft, 0, 0);
    EXPECT_EQ(LabelAnchor::forLabel(bottom, 0, kLeft), kTopLeft);
    EXPECT_EQ(LabelAnchor::forLabel(bottom, 0, kTopRight), kTopRight);
    EXPECT_EQ(LabelAnchor::forLabel(left, 0, kTop), kTopRight);
    EXPECT_EQ(LabelAnchor::forLabel(left, 0, kBottomLeft), kBottomRight);
    EXPECT_EQ(LabelAnchor::forLabel(bottom, 45, kLeft), kTopRight);
    // Turned axes: the outward direction picks side or top and bottom anchors.
    EXPECT_EQ(LabelAnchor::forLabel(AxisFrame::turned(0, 0, 0), 0, 0), kTopCenter);
    EXPECT_EQ(LabelAnchor::forLabel(AxisFrame::turned(-90, 0, 0), 0, 0), kLeft);
    EXPECT_EQ(LabelAnchor::forLabel(AxisFrame::turned(90, 0, 0), 0, 0), kRight);
    EXPECT_EQ(LabelAnchor::forLabel(AxisFrame::turned(180, 0, 0), 0, 0), kBottomCenter);
    // Titles: the side's facing edge, at the part along the axis.
    EXPECT_EQ(LabelAnchor::forTitle(bottom, -1), kTopLeft);
    EXPECT_EQ(LabelAnchor::forTitle(left, 1), kTopRight);
    EXPECT_EQ(LabelAnchor::forTitle(AxisFrame::upright(kRight, 0, 0), 0), kLeft);
    EXPECT_EQ(LabelAnchor::forTitle(AxisFrame::upright(kTop, 0, 0), 1), kBottomRight);
    // Mark labels beside their lines.
    EXPECT_EQ(LabelAnchor::besideLine(kTopRight, true), kBottomRight);
    EXPECT_EQ(LabelAnchor::besideLine(kBottomLeft, true), kTopLeft);
    EXPECT_EQ(LabelAnchor::besideLine(kTopLeft, false), kTopRight);
    EXPECT_EQ(LabelAnchor::besideLine(kRight, false), kLeft);
}

TEST(AxisMarks, OnTheAxisAndInThePlot) {
    AxisChart c(false);
    AxisImpl *y = c.axis;
    y->setLinearScale(0, 100, 10, 0);
    Mark *limit = y->addMark(62, 0xAA0000, "Limit", "", 8);
    Mark *floor = y->addMark(5, 0x00AA00, "Floor", "", 8);
    floor->setAlignment(kTopRight);
    floor->setMarkColor(0x00AA00, 0x0000DD, 0x00EE00);
    Mark *off = y->addMark(500, 0x777777, "Off", "", 8);
    std::vector<std::string> lines = c.listing();

    // The mark's line crosses the plot at its value.
    DoubleArray points = limit->getLine()->getPoints();
    ASSERT_EQ(points.len, 4);
    EXPECT_EQ(std::vector<double>(points.data, points.data + 4),
              (std::vector<double>{50, 96, 350, 96}));
    EXPECT_GE(lineWith(lines, "PolyLine(0xaa0000, 1, [50, 96, 350, 96])"), 0);
    // Its tick in the line colour, its label among the labels in the line colour;
    // the label at 60 that it covers is left out, its tick stays.
    EXPECT_GE(lineWith(lines, "PolyLine(0xaa0000, 1, [50, 96, 46, 96])"), 0);
    EXPECT_EQ(countLinesWith(lines, "0xaa0000)"), 1);
    EXPECT_EQ(y->getTickMap().find(60)->getTextBox(), nullptr);
    EXPECT_NE(y->getTickMap().find(70)->getTextBox(), nullptr);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000cc, 1, [50, 100, 46, 100])"), 0);
    // The aligned one stands in the plot above its line at the right end, in
    // its text colour; its tick has its tick colour.
    TextBoxImpl2 *inPlot = y->getPainter().getMarkBox(1);
    ASSERT_NE(inPlot, nullptr);
    EXPECT_EQ(inPlot->getTopY() + inPlot->getHeight() - 1, 210 - 2);
    EXPECT_EQ(inPlot->getLeftX() + inPlot->getWidth() - 1, 350 - 2);
    EXPECT_EQ(countLinesWith(lines, "0x0000dd)"), 1);
    EXPECT_GE(lineWith(lines, "PolyLine(0x00ee00, 1, [50, 210, 46, 210])"), 0);
    // A mark off the scale draws nothing and has no line.
    EXPECT_EQ(off->getLine()->getPoints().len, 0);
    EXPECT_EQ(countLinesWith(lines, "0x777777"), 0);
}

TEST(AxisZones, BandsAcrossThePlotBehindTheGrid) {
    AxisChart c;
    c.axis->setLinearScale(0, 100, 50, 0);
    c.axis->addZone(10, 30, 0x00FF00);
    c.axis->addZone(90, 200, 0x0000FF);
    c.axis->addZone(-50, -10, 0xFF0000);
    impl(c.chart->yAxis())->setLinearScale(0, 10, 5, 0);
    impl(c.chart->yAxis())->addZone(2.5, 5, 0xFFFF00);
    c.chart->getPlotArea()->setGridColor(0x123456, kTransparent, -1, -1);
    std::vector<std::string> lines = c.listing();
    int green = lineWith(lines, "RoundedRect(80, 20, 140, 220, 0, 0x00ff00, 0x00ff00)");
    EXPECT_GE(green, 0);
    // Clipped to the plot; a zone off the scale draws nothing.
    EXPECT_GE(lineWith(lines, "RoundedRect(320, 20, 350, 220, 0, 0x0000ff, 0x0000ff)"), 0);
    EXPECT_EQ(countLinesWith(lines, "0xff0000"), 0);
    // A zone of a side axis runs across; zones come before the grid.
    EXPECT_GE(lineWith(lines, "RoundedRect(50, 120, 350, 170, 0, 0xffff00, 0xffff00)"), 0);
    EXPECT_LT(green, lineWith(lines, "PolyLine(0x123456"));
}

TEST(AxisPaint, TurnedAxisRunsAlongItsAngle) {
    AxisChart c;
    AxisImpl *axis = c.axis;
    axis->setLinearScale(0, 10, 10, 0);
    axis->setAlignment(kCenter);
    axis->setAngle(90);
    axis->getPainter().setPosition(100, 50);
    axis->setLength(80);
    axis->layoutScale();
    DrawArea *d = c.chart->getDrawArea();
    PaintExtent e = axis->paintAxis(d);
    std::vector<std::string> lines = listingLines(d);
    // Turned by 90 degrees the axis runs down the canvas; its outward side is
    // then to the left, where the ticks point.
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000aa, 1, [100, 50, 100, 130])"), 0);
    EXPECT_GE(lineWith(lines, "PolyLine(0x0000cc, 1, [100, 130, 96, 130])"), 0);
    const TextBox *end = c.axis->getTickMap().find(10)->getTextBox();
    ASSERT_NE(end, nullptr);
    EXPECT_EQ(end->getLeftX() + end->getWidth() - 1, 100 - 4 - 1);
    EXPECT_NEAR(end->getTopY() + end->getHeight() / 2.0, 130, 1);
    EXPECT_LE(e.getLeft(), end->getLeftX());
    EXPECT_EQ(e.getTop(), c.axis->getTickMap().find(0)->getTextBox()->getTopY());
    EXPECT_EQ(e.getBottom(), end->getTopY() + end->getHeight());
    EXPECT_EQ(axis->getThickness(), 0);
}

TEST(AxisPaint, OffsetsAndAlignmentsMoveTheLabels) {
    AxisChart c;
    const char *texts[] = {"A", "B", "C", "D"};
    c.axis->setLabels(StringArray(texts, 4));
    c.axis->setLabelOffset(0.5);
    c.axis->setTickOffset(-0.5);
    std::vector<std::string> lines = c.listing();
    // Labels between the ticks; the first tick is off the axis' start.
    const TextBox *a = c.axis->getTickMap().find(0)->getTextBox();
    ASSERT_NE(a, nullptr);
    EXPECT_NEAR(a->getLeftX() + a->getWidth() / 2.0, 100, 1);
    EXPECT_EQ(lineWith(lines, tickLine(0, 220, 0, 224)), -1);
    EXPECT_GE(lineWith(lines, tickLine(100, 220, 100, 224)), 0);
    EXPECT_EQ(countLinesWith(lines, "PolyLine(0x0000cc"), 3);

    // A label alignment puts each label's start at its tick; a style alignment
    // of the caller's own replaces the automatic anchor.
    AxisChart aligned;
    aligned.axis->setLabels(StringArray(texts, 4));
    aligned.axis->setLabelAlignment(kLeft, 0);
    aligned.listing();
    EXPECT_EQ(aligned.axis->getTickMap().find(1)->getTextBox()->getLeftX(), 150);
    AxisChart styled;
    styled.axis->setLabels(StringArray(texts, 4));
    styled.axis->setLabelStyle("", 8, kTextColor, 0)->setAlignment(kTopRight);
    styled.listing();
    const TextBox *b = styled.axis->getTickMap().find(1)->getTextBox();
    EXPECT_EQ(b->getLeftX() + b->getWidth() - 1, 150);
}
