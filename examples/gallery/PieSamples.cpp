// Pie charts: the W3 workload, donuts, 3D pies with exploded sectors, side and
// circular labels, a legend, and the shading methods of sector tops.
#include <string>

#include "chart/base/MultiChart.h"
#include "chart/legend/LegendBox.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "families/pie/PieChart.h"
#include "families/pie/Sector.h"
#include "foundation/Constants.h"
#include "text/box/TextBox.h"

namespace {

const double kSales[] = {35, 25, 18, 12, 9, 6, 4, 3};
const char *kRegions[] = {"North",   "South",   "East",   "West",
                          "Central", "Islands", "Online", "Other"};

bool save(PieChart *c, const std::string &path) {
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    return ok;
}

PieChart *salesPie(int width, int height, const char *title, int n) {
    PieChart *c = PieChart::create(width, height, 0xFFFFFF, kTransparent, 0);
    c->addTitle(title, "", 12, kTextColor, kTransparent, kTransparent);
    c->setData(DoubleArray(kSales, n), StringArray(kRegions, n));
    return c;
}

bool workloadW3(const std::string &path) {
    return saveWorkload("W3", path);
}

bool donut(const std::string &path) {
    PieChart *c = salesPie(520, 380, "Sales by region: a donut", 6);
    c->setDonutSize(260, 205, 130, 65);
    c->setSectorStyle(kRoundedEdgeShading, 0xFFFFFF, 2);
    c->setLabelFormat("<*font=bold*>{label}<*/font*>\n{value|0} k$ ({percent|0}%)");
    c->setLabelPos(18, kLineColor);
    return save(c, path);
}

bool exploded3D(const std::string &path) {
    PieChart *c = salesPie(520, 380, "3D pie, one sector exploded", 8);
    c->setPieSize(260, 190, 140);
    c->set3D(24, 55, false);
    c->setExplode(0, 24);
    c->setStartAngle(30, true);
    c->setLabelFormat("{label}\n{percent|1}%");
    return save(c, path);
}

bool sideLabels(const std::string &path) {
    const double tiny[] = {60, 20, 10, 0.6, 0.4, 0.5, 0.3, 8.2};
    PieChart *c = PieChart::create(560, 360, 0xFFFFFF, kTransparent, 0);
    c->addTitle("Side labels with join lines", "", 12, kTextColor, kTransparent, kTransparent);
    c->setData(DoubleArray(tiny, 8), StringArray(kRegions, 8));
    c->setPieSize(280, 195, 110);
    c->setLabelLayout(kSideLayout, -1, 40, 350);
    c->setLabelFormat("{label} ({percent|1}%)");
    c->setLineColor(0xFFFFFF, -1);
    c->setJoinLine(0x555555, 1);
    c->setLabelStyle("", 9, kTextColor)->setBackground(kSameAsMainColor, 0x444444, 0);
    return save(c, path);
}

bool circleLabels(const std::string &path) {
    PieChart *c = salesPie(520, 380, "Circular labels, anti-clockwise from 3 o'clock", 8);
    c->setPieSize(260, 200, 120);
    c->setStartAngle(90, false);
    c->setLabelPos(25, 0x666666);
    c->setLabelFormat("{label}: {value|0}");
    c->setLabelStyle("bold", 9, 0x333333);
    // One label inside its sector, one sector without a label.
    c->sector(0)->setLabelLayout(kCircleLayout, -50);
    c->sector(0)->setLabelStyle("bold", 11, 0xFFFFFF);
    c->sector(7)->setLabelFormat(" ");
    // An icon in a label's mark-up.
    c->sector(1)->setLabelFormat(
        "<*img=@star(5),size=13,color=FFC914,edgecolor=806000*> {label}: {value|0}");
    return save(c, path);
}

bool withLegend(const std::string &path) {
    PieChart *c = salesPie(520, 340, "A pie with a legend", 8);
    c->setPieSize(170, 180, 120);
    c->setLabelPos(-40, -1);
    c->setLabelFormat("{percent|0}%");
    c->setLabelStyle("bold", 9, 0xFFFFFF);
    LegendBox *legend = c->addLegend(330, 70, true, "", 10);
    legend->setText("{label}: {value|0} k$");
    legend->setBackground(0xF4F6FA, 0x8AA1C1, 0);
    return save(c, path);
}

bool shadings(const std::string &path) {
    const char *names[] = {"default",         "flat",    "local gradient",
                           "global gradient", "concave", "rounded, no glare",
                           "rounded edge",    "radial",  "ring"};
    MultiChart *c = MultiChart::create(660, 500, 0xFFFFFF, kTransparent, 0);
    c->addTitle("Shading methods of sector tops", "", 12, kTextColor, kTransparent, kTransparent);
    // Each method on a small pie of its own; the last two as donuts.
    PieChart *pies[9];
    for (int m = 0; m < 9; ++m) {
        PieChart *p = pies[m] = PieChart::create(220, 155, 0xFFFFFF, kTransparent, 0);
        p->setData(DoubleArray(kSales, 5), StringArray(kRegions, 5));
        if (m >= kRadialShading)
            p->setDonutSize(110, 70, 60, 25);
        else
            p->setPieSize(110, 70, 60);
        p->setSectorStyle(m, -1, -1);
        p->setLabelFormat(" ");
        p->addTitle2(kBottomCenter, names[m], "", 9, kTextColor, kTransparent, kTransparent);
        c->addChart(220 * (m % 3), 30 + 155 * (m / 3), p);
    }
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    for (PieChart *p : pies) p->destroy();
    return ok;
}

bool shadow3D(const std::string &path) {
    const double depths[] = {10, 30, 20, 40, 15};
    PieChart *c =
        salesPie(520, 360, "Round pie with a shadow-like depth, sectors of own depths", 5);
    c->setPieSize(250, 190, 110);
    c->set3D2(DoubleArray(depths, 5), 135, true);
    c->setLabelFormat("{label}");
    c->setSectorStyle(kLocalGradientShading, -1, -1);
    return save(c, path);
}

bool donut3D(const std::string &path) {
    const int glass[] = {0x40E4572E, 0x404A90D9, 0x4076B041, 0x40FFC914, 0x409966FF, 0x4033AAAA};
    PieChart *c = salesPie(520, 380, "Translucent 3D donut, a group of two exploded", 6);
    c->setDonutSize(260, 180, 150, 70);
    c->set3D(40, 60, false);
    c->setColors2(kDataColor & 0xFFFF, IntArray(glass, 6));
    c->setExplodeGroup(4, 5, 20);
    c->setLabelFormat("{label}");
    c->setLabelPos(-40, -1);
    return save(c, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Pie charts", "W3: the reference pie, as timed", "pie_w3.png", workloadW3);
VISTREL_GALLERY_SAMPLE("Pie charts", "A donut with rounded-edge shading and white edges",
                       "pie_donut.png", donut);
VISTREL_GALLERY_SAMPLE("Pie charts", "A tilted 3D pie with an exploded sector", "pie_3d.png",
                       exploded3D);
VISTREL_GALLERY_SAMPLE("Pie charts",
                       "Side labels in two columns with join lines; tiny sectors spread",
                       "pie_side_labels.png", sideLabels);
VISTREL_GALLERY_SAMPLE(
    "Pie charts",
    "Circular labels, anti-clockwise; one label inside, one with an icon, one left out",
    "pie_circle_labels.png", circleLabels);
VISTREL_GALLERY_SAMPLE("Pie charts", "Labels inside the sectors and a legend", "pie_legend.png",
                       withLegend);
VISTREL_GALLERY_SAMPLE("Pie charts", "Lighting of sector tops: the nine shading methods",
                       "pie_shadings.png", shadings);
VISTREL_GALLERY_SAMPLE("Pie charts", "A round 3D pie whose sectors have depths of their own",
                       "pie_depths.png", shadow3D);
VISTREL_GALLERY_SAMPLE("Pie charts", "A translucent 3D donut: the back walls show through",
                       "pie_3d_donut.png", donut3D);
