#pragma once

#include <vector>

class LayerPainter;

// The bar of one data group (or, under kSide, one data set) at one x
// position, in layer coordinates: its extent across, from low to high along
// the x axis, and the parts of its stack along the value axis.  A part runs
// from its start pixel on the base side to its end pixel; the start pixel
// itself belongs to what lies below.
class Bar {
public:
    struct Segment {
        int start;
        int end;
        int fill;
        int edge;
        int dataSet;
        double value;
        // Rounded corners apply at the stack's ends.
        bool touchesBase;
        bool outermost;
    };

    // zeroDirection: 1 when a bar of no length grows towards higher pixels.
    Bar(int dataItem, int dataGroup, int low, int high, int base, int zeroDirection, int shift);

    void addSegment(const Segment &segment) { segments.push_back(segment); }
    // Marks the parts at the base and at the outer ends of a stack; parts
    // that do not stack each stand at the base and end on their own.
    void markEnds(bool stacked);

    int getDataItem() const { return dataItem; }
    int getDataGroup() const { return dataGroup; }
    int getLow() const { return low; }
    int getHigh() const { return high; }
    int getBase() const { return base; }
    // The 3D shift of the bar's slice behind the layer's front.
    int getShift() const { return shift; }
    const std::vector<Segment> &getSegments() const { return segments; }
    // Whether every part has no length.
    bool isFlat() const;
    // 1 if the part points towards higher pixels, 0 if lower.
    int directionOf(const Segment &s) const;
    // The end side of a part on the canvas: kTop, kBottom, kLeft or kRight.
    int endSideOf(const Segment &s, bool swapped) const;

    // The canvas box of a part, inclusive, in the painter's mapping; false if
    // the part has no pixels.  A flat part gets the pixel next to the base.
    bool box(const Segment &s, const LayerPainter &painter, bool flatLine, int *x1, int *y1,
             int *x2, int *y2) const;
    // The canvas box from along pixel a to b (both included).
    void span(int a, int b, const LayerPainter &painter, int *x1, int *y1, int *x2, int *y2) const;

private:
    int dataItem;
    int dataGroup;
    int low;
    int high;
    int base;
    int zeroDirection;
    int shift;
    std::vector<Segment> segments;
};
