#include "chart/axis/label/LabelPass.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include "chart/axis/label/DefaultLabelFormat.h"
#include "chart/axis/label/LabelFormatList.h"
#include "chart/axis/label/LabelPrecision.h"
#include "chart/axis/label/LabelTemplate.h"
#include "chart/axis/label/LabelText.h"
#include "chart/axis/label/TickMap.h"
#include "foundation/Constants.h"
#include "text/template/Formatter.h"
#include "text/template/TemplateHelpers.h"

namespace {

const char *const kValueTemplate = "{value}";

// The row of the extra fields a tick reads: the position of a text axis label.
int itemIndexOf(double key) {
    double row = std::floor(key + 0.5);
    return row >= 0 && row <= INT_MAX ? (int)row : -1;
}

struct Pending {
    double key;
    AxisLabel *label;
};

}  // namespace

void LabelPass::run(TickMap &ticks) const {
    std::vector<Pending> pending;
    std::vector<double> values;
    for (auto &tick : ticks) {
        AxisLabel &label = tick.second;
        if (label.flags & (AxisLabel::kNoLabel | AxisLabel::kFinalText)) continue;
        if (label.value == kNoValue) continue;
        pending.push_back({tick.first, &label});
        values.push_back(label.value);
    }
    if (pending.empty()) return;

    bool dates = std::all_of(values.begin(), values.end(), lookLikeDate);
    int decimals = dates ? -1 : LabelPrecision::decimalsFor(values);
    const char *valueFormat = dates ? DefaultLabelFormat::forDates(values, context.wideSpacing)
                                    : DefaultLabelFormat::kNumber;
    int savedPrecision = context.formatter->setContextPrecision(decimals);
    LabelTemplate filler(context.formatter, context.fields);
    const LabelFormatList &formats = *context.formats;
    int count = formats.getFormatCount();
    std::vector<int> chosen;
    if (count > 0) {
        double spacing = values.size() >= 2 ? std::fabs(values[1] - values[0]) : context.tickStep;
        chosen = formats.choose(values, spacing);
    }

    std::string shown;
    for (size_t i = 0; i < pending.size(); ++i) {
        AxisLabel &label = *pending[i].label;
        int item = itemIndexOf(pending[i].key);
        if (count == 0) {
            label.text = filler.fill(kValueTemplate, label, valueFormat, context.tickStep, item);
            label.flags |= AxisLabel::kFinalText;
            continue;
        }
        int index = chosen[i];
        label.formatIndex = count - 1 - index;
        if (index < 0) {
            label.text.clear();
            label.flags |= AxisLabel::kFinalText | AxisLabel::kNoLabel | AxisLabel::kNoTickMark;
        } else if (index >= count) {
            label.text.clear();
            label.flags |= AxisLabel::kFinalText | AxisLabel::kMinorTick;
        } else {
            label.flags |= LabelText::readMarks(formats.getFormat(index).c_str(), shown);
            label.text = filler.fill(shown.c_str(), label, valueFormat, context.tickStep, item);
        }
    }
    context.formatter->setContextPrecision(savedPrecision);
}
