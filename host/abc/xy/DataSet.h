#pragma once

#include "api/xy/CDataSet.h"
#include "host/abc/DrawArea.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/Views.h"
#include "host/abc/chart/Axis.h"
#include "host/abc/chart/TextBox.h"

namespace abc {

class XYChart;

// One series of a layer.  The wrapper belongs to its chart's wrapper, which
// it asks for the wrappers of axes; the wrapper of its label style to it.
class DataSet : public GarbageContainer {
public:
    DataSet(CDataSet *handle, XYChart *chart) : handle(handle), chart(chart) {}

    CDataSet *getHandle() const { return handle; }
    void setData(DoubleArray data) { CDataSet_setData(handle, data.data, data.len); }
    double getValue(int i) { return CDataSet_getValue(handle, i); }
    double getPosition(int i) { return CDataSet_getPosition(handle, i); }
    void setDataName(const char *name) { CDataSet_setDataName(handle, name); }
    const char *getDataName() { return CDataSet_getDataName(handle); }
    void setDataColor(int dataColor, int edgeColor, int shadowColor, int shadowEdgeColor) {
        CDataSet_setDataColor(handle, dataColor, edgeColor, shadowColor, shadowEdgeColor);
    }
    int getDataColor() { return CDataSet_getDataColor(handle); }
    void setDataSymbol(int symbol, int size, int fillColor, int edgeColor, int lineWidth) {
        CDataSet_setDataSymbol(handle, symbol, size, fillColor, edgeColor, lineWidth);
    }
    void setDataSymbol2(const char *imageFile) { CDataSet_setDataSymbol2(handle, imageFile); }
    // The canvas is borrowed: its owner keeps it while the chart may draw.
    void setDataSymbol3(DrawArea *symbol) {
        CDataSet_setDataSymbol3(handle, DrawArea::handleOf(symbol));
    }
    void setDataSymbol4(IntArray polygon, int size, int fillColor, int edgeColor) {
        CDataSet_setDataSymbol4(handle, polygon.data, polygon.len, size, fillColor, edgeColor);
    }
    void setSymbolOffset(int offsetX, int offsetY) {
        CDataSet_setSymbolOffset(handle, offsetX, offsetY);
    }
    const char *getLegendIcon() { return CDataSet_getLegendIcon(handle); }
    void setLineWidth(int width) { CDataSet_setLineWidth(handle, width); }
    void setDataLabelFormat(const char *formatString) {
        CDataSet_setDataLabelFormat(handle, formatString);
    }
    TextBox *setDataLabelStyle(const char *font, double fontSize, int fontColor, double fontAngle) {
        return keepOnce(CDataSet_setDataLabelStyle(handle, font, fontSize, fontColor, fontAngle),
                        &TextBox::getTextBoxHandle);
    }
    void setUseYAxis2(bool useYAxis2) { CDataSet_setUseYAxis2(handle, useYAxis2); }
    void setUseYAxis(Axis *axis) { CDataSet_setUseYAxis(handle, Axis::handleOf(axis)); }
    Axis *getUseYAxis();

private:
    CDataSet *handle;
    XYChart *chart;
};

}  // namespace abc
