// Area charts: stacked and percentage bands, a 3D area crossing its base line,
// a gradient fill, and gaps.
#include <cmath>
#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "chart/legend/LegendBox.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/area/AreaLayer.h"
#include "text/box/TextBox.h"

namespace {

const int kNavy = 0x1f3a5f, kBlue = 0x4a90d9, kRed = 0xe4572e, kGreen = 0x76b041, kGold = 0xf2b134;
const char *kYears[] = {"2016", "2017", "2018", "2019", "2020", "2021", "2022", "2023"};
const double kNorth[] = {30, 34, 41, 38, 45, 52, 49, 58};
const double kSouth[] = {22, 25, 24, 31, 29, 33, 40, 38};
const double kOnline[] = {5, 9, 14, 20, 33, 41, 47, 55};

XYChart *areaChart(const char *title) {
    LayerKinds::install();
    XYChart *c = XYChart::create(600, 380, 0xffffff, kTransparent, 0);
    c->addTitle(title, "", 12, kNavy, kTransparent, kTransparent);
    c->setPlotArea(60, 45, 420, 280, 0xffffff, -1, kTransparent, 0xdde3ea, 0xdde3ea);
    c->addLegend(495, 45, true, "", 9)->setBackground(kTransparent, kTransparent, 0);
    c->xAxis()->setLabels(StringArray(kYears, 8));
    return c;
}

AreaLayer *threeRegions(XYChart *c, int method) {
    AreaLayer *layer = c->addAreaLayer2(method, 0);
    layer->addDataSet(DoubleArray(kNorth, 8), kBlue, "North");
    layer->addDataSet(DoubleArray(kSouth, 8), kGreen, "South");
    layer->addDataSet(DoubleArray(kOnline, 8), kGold, "Online");
    layer->setBorderColor(0xffffff, 0);
    return layer;
}

bool stacked(const std::string &path) {
    XYChart *c = areaChart("Stacked areas with labels in the bands");
    AreaLayer *layer = threeRegions(c, kStack);
    layer->setDataLabelFormat("{value}");
    layer->setDataLabelStyle("", 8, kNavy, 0)->setAlignment(kCenter);
    layer->setMinLabelSize(12);
    return saveChart(c, path);
}

bool percentage(const std::string &path) {
    XYChart *c = areaChart("Percentage areas: every year sums to 100 %");
    c->yAxis()->setLabelFormat("{value}%");
    threeRegions(c, kPercentage);
    return saveChart(c, path);
}

bool crossing3D(const std::string &path) {
    std::vector<double> balance;
    for (int i = 0; i < 8; ++i) balance.push_back(30 * std::sin(i / 1.4 + 0.3) + 5);
    XYChart *c = areaChart("A 3D area crossing its base line");
    AreaLayer *layer = c->addAreaLayer(DoubleArray(balance.data(), 8), kRed, "Balance", 14);
    layer->setBorderColor(kNavy, 0);
    return saveChart(c, path);
}

bool gradient(const std::string &path) {
    XYChart *c = areaChart("A gradient area, with a gap left open");
    std::vector<double> v(kNorth, kNorth + 8);
    v[4] = kNoValue;
    int fill = c->linearGradientColor(0, 45, 0, 325, 0x4a90d9, 0xe8f1fb, false);
    AreaLayer *layer = c->addAreaLayer(DoubleArray(v.data(), 8), fill, "North", 0);
    layer->setGapColor(kTransparent);
    layer->setBorderColor(kNavy, 0);
    layer->setLineWidth(2);
    return saveChart(c, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Area charts", "Stacked areas", "area_stacked.png", stacked);
VISTREL_GALLERY_SAMPLE("Area charts", "Percentage areas", "area_percentage.png", percentage);
VISTREL_GALLERY_SAMPLE("Area charts", "A 3D area crossing its base", "area_3d.png", crossing3D);
VISTREL_GALLERY_SAMPLE("Area charts", "A gradient area with a gap", "area_gradient.png", gradient);
