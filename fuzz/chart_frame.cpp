// Random charts: titles, free texts, legend keys, value templates, table cells
// and a data symbol from the bytes, laid out, painted and encoded.
// Input: 12 control bytes, then texts separated by NUL bytes.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "chart/base/MultiChart.h"
#include "chart/legend/LegendBox.h"
#include "chart/symbol/DataSymbol.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "fuzz/ChartFuzz.h"
#include "text/box/TextBox.h"
#include "text/box/VSMLTable.h"

namespace {

const size_t kControl = 12;
const size_t kMaxTexts = 24;
const size_t kMaxText = 300;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < kControl || size > 8192) return 0;
    const uint8_t *c = data;
    std::vector<std::string> texts =
        splitTexts(data + kControl, size - kControl, kMaxTexts, kMaxText);
    MultiChart *chart = MultiChart::create(c[0] % 240 + 1, c[1] % 180 + 1, 0xF0F0F0 ^ c[2],
                                           c[3] & 1 ? 0x000000 : kTransparent, (int8_t)c[4]);
    chart->setRoundedFrame(0xFFFFFF, c[5] % 60 - 8, c[6] & 1 ? -1 : c[6] % 30, -1, c[7] % 20);
    chart->setThickFrame(c[8] % 14 - 3, c[8] & 0x80 ? -1 : 0x336699, -1, -1);
    if (c[9] & 1) chart->setDropShadow(0xAAAAAA, (int8_t)c[10] % 24, 0x7FFFFFFF, c[11] % 20);
    LegendBox *legend = chart->addLegend2((int8_t)c[10], c[11], (c[9] >> 1) % 6 - 2, "", 8);
    legend->setReverse(c[9] & 0x10);
    legend->setLineStyleKey(c[9] & 0x20);
    if (c[9] & 0x40) legend->setKeySize(c[2] % 20 - 1, c[3] % 20 - 1, c[4] % 10 - 1);
    VSMLTable *table = chart->addTable(c[5], c[6], c[7] % 14, c[8] % 4, c[9] % 4);
    DataSymbol symbol;
    std::vector<int> points;
    for (size_t i = 0; i + 1 < texts.size(); ++i) {
        const std::string &t = texts[i];
        int n = (int)(i * 31 + t.size());
        switch (i % 6) {
            case 0:
                chart->addTitle2(n % 16 - 1, t.c_str(), "", 6 + n % 10, kTextColor, 0xDDEEFF,
                                 n & 1 ? kLineColor : -1);
                break;
            case 1: {
                TextBox *box = chart->addText(n % 200 - 10, n % 150 - 10, t.c_str(), "", 7 + n % 6,
                                              0x000000, n % 14, (n * 37) % 400 - 20, n % 7 == 0);
                if (n & 2) box->setSize(n % 90 - 5, n % 40 - 5);
                if (n & 4) box->setTruncate(n % 80, n % 3);
                if (n & 8) box->setBackground(0xFFFFCC, 0x000000, (int8_t)n);
                box->setZOrder(n % 3 ? kChartFrontZ : kChartBackZ);
                break;
            }
            case 2:
                if (n & 1)
                    legend->addKey(t.c_str(), 0x1000 * n, n % 5 - 1, nullptr);
                else
                    legend->addText2(n % 4 - 1, t.c_str());
                break;
            case 3:
                checkBounded(chart->formatValue(n * 12.5 - 300, t.c_str()), 1u << 20);
                break;
            case 4:
                table->setText(n % 3, n % 4, t.c_str());
                break;
            default:
                for (char ch : t) points.push_back((int8_t)ch);
                symbol.setPolygon(IntArray(points.data(), (int)points.size()), n % 30, -1, -1);
                if (n & 1) symbol.setShape((int)((unsigned)n * 2654435761u), n % 40, -1, -1, n % 4);
                break;
        }
    }
    DrawArea *d = chart->getDrawArea();
    symbol.layoutLegend(d);
    symbol.layoutChart(d, 0xE4572E, 0x333333);
    symbol.paint(d, c[0] % 100, c[1] % 100, symbol.getWidth(), symbol.getHeight());
    MemBlock png = chart->makeChart2(kPNG);
    if (png.len <= 0) abort();
    checkBounded(chart->getChartMetrics(), 200);
    checkBounded(legend->getHTMLImageMap("u.html", "{dataSetName}", "title='{label}'", 1, 2),
                 1u << 20);
    chart->makeChart2(8);
    chart->destroy();
    return 0;
}
