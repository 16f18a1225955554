#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "api/CArrayMath.h"
#include "api/CChart.h"
#include "api/CDrawArea.h"
#include "api/CTTFText.h"
#include "api/chart/CAxis.h"
#include "api/chart/CBaseChart.h"
#include "api/chart/CBox.h"
#include "api/chart/CDrawObj.h"
#include "api/chart/CLegendBox.h"
#include "api/chart/CLine.h"
#include "api/chart/CLineObj.h"
#include "api/chart/CMark.h"
#include "api/chart/CMultiChart.h"
#include "api/chart/CTextBox.h"
#include "api/chart/CVSMLTable.h"
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
#include "chart/axis/paint/LineObj.h"
#include "chart/layer/Layer.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/LayerKinds.h"
#include "layers/line/LineLayer.h"

namespace {

std::string listingOf(CDrawArea *d) {
    const char *data = nullptr;
    int len = -1;
    CDrawArea_outAGF2(d, &data, &len);
    return std::string(data ? data : "", len > 0 ? len : 0);
}

}  // namespace

// A null handle is ignored and reads as 0; out-parameters are still written.
TEST(CApi, NullHandlesReadAsZero) {
    EXPECT_EQ(0, CDrawArea_getWidth(nullptr));
    CDrawArea_line(nullptr, 0, 0, 1, 1, 0, 1);
    EXPECT_FALSE(CDrawArea_out(nullptr, "/tmp/x.png"));
    const char *data = "x";
    int len = 7;
    CDrawArea_outPNG2(nullptr, &data, &len);
    EXPECT_EQ(nullptr, data);
    EXPECT_EQ(0, len);
    int l = 5, t = 5, r = 5, b = 5;
    CDrawArea_getClipRect(nullptr, &l, &t, &r, &b);
    EXPECT_EQ(0, l + t + r + b);
    EXPECT_EQ(nullptr, CDrawArea_text(nullptr, "a", "arial.ttf", 8));
    EXPECT_EQ(0, CTTFText_getWidth(nullptr));
    EXPECT_EQ(nullptr, CArrayMath_add2(nullptr, 1));
    EXPECT_EQ(-1, CArrayMath_maxIndex(nullptr));
    EXPECT_EQ(0, CArrayMath_aggregate(nullptr, nullptr, 0, 0, 0));
    CDrawArea_destroy(nullptr);
    CArrayMath_destroy(nullptr);
    CTTFText_destroy(nullptr);
}

// The flat functions are the canvas: the same calls, the same listing.
TEST(CApi, CanvasCallsReachTheEngine) {
    CDrawArea *d = CDrawArea_create();
    DrawArea *engine = DrawArea::create();
    CDrawArea_setSize(d, 0, -3, 0xffffff);
    engine->setSize(0, -3, 0xffffff);
    int l, t, r, b;
    CDrawArea_getClipRect(d, &l, &t, &r, &b);
    EXPECT_EQ(0, l + t + r + b);
    CDrawArea_setSize(d, 60, 40, 0xeeeeee);
    engine->setSize(60, 40, 0xeeeeee);
    const double x[] = {1, 30, 10}, y[] = {1, 5, 30};
    CDrawArea_polygon(d, x, 3, y, 3, 0x000000, 0xff0000);
    engine->polygon(DoubleArray(x, 3), DoubleArray(y, 3), 0x000000, 0xff0000);
    const int radius[] = {3, 3, 3, 3}, edges[] = {1, 2, 3, 4};
    CDrawArea_roundedRect(d, 5, 5, 50, 30, radius, edges, 0x00ff00);
    engine->roundedRect(5, 5, 50, 30, radius, edges, 0x00ff00);
    CDrawArea_roundedRect(d, 5, 5, 50, 30, nullptr, edges, 0x00ff00);
    CTTFText *text = CDrawArea_text(d, "flat", "arial.ttf", 10);
    ASSERT_NE(nullptr, text);
    EXPECT_GT(CTTFText_getWidth(text), 5);
    EXPECT_GE(CTTFText_getHeight(text), CTTFText_getAscent(text));
    CTTFText_draw(text, 2, 2, 0x000000, kTopLeft);
    CTTFText_destroy(text);
    std::string flat = listingOf(d);
    MemBlock direct = engine->outAGF2();
    EXPECT_EQ(std::string(direct.data, direct.len), flat.substr(0, direct.len));
    EXPECT_NE(std::string::npos, flat.find("Text"));
    engine->destroy();

    EXPECT_STREQ("image/png", CDrawArea_getMediaType(kPNG));
    EXPECT_STREQ("x", CDrawArea_getResourceId("@/x"));
    int width = -1, height = -1;
    CDrawArea_getImageSize(2, "BM", &width, &height);
    EXPECT_EQ(0, width + height);
    CDrawArea_setResource(d, "id", "abc", 3);
    int n = 0;
    char *copy = CDrawArea_getResourceData(d, "id", &n);
    ASSERT_EQ(3, n);
    EXPECT_EQ("abc", std::string(copy, n));
    CVistrel_free(copy);
    EXPECT_EQ(nullptr, CDrawArea_getResourceData(d, "none", &n));
    EXPECT_EQ(0, n);
    CDrawArea_destroy(d);
}

TEST(CApi, ArrayCallsChainOnTheSameHandle) {
    const double values[] = {1, 2, 3, 4};
    CArrayMath *a = CArrayMath_create(values, 4);
    EXPECT_EQ(a, CArrayMath_mul2(CArrayMath_add2(a, 1), 2));
    const double *data = nullptr;
    int len = 0;
    CArrayMath_result(a, &data, &len);
    ASSERT_EQ(4, len);
    EXPECT_EQ(10, data[3]);
    EXPECT_EQ(7, CArrayMath_avg(a));
    EXPECT_EQ(4, CArrayMath_max2(values, 4));
    double src[] = {5, 6, 7, 8};
    EXPECT_EQ(4, CArrayMath_aggregate(a, src, 4, 0, 0));
    CArrayMath_destroy(a);
}

TEST(CApi, ChartStaticsTakeFlatViews) {
    const double a[] = {1, 2, 4};
    EXPECT_EQ(1.5, CChart_bSearch(a, 3, 3));
    EXPECT_EQ(-1, CChart_bSearch(nullptr, 0, 3));
    EXPECT_EQ(0, CChart_chartTime(1, 1, 1, 0, 0, 0));
    EXPECT_EQ(1, CChart_getChartWeekDay(0));
    EXPECT_EQ(kNoValue, CChart_kNoValue);
    const int *pairs = nullptr;
    int len = 0;
    CChart_goldGradient(&pairs, &len);
    ASSERT_EQ(8, len);
    EXPECT_EQ(0xffe743, pairs[1]);
    CChart_defaultPalette(&pairs, &len);
    EXPECT_GT(len, 8);
    int table[4];
    CChart_getBarLighting(table, CChart_barLighting(0.75, 1.5), 1);
    EXPECT_EQ(256, table[2]);
    int lighting[64];
    int n = CChart_getShearedCylinderLighting(CChart_cylinderEffect(5, 0.5, 0.5, 0.75, 8), 1, 0,
                                              lighting, 64);
    EXPECT_GT(n, 4);
    EXPECT_EQ(0, CChart_getShearedCylinderLighting(CChart_phongLighting(0.5, 0.5, 0.75, 8), 0, 0,
                                                   lighting, 64));
}

TEST(CApi, NullChartHandlesReadAsZero) {
    EXPECT_EQ(0, CBaseChart_getWidth(nullptr));
    EXPECT_EQ(nullptr, CBaseChart_addTitle(nullptr, "t", "", 12, 0, 0, 0));
    EXPECT_EQ(nullptr, CBaseChart_getLegend(nullptr));
    EXPECT_EQ(nullptr, CBaseChart_makeChart4(nullptr));
    const char *data = "x";
    int len = 3;
    EXPECT_FALSE(CBaseChart_makeChart3(nullptr, kPNG, &data, &len));
    EXPECT_EQ(nullptr, data);
    EXPECT_EQ(0, len);
    EXPECT_EQ(nullptr, CMultiChart_getChart(nullptr, 0));
    EXPECT_EQ(nullptr, CMultiChart_toBaseChart(nullptr));
    EXPECT_EQ(nullptr, CMultiChart_fromBaseChart(nullptr));
    EXPECT_EQ(0, CDrawObj_getZOrder(nullptr));
    EXPECT_EQ(nullptr, CBox_getImageCoor(nullptr, 0, 0));
    EXPECT_EQ(nullptr, CTextBox_toBox(nullptr));
    EXPECT_EQ(nullptr, CLegendBox_getHTMLImageMap(nullptr, "u", "", "", 0, 0));
    EXPECT_EQ(nullptr, CLine_toDrawObj(nullptr));
    EXPECT_EQ(nullptr, CVSMLTable_toDrawObj(nullptr));
    EXPECT_EQ(0, CAxis_getCoor(nullptr, 1));
    CAxis_getTicks(nullptr, nullptr, nullptr);
    CBaseChart_destroy(nullptr);
}

// The handle of a derived class becomes its base's through the conversions,
// which the virtual bases need: the same object seen at each level.
TEST(CApi, ChartHandlesConvertAlongTheirBases) {
    CMultiChart *m = CMultiChart_create(100, 60, 0xffffff, -16777216, 0);
    CBaseChart *c = CMultiChart_toBaseChart(m);
    EXPECT_EQ(m, CMultiChart_fromBaseChart(c));
    EXPECT_EQ(100, CBaseChart_getWidth(c));
    CLegendBox *legend = CBaseChart_addLegend2(c, 10, 10, 2, "", 9);
    EXPECT_EQ(legend, CBaseChart_getLegend(c));
    CTextBox *text = CLegendBox_toTextBox(legend);
    CDrawObj *obj = CBox_toDrawObj(CTextBox_toBox(text));
    CDrawObj_setZOrder(obj, 0x123);
    EXPECT_EQ(0x123, CDrawObj_getZOrder(obj));
    CLine *line = CBaseChart_addLine(c, 0, 0, 9, 9, 0x000000, 1);
    CDrawObj_setZOrder(CLine_toDrawObj(line), 5);
    EXPECT_EQ(5, CDrawObj_getZOrder(CLine_toDrawObj(line)));
    CMultiChart *inner = CMultiChart_create(20, 20, 0xffffff, -16777216, 0);
    CMultiChart_addChart(m, 30, 5, CMultiChart_toBaseChart(inner));
    EXPECT_EQ(CMultiChart_toBaseChart(inner), CMultiChart_getChart(m, 0));
    EXPECT_EQ(30, CBaseChart_getAbsOffsetX(CMultiChart_toBaseChart(inner)));
    CBaseChart_setContainer(CMultiChart_toBaseChart(inner), nullptr);
    EXPECT_EQ(0, CBaseChart_getAbsOffsetX(CMultiChart_toBaseChart(inner)));
    const char *bytes = nullptr;
    int n = 0;
    EXPECT_TRUE(CBaseChart_makeChart3(c, kPNG, &bytes, &n));
    EXPECT_EQ(std::string("\x89PNG", 4), std::string(bytes, 4));
    CBaseChart_destroy(c);
    CBaseChart_destroy(CMultiChart_toBaseChart(inner));
}

// The flat functions of XY and pie charts read a null handle as 0 too.
TEST(CApi, NullPlotHandlesReadAsZero) {
    EXPECT_EQ(nullptr, CXYChart_toBaseChart(nullptr));
    EXPECT_EQ(nullptr, CXYChart_fromBaseChart(nullptr));
    EXPECT_EQ(nullptr, CXYChart_xAxis(nullptr));
    EXPECT_EQ(nullptr, CXYChart_addBarLayer(nullptr, nullptr, 3, -1, nullptr, 0));
    EXPECT_EQ(0, CXYChart_getLayerCount(nullptr));
    EXPECT_EQ(0, CPlotArea_getWidth(nullptr));
    CPlotArea_moveGridBefore(nullptr, nullptr);
    EXPECT_EQ(nullptr, CLayer_addDataSet(nullptr, nullptr, 0, -1, "x"));
    EXPECT_EQ(-1, CLayer_getXIndexOf(nullptr, 1, 0));
    EXPECT_EQ(nullptr, CLayer_getHTMLImageMap(nullptr, "u", nullptr, nullptr, 0, 0));
    EXPECT_EQ(0, CDataSet_getValue(nullptr, 0));
    EXPECT_EQ(nullptr, CDataSet_getUseYAxis(nullptr));
    EXPECT_EQ(nullptr, CBarLayer_toLayer(nullptr));
    EXPECT_EQ(nullptr, CBarLayer_fromLayer(nullptr));
    CBarLayer_setRoundedCorners(nullptr, 1, 2, 3, 4);
    EXPECT_EQ(nullptr, CXYChart_addLineLayer(nullptr, nullptr, 3, -1, nullptr, 0));
    EXPECT_EQ(nullptr, CXYChart_addAreaLayer2(nullptr, kStack, 0));
    EXPECT_EQ(nullptr, CXYChart_addScatterLayer(nullptr, nullptr, 2, nullptr, 2, "", 1, 5, -1, -1));
    EXPECT_EQ(nullptr, CLineLayer_toLayer(nullptr));
    EXPECT_EQ(nullptr, CLineLayer_fromLayer(nullptr));
    EXPECT_EQ(nullptr, CLineLayer_getLine(nullptr, 0));
    CLineLayer_setSymbolScale(nullptr, nullptr, 3, 0, nullptr, 3, 0);
    EXPECT_EQ(nullptr, CScatterLayer_toLineLayer(nullptr));
    EXPECT_EQ(nullptr, CScatterLayer_fromLayer(nullptr));
    EXPECT_EQ(nullptr, CAreaLayer_toLayer(nullptr));
    CAreaLayer_setGapColor(nullptr, 0);
    EXPECT_EQ(nullptr, CAxis_setTitle(nullptr, "t", "", 8, 0));
    EXPECT_EQ(nullptr, CAxis_addMark(nullptr, 1, 0, "", "", 8));
    EXPECT_EQ(0, CAxis_getAlignment(nullptr));
    EXPECT_EQ(nullptr, CMark_toTextBox(nullptr));
    EXPECT_EQ(nullptr, CMark_getLine(nullptr));
    const double *points = &kNoValue;
    int n = 9;
    CLineObj_getPoints(nullptr, &points, &n);
    EXPECT_EQ(nullptr, points);
    EXPECT_EQ(0, n);
    EXPECT_EQ(nullptr, CPieChart_fromBaseChart(nullptr));
    EXPECT_EQ(nullptr, CPieChart_sector(nullptr, 0));
    EXPECT_EQ(nullptr, CSector_getImageCoor(nullptr, 0, 0));
}

// XY charts, pies and bar layers convert along their bases and are found behind
// a base handle only when they are of that kind; the flat interface plugs the
// layer kinds in, so that bar layers can be made.
TEST(CApi, PlotHandlesConvertAlongTheirBases) {
    CXYChart *xy = CXYChart_create(200, 120, 0xffffff, -16777216, 0);
    CBaseChart *base = CXYChart_toBaseChart(xy);
    EXPECT_EQ(xy, CXYChart_fromBaseChart(base));
    EXPECT_EQ(nullptr, CPieChart_fromBaseChart(base));
    EXPECT_EQ(200, CBaseChart_getWidth(base));
    const double data[] = {3, 1, 2};
    CBarLayer *bars = CXYChart_addBarLayer(xy, data, 3, 0x4a90d9, nullptr, 0);
    ASSERT_NE(nullptr, bars);
    CLayer *layer = CBarLayer_toLayer(bars);
    EXPECT_EQ(layer, CXYChart_getLayer(xy, 0));
    EXPECT_EQ(bars, CBarLayer_fromLayer(layer));
    EXPECT_EQ(1, CLayer_getDataSetCount(layer));
    CDataSet *set = CLayer_getDataSet(layer, 0);
    EXPECT_EQ(2, CDataSet_getValue(set, 2));
    EXPECT_STREQ("", CDataSet_getDataName(set));
    CAxis *y = CXYChart_yAxis(xy);
    EXPECT_EQ(kLeft, CAxis_getAlignment(y));
    CMark *mark = CAxis_addMark(y, 2, 0xff0000, "two", nullptr, 8);
    CDrawObj_setZOrder(CBox_toDrawObj(CTextBox_toBox(CMark_toTextBox(mark))), 7);
    CPlotArea *plot =
        CXYChart_setPlotArea(xy, 30, 10, 150, 90, 0xffffff, -1, -1, 0xc0c0c0, -16777216);
    EXPECT_EQ(plot, CXYChart_getPlotArea(xy));
    EXPECT_EQ(180, CPlotArea_getRightX(plot));
    const char *bytes = nullptr;
    int len = 0;
    EXPECT_TRUE(CBaseChart_makeChart3(base, kPNG, &bytes, &len));
    const double *points = nullptr;
    CLineObj_getPoints(CMark_getLine(mark), &points, &len);
    ASSERT_EQ(4, len);
    EXPECT_EQ(30, points[0]);
    EXPECT_EQ(180, points[2]);
    CBaseChart_destroy(base);

    CPieChart *pie = CPieChart_create(100, 100, 0xffffff, -16777216, 0);
    EXPECT_EQ(pie, CPieChart_fromBaseChart(CPieChart_toBaseChart(pie)));
    EXPECT_EQ(nullptr, CXYChart_fromBaseChart(CPieChart_toBaseChart(pie)));
    CPieChart_setData(pie, data, 3, nullptr, 0);
    EXPECT_NE(nullptr, CPieChart_sector(pie, 2));
    EXPECT_EQ(nullptr, CPieChart_sector(pie, 3));
    CBaseChart_destroy(CPieChart_toBaseChart(pie));
}

namespace {

const double kLineX[] = {0, 1, 2, 3, 4, 5};
const double kLineA[] = {3, 7, kNoValue, 6, 9, 4};
const double kLineB[] = {1, 2, 4, 3, 5, 6};
const double kAreaData[] = {1, 1.5, 2, 1, 2.5, 2};

std::vector<double> pointsOf(CLineObj *line) {
    const double *data = nullptr;
    int len = 0;
    CLineObj_getPoints(line, &data, &len);
    return std::vector<double>(data, data + len);
}

std::vector<double> pointsOf(LineObj *line) {
    DoubleArray p = line->getPoints();
    return std::vector<double>(p.data, p.data + p.len);
}

}  // namespace

// A line chart made through the flat interface lays its lines out as the same
// chart made on the engine; each layer kind is found behind its layer handle,
// a scatter layer also as a line layer.
TEST(CApi, LineChartLaysOutAsTheEngineDoes) {
    CXYChart *xy = CXYChart_create(320, 200, 0xffffff, -16777216, 0);
    CXYChart_setPlotArea(xy, 40, 20, 250, 150, 0xffffff, -1, -1, 0xc0c0c0, -16777216);
    CLineLayer *lines = CXYChart_addLineLayer2(xy, kOverlay, 0);
    CLayer *linesLayer = CLineLayer_toLayer(lines);
    CLayer_setXData(linesLayer, kLineX, 6);
    CLayer_addDataSet(linesLayer, kLineA, 6, 0x4a90d9, "a");
    CLayer_addDataSet(linesLayer, kLineB, 6, 0xe4572e, "b");
    CLineLayer_setGapColor(lines, kSameAsMainColor, 1);
    CLineLayer_setFastLineMode(lines, false);
    CAreaLayer *area = CXYChart_addAreaLayer(xy, kAreaData, 6, 0xcde4f7, "area", 0);
    CAreaLayer_setGapColor(area, kTransparent);
    CScatterLayer *dots = CXYChart_addScatterLayer(xy, kLineX, 6, kLineB, 6, "dots", 7, 9, -1, -1);
    CLineLayer_setSymbolScale2(CScatterLayer_toLineLayer(dots), kLineA, 6, 0);

    EXPECT_EQ(3, CXYChart_getLayerCount(xy));
    EXPECT_EQ(lines, CLineLayer_fromLayer(CXYChart_getLayer(xy, 0)));
    EXPECT_EQ(nullptr, CScatterLayer_fromLayer(CXYChart_getLayer(xy, 0)));
    EXPECT_EQ(area, CAreaLayer_fromLayer(CXYChart_getLayer(xy, 1)));
    EXPECT_EQ(nullptr, CLineLayer_fromLayer(CXYChart_getLayer(xy, 1)));
    EXPECT_EQ(nullptr, CBarLayer_fromLayer(CXYChart_getLayer(xy, 1)));
    CLayer *dotsLayer = CXYChart_getLayer(xy, 2);
    EXPECT_EQ(dots, CScatterLayer_fromLayer(dotsLayer));
    EXPECT_EQ(CScatterLayer_toLineLayer(dots), CLineLayer_fromLayer(dotsLayer));
    EXPECT_EQ(dotsLayer, CScatterLayer_toLayer(dots));
    EXPECT_EQ(dotsLayer, CLineLayer_toLayer(CScatterLayer_toLineLayer(dots)));
    EXPECT_EQ(nullptr, CLineLayer_getLine(lines, 2));
    EXPECT_TRUE(pointsOf(CLineLayer_getLine(lines, 0)).empty());

    LayerKinds::install();
    XYChart *e = XYChart::create(320, 200, 0xffffff, -16777216, 0);
    e->setPlotArea(40, 20, 250, 150, 0xffffff, -1, -1, 0xc0c0c0, -16777216);
    LineLayer *engineLines = e->addLineLayer2(kOverlay, 0);
    engineLines->setXData(DoubleArray(kLineX, 6));
    engineLines->addDataSet(DoubleArray(kLineA, 6), 0x4a90d9, "a");
    engineLines->addDataSet(DoubleArray(kLineB, 6), 0xe4572e, "b");
    e->addAreaLayer(DoubleArray(kAreaData, 6), 0xcde4f7, "area", 0);
    e->addScatterLayer(DoubleArray(kLineX, 6), DoubleArray(kLineB, 6), "dots", 7, 9, -1, -1);
    e->makeChart();

    const char *png = nullptr;
    int len = 0;
    EXPECT_TRUE(CBaseChart_makeChart3(CXYChart_toBaseChart(xy), kPNG, &png, &len));
    for (int set : {0, 1}) {
        std::vector<double> points = pointsOf(CLineLayer_getLine(lines, set));
        // Five points with a value, each an x and a y.
        EXPECT_EQ(set == 0 ? 10u : 12u, points.size());
        EXPECT_EQ(pointsOf(engineLines->getLine(set)), points);
    }
    EXPECT_EQ(pointsOf(CLineLayer_getLine(lines, 1)),
              pointsOf(CLineLayer_getLine(CScatterLayer_toLineLayer(dots), 0)));
    e->destroy();
    CBaseChart_destroy(CXYChart_toBaseChart(xy));
}
