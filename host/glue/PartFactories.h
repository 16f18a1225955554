#pragma once

#include "host/sdk/PluginTypes.h"

namespace abc {
class Axis;
class AreaLayer;
class BarLayer;
class DataSet;
class Layer;
class LineLayer;
class LineObj;
class Mark;
class PlotArea;
class ScatterLayer;
class Sector;
}  // namespace abc

// Host objects for the parts of XY and pie charts.  A null wrapper gives null;
// owner and parent are stored with a lock each.  The wrappers belong to their
// chart: the host objects made here never delete them.

// An axis that is not one of the chart's standing axes, such as an added one.
REALobject NewAxisXPG(abc::Axis *axis, REALobject owner, REALobject parent);
REALobject NewPlotAreaXPG(abc::PlotArea *plotArea, REALobject owner, REALobject parent);
// A layer of the host class of its kind, its wrapper in the block's base slot
// and in the slots of its kind and the kinds it derives from (a scatter layer's
// in the line layer's too); VSLayerXPG for a kind without a class.
REALobject NewLayerXPG(abc::Layer *layer, REALobject owner, REALobject parent);
REALobject NewBarLayerXPG(abc::BarLayer *layer, REALobject owner, REALobject parent);
REALobject NewLineLayerXPG(abc::LineLayer *layer, REALobject owner, REALobject parent);
REALobject NewScatterLayerXPG(abc::ScatterLayer *layer, REALobject owner, REALobject parent);
REALobject NewAreaLayerXPG(abc::AreaLayer *layer, REALobject owner, REALobject parent);
REALobject NewDataSetXPG(abc::DataSet *dataSet, REALobject owner, REALobject parent);
REALobject NewMarkXPG(abc::Mark *mark, REALobject owner, REALobject parent);
REALobject NewLineObjXPG(abc::LineObj *line, REALobject owner, REALobject parent);
REALobject NewSectorXPG(abc::Sector *sector, REALobject owner, REALobject parent);
