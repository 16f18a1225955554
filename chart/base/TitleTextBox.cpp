#include "chart/base/TitleTextBox.h"

#include "foundation/Constants.h"

BaseChartImpl::TitleTextBox::TitleTextBox(BaseChartImpl *chart, int titleAlignment)
    : TextBoxImpl2(chart, nullptr), chart(chart), titleAlignment(titleAlignment) {}

int BaseChartImpl::TitleTextBox::getAdjustedMargin(int margin, int side) {
    int adjusted = TextBoxImpl2::getAdjustedMargin(margin, side);
    int frame = chart->getFrameThickness();
    int a = titleAlignment;
    if (margin >= 0 || frame == 0 || a < kBottomLeft || a > kTopRight || a == kCenter)
        return adjusted;
    // The side that faces the chart's inside keeps its margin.
    bool bottomTitle = a <= kBottomRight, topTitle = a >= kTopLeft;
    if ((bottomTitle && side == kTopSide) || (a == kLeft && side == kRightSide) ||
        (a == kRight && side == kLeftSide))
        return adjusted;
    if (topTitle && side == kBottomSide) return adjusted + 1;
    return adjusted + frame;
}
