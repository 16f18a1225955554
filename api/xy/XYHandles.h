#pragma once

#include "api/chart/ChartHandles.h"
#include "api/xy/CXYTypes.h"

class AreaLayer;
class BarLayer;
class DataSet;
class Layer;
class LineLayer;
class PlotArea;
class ScatterLayer;
class XYChart;

// The handles of XY charts are the engine objects themselves.
namespace vistrel_api {

VISTREL_HANDLE_OF(XYChart)
VISTREL_HANDLE_OF(PlotArea)
VISTREL_HANDLE_OF(Layer)
VISTREL_HANDLE_OF(DataSet)
VISTREL_HANDLE_OF(BarLayer)
VISTREL_HANDLE_OF(LineLayer)
VISTREL_HANDLE_OF(ScatterLayer)
VISTREL_HANDLE_OF(AreaLayer)

}  // namespace vistrel_api
