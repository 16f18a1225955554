// Random line, scatter and area charts: data with gaps, infinite and huge
// values, long runs that take the column walk, every data combine method, gap
// colours and widths, symbols of every shape with sizes per point, 3D, base
// lines, x data, swapped and reversed axes, clipping, label and hot-spot
// templates from the bytes; laid out, painted, encoded as PNG, SVG or PDF and
// asked for their image map.
// Input: 24 control bytes, one byte a value, then texts separated by NUL bytes.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "chart/axis/Axis.h"
#include "chart/axis/paint/LineObj.h"
#include "chart/layer/DataSet.h"
#include "chart/legend/LegendBox.h"
#include "chart/xy/XYChart.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "fuzz/ChartFuzz.h"
#include "fuzz/LayerFuzz.h"
#include "layers/LayerKinds.h"
#include "layers/area/AreaLayer.h"
#include "layers/line/LineLayer.h"
#include "layers/line/ScatterLayer.h"
#include "text/box/TextBox.h"

namespace {

const size_t kControl = 24;
const int kMaxValues = 96;
const size_t kMaxTexts = 16;
const size_t kMaxText = 120;
// Values repeat (with a drift) up to this many times: runs long enough for
// the column walk on a small chart.
const int kMaxRepeat = 64;

const int kOutputs[] = {kPNG, kSVG, kPDF};

Layer *addLayer(XYChart *chart, const uint8_t *c, std::vector<double> &v, std::vector<double> &x,
                const std::vector<std::string> &texts) {
    int kind = c[7] % 3, depth = c[8] % 4 ? 0 : c[8] % 40 - 5;
    auto text = [&](size_t i) { return texts[i % texts.size()].c_str(); };
    if (kind == 2)
        return chart->addScatterLayer(DoubleArray(x.data(), (int)x.size()),
                                      DoubleArray(v.data(), (int)v.size()), text(0), c[9] % 20,
                                      c[10] % 30 - 2, c[11] & 1 ? -1 : 0x80336699, (int8_t)c[12]);
    int method = c[13] % 6, sets = c[9] % 4 + 1, length = (int)v.size() / sets;
    Layer *layer = kind == 0 ? (Layer *)chart->addLineLayer2(method, depth)
                             : (Layer *)chart->addAreaLayer2(method, depth);
    for (int s = 0; s < sets; ++s) {
        DataSet *set = layer->addDataSet(DoubleArray(v.data() + s * length, length),
                                         s % 2 ? -1 : 0x336699, text(s + 1));
        if (c[10] & (1 << s)) set->setDataSymbol(c[11] % 20, c[12] % 20, -1, -1, c[14] % 3);
        if (c[14] & (1 << s)) set->setLineWidth(c[15] % 4);
        if (c[15] & (1 << s)) set->setUseYAxis2(true);
    }
    return layer;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < kControl || size > 8192) return 0;
    const uint8_t *c = data;
    int n = std::min<int>(c[2] % (kMaxValues + 1), (int)(size - kControl));
    int repeat = c[16] % 4 ? 1 : c[17] % kMaxRepeat + 1;
    std::vector<double> v, x;
    for (int r = 0; r < repeat; ++r)
        for (int i = 0; i < n; ++i) {
            double value = valueOfByte(data[kControl + i]);
            v.push_back(r && std::isfinite(value) ? value + r * 0.37 : value);
            x.push_back(valueOfByte(data[kControl + (i * 7 + r) % n]));
        }
    std::vector<std::string> texts =
        splitTexts(data + kControl + n, size - kControl - n, kMaxTexts, kMaxText);
    auto text = [&](size_t i) { return texts[i % texts.size()].c_str(); };

    XYChart *chart = newLayerFuzzChart(c);
    if (c[3] & 8) chart->addLegend(5, 5, c[3] & 16, "", 8)->setLineStyleKey(c[3] & 32);
    if (c[3] & 64) chart->setClipping(c[4] % 8);
    if (c[3] & 128) chart->yAxis()->setLogScale3("");
    Layer *layer = addLayer(chart, c, v, x, texts);
    LineLayer *line = dynamic_cast<LineLayer *>(layer);
    AreaLayer *area = dynamic_cast<AreaLayer *>(layer);
    if (line) {
        line->setGapColor(c[18] % 3 == 0 ? kSameAsMainColor : (int8_t)c[18], c[19] % 6 - 1);
        line->setFastLineMode(c[18] & 8);
        line->setImageMapWidth(c[19] % 20 - 2);
        if (c[20] & 1)
            line->setSymbolScale(
                DoubleArray(x.data(), std::min<int>(x.size(), c[21] % 40)), c[21] % 4 - 1,
                DoubleArray(v.data(), c[20] & 2 ? (int)v.size() : 0), c[22] % 4 - 1);
    }
    if (area) {
        area->setMinLabelSize(c[18] % 30 - 1);
        area->setGapColor(c[19] % 3 == 0 ? kTransparent : (int8_t)c[19]);
    }
    layer->setBaseLine(valueOfByte(c[22]));
    layer->setLineWidth(c[5] % 4);
    if (c[23] & 1) layer->setXData2(valueOfByte(c[4]), valueOfByte(c[5]));
    if (c[23] & 2) layer->setXData(DoubleArray(x.data(), std::min<int>(x.size(), c[6] % 200)));
    if (c[23] & 4) layer->setDataLabelFormat(text(2));
    if (c[23] & 8)
        layer->setDataLabelStyle("", 6 + c[6] % 8, kTextColor, (int8_t)c[7])
            ->setAlignment(c[8] % 14);
    if (c[23] & 16) layer->addCustomDataLabel(c[9] % 4, c[10] % 8, text(4), "", 8, 0, 0);

    MemBlock out = chart->makeChart2(kOutputs[(c[23] >> 5) % 3]);
    if (out.len <= 0) abort();
    checkBounded(chart->getHTMLImageMap(text(6), text(7), text(8), (int8_t)c[0], (int8_t)c[1]),
                 1 << 24);
    checkBounded(layer->getImageCoor(c[9] % 5 - 1, c[10] % 9 - 1, 0, 0), 1 << 16);
    if (LineObj *path = line ? line->getLine(c[9] % 5 - 1) : nullptr) {
        DoubleArray points = path->getPoints();
        if (points.len < 0 || (points.len > 0 && !points.data)) abort();
    }
    chart->destroy();
    return 0;
}
