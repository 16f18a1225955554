#include "host/abc/xy/Layer.h"

#include "host/abc/xy/XYChart.h"

namespace abc {

DataSet *Layer::addDataSet(DoubleArray data, int color, const char *name) {
    return chart->dataSetOf(CLayer_addDataSet(handle, data.data, data.len, color, name));
}

DataSet *Layer::getDataSet(int dataSet) {
    return chart->dataSetOf(CLayer_getDataSet(handle, dataSet));
}

DataSet *Layer::getDataSetByZ(int z) {
    return chart->dataSetOf(CLayer_getDataSetByZ(handle, z));
}

}  // namespace abc
