// W3 "pie": eight sectors A..H of 35 25 18 12 9 6 4 3, the first at 12 o'clock,
// clockwise, round; one label outside the rim per sector, "<name> (<pct>%)"
// with one decimal; title "W3 pie"; no legend; PNG 500x400.
#include <string>

#include "bench/workloads/Workloads.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/PieChart.h"
#include "foundation/Constants.h"

namespace {

std::string renderW3() {
    const double values[] = {35, 25, 18, 12, 9, 6, 4, 3};
    const char *names[] = {"A", "B", "C", "D", "E", "F", "G", "H"};
    PieChart *c = PieChart::create(500, 400, 0xFFFFFF, kTransparent, 0);
    c->addTitle("W3 pie", "", 12, kTextColor, kTransparent, kTransparent);
    c->setPieSize(250, 215, 130);
    c->setData(DoubleArray(values, 8), StringArray(names, 8));
    c->setLabelFormat("{label} ({percent|1}%)");
    return outputOf(c, kPNG);
}

}  // namespace

VISTREL_WORKLOAD("W3", "w3_pie.png", renderW3);
