#pragma once

#include "foundation/Constants.h"

// Where an axis stands and how its labels are turned, as far as the scale needs
// it: the default distance between major ticks.
struct AxisOrientation {
    // kBottom, kLeft, kRight or kTop; kCenter for an axis turned by its angle.
    int alignment = kCenter;
    // Degrees of an axis turned by its angle.
    double angle = 0;
    // Degrees of the label font.
    double labelAngle = 0;

    // Pixels between major ticks when the chart does not set them: wide (50) when
    // the label text lies along the axis, narrow (20) when it crosses it.
    int defaultTickSpacing() const;
};
