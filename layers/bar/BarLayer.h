#pragma once

#include "chart/layer/Layer.h"

// A layer that draws each point as a bar from the base line to its value:
// upright on a normal chart, lying on a chart with swapped axes.  Sets of a
// group stack in one bar, groups (or, under kSide, sets) stand side by side.
// The shared operations of Layer apply: setBorderColor with an effect word
// such as Chart::barLighting, set3D, setBaseLine, the labels.
class BarLayer : public virtual Layer {
public:
    // barGap: the free share of each position's slot, kTouchBar for bars that
    // touch; subBarGap: the gap between the bars of a group as a share of one
    // bar, negative to overlap; kNoValue keeps the earlier one.
    virtual void setBarGap(double barGap, double subBarGap) = 0;
    // Fixed widths in pixels of a group and, above 0, of one bar; the gaps
    // then no longer count.
    virtual void setBarWidth(int barWidth, int subBarWidth) = 0;
    // Bars shorter than this many pixels get no data label.
    virtual void setMinLabelSize(int size) = 0;
    // Hot spots of bars shorter than this are grown to it.
    virtual void setMinImageMapSize(int size) = 0;
    // A shape (kCircleShape, kDiamondShape, ...) for every bar, for the bars
    // of a data group, or for one bar (-1: all); a polygon as x, y pairs in
    // the bar's box with y pointing from the bar's end to its base.
    virtual void setBarShape(int shape, int dataGroup, int dataItem) = 0;
    virtual void setBarShape2(IntArray shape, int dataGroup, int dataItem) = 0;
    // The legend key's size; -1 leaves it to the legend.
    virtual void setIconSize(int height, int width) = 0;
    // Bars of a group overlap by the ratio of a bar; the first set on top.
    virtual void setOverlapRatio(double overlapRatio, bool firstOnTop) = 0;
    // Corner radii: the two at the bar's end, then the two at its base.  With
    // only r1 the end corners are rounded, with r1 and r2 the end by r1 and
    // the base by r2; an omitted radius is kOmittedRadius.
    virtual void setRoundedCorners(int r1, int r2, int r3, int r4) = 0;

    static constexpr int kOmittedRadius = -2147483647;

protected:
    ~BarLayer() override {}
};
