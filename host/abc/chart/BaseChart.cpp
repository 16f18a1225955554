#include "host/abc/chart/BaseChart.h"

#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/TextBox.h"
#include "host/abc/chart/VSLine.h"
#include "host/abc/chart/VSMLTable.h"

namespace abc {

namespace {

// A wrapper in the garbage of its maker; null for a null handle.
template <class W, class H>
W *keep(GarbageContainer *maker, H *handle) {
    return handle ? maker->addGarbage(new W(handle)) : nullptr;
}

}  // namespace

BaseChart::BaseChart(CBaseChart *handle) : BaseChart(handle, new int(1)) {}

BaseChart::BaseChart(CBaseChart *handle, int *refCount)
    : handle(handle), refCount(refCount), legend(nullptr) {}

BaseChart::BaseChart(const BaseChart &other)
    : GarbageContainer(), handle(other.handle), refCount(other.refCount), legend(nullptr) {
    if (refCount) ++*refCount;
}

BaseChart::~BaseChart() {
    if (refCount && (*refCount)-- == 1) {
        CBaseChart_destroy(handle);
        delete refCount;
    }
}

BaseChart *BaseChart::borrow(CBaseChart *handle) {
    return handle ? new BaseChart(handle, nullptr) : nullptr;
}

TextBox *BaseChart::addTitle2(int alignment, const char *text, const char *font, double fontSize,
                              int fontColor, int bgColor, int edgeColor) {
    return keep<TextBox>(this, CBaseChart_addTitle2(handle, alignment, text, font, fontSize,
                                                    fontColor, bgColor, edgeColor));
}

TextBox *BaseChart::addTitle(const char *text, const char *font, double fontSize, int fontColor,
                             int bgColor, int edgeColor) {
    return keep<TextBox>(
        this, CBaseChart_addTitle(handle, text, font, fontSize, fontColor, bgColor, edgeColor));
}

LegendBox *BaseChart::addLegend(int x, int y, bool vertical, const char *font, double fontSize) {
    return legendOf(CBaseChart_addLegend(handle, x, y, vertical, font, fontSize));
}

LegendBox *BaseChart::addLegend2(int x, int y, int noOfCols, const char *font, double fontSize) {
    return legendOf(CBaseChart_addLegend2(handle, x, y, noOfCols, font, fontSize));
}

LegendBox *BaseChart::getLegend() {
    return legendOf(CBaseChart_getLegend(handle));
}

LegendBox *BaseChart::layoutLegend() {
    return legendOf(CBaseChart_layoutLegend(handle));
}

LegendBox *BaseChart::legendOf(CLegendBox *h) {
    if (!h) return nullptr;
    if (!legend || legend->getHandle() != h) legend = keep<LegendBox>(this, h);
    return legend;
}

TextBox *BaseChart::addText(int x, int y, const char *text, const char *font, double fontSize,
                            int fontColor, int alignment, double angle, bool vertical) {
    return keep<TextBox>(this, CBaseChart_addText(handle, x, y, text, font, fontSize, fontColor,
                                                  alignment, angle, vertical));
}

VSLine *BaseChart::addLine(int x1, int y1, int x2, int y2, int color, int lineWidth) {
    return keep<VSLine>(this, CBaseChart_addLine(handle, x1, y1, x2, y2, color, lineWidth));
}

VSMLTable *BaseChart::addTable(int x, int y, int alignment, int cols, int rows) {
    return keep<VSMLTable>(this, CBaseChart_addTable(handle, x, y, alignment, cols, rows));
}

}  // namespace abc
