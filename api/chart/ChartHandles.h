#pragma once

#include "api/Handles.h"
#include "api/chart/CChartTypes.h"

class Axis;
class BaseChart;
class Box;
class DrawObj;
class LegendBox;
class Line;
class LineObj;
class Mark;
class MultiChart;
class TextBox;
class VSMLTable;

// The handles of the chart core are the engine objects themselves.
namespace vistrel_api {

VISTREL_HANDLE_OF(BaseChart)
VISTREL_HANDLE_OF(MultiChart)
VISTREL_HANDLE_OF(DrawObj)
VISTREL_HANDLE_OF(Box)
VISTREL_HANDLE_OF(TextBox)
VISTREL_HANDLE_OF(Line)
VISTREL_HANDLE_OF(LegendBox)
VISTREL_HANDLE_OF(VSMLTable)
VISTREL_HANDLE_OF(Axis)
VISTREL_HANDLE_OF(Mark)
VISTREL_HANDLE_OF(LineObj)

}  // namespace vistrel_api
