#include "chart/axis/paint/AxisLabelPrototype.h"

AxisLabelPrototype::AxisLabelPrototype(BoxContainer *container) : TextBoxImpl2(container, nullptr) {
    setAlignment(kAuto);
    // Labels sit at their gap from the ticks; a margin would widen that gap and
    // the room each label takes along the axis.
    setMargin(0);
}
