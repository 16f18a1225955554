#pragma once

#include "api/chart/ChartHandles.h"
#include "api/pie/CPieTypes.h"

class PieChart;
class Sector;

// The handles of pie charts are the engine objects themselves.
namespace vistrel_api {

VISTREL_HANDLE_OF(PieChart)
VISTREL_HANDLE_OF(Sector)

}  // namespace vistrel_api
