#include "chart/layer/PointPixels.h"

#include "chart/layer/DataSetImpl.h"
#include "chart/xy/XYChartImpl.h"

namespace {

bool isStacked(const LayerImpl &layer) {
    return layer.getCombineMethod() == kStack || layer.getCombineMethod() == kPercentage;
}

const AxisImpl *valueAxis(const LayerImpl &layer, int dataSet) {
    DataSetImpl *set = layer.dataSetAt(dataSet);
    if (!isStacked(layer) || !set) return layer.axisOf(dataSet);
    return layer.axisOf(layer.getStacks().groupBegin(set->getGroupNo()));
}

}  // namespace

PointPixels::PointPixels(const LayerImpl &layer, int dataSet, bool floor)
    : layer(layer),
      dataSet(dataSet),
      floor(floor),
      ownValues(nullptr),
      count(0),
      direct(false),
      positions(layer.getXValues().data()),
      positionCount((int)layer.getXValues().size()),
      firstX(0),
      stepX(0),
      xAxis(layer.getChart()->getPlotAreaImpl(), layer.xAxisImpl()),
      yAxis(layer.getChart()->getPlotAreaImpl(), valueAxis(layer, dataSet)),
      shiftX(0),
      shiftY(0) {
    if (DataSetImpl *set = layer.dataSetAt(dataSet)) {
        ownValues = set->values().data();
        count = set->size();
    }
    if (positionCount == 0) {
        positions = nullptr;
        spreadEvenly();
    }
    direct = !floor && !isStacked(layer) && !layer.isAligned() && (positions || stepX != 0);
    // The slice of a kDepth set lies back, right and up on the canvas.
    int shift = layer.sliceShift(dataSet);
    shiftX = layer.isSwapped() ? -shift : shift;
    shiftY = shiftX;
}

// Positions of a range or of the index rise by the same step from point to
// point, and so do their pixels on a linear axis.
void PointPixels::spreadEvenly() {
    int n = layer.getDataCount();
    double first = layer.xValue(0), last = layer.xValue(n - 1);
    if (!xAxis.isAffine() || n < 2 || first == kNoValue || last == kNoValue) return;
    firstX = xAxis.at(first);
    stepX = (xAxis.at(last) - firstX) / (n - 1);
    if (!std::isfinite(stepX)) stepX = 0;
}

bool PointPixels::anyPixel(int i, double *x, double *y) const {
    double v = valueAt(i);
    if (v == kNoValue) return false;
    double position = layer.xValue(i);
    if (position == kNoValue) return false;
    *x = held((layer.isAligned() ? layer.pointXPixel(i) : xAxis.at(position)) + shiftX);
    *y = held(yAxis.at(v) - shiftY);
    return !std::isnan(*x) && !std::isnan(*y);
}

double PointPixels::valueAt(int i) const {
    if (floor) return layer.floorOf(dataSet, i);
    if (isStacked(layer)) return layer.positionOf(dataSet, i);
    return i >= 0 && i < count ? ownValues[i] : kNoValue;
}
