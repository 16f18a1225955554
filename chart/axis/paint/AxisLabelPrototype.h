#pragma once

#include "text/box/TextBoxImpl2.h"

// The style of an axis's labels: every label box is made from it and reads
// from it what it does not set itself.  Its alignment starts as kAuto, which
// lets the painter choose the anchor by the side and the label's angle.
class AxisLabelPrototype : public TextBoxImpl2 {
public:
    static constexpr int kAuto = -1;

    explicit AxisLabelPrototype(BoxContainer *container);

    bool isAutoAligned() const { return getAlignment() == kAuto; }
};
