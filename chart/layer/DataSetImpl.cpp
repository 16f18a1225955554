#include "chart/layer/DataSetImpl.h"

#include <algorithm>
#include <cmath>

#include "chart/layer/LabelSettings.h"
#include "chart/layer/LayerImpl.h"
#include "chart/xy/XYChartImpl.h"
#include "text/box/TextBoxImpl2.h"

DataSetImpl::DataSetImpl(LayerImpl *layer, int dataSetNo, int groupNo, TextBoxImpl *layerLabelStyle)
    : layer(layer),
      dataSetNo(dataSetNo),
      groupNo(groupNo),
      dataColor(-1),
      edgeColor(-1),
      shadowColor(-1),
      shadowEdgeColor(-1),
      useYAxis(nullptr),
      symbolOffsetX(0),
      symbolOffsetY(0),
      lineWidth(-1),
      lowest(kNoValue),
      highest(kNoValue),
      labelStyle(new TextBoxImpl2(layer->getChart(), layerLabelStyle)),
      labelsAsked(false) {}

DataSetImpl::~DataSetImpl() {
    labelStyle->release();
}

void DataSetImpl::setData(DoubleArray values) {
    // One pass that copies, cleans and measures: a large series is read once.
    int n = values.data ? std::max(values.len, 0) : 0;
    data.resize(n);
    double low = HUGE_VAL, high = -HUGE_VAL;
    for (int i = 0; i < n; ++i) {
        double v = values.data[i];
        if (!std::isfinite(v)) v = kNoValue;
        data[i] = v;
        if (v == kNoValue) continue;
        low = std::min(low, v);
        high = std::max(high, v);
    }
    lowest = low <= high ? low : kNoValue;
    highest = low <= high ? high : kNoValue;
    layer->dataChanged();
}

double DataSetImpl::getPosition(int i) {
    return layer->positionOf(dataSetNo, i);
}

void DataSetImpl::setDataColor(int color, int edge, int shadow, int shadowEdge) {
    dataColor = color;
    edgeColor = edge;
    shadowColor = shadow;
    shadowEdgeColor = shadowEdge;
}

void DataSetImpl::setDataSymbol(int shape, int size, int fillColor, int edge, int width) {
    symbol.setShape(shape, size, fillColor, edge, width);
}

void DataSetImpl::setDataSymbol2(const char *imageFile) {
    symbol.setImage(imageFile);
}

void DataSetImpl::setDataSymbol3(DrawArea *custom) {
    symbol.setCustom(custom);
}

void DataSetImpl::setDataSymbol4(IntArray polygon, int size, int fillColor, int edge) {
    symbol.setPolygon(polygon, size, fillColor, edge);
}

void DataSetImpl::setSymbolOffset(int x, int y) {
    symbolOffsetX = x;
    symbolOffsetY = y;
}

const char *DataSetImpl::getLegendIcon() {
    return layer->getLegendIcon(dataSetNo);
}

void DataSetImpl::setDataLabelFormat(const char *formatString) {
    labelFormat = formatString ? formatString : "";
    labelsAsked = true;
}

TextBox *DataSetImpl::setDataLabelStyle(const char *font, double fontSize, int fontColor,
                                        double fontAngle) {
    LabelSettings::applyStyle(labelStyle, font, fontSize, fontColor, fontAngle);
    labelsAsked = true;
    return labelStyle;
}

void DataSetImpl::setUseYAxis2(bool useYAxis2) {
    useYAxis = useYAxis2 ? layer->getChart()->yAxis2() : nullptr;
}
