// W1 "line3": three lines of 100 points over x = i / 10 (i = 0..99):
// "sin(x)", "0.8 cos(x)" and "damped" exp(-x / 4) sin(3 x); title "W1 line3",
// axis titles "x" and "y", grid lines on both axes, the legend in the upper
// right corner inside the plot, default line widths; PNG 640x480.  W5 and W6
// are the same chart as SVG and as a PDF page of 6.4 by 4.8 inches (100 dpi).
#include <cmath>

#include "bench/workloads/Workloads.h"
#include "chart/axis/Axis.h"
#include "chart/legend/LegendBox.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/line/LineLayer.h"

namespace {

const int kPoints = 100;

XYChart *buildLine3() {
    LayerKinds::install();
    double x[kPoints], sine[kPoints], cosine[kPoints], damped[kPoints];
    for (int i = 0; i < kPoints; ++i) {
        x[i] = i / 10.0;
        sine[i] = std::sin(x[i]);
        cosine[i] = 0.8 * std::cos(x[i]);
        damped[i] = std::exp(-x[i] / 4) * std::sin(3 * x[i]);
    }
    XYChart *c = XYChart::create(640, 480, 0xFFFFFF, kTransparent, 0);
    c->addTitle("W1 line3", "", 12, kTextColor, kTransparent, kTransparent);
    c->setPlotArea(60, 40, 555, 385, 0xFFFFFF, -1, kTransparent, 0xDDDDDD, 0xDDDDDD);
    LegendBox *legend = c->addLegend(607, 48, true, "", 9);
    legend->setAlignment(kTopRight);
    legend->setBackground(0xFFFFFF, 0xAAAAAA, 0);
    c->xAxis()->setTitle("x", "", 10, kTextColor);
    c->yAxis()->setTitle("y", "", 10, kTextColor);
    LineLayer *layer = c->addLineLayer2(kOverlay, 0);
    layer->setXData(DoubleArray(x, kPoints));
    layer->addDataSet(DoubleArray(sine, kPoints), 0x4472C4, "sin(x)");
    layer->addDataSet(DoubleArray(cosine, kPoints), 0xED7D31, "0.8 cos(x)");
    layer->addDataSet(DoubleArray(damped, kPoints), 0x70AD47, "damped");
    return c;
}

BaseChart *buildW1() {
    return buildLine3();
}

// Vector pages of 100 pixels to the inch.
BaseChart *buildLine3Page() {
    XYChart *c = buildLine3();
    c->setOutputOptions("dpi=100");
    return c;
}

}  // namespace

VISTREL_WORKLOAD("W1", "w1_line3.png", buildW1, kPNG);
VISTREL_WORKLOAD("W5", "w5_line3.svg", buildLine3Page, kSVG);
VISTREL_WORKLOAD("W6", "w6_line3.pdf", buildLine3Page, kPDF);
