#include "host/abc/xy/DataSet.h"

#include "host/abc/xy/XYChart.h"

namespace abc {

Axis *DataSet::getUseYAxis() {
    return chart->axisOf(CDataSet_getUseYAxis(handle));
}

}  // namespace abc
