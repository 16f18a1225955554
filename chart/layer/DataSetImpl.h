#pragma once

#include <string>
#include <vector>

#include "chart/layer/DataSet.h"
#include "chart/symbol/DataSymbol.h"
#include "foundation/Constants.h"

class LayerImpl;
class TextBoxImpl;
class TextBoxImpl2;

// A series of a layer.  Its label style reads what it does not set from the
// layer's; its colours of -1 are settled by the layer at legend layout.
class DataSetImpl : public DataSet {
public:
    DataSetImpl(LayerImpl *layer, int dataSetNo, int groupNo, TextBoxImpl *layerLabelStyle);
    ~DataSetImpl() override;
    DataSetImpl(const DataSetImpl &) = delete;
    DataSetImpl &operator=(const DataSetImpl &) = delete;

    void setData(DoubleArray data) override;
    double getValue(int i) override { return valueAt(i); }
    double getPosition(int i) override;
    void setDataName(const char *name) override { dataName = name ? name : ""; }
    const char *getDataName() override { return dataName.c_str(); }
    void setDataColor(int dataColor, int edgeColor, int shadowColor, int shadowEdgeColor) override;
    int getDataColor() override { return dataColor; }
    void setDataSymbol(int symbol, int size, int fillColor, int edgeColor, int lineWidth) override;
    void setDataSymbol2(const char *imageFile) override;
    void setDataSymbol3(DrawArea *symbol) override;
    void setDataSymbol4(IntArray polygon, int size, int fillColor, int edgeColor) override;
    void setSymbolOffset(int offsetX, int offsetY) override;
    const char *getLegendIcon() override;
    void setLineWidth(int width) override { lineWidth = width; }
    void setDataLabelFormat(const char *formatString) override;
    TextBox *setDataLabelStyle(const char *font, double fontSize, int fontColor,
                               double fontAngle) override;
    void setUseYAxis2(bool useYAxis2) override;
    void setUseYAxis(Axis *axis) override { useYAxis = axis; }
    Axis *getUseYAxis() override { return useYAxis; }

    // What the layer reads.
    double valueAt(int i) const { return i >= 0 && i < (int)data.size() ? data[i] : kNoValue; }
    int size() const { return (int)data.size(); }
    const std::vector<double> &values() const { return data; }
    // The smallest and largest value; kNoValue for a set of gaps only.
    double getLowest() const { return lowest; }
    double getHighest() const { return highest; }
    int getDataSetNo() const { return dataSetNo; }
    int getGroupNo() const { return groupNo; }
    const std::string &getName() const { return dataName; }
    int getEdgeColor() const { return edgeColor; }
    int getShadowColor() const { return shadowColor; }
    int getShadowEdgeColor() const { return shadowEdgeColor; }
    int getLineWidth() const { return lineWidth; }
    DataSymbol &getSymbol() { return symbol; }
    int getSymbolOffsetX() const { return symbolOffsetX; }
    int getSymbolOffsetY() const { return symbolOffsetY; }
    // The layer gives an unset colour its turn of the palette.
    void settleColor(int color) { dataColor = color; }
    // Labels: shown when a format or a style was set here.
    bool hasLabels() const { return labelsAsked; }
    const std::string &getLabelFormat() const { return labelFormat; }
    TextBoxImpl2 *getLabelStyle() const { return labelStyle; }

private:
    LayerImpl *layer;
    int dataSetNo;
    int groupNo;
    std::vector<double> data;
    std::string dataName;
    int dataColor;
    int edgeColor;
    int shadowColor;
    int shadowEdgeColor;
    Axis *useYAxis;
    DataSymbol symbol;
    int symbolOffsetX;
    int symbolOffsetY;
    int lineWidth;
    double lowest;
    double highest;
    std::string labelFormat;
    TextBoxImpl2 *labelStyle;
    bool labelsAsked;
};
