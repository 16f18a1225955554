// Bytes read as a run of calls on the flat interface of XY charts and pies:
// axes and their look, marks, the plot area, bar, line, scatter and area
// layers, data sets, labels,
// sectors, with any numbers and texts.  Handles once handed out are kept and
// used again after later calls (a shorter pie, a custom label asked for
// again), as an application keeps them.  Nothing may crash, hang or leak, and
// every output must come.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "api/chart/CAxis.h"
#include "api/chart/CBaseChart.h"
#include "api/chart/CLineObj.h"
#include "api/chart/CMark.h"
#include "api/chart/CTextBox.h"
#include "api/pie/CPieChart.h"
#include "api/pie/CSector.h"
#include "api/xy/CAreaLayer.h"
#include "api/xy/CBarLayer.h"
#include "api/xy/CDataSet.h"
#include "api/xy/CLayer.h"
#include "api/xy/CLineLayer.h"
#include "api/xy/CPlotArea.h"
#include "api/xy/CScatterLayer.h"
#include "api/xy/CXYChart.h"
#include "fuzz/ByteReader.h"

namespace {

class Bytes : public ByteReader {
public:
    using ByteReader::ByteReader;
    int pixels() { return byte() == 0xFF ? word() : (int)(byte() % 200) - 20; }
    int color() { return byte() & 1 ? word() : (int)(0xFFFF0000u + byte() % 12); }
    double value() { return byte() & 1 ? word() / 16.0 : (int)(byte() % 40) - 10; }
    std::string text() {
        std::string s;
        for (int n = byte() % 24; n > 0 && more(); --n) s += (char)byte();
        return s;
    }
    std::vector<double> values() {
        std::vector<double> v(byte() % 10);
        for (double &x : v) x = byte() == 0xFE ? 1.7e308 : value();
        return v;
    }
};

// What the run has been handed so far, reused by later steps.
struct Handles {
    CXYChart *xy;
    CPieChart *pie;
    std::vector<CAxis *> axes;
    std::vector<CLayer *> layers;
    std::vector<CDataSet *> sets;
    std::vector<CTextBox *> boxes;
    std::vector<CMark *> marks;
    std::vector<CSector *> sectors;

    template <class T>
    static T *pick(const std::vector<T *> &list, Bytes &in) {
        return list.empty() ? nullptr : list[in.byte() % list.size()];
    }
    template <class T>
    static void keep(std::vector<T *> &list, T *h) {
        if (h && list.size() < 64) list.push_back(h);
    }
};

// The points of a line, which must be whole pairs.
void checkPoints(CLineObj *line) {
    const double *points = nullptr;
    int len = -1;
    CLineObj_getPoints(line, &points, &len);
    if (len < 0 || len % 2 || (len > 0 && !points)) abort();
}

void axisStep(Handles &h, Bytes &in) {
    CAxis *a = Handles::pick(h.axes, in);
    std::string s = in.text();
    switch (in.byte() % 8) {
        case 0:
            CAxis_setLinearScale(a, in.value(), in.value(), in.value(), in.value());
            break;
        case 1:
            Handles::keep(h.boxes, CAxis_setTitle(a, s.c_str(), "", in.byte() % 30, in.color()));
            CAxis_setTitlePos(a, in.byte() % 14, in.pixels());
            break;
        case 2:
            Handles::keep(h.boxes,
                          CAxis_setLabelStyle(a, "", in.byte() % 30, in.color(), in.word() % 720));
            CAxis_setLabelAlignment(a, in.byte() % 14, in.pixels());
            break;
        case 3:
            CAxis_setTickLength2(a, in.pixels(), in.pixels());
            CAxis_setTickWidth(a, in.byte() % 8 - 1, in.byte() % 8 - 1);
            CAxis_setColors(a, in.color(), in.color(), in.color(), in.color());
            break;
        case 4:
            Handles::keep(h.marks, CAxis_addMark(a, in.value(), in.color(), s.c_str(), "", 8));
            break;
        case 5:
            CAxis_addZone(a, in.value(), in.value(), in.color());
            CAxis_setOffset(a, in.pixels(), in.pixels());
            break;
        case 6:
            CAxis_setTickOffset(a, in.value());
            CAxis_setLabelOffset(a, in.value());
            CAxis_setWidth(a, in.byte() % 6);
            break;
        default: {
            CMark *m = Handles::pick(h.marks, in);
            CMark_setMarkColor(m, in.color(), in.color(), in.color());
            CMark_setLineWidth(m, in.byte() % 6);
            CMark_setDrawOnTop(m, in.byte() & 1);
            CTextBox_setAlignment(CMark_toTextBox(m), in.byte() % 14);
            checkPoints(CMark_getLine(m));
            break;
        }
    }
}

// The settings of each layer kind; those of another kind than the layer's get
// a null handle.
void kindStep(CLayer *l, Bytes &in) {
    std::vector<double> v = in.values();
    CBarLayer *b = CBarLayer_fromLayer(l);
    CBarLayer_setBarGap(b, in.value(), in.value());
    CBarLayer_setBarWidth(b, in.pixels(), in.pixels());
    CBarLayer_setBarShape(b, in.byte() % 20, in.byte() % 4 - 1, in.byte() % 8 - 1);
    CBarLayer_setRoundedCorners(b, in.pixels(), in.pixels(), -2147483647, in.pixels());
    CLineLayer *line = CLineLayer_fromLayer(l);
    CLineLayer_setGapColor(line, in.color(), in.byte() % 8 - 1);
    CLineLayer_setFastLineMode(line, in.byte() & 1);
    CLineLayer_setImageMapWidth(line, in.pixels());
    if (in.byte() & 1)
        CLineLayer_setSymbolScale2(line, v.data(), (int)v.size(), in.byte() % 4);
    else
        CLineLayer_setSymbolScale(line, v.data(), (int)v.size(), in.byte() % 4, v.data(),
                                  (int)v.size() / 2, in.byte() % 4);
    checkPoints(CLineLayer_getLine(line, in.byte() % 3));
    CAreaLayer *area = CAreaLayer_fromLayer(l);
    CAreaLayer_setMinLabelSize(area, in.pixels());
    CAreaLayer_setGapColor(area, in.color());
}

void layerStep(Handles &h, Bytes &in) {
    CLayer *l = Handles::pick(h.layers, in);
    std::vector<double> v = in.values();
    std::string s = in.text();
    switch (in.byte() % 8) {
        case 0:
            Handles::keep(h.sets,
                          CLayer_addDataSet(l, v.data(), (int)v.size(), in.color(), s.c_str()));
            break;
        case 1:
            CLayer_setDataCombineMethod(l, in.byte() % 6);
            CLayer_set3D(l, in.pixels() % 40, in.pixels() % 10);
            CLayer_setBaseLine(l, in.value());
            break;
        case 2:
            Handles::keep(h.boxes, CLayer_addCustomDataLabel(l, in.byte() % 4, in.byte() % 8,
                                                             s.c_str(), "", 8, in.color(), 0));
            Handles::keep(h.boxes, CLayer_addCustomGroupLabel(l, in.byte() % 3, in.byte() % 8,
                                                              s.c_str(), "", 8, in.color(), 0));
            break;
        case 3:
            CLayer_setDataLabelFormat(l, s.c_str());
            Handles::keep(h.boxes,
                          CLayer_setAggregateLabelStyle(l, "", in.byte() % 20, in.color(), 0));
            break;
        case 4:
            CLayer_setXData(l, v.data(), (int)v.size());
            CLayer_setUseYAxis(l, Handles::pick(h.axes, in));
            break;
        case 5:
            kindStep(l, in);
            break;
        case 6: {
            CDataSet *d = Handles::pick(h.sets, in);
            CDataSet_setData(d, v.data(), (int)v.size());
            CDataSet_setDataColor(d, in.color(), in.color(), in.color(), in.color());
            CDataSet_setUseYAxis(d, Handles::pick(h.axes, in));
            Handles::keep(h.axes, CDataSet_getUseYAxis(d));
            Handles::keep(h.boxes, CDataSet_setDataLabelStyle(d, "", 8, in.color(), 0));
            break;
        }
        default:
            CLayer_moveFront(l, Handles::pick(h.layers, in));
            CLayer_alignLayer(l, Handles::pick(h.layers, in), in.byte() % 3);
            if (l && !CLayer_getImageCoor(l, in.byte() % 3, in.byte() % 8, 0, 0)) abort();
            break;
    }
}

// A layer of some kind, with data or combining the sets added later.
CLayer *addLayer(CXYChart *xy, Bytes &in) {
    std::vector<double> v = in.values(), x = in.values();
    int n = (int)v.size(), color = in.color(), depth = in.pixels() % 20, method = in.byte() % 6;
    switch (in.byte() % 7) {
        case 0:
            return CBarLayer_toLayer(CXYChart_addBarLayer(xy, v.data(), n, color, "", depth));
        case 1:
            return CBarLayer_toLayer(CXYChart_addBarLayer2(xy, method, depth));
        case 2:
            return CLineLayer_toLayer(CXYChart_addLineLayer(xy, v.data(), n, color, "", depth));
        case 3:
            return CLineLayer_toLayer(CXYChart_addLineLayer2(xy, method, depth));
        case 4:
            return CAreaLayer_toLayer(CXYChart_addAreaLayer(xy, v.data(), n, color, "", depth));
        case 5:
            return CAreaLayer_toLayer(CXYChart_addAreaLayer2(xy, method, depth));
        default:
            return CScatterLayer_toLayer(CXYChart_addScatterLayer(xy, x.data(), (int)x.size(),
                                                                  v.data(), n, "", in.byte() % 20,
                                                                  in.pixels(), color, in.color()));
    }
}

void chartStep(Handles &h, Bytes &in) {
    std::vector<double> v = in.values();
    switch (in.byte() % 6) {
        case 0:
            Handles::keep(h.axes, CXYChart_addAxis(h.xy, in.byte() % 10, in.pixels()));
            CXYChart_swapXY(h.xy, in.byte() & 1);
            CXYChart_setAxisAtOrigin(h.xy, in.byte() % 4, in.byte() % 64);
            break;
        case 1:
            Handles::keep(h.layers, addLayer(h.xy, in));
            Handles::keep(h.layers, addLayer(h.xy, in));
            break;
        case 2: {
            CPlotArea *p =
                CXYChart_setPlotArea(h.xy, in.pixels(), in.pixels(), in.pixels(), in.pixels(),
                                     in.color(), in.color(), in.color(), in.color(), in.color());
            CPlotArea_setGridWidth(p, in.byte() % 5, -1, -1, -1);
            CPlotArea_moveGridBefore(p, Handles::pick(h.layers, in));
            CPlotArea_setGridAxis(p, Handles::pick(h.axes, in), Handles::pick(h.axes, in));
            break;
        }
        case 3: {
            std::vector<const char *> names = {"a", "b", "c", "d"};
            CPieChart_setData(h.pie, v.data(), (int)v.size(), names.data(), 4);
            for (int i = 0; i < 3; ++i) Handles::keep(h.sectors, CPieChart_sector(h.pie, i));
            CPieChart_set3D(h.pie, in.pixels() % 40, in.value(), in.byte() & 1);
            CPieChart_setLabelPos(h.pie, in.byte() & 1 ? 32768 + in.byte() : in.pixels(),
                                  in.color());
            break;
        }
        case 4: {
            CSector *s = Handles::pick(h.sectors, in);
            CSector_setColor(s, in.color(), in.color(), in.color());
            CSector_setExplode(s, in.pixels() % 50);
            CSector_setLabelLayout(s, in.byte() % 2, in.pixels());
            Handles::keep(h.boxes, CSector_setLabelStyle(s, "", in.byte() % 20, in.color()));
            if (!CSector_getImageCoor(s, 0, 0) && s) abort();
            break;
        }
        default: {
            CTextBox *t = Handles::pick(h.boxes, in);
            std::string s = in.text();
            CTextBox_setText(t, s.c_str());
            CTextBox_setFontColor(t, in.color());
            break;
        }
    }
}

void output(CBaseChart *c) {
    const char *data = nullptr;
    int len = -1;
    CBaseChart_makeChart2(c, 0, &data, &len);
    if (len < 0 || (len > 0 && !data)) abort();
    if (!CBaseChart_getHTMLImageMap(c, "u", "", "", 0, 0)) abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    Bytes in(data, size);
    Handles h;
    h.xy = CXYChart_create(in.byte() + 40, in.byte() + 40, in.color(), in.color(), 0);
    h.pie = CPieChart_create(in.byte() + 40, in.byte() + 40, in.color(), in.color(), 0);
    for (CAxis *a : {CXYChart_xAxis(h.xy), CXYChart_yAxis(h.xy), CXYChart_yAxis2(h.xy)})
        Handles::keep(h.axes, a);
    for (int n = 0; n < 48 && in.more(); ++n) {
        switch (in.byte() % 3) {
            case 0:
                axisStep(h, in);
                break;
            case 1:
                layerStep(h, in);
                break;
            default:
                chartStep(h, in);
                break;
        }
    }
    output(CXYChart_toBaseChart(h.xy));
    output(CPieChart_toBaseChart(h.pie));
    CBaseChart_destroy(CXYChart_toBaseChart(h.xy));
    CBaseChart_destroy(CPieChart_toBaseChart(h.pie));
    return 0;
}
