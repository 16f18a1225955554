#pragma once

#include "api/chart/CMultiChart.h"
#include "host/abc/AutoDeleteContainer.h"
#include "host/abc/chart/BaseChart.h"

namespace abc {

// A chart made of other charts.  It does not own them; asked for one, it gives
// back the wrapper it was given.
class MultiChart : public BaseChart {
public:
    // Takes the chart over.
    explicit MultiChart(CMultiChart *handle)
        : BaseChart(CMultiChart_toBaseChart(handle)), multi(handle) {}
    // A wrapper of a multi-chart that something else destroys.
    static MultiChart *borrow(CMultiChart *handle);
    // A new multi-chart; null if the engine made none.
    static MultiChart *create(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    CMultiChart *getMultiHandle() const { return multi; }

    void addChart(int x, int y, BaseChart *chart);
    // The wrapper that was added or set as the main chart; for a chart placed
    // by other means, a borrowed wrapper of this one's.  Null out of range.
    BaseChart *getChart(int index);
    int getChartCount() { return CMultiChart_getChartCount(multi); }
    void setMainChart(BaseChart *chart);
    using BaseChart::getAbsOffsetX;
    using BaseChart::getAbsOffsetY;
    int getAbsOffsetX(BaseChart *chart) {
        return CMultiChart_getAbsOffsetX(multi, BaseChart::handleOf(chart));
    }
    int getAbsOffsetY(BaseChart *chart) {
        return CMultiChart_getAbsOffsetY(multi, BaseChart::handleOf(chart));
    }
    // Tells the charts given to this one that they stand in no multi-chart any
    // more.  Their owner calls it while they live, before this chart goes, when
    // they may outlive it.
    void releaseCharts();

private:
    MultiChart(CMultiChart *handle, int *refCount)
        : BaseChart(CMultiChart_toBaseChart(handle), refCount), multi(handle) {}
    // A borrowed wrapper of the chart's own kind.
    static BaseChart *borrowChart(CBaseChart *handle);
    // The wrapper of an engine chart among those given, or null.
    static BaseChart *find(const VSVector<BaseChart> &list, CBaseChart *handle);

    CMultiChart *multi;
    VSVector<BaseChart> given;
    AutoDeleteContainer<BaseChart> borrowed;
};

}  // namespace abc
