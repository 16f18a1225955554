#pragma once

#include "host/glue/Blocks.h"
#include "host/sdk/PluginTypes.h"

namespace abc {
class BaseChart;
class DrawArea;
class DrawObj;
class LegendBox;
class TextBox;
class VSLine;
class VSMLTable;
}  // namespace abc

// Host objects for the wrappers of charts and of the parts they hand out.  A
// null wrapper gives null; owner and parent are stored with a lock each.  The
// wrappers belong to their chart: the host objects made here never delete them.

// The block's wrapper slots for a chart: Handle, and the slot of its family,
// found by the wrapper's kind.
void installChart(ChartBlock &block, abc::BaseChart *chart);
// The host class of a chart wrapper: its family's, or VSBaseChartXPG.
const char *chartClassName(abc::BaseChart *chart);
// A host chart of the wrapper's class.
REALobject NewBaseChartXPG(abc::BaseChart *chart, REALobject owner, REALobject parent);

// A drawing object of the class (VSTextBoxXPG, VSMarkXPG, ...).
REALobject newDrawObjXPG(const char *className, abc::DrawObj *obj, REALobject owner,
                         REALobject parent);
REALobject NewTextBoxXPG(abc::TextBox *box, REALobject owner, REALobject parent);
REALobject NewLegendBoxXPG(abc::LegendBox *legend, REALobject owner, REALobject parent);
REALobject NewLineXPG(abc::VSLine *line, REALobject owner, REALobject parent);
REALobject NewMLTableXPG(abc::VSMLTable *table, REALobject owner, REALobject parent);
// A chart's canvas, borrowed: the host object deletes nothing.
REALobject NewChartCanvasXPG(abc::DrawArea *canvas, REALobject owner, REALobject parent);
