#pragma once

#include "chart/base/BaseChart.h"

// A chart made of other charts, each placed at an offset.  It does not own
// them: their creator destroys them, after the multi-chart's last output.
class MultiChart : public virtual BaseChart {
public:
    static MultiChart *create(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    // A null chart is ignored.
    virtual void addChart(int x, int y, BaseChart *chart) = 0;
    // -1 is the main chart; null out of range.
    virtual BaseChart *getChart(int index) = 0;
    virtual int getChartCount() const = 0;
    // The chart whose view area stands for the whole (getProperty 0x200 group).
    virtual void setMainChart(BaseChart *chart) = 0;
    using BaseChart::getAbsOffsetX;
    using BaseChart::getAbsOffsetY;
    // The offset of a chart placed here, in the outermost picture; 0 for this
    // chart and for charts it doesn't hold.
    virtual int getAbsOffsetX(BaseChart *chart) = 0;
    virtual int getAbsOffsetY(BaseChart *chart) = 0;
};
