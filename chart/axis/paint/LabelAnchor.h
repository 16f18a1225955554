#pragma once

class AxisFrame;

// The point of a label's or title's box that is put at its place beside the
// axis, chosen so that the text stands clear of the axis.  Alignments are the
// engine's 1 to 9 (kBottomLeft ... kTopRight).
class LabelAnchor {
public:
    // For a label turned by labelAngle degrees.  labelAlignment, when it is not
    // 0, moves upright labels along the axis: its left or bottom part puts the
    // label's start at the tick, its right or top part the label's end.
    static int forLabel(const AxisFrame &frame, double labelAngle, int labelAlignment);
    // For a title at the low end, middle or high end of the axis (-1, 0, 1).
    static int forTitle(const AxisFrame &frame, int alongPart);
    // The alignment of an upright axis's labels by the side, before any
    // labelAlignment: the side's row of the table.
    static int bySide(int side, double labelAngle);
    // For the label of a mark beside its line: the alignment's column picks the
    // place along a horizontal line and its row the side (above, on or below
    // it); along a vertical line the row picks the place and the column the side.
    static int besideLine(int alignment, bool horizontalLine);
    // Which part of an alignment lies along an axis: -1 at the low end, 0 in
    // the middle, 1 at the high end.
    static int alongPart(int alignment, bool horizontalAxis);
};
