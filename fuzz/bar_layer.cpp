// Random bar charts: data with gaps, infinite and huge values, every data
// combine method, groups, gaps, fixed widths, overlap, touching bars, corners,
// shapes, effects, 3D, base lines, x data, swapped and reversed axes, label and
// hot-spot templates from the bytes; laid out, painted, encoded and asked for
// their image map.
// Input: 24 control bytes, one byte a value, then texts separated by NUL bytes.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "chart/legend/LegendBox.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "fuzz/ChartFuzz.h"
#include "fuzz/LayerFuzz.h"
#include "layers/LayerKinds.h"
#include "layers/bar/BarLayer.h"
#include "text/box/TextBox.h"

namespace {

const size_t kControl = 24;
const int kMaxValues = 96;
const size_t kMaxTexts = 16;
const size_t kMaxText = 120;

int effectOf(uint8_t b) {
    switch (b % 6) {
        case 1:
            return Chart::barLighting(b / 64.0, 1.5);
        case 2:
            return Chart::glassEffect(b % 4, kTop, 5);
        case 3:
            return Chart::cylinderEffect(b % 9, 0.5, 0.5, 0.75, 8);
        case 4:
            return (int8_t)b;
        default:
            return 0;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < kControl || size > 8192) return 0;
    const uint8_t *c = data;
    int n = std::min<int>(c[2] % (kMaxValues + 1), (int)(size - kControl));
    std::vector<double> v;
    for (int i = 0; i < n; ++i) v.push_back(valueOfByte(data[kControl + i]));
    std::vector<std::string> texts =
        splitTexts(data + kControl + n, size - kControl - n, kMaxTexts, kMaxText);
    auto text = [&](size_t i) { return texts[i % texts.size()].c_str(); };

    XYChart *chart = newLayerFuzzChart(c);
    if (c[3] & 8) chart->addLegend(5, 5, c[3] & 16, "", 8);
    if (c[3] & 32) chart->setTrimData(c[4] % 8, c[5] % 40);
    if (c[3] & 64) {
        const char *labels[] = {"a", "b", "c", "d", "e"};
        chart->xAxis()->setLabels(StringArray(labels, c[6] % 6));
    }
    BarLayer *layer = chart->addBarLayer2(c[7] % 6, c[8] % 4 ? 0 : c[8] % 40 - 5);
    int sets = c[9] % 6 + 1, length = sets ? n / sets : 0;
    for (int s = 0; s < sets; ++s) {
        if (c[10] & (1 << s)) layer->addDataGroup(text(s));
        DataSet *set = layer->addDataSet(DoubleArray(v.data() + s * length, length),
                                         s % 3 ? -1 : 0x336699, text(s + 1));
        if (c[11] & (1 << s)) set->setUseYAxis2(true);
        if (c[12] & (1 << s)) set->setDataLabelFormat(text(s + 2));
        if (c[13] & (1 << s)) set->setDataColor(set->getDataColor(), (int8_t)c[14], -1, -1);
    }
    layer->setBarGap(c[15] % 7 == 0 ? kTouchBar : (int8_t)c[15] / 50.0,
                     c[16] % 5 == 0 ? kNoValue : (int8_t)c[16] / 40.0);
    if (c[17] & 1) layer->setBarWidth(c[18] % 60 - 5, (int8_t)c[19] % 30);
    if (c[17] & 2) layer->setOverlapRatio(c[19] / 100.0, c[17] & 4);
    if (c[17] & 8)
        layer->setRoundedCorners(c[18] % 20 - 2, c[19] % 3 ? BarLayer::kOmittedRadius : 4,
                                 BarLayer::kOmittedRadius, BarLayer::kOmittedRadius);
    if (c[17] & 16) layer->setBarShape(c[20] % 20, c[21] % 3 - 1, c[22] % 5 - 1);
    if (c[17] & 32) {
        const int polygon[] = {0, 0, c[20], c[21], c[22] * 3, 900, -5, c[21]};
        layer->setBarShape2(IntArray(polygon, c[22] % 9), -1, c[21] % 4 - 1);
    }
    layer->setBorderColor(c[20] & 1 ? -2 : 0x202020, effectOf(c[23]));
    layer->setLineWidth(c[21] % 5);
    layer->setBaseLine(valueOfByte(c[22]));
    if (c[23] & 64) layer->setXData2(valueOfByte(c[4]), valueOfByte(c[5]));
    if (c[23] & 128) layer->setXData(DoubleArray(v.data(), std::min(n, 7)));
    layer->setMinLabelSize(c[6] % 30 - 1);
    layer->setMinImageMapSize(c[5] % 12 - 1);
    if (c[16] & 1)
        layer->setDataLabelStyle("", 6 + c[6] % 8, kTextColor, (int8_t)c[7])
            ->setAlignment(c[8] % 14);
    if (c[16] & 2) layer->setAggregateLabelFormat(text(3));
    if (c[16] & 4) layer->addCustomDataLabel(c[9] % 4, c[10] % 8, text(4), "", 8, 0, 0);
    if (c[16] & 8) layer->addCustomGroupLabel(c[9] % 3, c[10] % 8, text(5), "", 8, 0, 0);
    if (c[16] & 16) layer->setIconSize(c[18] % 30 - 2, c[19] % 30 - 2);

    MemBlock png = chart->makeChart2(kPNG);
    if (png.len <= 0) abort();
    checkBounded(chart->getHTMLImageMap(text(6), text(7), text(8), (int8_t)c[0], (int8_t)c[1]),
                 1 << 24);
    checkBounded(layer->getImageCoor(c[9] % 5 - 1, c[10] % 9 - 1, 0, 0), 1 << 16);
    checkBounded(layer->getImageCoor2(c[10] % 9 - 1, 3, 4), 1 << 16);
    checkBounded(layer->getLegendIcon(c[9] % 7 - 1), 1 << 10);
    chart->destroy();
    return 0;
}
