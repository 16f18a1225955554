#pragma once

#include <string>
#include <vector>

#include "chart/base/BaseChartImpl.h"
#include "chart/base/MultiChart.h"

class MultiChartImpl : public MultiChart, public BaseChartImpl {
public:
    MultiChartImpl();

    void addChart(int x, int y, BaseChart *chart) override;
    BaseChart *getChart(int index) override;
    int getChartCount() const override { return (int)placements.size(); }
    void setMainChart(BaseChart *chart) override { mainChart = chart; }
    using BaseChartImpl::getAbsOffsetX;
    using BaseChartImpl::getAbsOffsetY;
    int getAbsOffsetX(BaseChart *chart) override;
    int getAbsOffsetY(BaseChart *chart) override;
    double getProperty(int code) override;

    // A factory's second step, reachable from MultiChart::create.
    using BaseChartImpl::initChart;

protected:
    void onLayoutLegend() override;
    void onLayoutChart() override;
    void onPaint() override;
    const char *onGetHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                  int offsetX, int offsetY) override;

private:
    struct Placement {
        int x;
        int y;
        BaseChart *chart;
    };

    const Placement *find(const BaseChart *chart) const;
    // The offset of a placed chart along x (or y) in the outermost picture.
    int absOffset(BaseChart *chart, bool alongX);
    double viewAreaProperty(int code);

    std::vector<Placement> placements;
    BaseChart *mainChart;
    bool walking;
    std::string imageMap;
};
