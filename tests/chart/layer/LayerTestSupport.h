#pragma once

#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/layer/DataSetImpl.h"
#include "chart/layer/LayerImpl.h"
#include "chart/symbol/LayerPainter.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/DrawArea.h"
#include "foundation/DrawObj.h"
#include "tests/chart/ChartTestSupport.h"

// A layer that draws a 3 by 3 square at each point, puts a label spot on it
// and a hot spot of the same square, and notes in a log when it paints.
class SquareLayer : public LayerImpl {
public:
    static SquareLayer *add(XYChartImpl *chart) {
        SquareLayer *layer = new SquareLayer(chart);
        chart->addLayer(layer);
        return layer;
    }

    std::vector<std::string> *log = nullptr;

    // The canvas centre of a point, 3D shift included.
    void centre(int set, int i, int *x, int *y) {
        LayerPainter p(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
        double px, py;
        p.map(pointXPixel(i), yPixel(getStacks().value(set, i), axisOf(set)), &px, &py);
        *x = (int)px;
        *y = (int)py;
    }

protected:
    explicit SquareLayer(XYChartImpl *chart) : LayerImpl(chart) {}

    void onPaint(LayerPainter &) override {
        if (log) log->push_back("data");
        forEachPoint([this](int s, int, int x, int y) {
            getDrawArea()->rect(x - 1, y - 1, x + 1, y + 1, kTransparent,
                                dataSetAt(s)->getDataColor(), 0);
        });
    }
    void collectLabelSpots(std::vector<LabelSpot> &spots) override {
        forEachPoint([&](int s, int i, int x, int y) {
            spots.push_back({s, i, dataSetAt(s)->getGroupNo(), false, getStacks().value(s, i),
                             x - 1, y - 1, x + 1, y + 1, kTop});
        });
    }
    void collectHotSpots(std::vector<HotSpot> &spots) override {
        forEachPoint([&](int s, int i, int x, int y) {
            spots.push_back({s, i, {x - 1, y - 1, x + 1, y + 1}});
        });
    }

private:
    template <class F>
    void forEachPoint(F f) {
        for (int s = 0; s < countDataSets(); ++s)
            for (int i = firstPoint(); i < endPoint(); ++i) {
                if (getStacks().value(s, i) == kNoValue || xValue(i) == kNoValue) continue;
                int x, y;
                centre(s, i, &x, &y);
                f(s, i, x, y);
            }
    }
};

// An object of a layer that notes in the log when it paints.
class LoggedObject : public DrawObj {
public:
    LoggedObject(std::vector<std::string> *log, const std::string &name, int z)
        : log(log), name(name) {
        setZOrder(z);
    }
    void release() override { delete this; }
    void paint(DrawArea *) override { log->push_back(name); }

private:
    std::vector<std::string> *log;
    std::string name;
};

inline XYChartImpl *newLayerChart(int width = 400, int height = 300) {
    XYChartImpl *chart =
        static_cast<XYChartImpl *>(XYChart::create(width, height, 0xFFFFFF, kTransparent, 0));
    chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, kTransparent, kTransparent,
                       kTransparent);
    return chart;
}

// The range a layer gives an axis; kNoValue twice when it gives none.
inline void rangeOf(PlotLayer *layer, Axis *axis, bool isX, double *min, double *max) {
    *min = kNoValue;
    *max = -kNoValue;
    layer->foldDataRange(axis, isX, min, max);
}
