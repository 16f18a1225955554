// W7 "scatter": 100,000 points from the LCG with seed 67890, point k taking
// u_{6k+1} .. u_{6k+6}: x = ((u1 + u2) + u3) - 1.5 and y = 0.5 x + 0.8
// (((u4 + u5) + u6) - 1.5); each a filled circle of radius 2 px without
// outline in one opaque colour; title "W7 scatter", default axes, no legend;
// PNG 640x480.
#include <vector>

#include "bench/workloads/Workloads.h"
#include "chart/symbol/ShapeWords.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/line/ScatterLayer.h"

namespace {

const int kPoints = 100000;

struct ScatterData {
    std::vector<double> x, y;
    ScatterData() : x(kPoints), y(kPoints) {
        WorkloadLCG lcg(67890);
        for (int k = 0; k < kPoints; ++k) {
            double u[6];
            for (double &v : u) v = lcg.next();
            x[k] = ((u[0] + u[1]) + u[2]) - 1.5;
            y[k] = 0.5 * x[k] + 0.8 * (((u[3] + u[4]) + u[5]) - 1.5);
        }
    }
};

const ScatterData &scatterData() {
    static const ScatterData data;
    return data;
}

BaseChart *buildW7() {
    LayerKinds::install();
    const ScatterData &data = scatterData();
    XYChart *c = XYChart::create(640, 480, 0xFFFFFF, kTransparent, 0);
    c->addTitle("W7 scatter", "", 12, kTextColor, kTransparent, kTransparent);
    c->setPlotArea(60, 40, 555, 400, 0xFFFFFF, -1, kTransparent, 0xDDDDDD, 0xDDDDDD);
    // Size 5: a circle that spans five pixels, radius 2 about its centre pixel.
    c->addScatterLayer(DoubleArray(data.x.data(), kPoints), DoubleArray(data.y.data(), kPoints),
                       "", kCircleShapeNoShading, 5, 0x1F77B4, kTransparent);
    return c;
}

}  // namespace

VISTREL_WORKLOAD("W7", "w7_scatter.png", buildW7, kPNG);
