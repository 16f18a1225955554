#include "host/glue/ChartFactories.h"

#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/MultiChart.h"
#include "host/abc/chart/TextBox.h"
#include "host/abc/chart/VSLine.h"
#include "host/abc/chart/VSMLTable.h"
#include "host/abc/pie/PieChart.h"
#include "host/abc/xy/XYChart.h"
#include "host/glue/ClassRegistry.h"
#include "host/glue/Factories.h"
#include "host/glue/WrapperSlots.h"

namespace {

// A chart family: its host class and the slot of its wrapper in the block.
struct ChartFamily {
    const char *className;
    // Stores the wrapper in the family's slot; false when it is of another kind.
    bool (*install)(ChartBlock &block, abc::BaseChart *chart);
};

// Tested in this order: a family derived from another comes before it.
const ChartFamily kFamilies[] = {
    {"VSXYChartXPG", &installAs<&ChartBlock::xyChart, abc::BaseChart>},
    {"VSPieChartXPG", &installAs<&ChartBlock::pieChart, abc::BaseChart>},
    {"VSMultiChartXPG", &installAs<&ChartBlock::multiChart, abc::BaseChart>},
};

const ChartFamily *familyOf(abc::BaseChart *chart, ChartBlock *block) {
    ChartBlock scratch = {};
    for (const ChartFamily &f : kFamilies)
        if (f.install(block ? *block : scratch, chart)) return &f;
    return nullptr;
}

}  // namespace

REALobject newDrawObjXPG(const char *className, abc::DrawObj *obj, REALobject owner,
                         REALobject parent) {
    if (!obj) return nullptr;
    REALobject host = newHostObject(className, ClassId::DrawObj, owner, parent);
    if (host) blockOf<HandleBlock<abc::DrawObj>>(host, ClassId::DrawObj)->handle = obj;
    return host;
}

void installChart(ChartBlock &block, abc::BaseChart *chart) {
    block.handle = chart;
    if (chart) familyOf(chart, &block);
}

const char *chartClassName(abc::BaseChart *chart) {
    const ChartFamily *f = familyOf(chart, nullptr);
    return f ? f->className : "VSBaseChartXPG";
}

REALobject NewBaseChartXPG(abc::BaseChart *chart, REALobject owner, REALobject parent) {
    if (!chart) return nullptr;
    REALobject obj = newHostObject(chartClassName(chart), ClassId::BaseChart, owner, parent);
    if (!obj) return nullptr;
    auto *block = blockOf<ChartBlock>(obj, ClassId::BaseChart);
    // A host that runs the Constructor for a new instance made a chart of its own.
    delete block->handle;
    installChart(*block, chart);
    return obj;
}

REALobject NewTextBoxXPG(abc::TextBox *box, REALobject owner, REALobject parent) {
    return newDrawObjXPG("VSTextBoxXPG", box, owner, parent);
}

REALobject NewLegendBoxXPG(abc::LegendBox *legend, REALobject owner, REALobject parent) {
    return newDrawObjXPG("VSLegendBoxXPG", legend, owner, parent);
}

REALobject NewLineXPG(abc::VSLine *line, REALobject owner, REALobject parent) {
    return newDrawObjXPG("VSLineXPG", line, owner, parent);
}

REALobject NewMLTableXPG(abc::VSMLTable *table, REALobject owner, REALobject parent) {
    return newDrawObjXPG("VSMLTableXPG", table, owner, parent);
}

REALobject NewChartCanvasXPG(abc::DrawArea *canvas, REALobject owner, REALobject parent) {
    return NewDrawAreaXPG(canvas, owner, parent, false);
}
