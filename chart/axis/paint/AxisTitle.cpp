#include "chart/axis/paint/AxisTitle.h"

AxisTitle::AxisTitle(BoxContainer *container) : TextBoxImpl2(container, nullptr) {
    setFontStyle("bold", 0);
    setFontSize(8, 0);
    setAlignment(kAuto);
    setFontAngle(kUnsetAngle, false);
    setMargin(0);
}
