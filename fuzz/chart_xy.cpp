// Random XY chart frames: plot placement and packing, swapped axes, axes at the
// origin, scales, label styles at any angle, titles, marks and zones from the
// bytes, laid out, painted and encoded.
// Input: 16 control bytes, then texts separated by NUL bytes.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/axis/paint/LineObj.h"
#include "chart/axis/paint/Mark.h"
#include "chart/xy/PlotArea.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/ArrayViews.h"
#include "foundation/Constants.h"
#include "fuzz/ChartFuzz.h"
#include "text/box/TextBox.h"

namespace {

const size_t kControl = 16;
const size_t kMaxTexts = 24;
const size_t kMaxText = 120;

// A value of any sign and size, now and then one of the sentinels.
double valueOf(uint8_t a, uint8_t b) {
    switch (a % 16) {
        case 0:
            return kNoValue;
        case 1:
            return -1e300;
        case 2:
            return 1e-300;
        default:
            return ((int8_t)a) * (b + 1) / 7.0;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < kControl || size > 8192) return 0;
    const uint8_t *c = data;
    std::vector<std::string> texts =
        splitTexts(data + kControl, size - kControl, kMaxTexts, kMaxText);
    XYChart *chart = XYChart::create(c[0] % 400 + 1, c[1] % 300 + 1, 0xFFFFFF, kTransparent, 0);
    chart->swapXY(c[2] & 1);
    chart->setXAxisOnTop(c[2] & 2);
    chart->setYAxisOnRight(c[2] & 4);
    chart->setAxisAtOrigin(c[3] % 4, c[3] >> 2);
    if (c[2] & 8) {
        chart->setPlotArea((int8_t)c[4], (int8_t)c[5], c[6] * 2 - 40, c[7] * 2 - 40, 0xF0F0F0,
                           c[2] & 16 ? 0xE0E0E0 : -1, kLineColor, 0xC0C0C0, 0xD0D0D0);
    } else if (c[2] & 16) {
        chart->packPlotArea((int8_t)c[4], (int8_t)c[5], c[6], c[7], c[8] % 50, c[9] % 50);
    }
    if (c[2] & 32) chart->setClipping(c[8] % 20 - 5);
    if (c[2] & 64) chart->getPlotArea()->set4QBgColor(0x112233, 0x223344, 0x334455, 0x445566, -1);
    Axis *axes[] = {chart->xAxis(), chart->yAxis(), chart->xAxis2(), chart->yAxis2(),
                    chart->addAxis(c[10] % 10, (int8_t)c[11])};
    for (size_t i = 0; i + 1 < texts.size(); ++i) {
        const std::string &t = texts[i];
        int n = (int)(i * 31 + t.size());
        uint8_t a = !t.empty() ? (uint8_t)t[0] : 0;
        uint8_t b = t.size() > 1 ? (uint8_t)t[1] : 0;
        Axis *axis = axes[n % 5];
        if (!axis) continue;
        switch (i % 7) {
            case 0:
                axis->setLinearScale(valueOf(a, b), valueOf(b, a), valueOf(a ^ b, 3), 0);
                break;
            case 1: {
                std::vector<const char *> labels;
                std::vector<std::string> words;
                for (size_t k = 0; k < t.size() && k < 40; k += 3) words.push_back(t.substr(k, 3));
                for (const std::string &w : words) labels.push_back(w.c_str());
                axis->setLabels(StringArray(labels.data(), (int)labels.size()));
                break;
            }
            case 2:
                axis->setLabelStyle("", 6 + n % 10, kTextColor, (int8_t)a * 3.0);
                axis->setLabelAlignment(n % 12, n % 9 - 2);
                axis->setTickLength2((int8_t)b % 20, (int8_t)a % 20);
                break;
            case 3:
                axis->setTitle(t.c_str(), "", 6 + n % 10, kTextColor)
                    ->setFontAngle(a % 7 ? 0 : b, false);
                axis->setTitlePos(n % 14, n % 20 - 5);
                break;
            case 4: {
                Mark *mark = axis->addMark(valueOf(a, b), 0xCC0000, t.c_str(), "", 8);
                if (n & 1) mark->setAlignment(n % 14);
                mark->setDrawOnTop(n & 2);
                mark->setLineWidth(n % 5 - 1);
                break;
            }
            case 5:
                axis->addZone(valueOf(a, b), valueOf(b, a), 0x00CC00);
                axis->setOffset((int8_t)a, (int8_t)b);
                break;
            default:
                axis->setLogScale(valueOf(a, b), valueOf(b, a), 0, 0);
                axis->setLabelOffset(valueOf(b, 1) / 100);
                axis->setTickOffset(valueOf(a, 1) / 100);
                break;
        }
    }
    chart->getXCoor(valueOf(c[12], c[13]));
    chart->getYValue(c[14], nullptr);
    chart->xZoneColor(valueOf(c[13], c[12]), 0xFF0000, 0x0000FF);
    MemBlock png = chart->makeChart2(kPNG);
    if (png.len <= 0) abort();
    chart->makeChart2(8);
    chart->destroy();
    return 0;
}
