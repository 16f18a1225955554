#include "chart/axis/paint/LabelAnchor.h"

#include <cmath>

#include "chart/axis/paint/AxisFrame.h"
#include "foundation/Constants.h"
#include "foundation/Numeric.h"

namespace {

// By the label's angle modulo 180, the box corner or side that faces an axis
// on each side: text rising to the right (above 15 and below 75 degrees), text
// falling to the right (above 105 and below 165) and text along or across the
// axis (otherwise).
struct AnchorRow {
    int bottom, right, top, left;
};
const AnchorRow kAnchors[3] = {
    {kTopRight, kBottomLeft, kBottomLeft, kTopRight},
    {kTopLeft, kTopLeft, kBottomRight, kBottomRight},
    {kTopCenter, kLeft, kBottomCenter, kRight},
};

int rowOf(double labelAngle) {
    double a = qlx::pmod(std::isfinite(labelAngle) ? labelAngle : 0, 180);
    if (a > 15 && a < 75) return 0;
    if (a > 105 && a < 165) return 1;
    return 2;
}

// Alignments as a 3 by 3 grid: column 0 left to 2 right, row 0 bottom to 2 top.
int columnOf(int a) {
    return (a - 1) % 3;
}
int rowOfAlignment(int a) {
    return (a - 1) / 3;
}
int alignmentAt(int column, int row) {
    return row * 3 + column + 1;
}

bool isGridAlignment(int a) {
    return a >= kBottomLeft && a <= kTopRight;
}

// The side of the box that faces the axis, as grid row or column, and whether
// it is a row (horizontal axes) or a column.
int facingLine(int side) {
    switch (side) {
        case kBottom:
            return 2;  // the top row faces an axis above the text
        case kTop:
            return 0;
        case kLeft:
            return 2;  // the right column
        default:
            return 0;
    }
}

}  // namespace

int LabelAnchor::bySide(int side, double labelAngle) {
    const AnchorRow &row = kAnchors[rowOf(labelAngle)];
    switch (side) {
        case kTop:
            return row.top;
        case kLeft:
            return row.left;
        case kRight:
            return row.right;
        default:
            return row.bottom;
    }
}

int LabelAnchor::alongPart(int alignment, bool horizontalAxis) {
    if (!isGridAlignment(alignment)) return 0;
    int part = horizontalAxis ? columnOf(alignment) : rowOfAlignment(alignment);
    return part - 1;
}

int LabelAnchor::forLabel(const AxisFrame &frame, double labelAngle, int labelAlignment) {
    if (frame.getSide() == kCenter) {
        // A turned axis: the side anchors where the labels stand to the right or
        // left of the axis, top and bottom ones where they stand below or above.
        double a = frame.outwardAngle();
        if (a >= 315 || a <= 45) return kLeft;
        if (a >= 135 && a <= 225) return kRight;
        return a < 180 ? kTopCenter : kBottomCenter;
    }
    int anchor = bySide(frame.getSide(), labelAngle);
    if (!isGridAlignment(labelAlignment) || rowOf(labelAngle) != 2) return anchor;
    int part = alongPart(labelAlignment, frame.isHorizontal());
    if (part == 0) return anchor;
    // The label's start (left or bottom) at the tick puts the box on the high
    // side of it, so the anchor takes the box's low side.
    if (frame.isHorizontal()) return alignmentAt(part < 0 ? 0 : 2, rowOfAlignment(anchor));
    return alignmentAt(columnOf(anchor), part < 0 ? 0 : 2);
}

int LabelAnchor::forTitle(const AxisFrame &frame, int part) {
    int side = frame.getSide();
    if (side == kCenter) return forLabel(frame, 0, 0);
    int line = facingLine(side);
    // Along a horizontal axis the part picks the column; along a vertical one,
    // whose low end is at the bottom, the row.
    if (frame.isHorizontal()) return alignmentAt(part + 1, line);
    return alignmentAt(line, part + 1);
}

int LabelAnchor::besideLine(int alignment, bool horizontalLine) {
    if (!isGridAlignment(alignment)) return kCenter;
    int column = columnOf(alignment), row = rowOfAlignment(alignment);
    // Above the line the box hangs on its bottom, below it on its top; to the
    // left of a line the box ends at it, to the right it starts.
    if (horizontalLine) return alignmentAt(column, 2 - row);
    return alignmentAt(2 - column, row);
}
