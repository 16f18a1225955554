// The plug-in layer: the classes the host is given, a drawing made through
// the flat interface that the host classes and C programs call, and charts
// built through the wrappers behind the host's chart classes.
#include <cstdio>

#include "api/CChart.h"
#include "api/CDrawArea.h"
#include "api/CTTFText.h"
#include "examples/gallery/Gallery.h"
#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/MultiChart.h"
#include "host/abc/chart/TextBox.h"
#include "host/abc/chart/VSLine.h"
#include "host/abc/xy/XYChart.h"
#include "host/classes/ClassReference.h"

static bool classListing(const std::string &path) {
    FILE *f = fopen(path.c_str(), "wb");
    if (!f) return false;
    std::string text = classReference();
    bool ok = fwrite(text.data(), 1, text.size(), f) == text.size();
    return fclose(f) == 0 && ok;
}

static bool flatCanvas(const std::string &path) {
    CDrawArea *d = CDrawArea_create();
    CDrawArea_setSize(d, 360, 200, 0xf7f7f2);
    const int *palette = nullptr;
    int colors = 0;
    CChart_defaultPalette(&palette, &colors);
    int glass = CChart_glassEffect(3, 8, 5);
    for (int i = 0; i < 5; ++i) {
        int x = 30 + 62 * i, height = 30 + 22 * i;
        CDrawArea_rect(d, x, 170 - height, x + 44, 170, palette[8 + i], palette[8 + i], glass);
    }
    int gold = CDrawArea_getARGBColor(d, CChart_goldColor(90));
    CDrawArea_rect(d, 20, 172, 340, 180, gold, gold, 0);
    CTTFText *title =
        CDrawArea_text(d, "<*font=arialbd.ttf,size=14*>Flat interface", "arial.ttf", 10);
    CTTFText_draw(title, 180, 8, 0x1f3a5f, 8);
    CTTFText_destroy(title);
    bool ok = CDrawArea_out(d, path.c_str());
    CDrawArea_destroy(d);
    return ok;
}

// A panel chart: a small multi-chart with a title band, a text and a legend.
static abc::MultiChart *panel(const char *name, int color) {
    const int kNoEdge = (int)0xFF000000;
    abc::MultiChart *p = abc::MultiChart::create(170, 120, 0xffffff, 0x8aa1c1, 0);
    p->setRoundedFrame(0xf4f6fa, 8, -1, -1, -1);
    abc::TextBox *title = p->addTitle(name, "", 10, 0xffffff, color, kNoEdge);
    title->setMargin(4);
    abc::TextBox *value =
        p->addText(85, 62, "<*size=20*>42<*size=9*> %", "", 8, color, 5, 0, false);
    value->setBackground(0xf4f6fa, color, 0);
    value->setRoundedCorners(6, -1, -1, -1);
    p->addLine(20, 95, 150, 95, p->dashLineColor(color, 0x0202), 1);
    return p;
}

static bool wrappedCharts(const std::string &path) {
    abc::MultiChart *outer = abc::MultiChart::create(400, 220, 0xf4f6fa, 0x1f3a5f, 0);
    outer->setRoundedFrame(0xffffff, 14, -1, -1, -1);
    outer->addTitle("Charts placed in a multi-chart", "", 12, 0x1f3a5f, (int)0xFF000000,
                    (int)0xFF000000);
    abc::MultiChart *left = panel("North", 0x4a90d9);
    abc::MultiChart *right = panel("South", 0xe4572e);
    outer->addChart(20, 40, left);
    outer->addChart(210, 40, right);
    abc::LegendBox *legend = outer->addLegend2(200, 168, 0, "", 9);
    legend->setAlignment(8);
    legend->addKey("North", 0x4a90d9, -1, nullptr);
    legend->addKey("South", 0xe4572e, -1, nullptr);
    bool ok = outer->makeChart(path.c_str());
    outer->releaseCharts();
    delete outer;
    delete left;
    delete right;
    return ok;
}

// Lines over stacked areas with scatter symbols sized per point, each layer
// made and set through its wrapper.
static bool wrappedLines(const std::string &path) {
    const int kNoEdge = (int)0xFF000000, kSameAsMain = (int)0xFFFF0007;
    const double kNoValue = 1.7e308;
    const double months[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const double visits[] = {42, 48, 45, 57, 61, kNoValue, 70, 66, 74, 81, 78, 88};
    const double orders[] = {20, 26, 24, 29, 35, 38, 41, 37, 44, 49, 47, 55};
    const double base[] = {8, 10, 9, 12, 13, 15, 14, 16, 18, 17, 19, 21};
    const double extra[] = {6, 7, 9, 8, 10, 9, 12, 11, 10, 13, 14, 12};
    const double sizes[] = {6, 9, 7, 12, 10, 14, 11, 9, 15, 13, 10, 16};
    abc::XYChart *c = abc::XYChart::create(480, 280, 0xffffff, kNoEdge, 0);
    c->addTitle("Lines, areas and symbols through the wrappers", "", 11, 0x1f3a5f, kNoEdge,
                kNoEdge);
    c->setPlotArea(50, 50, 400, 190, 0xf7f9fc, -1, kNoEdge, 0xdde3ea, kNoEdge);
    c->addLegend(50, 22, false, "", 8)->setBackground(kNoEdge, kNoEdge, 0);
    c->xAxis()->setLinearScale(1, 12, 1, 0);

    abc::AreaLayer *areas = c->addAreaLayer2(1, 0);
    areas->setXData({12, months});
    areas->addDataSet({12, base}, 0xb7d3ee, "Returning");
    areas->addDataSet({12, extra}, 0xd6e8c2, "New");
    areas->setBorderColor(kSameAsMain, 0);

    abc::LineLayer *lines = c->addLineLayer2(0, 0);
    lines->setXData({12, months});
    lines->addDataSet({12, visits}, 0x4a90d9, "Visits")->setDataSymbol(7, 7, -1, -1, 1);
    lines->addDataSet({12, orders}, 0xe4572e, "Orders");
    lines->setLineWidth(2);
    lines->setGapColor(kSameAsMain, 1);

    abc::ScatterLayer *dots =
        c->addScatterLayer({12, months}, {12, orders}, "Basket", 2, 9, 0xf2b134, 0x7a5a10);
    dots->setSymbolScale2({12, sizes}, 0);
    bool ok = c->makeChart(path.c_str());
    delete c;
    return ok;
}

VISTREL_GALLERY_SAMPLE("Plug-in", "The host classes with their declarations, as registered",
                       "host_classes.txt", classListing);
VISTREL_GALLERY_SAMPLE("Plug-in", "Bars drawn through the flat interface: palette, glass, gold",
                       "flat_interface.png", flatCanvas);
VISTREL_GALLERY_SAMPLE("Plug-in", "Charts in a multi-chart, built through the host's wrappers",
                       "host_multichart.png", wrappedCharts);
VISTREL_GALLERY_SAMPLE("Plug-in", "Lines, stacked areas and sized symbols through the wrappers",
                       "host_lines.png", wrappedLines);
