#pragma once

#include <vector>

#include "chart/layer/LayerImpl.h"
#include "layers/bar/Bar.h"
#include "layers/bar/BarLayer.h"
#include "layers/bar/BarPainter.h"
#include "layers/bar/BarShapes.h"

class BarGeometry;

// Bars from the base line to the values: widths from the gaps or fixed
// sizes, groups side by side, stacks that grow both ways from the base,
// percentage stacks, 3D bars, shapes, lighting, labels and hot spots.  The
// bars are rebuilt whenever the layout changes.
class BarLayerImpl : public BarLayer, public LayerImpl {
public:
    explicit BarLayerImpl(XYChartImpl *chart);
    ~BarLayerImpl() override;

    void setBarGap(double barGap, double subBarGap) override;
    void setBarWidth(int barWidth, int subBarWidth) override;
    void setMinLabelSize(int size) override { minLabelSize = size; }
    void setMinImageMapSize(int size) override { minImageMapSize = size; }
    void setBarShape(int shape, int dataGroup, int dataItem) override;
    void setBarShape2(IntArray shape, int dataGroup, int dataItem) override;
    void setIconSize(int height, int width) override;
    void setOverlapRatio(double overlapRatio, bool firstOnTop) override;
    void setRoundedCorners(int r1, int r2, int r3, int r4) override;

    void preLayout(int length) override;
    void foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) override;

    // The bars as last built, in the order they paint.
    const std::vector<Bar *> &getBars();
    // The widths in use, once the bars are built.
    int getGroupWidth() const { return groupWidth; }
    int getBarWidth() const { return barWidth; }

protected:
    void onPrepare() override;
    void onPaint(LayerPainter &painter) override;
    void collectLabelSpots(std::vector<LabelSpot> &spots) override;
    void collectHotSpots(std::vector<HotSpot> &spots) override;
    LegendIcon *makeLegendIcon(int dataSet) override;
    bool alignedXPixel(int dataSet, int dataItem, double *pixel) override;

private:
    void clearBars();
    // The number of bars side by side at a position.
    int barsPerPosition() const;
    // The distance of neighbouring x positions, and the pixels the positions
    // take with half of it at both ends.
    double spacing() const;
    double positionSpan(double step) const;
    void slotOf(int i, const BarGeometry &geometry, int *left, int *right) const;
    void buildPosition(int i, const BarGeometry &geometry);
    void buildBar(int i, int k, int low, int high);
    void addStack(Bar *bar, int first, int end, int i);
    BarLook lookOf(const Bar &bar, const Bar::Segment &segment) const;
    int edgeWordOf(int dataSet) const;
    int pixelOf(double value, const AxisImpl *axis) const;
    // The 3D order: bars further back first, then from left to right and
    // from bottom to top, so that each front covers the faces behind it.
    std::vector<Bar *> paintOrder() const;
    bool aggregateSpot(const Bar &bar, LabelSpot *spot);

    double barGap;
    double subBarGap;
    bool firstOnTop;
    int barWidthSetting;
    int subBarWidthSetting;
    int minLabelSize;
    int minImageMapSize;
    std::vector<Bar *> bars;
    BarShapes barShapes;
    int roundedCorners[4];
    int iconHeight;
    int iconWidth;
    int groupWidth;
    int barWidth;
};
