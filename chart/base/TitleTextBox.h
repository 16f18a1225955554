#pragma once

#include "chart/base/BaseChartImpl.h"
#include "foundation/Constants.h"
#include "text/box/TextBoxImpl2.h"

// A chart title.  Its automatic margins grow by the chart's frame, so that the
// text stays clear of a thick frame on the chart's border.
class BaseChartImpl::TitleTextBox : public TextBoxImpl2 {
public:
    TitleTextBox(BaseChartImpl *chart, int titleAlignment);

    int getAdjustedMargin(int margin, int side) override;
    int getTitleAlignment() const { return titleAlignment; }
    // A centred title stands over the chart and takes no room from it.
    bool takesRoom() const { return titleAlignment != kCenter; }

private:
    BaseChartImpl *chart;
    int titleAlignment;
};
