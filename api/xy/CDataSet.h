#pragma once

/* One series of a layer: its values (kNoValue for a gap), name, colours,
   symbol and labels.  Data sets belong to their layer's chart. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

void CDataSet_setData(CDataSet *d, const double *data, int len);
/* kNoValue out of range. */
double CDataSet_getValue(CDataSet *d, int i);
double CDataSet_getPosition(CDataSet *d, int i);
void CDataSet_setDataName(CDataSet *d, const char *name);
/* Valid until the name changes. */
const char *CDataSet_getDataName(CDataSet *d);
/* -1 leaves a colour to the layer. */
void CDataSet_setDataColor(CDataSet *d, int dataColor, int edgeColor, int shadowColor,
                           int shadowEdgeColor);
int CDataSet_getDataColor(CDataSet *d);
/* A shape (kSquareShape, ...), a picture file, a canvas of the caller's that
   it borrows, or polygon points as x, y pairs. */
void CDataSet_setDataSymbol(CDataSet *d, int symbol, int size, int fillColor, int edgeColor,
                            int lineWidth);
void CDataSet_setDataSymbol2(CDataSet *d, const char *imageFile);
void CDataSet_setDataSymbol3(CDataSet *d, CDrawArea *symbol);
void CDataSet_setDataSymbol4(CDataSet *d, const int *polygon, int len, int size, int fillColor,
                             int edgeColor);
void CDataSet_setSymbolOffset(CDataSet *d, int offsetX, int offsetY);
const char *CDataSet_getLegendIcon(CDataSet *d);
void CDataSet_setLineWidth(CDataSet *d, int width);
void CDataSet_setDataLabelFormat(CDataSet *d, const char *formatString);
CTextBox *CDataSet_setDataLabelStyle(CDataSet *d, const char *font, double fontSize, int fontColor,
                                     double fontAngle);
void CDataSet_setUseYAxis2(CDataSet *d, bool useYAxis2);
void CDataSet_setUseYAxis(CDataSet *d, CAxis *axis);
/* Null while the set uses its layer's axis. */
CAxis *CDataSet_getUseYAxis(CDataSet *d);

#ifdef __cplusplus
}
#endif
