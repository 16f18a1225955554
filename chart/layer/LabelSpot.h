#pragma once

// Where a layer puts a label: the shape of a point, a stack part or a whole
// stack on the canvas (inclusive pixels), the side its end points to (kTop,
// kBottom, kLeft, kRight) and what the label tells.
struct LabelSpot {
    int dataSet;
    int dataItem;
    int dataGroup;
    // A label for a whole stack rather than for one data set.
    bool aggregate;
    double value;
    int left;
    int top;
    int right;
    int bottom;
    int endSide;
    // The label stands outside the spot, as by a point: without an alignment
    // of its own its bottom touches the end (kBottom turned by endSide).
    bool outside = false;
    // Near the sides of this range (canvas x) a label moves inward to stay in.
    bool keepInside = false;
    int insideLeft = 0;
    int insideRight = 0;
};
