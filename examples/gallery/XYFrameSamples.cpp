// XY charts without data: the plot area with its backgrounds, grid, zones and
// marks, axes on every side with titles, an added axis, swapped axes, labels
// at angles, axes through the origin.
#include "chart/axis/Axis.h"
#include "chart/axis/paint/Mark.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "foundation/ArrayViews.h"
#include "foundation/Constants.h"
#include "text/box/TextBox.h"

namespace {

const int kNavy = 0x1f3a5f, kBlue = 0x4a90d9, kRed = 0xe4572e, kGreen = 0x76b041;

bool save(XYChart *c, const std::string &path) {
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    return ok;
}

// Everything the frame has, on fixed scales: the picture of the frame.
XYChart *frameChart() {
    XYChart *c = XYChart::create(640, 480, 0xffffff, kTransparent, 0);
    c->addTitle("<*size=13*>The plot frame without data", "", 12, kNavy, kTransparent,
                kTransparent);
    PlotArea *p =
        c->setPlotArea(150, 70, 420, 300, 0xf7f9fc, 0xe9eef6, kLineColor, 0xc8d0dc, 0xc8d0dc);
    p->setGridColor(0xc8d0dc, 0xc8d0dc, 0xe6eaf0, kTransparent);
    const char *months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    c->xAxis()->setLabels(StringArray(months, 12));
    c->xAxis()->setTitle("Month", "", 9, kNavy);
    c->xAxis2()->setLinearScale(0, 100, 25, 5);
    c->xAxis2()->setTitle("Share of the year (%)", "", 9, kNavy);
    c->yAxis()->setLinearScale(0, 50, 10, 2);
    c->yAxis()->setTitle("Temperature (C)", "", 9, kRed);
    c->syncYAxis(1.8, 32);
    c->yAxis2()->setTitle("Temperature (F)", "", 9, kBlue);
    Axis *extra = c->addAxis(kLeft, 80);
    extra->setLinearScale(0, 1000, 200, 0);
    extra->setTitle("Rain (mm)", "", 9, kGreen);
    extra->setColors(kGreen, kGreen, -1, -1);
    c->yAxis()->addZone(18, 26, 0xd8f0d0);
    c->xAxis()->addZone(5, 7, 0xfff0c8);
    Mark *hot = c->yAxis()->addMark(35, kRed, "Heat alert", "bold", 8);
    hot->setLineWidth(2);
    Mark *frost = c->yAxis()->addMark(3, kBlue, "Frost line", "", 8);
    frost->setAlignment(kTopRight);
    Mark *midYear = c->xAxis()->addMark(5.5, 0x888888, "Mid year", "", 8);
    midYear->setAlignment(kTopLeft);
    midYear->setDrawOnTop(false);
    return c;
}

bool renderFrame(const std::string &path) {
    return save(frameChart(), path);
}

// The x axis up the side with its labels at 45 degrees, the y axis along the
// bottom, four quadrant colours around the axes crossing at 0.
bool renderSwapped(const std::string &path) {
    XYChart *c = XYChart::create(640, 420, 0xffffff, kTransparent, 0);
    c->addTitle("Swapped axes, labels at an angle, axes through the origin", "", 11, kNavy,
                kTransparent, kTransparent);
    c->swapXY(true);
    c->setPlotArea(140, 50, 440, 300, kTransparent, -1, kLineColor, 0xdddddd, 0xdddddd);
    c->getPlotArea()->set4QBgColor(0xe8f4e8, 0xf4f0e0, 0xf6e6e6, 0xe6eef8, kLineColor);
    c->setAxisAtOrigin(kXYAxisAtOrigin, 0);
    const char *regions[] = {"NW", "North", "NE", "East", "SE", "South", "SW", "West"};
    c->xAxis()->setLinearScale2(-4, 3, StringArray(regions, 8));
    c->xAxis()->setLabelStyle("", 8, kNavy, 30);
    c->xAxis()->setTitle("Region", "", 9, kNavy);
    c->xAxis()->setTitlePos(kTopLeft, 3);
    c->yAxis()->setLinearScale(-60, 100, 20, 0);
    c->yAxis()->setLabelStyle("", 8, kTextColor, -45);
    c->yAxis()->setTitle("Change (%)", "", 9, kNavy);
    c->yAxis()->setTitlePos(kRight, 3);
    c->yAxis()->addMark(70, kRed, "Target", "bold", 8);
    return save(c, path);
}

// Labels at 45, -45, 90 and 30 degrees on the four sides, with their anchors;
// the chart packs the plot between them by itself.
bool renderLabelAngles(const std::string &path) {
    XYChart *c = XYChart::create(640, 440, 0xf6f6f6, kTransparent, 0);
    c->addTitle("Labels at angles, the plot packed between them", "", 11, kNavy, kTransparent,
                kTransparent);
    c->getPlotArea()->setBackground(0xffffff, -1, kLineColor);
    c->getPlotArea()->setGridColor(0xe0e0e0, 0xe0e0e0, -1, -1);
    const char *words[] = {"alpha", "bravo", "charlie", "delta", "echo", "foxtrot"};
    StringArray labels(words, 6);
    struct Side {
        Axis *axis;
        double angle;
        const char *title;
    } sides[] = {{c->xAxis(), 45, "45 degrees"},
                 {c->xAxis2(), -45, "-45 degrees"},
                 {c->yAxis(), 90, "90 degrees"},
                 {c->yAxis2(), 30, "30 degrees"}};
    for (const Side &s : sides) {
        s.axis->setLabels(labels);
        s.axis->setLabelStyle("", 9, kNavy, s.angle);
        s.axis->setTitle(s.title, "", 9, kRed);
        s.axis->setTickLength(6);
    }
    return save(c, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("XY chart frame",
                       "A plot without data: alternating bands, grid, zones, marks on the axis "
                       "and in the plot, titles on four sides and an added axis",
                       "xy_frame.png", renderFrame);
VISTREL_GALLERY_SAMPLE("XY chart frame", "The same chart as a listing of its drawing",
                       "xy_frame.agf", renderFrame);
VISTREL_GALLERY_SAMPLE("XY chart frame",
                       "Swapped axes with labels at angles, four quadrant colours and axes "
                       "through the origin",
                       "xy_swapped.png", renderSwapped);
VISTREL_GALLERY_SAMPLE("XY chart frame",
                       "Label anchors at 45, -45, 90 and 30 degrees, the plot packed between "
                       "the axes",
                       "xy_label_angles.png", renderLabelAngles);
