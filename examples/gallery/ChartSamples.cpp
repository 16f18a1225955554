// Charts without content yet: the frame every chart kind shares (background,
// rounded and thick frame, drop shadow, titles, free texts and lines, a table,
// the legend), data symbols and legend layouts.
#include "chart/base/BaseChart.h"
#include "chart/base/Line.h"
#include "chart/base/MultiChart.h"
#include "chart/legend/LegendBox.h"
#include "chart/symbol/DataSymbol.h"
#include "chart/symbol/ShapeWords.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "examples/gallery/Gallery.h"
#include "foundation/Constants.h"
#include "text/box/TextBox.h"
#include "text/box/VSMLTable.h"

namespace {

const int kBlue = 0x4a90d9, kRed = 0xe4572e, kGreen = 0x76b041, kYellow = 0xffc914;
const int kNavy = 0x1f3a5f;

BaseChart *frameChart() {
    MultiChart *c = MultiChart::create(560, 380, 0xf4f6fa, kNavy, 0);
    c->setRoundedFrame(0xffffff, 24, -1, -1, -1);
    c->setThickFrame(6, 0xc9d6e8, kNavy, 0x8aa1c1);
    c->setDropShadow(0xaaaaaa, 6, 0x7fffffff, 6);
    c->addTitle2(kTopCenter, "<*size=15*>Quarterly review", "", 12, kNavy, 0xdde7f3, kTransparent);
    c->addTitle2(kBottomRight, "Source: the sample's own numbers", "italic", 8, 0x555555,
                 kTransparent, kTransparent);
    c->addTitle2(kLeft, "Revenue (k$)", "", 10, kBlue, kTransparent, kTransparent);
    c->addTitle2(kRight, "Margin (%)", "", 10, kRed, kTransparent, kTransparent);
    c->addText(60, 90,
               "Free text with <*font,color=E4572E*>mark-up<*/font*> and a symbol "
               "<*img=@star(5),size=11,color=FFC914,edgecolor=806000*>",
               "", 10, kTextColor, kTopLeft, 0, false);
    TextBox *note =
        c->addText(330, 200, "Boxed note\nat 15 degrees", "", 9, kNavy, kCenter, 15, false);
    note->setBackground(0xfff3c4, 0xc9a227, 0);
    note->setRoundedCorners(6, -1, -1, -1);
    c->addLine(60, 250, 500, 250, c->dashLineColor(kNavy, 0x0505), 1);
    c->addLine(60, 270, 500, 300, kGreen, 3);
    VSMLTable *table = c->addTable(60, 140, kTopLeft, 3, 3);
    table->getStyle()->setFontSize(9, 0);
    table->getColStyle(1)->setAlignment(kRight);
    const char *cells[3][3] = {
        {"Region", "Q1", "Q2"}, {"North", "1,204", "1,377"}, {"South", "986", "1,102"}};
    for (int r = 0; r < 3; ++r)
        for (int col = 0; col < 3; ++col) table->setText(col, r, cells[r][col]);
    table->getCell(0, 0)->setBackground(0xdde7f3, kLineColor, 0);
    LegendBox *legend = c->addLegend2(330, 90, 2, "", 9);
    legend->setBackground(0xffffff, 0x8aa1c1, 0);
    legend->addKey("Revenue", kBlue, -1, nullptr);
    legend->addKey("Cost", kRed, -1, nullptr);
    legend->addKey("Margin", kGreen, 2, nullptr);
    legend->addKey("Forecast", kYellow, -1, nullptr);
    legend->addText("(estimates)");
    legend->setLineStyleKey(true);
    return c;
}

bool renderFrameChart(const std::string &path) {
    BaseChart *c = frameChart();
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    return ok;
}

// Every shape code at two sizes, merged from its prepared canvas.
bool symbolShapes(const std::string &path) {
    MultiChart *c = MultiChart::create(560, 170, 0xffffff, kTransparent, 0);
    c->addTitle("Data symbols", "", 11, kNavy, kTransparent, kTransparent);
    DrawArea *d = c->makeChart();
    const int shapes[] = {kSquareShape,           kDiamondShape,
                          kTriangleShape,         kRightTriangleShape,
                          kLeftTriangleShape,     kInvertedTriangleShape,
                          kCircleShape,           kCircleShapeNoShading,
                          kCrossSymbol,           kCross2Symbol,
                          Chart::CrossShape(0.3), Chart::Cross2Shape(0.3),
                          Chart::PolygonShape(6), Chart::Polygon2Shape(5),
                          Chart::StarShape(5),    Chart::StarShape(8),
                          kGlassSphereShape,      kGlassSphere2Shape,
                          kSolidSphereShape,      Chart::ArrowShape(45, 1, 0.5, 0.5),
                          kVistrel_CustomSymbol};
    const int colors[] = {kBlue, kRed, kGreen, kYellow, 0x9966ff, 0x33aaaa};
    const int custom[] = {0, 0, 10, 4, 20, 0, 16, 10, 20, 20, 10, 16, 0, 20, 4, 10};
    int n = (int)(sizeof(shapes) / sizeof(shapes[0]));
    for (int size = 0; size < 2; ++size)
        for (int i = 0; i < n; ++i) {
            DataSymbol s;
            int pixels = size ? 21 : 11;
            if (shapes[i] == kVistrel_CustomSymbol)
                s.setPolygon(IntArray(custom, 16), pixels, -1, -1);
            else
                s.setShape(shapes[i], pixels, -1, -1, 1);
            s.layoutLegend(d);
            s.layoutChart(d, colors[i % 6], 0x333333);
            s.paint(d, 20 + 25 * i, 60 + 50 * size, s.getWidth(), s.getHeight());
        }
    bool ok = d->out(path.c_str());
    c->destroy();
    return ok;
}

// Flowing keys, a grid with a given width, and a reversed column.
bool legendLayouts(const std::string &path) {
    MultiChart *c = MultiChart::create(560, 250, 0xffffff, kTransparent, 0);
    const char *names[] = {"Alpha", "Beta", "Gamma ray", "Delta", "Epsilon",
                           "Zeta",  "Eta",  "Theta",     "Iota",  "Kappa"};
    const int colors[] = {kBlue, kRed, kGreen, kYellow, 0x9966ff};
    LegendBox *flow = c->addLegend(10, 10, false, "", 10);
    for (int i = 0; i < 10; ++i) flow->addKey(names[i], colors[i % 5], -1, nullptr);
    flow->setKeyBorder(0x333333, 0);
    // The chart holds one legend; the others are drawn as stand-alone samples
    // through multi-charts of their own.
    MultiChart *grid = MultiChart::create(300, 150, 0xf4f6fa, kTransparent, 0);
    LegendBox *g = grid->addLegend2(10, 10, 2, "", 9);
    g->setWidth(280);
    g->setBackground(0xffffff, kNavy, Chart::flatBorder(2));
    for (int i = 0; i < 5; ++i) g->addKey(names[i], colors[i], i % 2 ? 2 : -1, nullptr);
    g->setLineStyleKey(true);
    g->setText("<*font=bold*>{dataSetName}<*/font*> series");
    MultiChart *column = MultiChart::create(200, 150, 0xf4f6fa, kTransparent, 0);
    LegendBox *col = column->addLegend(10, 10, true, "", 9);
    col->setReverse(true);
    col->setKeySize(16, 8, 4);
    for (int i = 0; i < 5; ++i) col->addKey(names[i], colors[i], -1, nullptr);
    col->addText("reversed, wide keys");
    c->addChart(10, 90, grid);
    c->addChart(340, 90, column);
    bool ok = c->makeChart(path.c_str());
    c->destroy();
    grid->destroy();
    column->destroy();
    return ok;
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Chart frame",
                       "Background, rounded thick frame, drop shadow, titles on four sides, free "
                       "texts and lines, a table and a legend with user keys (PNG)",
                       "chart_frame.png", renderFrameChart);
VISTREL_GALLERY_SAMPLE("Chart frame", "The same chart as JPEG", "chart_frame.jpg",
                       renderFrameChart);
VISTREL_GALLERY_SAMPLE("Chart frame", "The same chart as GIF", "chart_frame.gif", renderFrameChart);
VISTREL_GALLERY_SAMPLE("Chart frame", "The same chart as BMP", "chart_frame.bmp", renderFrameChart);
VISTREL_GALLERY_SAMPLE("Chart frame", "The same chart as a listing of its drawing",
                       "chart_frame.agf", renderFrameChart);
VISTREL_GALLERY_SAMPLE("Chart frame", "Data symbols: every shape code at 11 and 21 pixels",
                       "chart_symbols.png", symbolShapes);
VISTREL_GALLERY_SAMPLE("Chart frame",
                       "Legends: keys flowing in rows, a grid of two columns with line keys, "
                       "a reversed column",
                       "chart_legends.png", legendLayouts);
