#pragma once

#include "text/box/TextBoxImpl2.h"

// The title of an axis.  Its angle starts as a marker of "not set", so that
// the painter can turn the title along a vertical axis; any other angle is the
// caller's.  Its alignment, set by setTitlePos, says where along the axis it
// stands (kAuto: the middle).
class AxisTitle : public TextBoxImpl2 {
public:
    static constexpr int kAuto = -1;
    static constexpr double kUnsetAngle = 0.000135792468;

    explicit AxisTitle(BoxContainer *container);

    bool isAngleSet() const { return getFontAngle() != kUnsetAngle; }
};
