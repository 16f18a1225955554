#pragma once

// The widths of a bar layer's bars and where each stands in its slot, in
// pixels along the x axis.  A position holds a group of barsPerGroup bars
// side by side; the group is groupWidth wide, each bar barWidth, with gap
// pixels between bars (negative where they overlap).
class BarGeometry {
public:
    // barGap and subBarGap are shares as BarLayer::setBarGap takes them,
    // kNoValue where a fixed width (barWidth, subBarWidth) applies instead.
    // points: the layer's number of points; span: the pixels from half a
    // spacing before the first position to half a spacing after the last.
    BarGeometry(double barGap, double subBarGap, int barWidth, int subBarWidth, int points,
                int barsPerGroup, double span);

    int getGroupWidth() const { return groupWidth; }
    int getBarWidth() const { return barWidth; }
    int getGap() const { return gap; }
    int getBarsPerGroup() const { return barsPerGroup; }
    // Bars of neighbouring positions meet edge to edge.
    bool isTouching() const { return touching; }
    // The bars of a group share its slot evenly.
    bool isEvenShare() const { return evenShare; }

    // The first and last pixel of the block of a position whose group
    // starts at left and ends at right; then of bar slot k of that block.
    void centreBlock(int *left, int *right) const;
    void barSpan(int left, int right, int slot, int *start, int *end) const;

private:
    int groupWidth;
    int barWidth;
    int gap;
    int barsPerGroup;
    bool touching;
    bool evenShare;
};
