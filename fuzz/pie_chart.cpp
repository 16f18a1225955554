// Random pie charts: sizes, data (with missing, infinite and huge values),
// labels and label templates from the bytes, every layout, 3D mode, explosion
// and shading; laid out, painted, encoded, and asked for their image map.
// Input: 16 control bytes, one byte a sector value, then texts separated by NUL bytes.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "chart/legend/LegendBox.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/PieChart.h"
#include "families/pie/Sector.h"
#include "foundation/Constants.h"
#include "fuzz/ChartFuzz.h"
#include "text/box/TextBox.h"

namespace {

const size_t kControl = 16;
const int kMaxSectors = 48;
const size_t kMaxTexts = 64;
const size_t kMaxText = 200;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < kControl || size > 8192) return 0;
    const uint8_t *c = data;
    int n = std::min<int>(c[2] % (kMaxSectors + 1), (int)(size - kControl));
    std::vector<double> values;
    for (int i = 0; i < n; ++i) values.push_back(valueOfByte(data[kControl + i]));
    std::vector<std::string> texts =
        splitTexts(data + kControl + n, size - kControl - n, kMaxTexts, kMaxText);
    std::vector<const char *> labels;
    for (int i = 0; i < n; ++i) labels.push_back(texts[i % texts.size()].c_str());

    PieChart *chart = PieChart::create(c[0] % 400 + 1, c[1] % 300 + 1, 0xFFFFFF, kTransparent, 0);
    int flags = c[3];
    int cx = (int8_t)c[4] * 4, cy = (int8_t)c[5] * 3, r = (int8_t)c[6] * 3;
    if (flags & 1)
        chart->setDonutSize(cx, cy, r, (int8_t)c[7] * 2);
    else
        chart->setPieSize(cx, cy, r);
    if (flags & 2) {
        std::vector<double> depths(values.begin(), values.end());
        if (flags & 8)
            chart->set3D2(DoubleArray(depths.data(), (int)depths.size()), (int8_t)c[8] * 3,
                          flags & 4);
        else
            chart->set3D((int8_t)c[9] % 60, (int8_t)c[8] * 3, flags & 4);
    }
    chart->setStartAngle((int8_t)c[10] * 7.5, !(flags & 16));
    chart->setData(DoubleArray(values.data(), n), StringArray(labels.data(), n));
    int pos = (int8_t)c[11];
    if (flags & 32)
        chart->setLabelLayout(kSideLayout, pos, (int8_t)c[12] * 2, c[13] * 2 - 20);
    else
        chart->setLabelPos(pos, c[12] & 1 ? kLineColor : -1);
    chart->setSectorStyle(c[14] % 11 - 1, c[14] & 0x10 ? 0x000000 : -1, c[15] % 5 - 1);
    if (flags & 64) chart->addLegend(10, 10, c[15] & 1, "", 8)->setText(texts.back().c_str());
    if (flags & 128) chart->setExplodeGroup(c[13] % 12 - 2, c[12] % 12 - 2, (int8_t)c[9]);
    chart->setLabelFormat(texts[0].c_str());
    for (int i = 0; i < n; ++i) {
        Sector *s = chart->sector(i);
        int k = data[kControl + i];
        if (k % 5 == 0) s->setExplode(k % 3 - 1);
        if (k % 7 == 0) s->setLabelFormat(texts[(i + 1) % texts.size()].c_str());
        if (k % 11 == 0) s->setLabelPos(k * 300, k);
        if (k % 13 == 0) s->setStyle(k % 10, k * 0x10101, k % 4);
        if (k % 17 == 0) s->setColor(0x80000000 | (k * 0x3571), -1, 0x000000);
    }
    MemBlock png = chart->makeChart2(kPNG);
    if (png.len <= 0) abort();
    checkBounded(chart->getHTMLImageMap("p.html", texts.back().c_str(), "title='{label}'", 1, 2),
                 1u << 24);
    for (int i = 0; i < n; ++i) {
        checkBounded(chart->sector(i)->getImageCoor(0, 0), 1u << 16);
        checkBounded(chart->sector(i)->getLabelCoor(0, 0), 200);
    }
    chart->makeChart2(8);
    chart->destroy();
    return 0;
}
