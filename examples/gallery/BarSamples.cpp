// Bar charts: the W2 workload, stacks with negative parts, percentage bars,
// lying bars, 3D bars, rounded and lit bars, labels, two y axes, shapes and
// bars that touch.
#include <string>

#include "chart/axis/Axis.h"
#include "chart/axis/paint/Mark.h"
#include "chart/layer/DataSet.h"
#include "chart/legend/LegendBox.h"
#include "chart/symbol/ShapeWords.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/bar/BarLayer.h"
#include "text/box/TextBox.h"

namespace {

const int kReducedGlare = 2;
const int kNavy = 0x1f3a5f, kBlue = 0x4a90d9, kRed = 0xe4572e, kGreen = 0x76b041, kGold = 0xf2b134,
          kGrey = 0x8c9aa8;
const char *kQuarters[] = {"Q1", "Q2", "Q3", "Q4", "Q5", "Q6"};
const char *kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

bool save(XYChart *c, const std::string &path) {
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    return ok;
}

XYChart *barChart(int width, int height, const char *title) {
    LayerKinds::install();
    XYChart *c = XYChart::create(width, height, 0xffffff, kTransparent, 0);
    c->addTitle(title, "", 12, kNavy, kTransparent, kTransparent);
    return c;
}

bool workloadW2(const std::string &path) {
    LayerKinds::install();
    return saveWorkload("W2", path);
}

bool stackedWithNegatives(const std::string &path) {
    const double product[] = {42, 48, 51, 47, 55, 61};
    const double services[] = {18, 21, 19, 24, 27, 25};
    const double refunds[] = {-6, -9, -5, -14, -8, -7};
    const double costs[] = {-30, -34, -41, -38, -36, -40};
    XYChart *c = barChart(600, 400, "Stacked bars grow both ways from the base line");
    c->setPlotArea(70, 50, 500, 300, 0xf7f9fc, -1, kTransparent, 0xdde3ea, kTransparent);
    c->addLegend(70, 362, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(kQuarters, 6));
    c->yAxis()->setTitle("Million $", "", 9, kNavy);
    c->yAxis()->addMark(0, 0x333333, "", "", 8)->setLineWidth(2);
    BarLayer *layer = c->addBarLayer2(kStack, 0);
    layer->addDataSet(DoubleArray(product, 6), kBlue, "Product sales");
    layer->addDataSet(DoubleArray(services, 6), kGreen, "Services");
    layer->addDataSet(DoubleArray(refunds, 6), kGold, "Refunds");
    layer->addDataSet(DoubleArray(costs, 6), kRed, "Costs");
    layer->setBorderColor(0xffffff, 0);
    layer->setAggregateLabelStyle("bold", 8, kNavy, 0);
    layer->setBarGap(0.35, kNoValue);
    return save(c, path);
}

bool percentageBars(const std::string &path) {
    const char *years[] = {"2019", "2020", "2021", "2022", "2023"};
    const double north[] = {120, 135, 150, 160, 142};
    const double south[] = {80, 70, 95, 110, 130};
    const double online[] = {20, 60, 90, 140, 180};
    XYChart *c = barChart(600, 400, "Percentage bars: each stack sums to 100 %");
    c->setPlotArea(60, 50, 400, 300, 0xffffff, -1, kTransparent, 0xdde3ea, kTransparent);
    c->addLegend(475, 50, true, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(years, 5));
    c->yAxis()->setLabelFormat("{value}%");
    BarLayer *layer = c->addBarLayer2(kPercentage, 0);
    layer->addDataSet(DoubleArray(north, 5), kNavy, "North");
    layer->addDataSet(DoubleArray(south, 5), kBlue, "South");
    layer->addDataSet(DoubleArray(online, 5), kGold, "Online");
    layer->setBorderColor(0xffffff, 0);
    layer->setDataLabelFormat("{percent|0}%");
    layer->setDataLabelStyle("", 8, 0xffffff, 0)->setAlignment(kCenter);
    layer->setBarGap(0.3, kNoValue);
    return save(c, path);
}

bool lyingBars(const std::string &path) {
    const char *languages[] = {"Rust", "Go", "Kotlin", "Swift", "TypeScript", "Python"};
    const double scores[] = {48, 55, 61, 66, 78, 86};
    XYChart *c = barChart(600, 380, "Lying bars on swapped axes, rounded at their ends");
    c->swapXY(true);
    c->setPlotArea(100, 45, 450, 300, 0xffffff, -1, kTransparent, kTransparent, 0xe4e8ee);
    c->xAxis()->setLabels(StringArray(languages, 6));
    c->xAxis()->setTickLength(0);
    c->yAxis()->setLinearScale(0, 100, 20, 0);
    c->yAxis()->setTitle("Score", "", 9, kNavy);
    BarLayer *layer = c->addBarLayer(DoubleArray(scores, 6), kBlue, "", 0);
    layer->setRoundedCorners(9, BarLayer::kOmittedRadius, BarLayer::kOmittedRadius,
                             BarLayer::kOmittedRadius);
    layer->setBarGap(0.35, kNoValue);
    layer->setAggregateLabelStyle("bold", 9, kNavy, 0);
    return save(c, path);
}

bool bars3D(const std::string &path) {
    const double a[] = {34, 41, 38, 52, 47};
    const double b[] = {22, 28, 35, 31, 44};
    XYChart *c = barChart(600, 400, "3D bars side by side");
    c->setPlotArea(70, 70, 470, 280, 0xf2f5f9, 0xe8edf3, kTransparent, 0xd0d8e2, kTransparent);
    c->addLegend(80, 28, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(kQuarters, 5));
    BarLayer *layer = c->addBarLayer2(kSide, 12);
    layer->addDataSet(DoubleArray(a, 5), kBlue, "Plant A");
    layer->addDataSet(DoubleArray(b, 5), kGreen, "Plant B");
    layer->setBarGap(0.25, 0.1);
    return save(c, path);
}

bool litRoundedBars(const std::string &path) {
    const double v[] = {12, 19, 27, 22, 31, 25, 17};
    const char *days[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    XYChart *c = barChart(640, 420, "Rounded bars with bar lighting; glass and cylinder effects");
    c->setPlotArea(60, 60, 560, 320, 0xffffff, -1, kTransparent, 0xe6e9ee, kTransparent);
    c->xAxis()->setLabels(StringArray(days, 7));
    c->addLegend(70, 28, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    BarLayer *lit = c->addBarLayer(DoubleArray(v, 7), kBlue, "Bar lighting", 0);
    lit->setBorderColor(kTransparent, Chart::barLighting(0.75, 1.5));
    lit->setRoundedCorners(10, BarLayer::kOmittedRadius, BarLayer::kOmittedRadius,
                           BarLayer::kOmittedRadius);
    lit->setBarGap(0.7, kNoValue);
    const double others[] = {9, 14, 21, 17, 24, 19, 12};
    BarLayer *glass = c->addBarLayer(DoubleArray(others, 7), kRed, "Glass", 0);
    glass->setBorderColor(kTransparent, Chart::glassEffect(kReducedGlare, kTop, 5));
    glass->setBarGap(0.7, kNoValue);
    const double third[] = {6, 10, 15, 12, 18, 13, 8};
    BarLayer *cylinder = c->addBarLayer(DoubleArray(third, 7), kGreen, "Cylinder", 0);
    cylinder->setBorderColor(kTransparent, Chart::cylinderEffect(5, 0.5, 0.5, 0.75, 8));
    cylinder->setBarGap(0.7, kNoValue);
    // Each layer's bars stand in their own third of the slot.
    lit->setXData2(-0.25, 6 - 0.25);
    cylinder->setXData2(0.25, 6 + 0.25);
    return save(c, path);
}

bool labelledBars(const std::string &path) {
    const double sales[] = {23, 31, -8, 27, 35, 12, -4, 29};
    XYChart *c = barChart(600, 400, "Labels: values at the bar ends, a note on one bar");
    c->setPlotArea(60, 50, 500, 300, 0xffffff, -1, kTransparent, 0xe6e9ee, kTransparent);
    c->xAxis()->setLabels(StringArray(kMonths, 8));
    BarLayer *layer = c->addBarLayer(DoubleArray(sales, 8), kBlue, "", 0);
    int color = layer->yZoneColor(0, kRed, kGreen, nullptr);
    layer->getDataSet(0)->setDataColor(color, -1, -1, -1);
    layer->setAggregateLabelFormat("{value|0}k");
    layer->setAggregateLabelStyle("bold", 9, kNavy, 0);
    TextBox *note = layer->addCustomDataLabel(0, 4, "best\n{value}k", "bold", 8, 0xffffff, 0);
    note->setAlignment(kCenter);
    return save(c, path);
}

bool twoYAxes(const std::string &path) {
    const double revenue[] = {120, 135, 128, 150, 171, 165};
    const double units[] = {3.1, 3.4, 3.0, 3.9, 4.6, 4.2};
    XYChart *c = barChart(620, 400, "Two y axes: revenue on the left, units on the right");
    c->setPlotArea(70, 60, 470, 280, 0xffffff, -1, kTransparent, 0xe6e9ee, kTransparent);
    c->addLegend(70, 30, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(kQuarters, 6));
    c->yAxis()->setTitle("Revenue (k$)", "", 9, kBlue);
    c->yAxis()->setColors(kBlue, kBlue, -1, -1);
    c->yAxis2()->setTitle("Units (thousands)", "", 9, kRed);
    c->yAxis2()->setColors(kRed, kRed, -1, -1);
    BarLayer *layer = c->addBarLayer2(kSide, 0);
    layer->addDataSet(DoubleArray(revenue, 6), kBlue, "Revenue");
    DataSet *u = layer->addDataSet(DoubleArray(units, 6), kRed, "Units");
    u->setUseYAxis2(true);
    layer->setBarGap(0.3, 0.1);
    return save(c, path);
}

bool touchingBars(const std::string &path) {
    const double counts[] = {2, 5, 9, 15, 22, 26, 24, 18, 11, 6, 3, 1};
    XYChart *c = barChart(560, 360, "Bars that touch: a histogram of 12 bins");
    c->setPlotArea(60, 45, 460, 270, 0xffffff, -1, kTransparent, 0xe6e9ee, kTransparent);
    c->xAxis()->setLinearScale(0, 12, 1, 0);
    c->xAxis()->setTitle("Response time (s)", "", 9, kNavy);
    BarLayer *layer = c->addBarLayer(DoubleArray(counts, 12), kNavy, "", 0);
    layer->setXData2(0.5, 11.5);
    layer->setBarGap(kTouchBar, kNoValue);
    layer->setBorderColor(0xffffff, 0);
    return save(c, path);
}

bool shapedBars(const std::string &path) {
    const double v[] = {8, 13, 10, 16, 12, 9};
    const char *names[] = {"Diamond", "Triangle", "Circle", "Star", "Polygon", "Sphere"};
    const int colors[] = {kBlue, kRed, kGreen, kGold, kGrey, kNavy};
    XYChart *c = barChart(600, 380, "Shaped bars, a colour and a legend name each");
    c->setPlotArea(60, 50, 400, 290, 0xffffff, -1, kTransparent, 0xe6e9ee, kTransparent);
    c->addLegend(480, 50, true, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(names, 6));
    BarLayer *layer =
        c->addBarLayer3(DoubleArray(v, 6), IntArray(colors, 6), StringArray(names, 6), 0);
    layer->setBarShape(kDiamondShape, -1, 0);
    layer->setBarShape(kTriangleShape, -1, 1);
    layer->setBarShape(kCircleShape, -1, 2);
    layer->setBarShape(Chart::StarShape(5), -1, 3);
    const int hexagon[] = {250, 0, 750, 0, 1000, 500, 750, 1000, 250, 1000, 0, 500};
    layer->setBarShape2(IntArray(hexagon, 12), -1, 4);
    layer->setBarShape(kGlassSphereShape, -1, 5);
    layer->setBarGap(0.3, kNoValue);
    return save(c, path);
}

bool depthStack(const std::string &path) {
    const double a[] = {30, 42, 35, 48, 40};
    const double b[] = {22, 25, 31, 27, 36};
    const double c3[] = {14, 18, 16, 22, 19};
    XYChart *c = barChart(600, 400, "Sets one behind the other (kDepth) on a 3D plot");
    c->setPlotArea(70, 100, 430, 250, 0xf2f5f9, -1, kTransparent, 0xd0d8e2, kTransparent);
    c->addLegend(80, 28, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(kQuarters, 5));
    BarLayer *layer = c->addBarLayer2(kDepth, 14);
    // The first set stands in front.
    layer->addDataSet(DoubleArray(c3, 5), kGold, "2021");
    layer->addDataSet(DoubleArray(b, 5), kGreen, "2022");
    layer->addDataSet(DoubleArray(a, 5), kBlue, "2023");
    layer->set3D(14, 6);
    layer->setBarGap(0.4, kNoValue);
    return save(c, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Bar charts", "W2: the reference grouped bars, as timed", "bar_w2.png",
                       workloadW2);
VISTREL_GALLERY_SAMPLE("Bar charts", "A stack of gains and costs with totals", "bar_stacked.png",
                       stackedWithNegatives);
VISTREL_GALLERY_SAMPLE("Bar charts", "Percentage bars with the share inside each part",
                       "bar_percentage.png", percentageBars);
VISTREL_GALLERY_SAMPLE("Bar charts", "Lying bars with rounded ends and value labels",
                       "bar_lying.png", lyingBars);
VISTREL_GALLERY_SAMPLE("Bar charts", "3D bars, two sets side by side", "bar_3d.png", bars3D);
VISTREL_GALLERY_SAMPLE("Bar charts", "Bar lighting on rounded bars, glass and cylinders",
                       "bar_lighting.png", litRoundedBars);
VISTREL_GALLERY_SAMPLE("Bar charts", "Value labels, a zone colour and a custom label",
                       "bar_labels.png", labelledBars);
VISTREL_GALLERY_SAMPLE("Bar charts", "Two y axes: one set on each", "bar_two_axes.png", twoYAxes);
VISTREL_GALLERY_SAMPLE("Bar charts", "Bars that touch", "bar_touching.png", touchingBars);
VISTREL_GALLERY_SAMPLE("Bar charts", "Shaped bars with a colour and a legend key each",
                       "bar_shapes.png", shapedBars);
VISTREL_GALLERY_SAMPLE("Bar charts", "Data sets one behind the other in 3D", "bar_depth.png",
                       depthStack);
