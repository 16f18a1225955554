#include "chart/layer/SpotAlignment.h"

#include "chart/layer/LabelSpot.h"
#include "foundation/Constants.h"

namespace {

// Alignments 1 to 9 of an upward spot, as they read on a spot whose end
// points down, right or left.
const int kPointingDown[10] = {0, 7, 8, 9, 4, 5, 6, 1, 2, 3};
const int kPointingRight[10] = {0, 7, 4, 1, 8, 5, 2, 9, 6, 3};
const int kPointingLeft[10] = {0, 9, 6, 3, 8, 5, 2, 7, 4, 1};
// The alignment of a box whose other side touches a point.
const int kOpposite[10] = {0, 9, 8, 7, 6, 5, 4, 3, 2, 1};

int plainAlignment(int a) {
    // The second-line forms place as their plain corners.
    switch (a) {
        case kTopLeft2:
            return kTopLeft;
        case kTopRight2:
            return kTopRight;
        case kBottomLeft2:
            return kBottomLeft;
        case kBottomRight2:
            return kBottomRight;
        default:
            return a >= 1 && a <= 9 ? a : kCenter;
    }
}

// The point of the rectangle at an alignment.
void pointAt(const LabelSpot &s, int a, int *x, int *y) {
    int column = (a - 1) % 3, row = (a - 1) / 3;  // row 0 bottom, 2 top
    *x = column == 0 ? s.left : column == 1 ? s.left + (s.right - s.left) / 2 : s.right;
    *y = row == 0 ? s.bottom : row == 1 ? s.top + (s.bottom - s.top) / 2 : s.top;
}

}  // namespace

int SpotAlignment::turn(int alignment, int endSide) {
    int a = plainAlignment(alignment);
    switch (endSide) {
        case kBottom:
            return kPointingDown[a];
        case kRight:
            return kPointingRight[a];
        case kLeft:
            return kPointingLeft[a];
        default:
            return a;
    }
}

void SpotAlignment::place(const LabelSpot &spot, int alignment, int *x, int *y, int *boxAlignment) {
    if (spot.outside || (alignment == kDefault && spot.aggregate)) {
        placeOutside(spot, alignment == kDefault ? kBottom : alignment, x, y, boxAlignment);
        return;
    }
    int a = turn(alignment == kDefault ? kTop : alignment, spot.endSide);
    pointAt(spot, a, x, y);
    *boxAlignment = a;
}

void SpotAlignment::placeOutside(const LabelSpot &spot, int alignment, int *x, int *y,
                                 int *boxAlignment) {
    *boxAlignment = turn(alignment, spot.endSide);
    int a = kOpposite[*boxAlignment];
    pointAt(spot, a, x, y);
    int row = (a - 1) / 3, column = (a - 1) % 3;
    if (row == 2) --*y;
    if (row == 0) ++*y;
    if (column == 2) ++*x;
    if (column == 0) --*x;
}
