// W4 "bigline": one series of 1,000,000 points, x_i = i and y_i the running
// sum of (u_k - 0.5) for k = 1..i+1 (LCG seed 12345, summed left to right in
// double precision); 1 px line, title "W4 bigline", default axes, no legend;
// PNG 800x400.  The drawn envelope is that of the full data.
#include <vector>

#include "bench/workloads/Workloads.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/line/LineLayer.h"

namespace {

const int kPoints = 1000000;

// The data are in memory before the clock starts, as the workload says.
struct BigLineData {
    std::vector<double> x, y;
    BigLineData() : x(kPoints), y(kPoints) {
        WorkloadLCG lcg(12345);
        double sum = 0;
        for (int i = 0; i < kPoints; ++i) {
            sum += lcg.next() - 0.5;
            x[i] = i;
            y[i] = sum;
        }
    }
};

const BigLineData &bigLineData() {
    static const BigLineData data;
    return data;
}

BaseChart *buildW4() {
    LayerKinds::install();
    const BigLineData &data = bigLineData();
    XYChart *c = XYChart::create(800, 400, 0xFFFFFF, kTransparent, 0);
    c->addTitle("W4 bigline", "", 12, kTextColor, kTransparent, kTransparent);
    c->setPlotArea(70, 40, 700, 320, 0xFFFFFF, -1, kTransparent, 0xDDDDDD, kTransparent);
    LineLayer *layer = c->addLineLayer(DoubleArray(data.y.data(), kPoints), 0x1F77B4, "", 0);
    layer->setXData2(0, kPoints - 1);
    layer->setLineWidth(1);
    return c;
}

}  // namespace

VISTREL_WORKLOAD("W4", "w4_bigline.png", buildW4, kPNG);
