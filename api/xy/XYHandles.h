#pragma once

#include "api/chart/ChartHandles.h"
#include "api/xy/CXYTypes.h"

class BarLayer;
class DataSet;
class Layer;
class PlotArea;
class XYChart;

// The handles of XY charts are the engine objects themselves.
namespace vistrel_api {

VISTREL_HANDLE_OF(XYChart)
VISTREL_HANDLE_OF(PlotArea)
VISTREL_HANDLE_OF(Layer)
VISTREL_HANDLE_OF(DataSet)
VISTREL_HANDLE_OF(BarLayer)

}  // namespace vistrel_api
