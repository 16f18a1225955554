#pragma once

#include "api/Handles.h"
#include "api/chart/CChartTypes.h"

class Axis;
class BaseChart;
class Box;
class DrawObj;
class LegendBox;
class Line;
class MultiChart;
class TextBox;
class VSMLTable;

// The handles of the chart core are the engine objects themselves; a handle
// of a derived class becomes its base's through the conversion functions,
// since the bases are virtual.
namespace vistrel_api {

#define VISTREL_CHART_HANDLE(Engine)             \
    inline Engine *E(C##Engine *h) {             \
        return reinterpret_cast<Engine *>(h);    \
    }                                            \
    inline C##Engine *H(Engine *e) {             \
        return reinterpret_cast<C##Engine *>(e); \
    }

VISTREL_CHART_HANDLE(BaseChart)
VISTREL_CHART_HANDLE(MultiChart)
VISTREL_CHART_HANDLE(DrawObj)
VISTREL_CHART_HANDLE(Box)
VISTREL_CHART_HANDLE(TextBox)
VISTREL_CHART_HANDLE(Line)
VISTREL_CHART_HANDLE(LegendBox)
VISTREL_CHART_HANDLE(VSMLTable)
VISTREL_CHART_HANDLE(Axis)

#undef VISTREL_CHART_HANDLE

}  // namespace vistrel_api
