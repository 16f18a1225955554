#include "api/xy/CDataSet.h"

#include "api/xy/XYHandles.h"
#include "chart/axis/Axis.h"
#include "chart/layer/DataSet.h"
#include "text/box/TextBox.h"

using vistrel_api::D;
using vistrel_api::E;
using vistrel_api::H;

void CDataSet_setData(CDataSet *d, const double *data, int len) {
    if (d) E(d)->setData(DoubleArray(data, len));
}
double CDataSet_getValue(CDataSet *d, int i) {
    return d ? E(d)->getValue(i) : 0;
}
double CDataSet_getPosition(CDataSet *d, int i) {
    return d ? E(d)->getPosition(i) : 0;
}
void CDataSet_setDataName(CDataSet *d, const char *name) {
    if (d) E(d)->setDataName(name ? name : "");
}
const char *CDataSet_getDataName(CDataSet *d) {
    return d ? E(d)->getDataName() : nullptr;
}
void CDataSet_setDataColor(CDataSet *d, int dataColor, int edgeColor, int shadowColor,
                           int shadowEdgeColor) {
    if (d) E(d)->setDataColor(dataColor, edgeColor, shadowColor, shadowEdgeColor);
}
int CDataSet_getDataColor(CDataSet *d) {
    return d ? E(d)->getDataColor() : 0;
}
void CDataSet_setDataSymbol(CDataSet *d, int symbol, int size, int fillColor, int edgeColor,
                            int lineWidth) {
    if (d) E(d)->setDataSymbol(symbol, size, fillColor, edgeColor, lineWidth);
}
void CDataSet_setDataSymbol2(CDataSet *d, const char *imageFile) {
    if (d) E(d)->setDataSymbol2(imageFile ? imageFile : "");
}
void CDataSet_setDataSymbol3(CDataSet *d, CDrawArea *symbol) {
    if (d) E(d)->setDataSymbol3(D(symbol));
}
void CDataSet_setDataSymbol4(CDataSet *d, const int *polygon, int len, int size, int fillColor,
                             int edgeColor) {
    if (d) E(d)->setDataSymbol4(IntArray(polygon, len), size, fillColor, edgeColor);
}
void CDataSet_setSymbolOffset(CDataSet *d, int offsetX, int offsetY) {
    if (d) E(d)->setSymbolOffset(offsetX, offsetY);
}
const char *CDataSet_getLegendIcon(CDataSet *d) {
    return d ? E(d)->getLegendIcon() : nullptr;
}
void CDataSet_setLineWidth(CDataSet *d, int width) {
    if (d) E(d)->setLineWidth(width);
}
void CDataSet_setDataLabelFormat(CDataSet *d, const char *formatString) {
    if (d) E(d)->setDataLabelFormat(formatString ? formatString : "");
}
CTextBox *CDataSet_setDataLabelStyle(CDataSet *d, const char *font, double fontSize, int fontColor,
                                     double fontAngle) {
    return d ? H(E(d)->setDataLabelStyle(font ? font : "", fontSize, fontColor, fontAngle))
             : nullptr;
}
void CDataSet_setUseYAxis2(CDataSet *d, bool useYAxis2) {
    if (d) E(d)->setUseYAxis2(useYAxis2);
}
void CDataSet_setUseYAxis(CDataSet *d, CAxis *axis) {
    if (d) E(d)->setUseYAxis(E(axis));
}
CAxis *CDataSet_getUseYAxis(CDataSet *d) {
    return d ? H(E(d)->getUseYAxis()) : nullptr;
}
