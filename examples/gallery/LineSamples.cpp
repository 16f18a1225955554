// Line and scatter charts: the W1, W4 and W7 workloads, symbols and labels at
// the points, gaps left open and bridged, a stepped dashed line, a log scale,
// a date axis, 3D ribbons, scatter shapes and sizes per point.
#include <cmath>
#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "chart/legend/LegendBox.h"
#include "chart/symbol/ShapeWords.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "foundation/ChartStatics.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/line/LineLayer.h"
#include "layers/line/ScatterLayer.h"
#include "text/box/TextBox.h"

namespace {

const int kNavy = 0x1f3a5f, kBlue = 0x4a90d9, kRed = 0xe4572e, kGreen = 0x76b041, kGold = 0xf2b134;

XYChart *lineChart(const char *title) {
    LayerKinds::install();
    XYChart *c = XYChart::create(600, 380, 0xffffff, kTransparent, 0);
    c->addTitle(title, "", 12, kNavy, kTransparent, kTransparent);
    c->setPlotArea(60, 45, 500, 280, 0xffffff, -1, kTransparent, 0xdde3ea, 0xdde3ea);
    return c;
}

DoubleArray view(const std::vector<double> &v) {
    return DoubleArray(v.data(), (int)v.size());
}

bool workloadW1(const std::string &path) {
    return saveWorkload("W1", path);
}

bool workloadW4(const std::string &path) {
    return saveWorkload("W4", path);
}

bool workloadW7(const std::string &path) {
    return saveWorkload("W7", path);
}

bool symbolsAndLabels(const std::string &path) {
    const double sales[] = {32, 45, 41, 58, 63, 55, 71};
    const double costs[] = {25, 28, 35, 33, 40, 44, 42};
    const char *days[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    XYChart *c = lineChart("Lines with symbols and data labels");
    LegendBox *legend = c->addLegend(70, 50, false, "", 9);
    legend->setBackground(kTransparent, kTransparent, 0);
    legend->setLineStyleKey(true);
    c->xAxis()->setLabels(StringArray(days, 7));
    // Points in the middle of their slots keep the first label clear of the y axis.
    c->xAxis()->setIndent(true);
    LineLayer *layer = c->addLineLayer2(kOverlay, 0);
    layer->setLineWidth(2);
    layer->addDataSet(DoubleArray(sales, 7), kBlue, "Sales")
        ->setDataSymbol(kCircleShape, 9, -1, -1, 1);
    layer->addDataSet(DoubleArray(costs, 7), kRed, "Costs")
        ->setDataSymbol(kDiamondShape, 11, 0xffffff, kRed, 1);
    layer->setDataLabelFormat("{value}");
    layer->setDataLabelStyle("", 8, kNavy, 0);
    return saveChart(c, path);
}

// The same data twice: the upper line leaves its gaps open, the lower one
// bridges them with a dashed line.
bool gaps(const std::string &path) {
    std::vector<double> upper, lower;
    for (int i = 0; i < 24; ++i) {
        bool missing = i == 6 || i == 7 || i == 15;
        double v = 50 + 20 * std::sin(i / 3.0);
        upper.push_back(missing ? kNoValue : v + 40);
        lower.push_back(missing ? kNoValue : v);
    }
    XYChart *c = lineChart("Gaps: left open (top), bridged by a dashed line (bottom)");
    LineLayer *open = c->addLineLayer(view(upper), kBlue, "Open gaps", 0);
    open->setLineWidth(2);
    open->getDataSet(0)->setDataSymbol(kSquareShape, 5, -1, -1, 1);
    LineLayer *bridged = c->addLineLayer(view(lower), kRed, "Bridged gaps", 0);
    bridged->setLineWidth(2);
    bridged->getDataSet(0)->setDataSymbol(kSquareShape, 5, -1, -1, 1);
    bridged->setGapColor(c->dashLineColor(kRed, kDashLine), 1);
    return saveChart(c, path);
}

// Each value held until the next: every x twice.
bool steppedDashed(const std::string &path) {
    const double levels[] = {3, 5, 4, 7, 6, 8, 5, 9};
    std::vector<double> x, y;
    for (int i = 0; i < 8; ++i) {
        x.push_back(i), y.push_back(levels[i]);
        x.push_back(i + 1), y.push_back(levels[i]);
    }
    XYChart *c = lineChart("A step-like dashed line");
    c->yAxis()->setLinearScale(0, 10, 2, 0);
    LineLayer *layer = c->addLineLayer(view(y), c->dashLineColor(kGreen, kDashLine), "Level", 0);
    layer->setXData(view(x));
    layer->setLineWidth(2);
    return saveChart(c, path);
}

bool logScale(const std::string &path) {
    std::vector<double> growth, decay;
    for (int i = 0; i <= 20; ++i) {
        growth.push_back(3 * std::pow(1.6, i));
        decay.push_back(20000 * std::pow(0.7, i));
    }
    XYChart *c = lineChart("A log-scale y axis: exponentials are straight");
    c->addLegend(70, 50, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->yAxis()->setLogScale3("{value}");
    LineLayer *layer = c->addLineLayer2(kOverlay, 0);
    layer->setLineWidth(2);
    layer->addDataSet(view(growth), kBlue, "Growth 1.6x")
        ->setDataSymbol(kCircleShape, 6, -1, -1, 1);
    layer->addDataSet(view(decay), kRed, "Decay 0.7x")->setDataSymbol(kTriangleShape, 7, -1, -1, 1);
    return saveChart(c, path);
}

bool dateAxis(const std::string &path) {
    std::vector<double> days, price;
    double p = 100;
    for (int d = 0; d < 180; ++d) {
        days.push_back(Chart::chartTime(2024, 1, 1, 0, 0, 0) + d * 86400.0);
        p += std::sin(d / 9.0) * 1.5 + std::cos(d / 4.0) * 0.8;
        price.push_back(p);
    }
    XYChart *c = lineChart("A date axis: half a year of daily values");
    c->xAxis()->setLabelFormat("{value|mmm dd}");
    LineLayer *layer = c->addLineLayer(view(price), kNavy, "Price", 0);
    layer->setXData(view(days));
    layer->setLineWidth(2);
    return saveChart(c, path);
}

bool ribbons(const std::string &path) {
    const double a[] = {20, 52, 30, 36, 58, 40, 50};
    const double b[] = {12, 14, 26, 18, 22, 30, 24};
    XYChart *c = lineChart("3D lines: ribbons with two shades");
    c->addLegend(70, 50, false, "", 9)->setBackground(kTransparent, kTransparent, 0);
    LineLayer *layer = c->addLineLayer2(kOverlay, 12);
    layer->addDataSet(DoubleArray(a, 7), kBlue, "North");
    layer->addDataSet(DoubleArray(b, 7), kGold, "South");
    return saveChart(c, path);
}

bool scatterShapes(const std::string &path) {
    XYChart *c = lineChart("Scatter symbols of every shape, one size per point in the last");
    // Five keys a row keep the legend inside the plot.
    c->addLegend2(70, 50, 5, "", 8)->setBackground(0xffffff, 0xdde3ea, 0);
    c->yAxis()->setLinearScale(0, 120, 20, 0);
    const int shapes[] = {kSquareShape,           kDiamondShape,     kTriangleShape,
                          kInvertedTriangleShape, kCircleShape,      kCircleShapeNoShading,
                          kCrossSymbol,           kGlassSphere2Shape};
    const char *names[] = {"Square", "Diamond",     "Triangle", "Inverted",
                           "Circle", "Flat circle", "Cross",    "Sphere"};
    for (int s = 0; s < 8; ++s) {
        std::vector<double> x, y;
        for (int i = 0; i < 6; ++i) x.push_back(1 + i * 1.5), y.push_back(10 + 10 * s + (i % 3));
        c->addScatterLayer(view(x), view(y), names[s], shapes[s], 11, -1, -1);
    }
    std::vector<double> x = {11, 12, 13, 14, 15}, y = {40, 40, 40, 40, 40},
                        size = {6, 12, 18, 24, 30};
    ScatterLayer *bubbles =
        c->addScatterLayer(view(x), view(y), "Sized", kCircleShape, 9, 0x80e4572e, kTransparent);
    bubbles->setSymbolScale(view(size), kPixelScale, DoubleArray(), kPixelScale);
    return saveChart(c, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Line charts", "W1: the reference three lines, as timed", "line_w1.png",
                       workloadW1);
VISTREL_GALLERY_SAMPLE("Line charts", "W4: a million points, reduced to the shape of each column",
                       "line_w4.png", workloadW4);
VISTREL_GALLERY_SAMPLE("Line charts", "W7: 100,000 scatter points, one stamped mark",
                       "scatter_w7.png", workloadW7);
VISTREL_GALLERY_SAMPLE("Line charts", "Symbols and data labels", "line_symbols.png",
                       symbolsAndLabels);
VISTREL_GALLERY_SAMPLE("Line charts", "Gaps left open and bridged", "line_gaps.png", gaps);
VISTREL_GALLERY_SAMPLE("Line charts", "A step-like dashed line", "line_steps.png", steppedDashed);
VISTREL_GALLERY_SAMPLE("Line charts", "A log-scale line", "line_log.png", logScale);
VISTREL_GALLERY_SAMPLE("Line charts", "A date-axis line", "line_dates.png", dateAxis);
VISTREL_GALLERY_SAMPLE("Line charts", "3D ribbons", "line_3d.png", ribbons);
VISTREL_GALLERY_SAMPLE("Line charts", "Scatter shapes and sizes", "scatter_shapes.png",
                       scatterShapes);
