#pragma once

#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/axis/AxisImpl.h"
#include "chart/xy/PlotLayer.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/DrawArea.h"
#include "tests/chart/ChartTestSupport.h"

// A layer that records what the chart asks of it into a log shared by the
// test, gives the data range it is told for the axes it is told, and paints a
// line in its own colour.
class FakeLayer : public PlotLayer {
public:
    FakeLayer(std::vector<std::string> *log, const std::string &name, DrawArea *canvas)
        : log(log), name(name), canvas(canvas) {}

    void release() override {
        log->push_back(name + ".release");
        delete this;
    }
    Layer *getLayer() override { return reinterpret_cast<Layer *>(this); }
    void layoutLegend() override { log->push_back(name + ".layoutLegend"); }
    void preLayout(int length) override {
        log->push_back(name + ".preLayout " + std::to_string(length));
    }
    void setSize(int x, int y, int width, int height, bool swapXY) override {
        log->push_back(name + ".setSize " + std::to_string(x) + " " + std::to_string(y) + " " +
                       std::to_string(width) + " " + std::to_string(height) +
                       (swapXY ? " swapped" : ""));
    }
    int getDepthX() const override { return depthX; }
    int getDepthY() const override { return depthY; }
    void foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) override {
        bool uses = isXAxis ? xRange : axis == yAxis;
        if (!uses) return;
        const double *range = isXAxis ? xData : yData;
        if (range[0] < *min) *min = range[0];
        if (range[1] > *max) *max = range[1];
    }
    void layoutChart() override { log->push_back(name + ".layoutChart"); }
    void paint() override {
        log->push_back(name + ".paint");
        canvas->line(0, 0, 1, 1, color, 1);
    }
    void paintAbove() override { log->push_back(name + ".paintAbove"); }
    bool hasXData() const override { return nearestX != kNoValue; }
    double getNearestXValue(double coor) override { return nearestX + coor * 0; }
    const char *getHTMLImageMap(const char *, const char *, const char *, int offsetX,
                                int) override {
        mapText = "<area " + name + " " + std::to_string(offsetX) + ">\n";
        return mapText.c_str();
    }

    int depthX = 0;
    int depthY = 0;
    int color = 0x010101;
    // The y axis whose range is yData; the x range is given when xRange is set.
    Axis *yAxis = nullptr;
    double yData[2] = {0, 0};
    bool xRange = false;
    double xData[2] = {0, 0};
    double nearestX = kNoValue;

private:
    std::vector<std::string> *log;
    std::string name;
    DrawArea *canvas;
    std::string mapText;
};

inline XYChartImpl *newXYChart(int width = 400, int height = 300) {
    return static_cast<XYChartImpl *>(XYChart::create(width, height, 0xFFFFFF, kTransparent, 0));
}

inline AxisImpl *impl(Axis *axis) {
    return AxisImpl::of(axis);
}

// Index of the first listing line that starts with text, from a line on.
inline int lineStarting(const std::vector<std::string> &lines, const std::string &text,
                        int from = 0) {
    for (size_t i = from; i < lines.size(); ++i)
        if (lines[i].rfind(text, 0) == 0) return (int)i;
    return -1;
}
