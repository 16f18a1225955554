#pragma once

struct LabelSpot;

// Where a label stands by its spot.  An alignment is given as for a bar that
// points up (kTop is its end, kBottom its base) and turns with the spot's
// end side: it is reflected for a spot that points down and turned for one
// that points sideways.  The label then stands inside the spot at that
// alignment.  Without an alignment a data label stands inside the spot's
// end, and an aggregate label outside it.
class SpotAlignment {
public:
    static constexpr int kDefault = -1;

    // The alignment on the canvas of one given for an upward spot.
    static int turn(int alignment, int endSide);
    // The point the label is anchored at and the label box's alignment there.
    static void place(const LabelSpot &spot, int alignment, int *x, int *y, int *boxAlignment);

private:
    // The box at the turned alignment, its opposite point on the spot, one
    // pixel out.
    static void placeOutside(const LabelSpot &spot, int alignment, int *x, int *y,
                             int *boxAlignment);
};
