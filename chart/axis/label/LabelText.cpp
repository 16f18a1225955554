#include "chart/axis/label/LabelText.h"

#include "chart/axis/label/AxisLabel.h"

namespace LabelText {

int readMarks(const char *text, std::string &shown) {
    int flags = AxisLabel::kFinalText;
    if (!text || !*text) {
        shown.clear();
        return flags | AxisLabel::kNoTickMark;
    }
    const char *p = text;
    if (p[0] == '\\' && (p[1] == '~' || p[1] == '-')) {
        shown = p + 1;
        return flags;
    }
    if (*p == '~') {
        flags |= AxisLabel::kNoTickMark;
        ++p;
    } else if (*p == '-') {
        flags |= AxisLabel::kMinorTick;
        ++p;
    }
    if (p != text && *p == '~') {
        flags |= AxisLabel::kNoLabel;
        ++p;
    }
    shown = p;
    return flags;
}

}  // namespace LabelText
