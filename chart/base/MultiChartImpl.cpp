#include "chart/base/MultiChartImpl.h"

#include <algorithm>

#include "draw/canvas/DrawArea.h"
#include "foundation/Constants.h"

namespace {

const int kViewAreaProperty = 0x200;

bool isAlongX(int code) {
    return (code & 0xFF) == kLeft || (code & 0xFF) == kRight;
}
bool isLowSide(int code) {
    return (code & 0xFF) == kLeft || (code & 0xFF) == kTop;
}

}  // namespace

MultiChart *MultiChart::create(int width, int height, int bgColor, int edgeColor,
                               int raisedEffect) {
    MultiChartImpl *chart = new MultiChartImpl();
    chart->initChart(width, height, bgColor, edgeColor, raisedEffect);
    return chart;
}

MultiChartImpl::MultiChartImpl() : mainChart(nullptr), walking(false) {}

void MultiChartImpl::addChart(int x, int y, BaseChart *chart) {
    if (!chart) return;
    placements.push_back({x, y, chart});
    chart->setContainer(this);
}

BaseChart *MultiChartImpl::getChart(int index) {
    if (index == -1) return mainChart;
    return index >= 0 && index < (int)placements.size() ? placements[index].chart : nullptr;
}

const MultiChartImpl::Placement *MultiChartImpl::find(const BaseChart *chart) const {
    for (const Placement &p : placements)
        if (p.chart == chart) return &p;
    return nullptr;
}

int MultiChartImpl::absOffset(BaseChart *chart, bool alongX) {
    const Placement *p = find(chart);
    // A chart that holds itself, however indirectly, is not walked twice.
    if (!p || chart == static_cast<BaseChart *>(this) || walking) return 0;
    walking = true;
    int own = alongX ? BaseChartImpl::getAbsOffsetX() : BaseChartImpl::getAbsOffsetY();
    walking = false;
    return (alongX ? p->x : p->y) + own;
}

int MultiChartImpl::getAbsOffsetX(BaseChart *chart) {
    return absOffset(chart, true);
}

int MultiChartImpl::getAbsOffsetY(BaseChart *chart) {
    return absOffset(chart, false);
}

double MultiChartImpl::getProperty(int code) {
    // A multi-chart that holds itself, however indirectly, answers as a plain
    // chart when asked again from within.
    if ((code & ~0xFF) != kViewAreaProperty || !mainChart || walking)
        return BaseChartImpl::getProperty(code);
    walking = true;
    double v = viewAreaProperty(code);
    walking = false;
    return v;
}

double MultiChartImpl::viewAreaProperty(int code) {
    if (mainChart != static_cast<BaseChart *>(this)) {
        const Placement *p = find(mainChart);
        double offset = p ? (isAlongX(code) ? p->x : p->y) : 0;
        return mainChart->getProperty(code) + offset;
    }
    if (placements.empty()) return BaseChartImpl::getProperty(code);
    // The view area spans those of all the charts.
    double result = 0;
    for (size_t i = 0; i < placements.size(); ++i) {
        const Placement &p = placements[i];
        double v = p.chart->getProperty(code) + (isAlongX(code) ? p.x : p.y);
        result = i == 0 ? v : isLowSide(code) ? std::min(result, v) : std::max(result, v);
    }
    return result;
}

void MultiChartImpl::onLayoutLegend() {
    for (const Placement &p : placements) p.chart->layoutLegend();
}

void MultiChartImpl::onLayoutChart() {
    for (const Placement &p : placements) p.chart->layout();
}

void MultiChartImpl::onPaint() {
    DrawArea *canvas = getRawDrawArea();
    // A canvas merged into itself would hold itself for ever.
    for (const Placement &p : placements)
        if (p.chart != static_cast<BaseChart *>(this))
            canvas->merge(p.chart->makeChart(), p.x, p.y, kTopLeft, 0);
}

const char *MultiChartImpl::onGetHTMLImageMap(const char *url, const char *queryFormat,
                                              const char *extraAttr, int offsetX, int offsetY) {
    if (walking) return "";
    walking = true;
    std::string map;
    for (const Placement &p : placements)
        map += p.chart->getHTMLImageMap(url, queryFormat, extraAttr, p.x + offsetX, p.y + offsetY);
    walking = false;
    imageMap = map;
    return imageMap.c_str();
}
