#pragma once

#include <regex>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "layers/area/AreaLayerImpl.h"
#include "layers/line/LineLayerImpl.h"
#include "layers/line/MultiLine.h"
#include "layers/line/ScatterLayer.h"
#include "tests/layers/BarTestSupport.h"

inline LineLayerImpl *impl(LineLayer *layer) {
    return dynamic_cast<LineLayerImpl *>(layer);
}

inline AreaLayerImpl *impl(AreaLayer *layer) {
    return dynamic_cast<AreaLayerImpl *>(layer);
}

// The chart of newBarChart with its y axis from 0 to 200 over the plot's 200
// pixels: a value of v stands at y 220 - v.
inline XYChartImpl *newUnitChart(int width = 400, int height = 300) {
    XYChartImpl *chart = newBarChart(width, height);
    chart->yAxis()->setLinearScale(0, 200, 50, 0);
    chart->xAxis()->setLinearScale(0, 300, 50, 0);
    return chart;
}

// The stored points of a data set's line as (index, gapAfter) pairs.
inline std::vector<std::pair<int, bool>> storedPoints(const MultiLine *line) {
    std::vector<std::pair<int, bool>> points;
    for (int k = 0; line && k < line->size(); ++k)
        points.push_back({line->at(k).index, line->at(k).gapAfter});
    return points;
}

inline int countLinesStartingWith(const std::vector<std::string> &lines, const std::string &start) {
    int n = 0;
    for (const std::string &line : lines) n += line.rfind(start, 0) == 0;
    return n;
}

// The texts drawn inside the plot of newUnitChart: the layers' labels.
inline std::vector<TextAt> plotTexts(DrawArea *d) {
    std::vector<TextAt> texts;
    std::regex text("^Text\\(\\d+, \\([^)]*\\), (-?\\d+), (-?\\d+),");
    for (const std::string &line : listingLines(d)) {
        std::smatch m;
        if (!std::regex_search(line, m, text)) continue;
        TextAt at = {std::stoi(m[1]), std::stoi(m[2])};
        if (at.x >= 40 && at.y < 218) texts.push_back(at);
    }
    return texts;
}
