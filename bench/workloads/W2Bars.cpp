// W2 "bars": twelve months Jan..Dec, three series side by side per month:
// "Alpha" 10 + (37 m + 11) mod 23, "Beta" 8 + (53 m + 5) mod 29, "Gamma"
// 12 + (19 m + 7) mod 17; the bars of a month fill 85 % of its slot; title
// "W2 bars", y-axis title "Value", y axis from 0, legend at the upper left;
// PNG 640x480.
#include "bench/workloads/Workloads.h"
#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "chart/legend/LegendBox.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/bar/BarLayer.h"

namespace {

BaseChart *buildW2() {
    LayerKinds::install();
    const char *months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    double alpha[12], beta[12], gamma[12];
    for (int m = 0; m < 12; ++m) {
        alpha[m] = 10 + (37 * m + 11) % 23;
        beta[m] = 8 + (53 * m + 5) % 29;
        gamma[m] = 12 + (19 * m + 7) % 17;
    }
    XYChart *c = XYChart::create(640, 480, 0xFFFFFF, kTransparent, 0);
    c->addTitle("W2 bars", "", 12, kTextColor, kTransparent, kTransparent);
    c->setPlotArea(60, 45, 555, 385, 0xFFFFFF, -1, kTransparent, 0xDDDDDD, kTransparent);
    c->addLegend(68, 52, true, "", 9)->setBackground(0xFFFFFF, 0xAAAAAA, 0);
    c->xAxis()->setLabels(StringArray(months, 12));
    c->yAxis()->setTitle("Value", "", 10, kTextColor);
    c->yAxis()->setLinearScale(0, kNoValue, 0, 0);
    BarLayer *layer = c->addBarLayer2(kSide, 0);
    layer->addDataSet(DoubleArray(alpha, 12), 0x4472C4, "Alpha");
    layer->addDataSet(DoubleArray(beta, 12), 0xED7D31, "Beta");
    layer->addDataSet(DoubleArray(gamma, 12), 0x70AD47, "Gamma");
    layer->setBarGap(0.15, 0);
    return c;
}

}  // namespace

VISTREL_WORKLOAD("W2", "w2_bars.png", buildW2, kPNG);
