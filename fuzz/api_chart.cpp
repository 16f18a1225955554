// Bytes read as a run of calls on the flat chart interface: an outer
// multi-chart and two charts it may place, with titles, texts, lines, tables
// and legend keys, any numbers and texts.  Nothing may crash, hang or leak, and
// every output must come.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "api/CDrawArea.h"
#include "api/chart/CBaseChart.h"
#include "api/chart/CBox.h"
#include "api/chart/CDrawObj.h"
#include "api/chart/CLegendBox.h"
#include "api/chart/CLine.h"
#include "api/chart/CMultiChart.h"
#include "api/chart/CTextBox.h"
#include "fuzz/ByteReader.h"

namespace {

class Bytes : public ByteReader {
public:
    using ByteReader::ByteReader;
    // Mostly small pixels, now and then any int.
    int pixels() { return byte() == 0xFF ? word() : (int)(byte() % 200) - 20; }
    int color() { return byte() & 1 ? word() : (int)(0xFFFF0000u + byte() % 12); }
    std::string text() {
        std::string s;
        for (int n = byte() % 32; n > 0 && more(); --n) s += (char)byte();
        return s;
    }
    std::vector<int> words() {
        std::vector<int> v(byte() % 12);
        for (int &x : v) x = color();
        return v;
    }
};

struct Charts {
    CMultiChart *outer;
    CMultiChart *inner[2];
    CBaseChart *any(Bytes &in) {
        int k = in.byte() % 3;
        return CMultiChart_toBaseChart(k == 0 ? outer : inner[k - 1]);
    }
};

void style(CTextBox *t, Bytes &in) {
    std::string font = in.text();
    CTextBox_setFontStyle(t, font.c_str(), in.byte() % 3);
    CTextBox_setFontSize(t, in.byte() % 40, in.byte() % 3 ? 0 : in.byte() % 40);
    CTextBox_setFontAngle(t, in.word() % 720, in.byte() & 1);
    CTextBox_setAlignment(t, in.byte() % 15);
    CTextBox_setMargin2(t, in.pixels(), in.pixels(), in.pixels(), in.pixels());
    CTextBox_setTruncate(t, in.pixels(), in.byte() % 4);
    CBox *b = CTextBox_toBox(t);
    CBox_setBackground(b, in.color(), in.color(), in.byte() % 5 - 2);
    CBox_setRoundedCorners(b, in.pixels(), -1, in.pixels(), -1);
    CDrawObj_setZOrder(CBox_toDrawObj(b), in.word());
}

void step(Charts &charts, Bytes &in) {
    CBaseChart *c = charts.any(in);
    switch (in.byte() % 14) {
        case 0:
            CMultiChart_addChart(charts.outer, in.pixels(), in.pixels(),
                                 in.byte() % 4 ? c : nullptr);
            break;
        case 1:
            CMultiChart_setMainChart(charts.outer, c);
            break;
        case 2:
            CBaseChart_getWidth(CMultiChart_getChart(charts.outer, in.byte() % 5 - 1));
            break;
        case 3: {
            std::string s = in.text();
            CTextBox *t = CBaseChart_addTitle2(c, in.byte() % 15, s.c_str(), "", in.byte() % 30,
                                               in.color(), in.color(), in.color());
            style(t, in);
            break;
        }
        case 4: {
            std::string s = in.text();
            CTextBox *t = CBaseChart_addText(c, in.pixels(), in.pixels(), s.c_str(), "arial.ttf",
                                             in.byte() % 30, in.color(), in.byte() % 15,
                                             in.byte() * 3, in.byte() & 1);
            style(t, in);
            break;
        }
        case 5: {
            CLine *l = CBaseChart_addLine(c, in.pixels(), in.pixels(), in.pixels(), in.pixels(),
                                          in.color(), in.byte() % 12 - 2);
            CLine_setWidth(l, in.byte() % 10);
            break;
        }
        case 6: {
            CLegendBox *l = CBaseChart_addLegend2(c, in.pixels(), in.pixels(), in.byte() % 6 - 2,
                                                  "", in.byte() % 20);
            std::string s = in.text();
            CLegendBox_addKey(l, s.c_str(), in.color(), in.byte() % 6 - 1, nullptr);
            CLegendBox_addText2(l, in.byte(), s.c_str());
            CLegendBox_setKeySize(l, in.pixels(), in.pixels(), in.pixels());
            CLegendBox_setReverse(l, in.byte() & 1);
            break;
        }
        case 7:
            CBaseChart_setRoundedFrame(c, in.color(), in.pixels(), in.pixels(), -1, in.pixels());
            CBaseChart_setThickFrame(c, in.pixels() % 20, in.color(), in.color(), in.color());
            break;
        case 8:
            CBaseChart_setDropShadow(c, in.color(), in.pixels() % 30, in.pixels() % 30,
                                     in.byte() % 20);
            break;
        case 9:
            CBaseChart_setSize(c, in.byte() % 250, in.byte() % 250);
            CBaseChart_setBackground(c, in.color(), in.color(), in.byte() % 5 - 2);
            break;
        case 10: {
            std::vector<int> colors = in.words();
            CBaseChart_setColors2(c, in.byte(), colors.data(), (int)colors.size());
            break;
        }
        case 11: {
            std::string t = in.text();
            const char *s = CBaseChart_formatValue(c, in.word() / 7.0, t.c_str());
            if (!s) abort();
            break;
        }
        case 12: {
            const char *data = nullptr;
            int len = -1;
            CBaseChart_makeChart2(c, in.byte() % 2 ? 8 : 0, &data, &len);
            if (len < 0 || (len > 0 && !data)) abort();
            break;
        }
        default:
            if (!CBaseChart_getChartMetrics(c) || !CBaseChart_getHTMLImageMap(c, "u", "", "", 0, 0))
                abort();
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    Bytes in(data, size);
    Charts charts;
    charts.outer = CMultiChart_create(in.byte() + 20, in.byte() + 20, in.color(), in.color(), 0);
    for (CMultiChart *&m : charts.inner)
        m = CMultiChart_create(in.byte() % 100 + 1, in.byte() % 100 + 1, in.color(), in.color(), 0);
    for (int n = 0; n < 40 && in.more(); ++n) step(charts, in);
    // The placed charts outlive the outer one: they forget it first.
    for (CMultiChart *m : charts.inner)
        CBaseChart_setContainer(CMultiChart_toBaseChart(m), nullptr);
    CBaseChart_destroy(CMultiChart_toBaseChart(charts.outer));
    for (CMultiChart *m : charts.inner) {
        CBaseChart_getAbsOffsetX(CMultiChart_toBaseChart(m));
        CBaseChart_destroy(CMultiChart_toBaseChart(m));
    }
    return 0;
}
