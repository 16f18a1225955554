#pragma once

#include <regex>
#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/DrawArea.h"
#include "layers/LayerKinds.h"
#include "layers/bar/BarLayerImpl.h"
#include "tests/chart/ChartTestSupport.h"

// A chart whose plot spans x 50 to 350 and y 20 to 220 on a white canvas,
// with nothing drawn in the plot but the layers.
inline XYChartImpl *newBarChart(int width = 400, int height = 300) {
    LayerKinds::install();
    XYChartImpl *chart =
        static_cast<XYChartImpl *>(XYChart::create(width, height, 0xFFFFFF, kTransparent, 0));
    chart->setPlotArea(50, 20, 300, 200, kTransparent, -1, kTransparent, kTransparent,
                       kTransparent);
    return chart;
}

inline DoubleArray values(const std::vector<double> &v) {
    return DoubleArray(v.data(), (int)v.size());
}

inline BarLayerImpl *impl(BarLayer *layer) {
    return dynamic_cast<BarLayerImpl *>(layer);
}

// The areas of an image map: the coordinates, then the href.
struct Area {
    std::string shape;
    std::vector<int> coords;
    std::string href;
};

inline std::vector<Area> areasOf(const std::string &map) {
    std::vector<Area> areas;
    std::regex area("<area shape=\"(\\w+)\" coords=\"([-0-9,]+)\" href=\"([^\"]*)\"[^>]*>\n");
    for (std::sregex_iterator m(map.begin(), map.end(), area), end; m != end; ++m) {
        Area a;
        a.shape = (*m)[1];
        std::string coords = (*m)[2];
        size_t start = 0;
        while (start <= coords.size()) {
            size_t comma = coords.find(',', start);
            if (comma == std::string::npos) comma = coords.size();
            a.coords.push_back(std::stoi(coords.substr(start, comma - start)));
            start = comma + 1;
        }
        a.href = (*m)[3];
        areas.push_back(a);
    }
    return areas;
}

// The hot-spot rectangles of a chart's layers, in the order of the map.
inline std::vector<std::vector<int>> boxesOf(XYChartImpl *chart) {
    std::vector<std::vector<int>> boxes;
    for (const Area &a : areasOf(chart->getHTMLImageMap("u", "", "", 0, 0)))
        boxes.push_back(a.coords);
    return boxes;
}

// The positions of the texts drawn before the axes: the layers' labels.
struct TextAt {
    int x;
    int y;
};

inline std::vector<TextAt> labelTexts(DrawArea *d) {
    std::vector<TextAt> texts;
    std::regex text("^Text\\(\\d+, \\([^)]*\\), (-?\\d+), (-?\\d+),");
    for (const std::string &line : listingLines(d)) {
        if (line.rfind("PolyLine", 0) == 0) break;
        std::smatch m;
        if (std::regex_search(line, m, text)) texts.push_back({std::stoi(m[1]), std::stoi(m[2])});
    }
    return texts;
}
