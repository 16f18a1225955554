#include "host/abc/pie/PieChart.h"

namespace abc {

PieChart *PieChart::create(int width, int height, int bgColor, int edgeColor, int raisedEffect) {
    CPieChart *c = CPieChart_create(width, height, bgColor, edgeColor, raisedEffect);
    return c ? new PieChart(c) : nullptr;
}

}  // namespace abc
