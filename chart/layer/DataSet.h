#pragma once

#include "foundation/ArrayViews.h"

class Axis;
class DrawArea;
class TextBox;

// One series of a layer: its values (kNoValue for a gap), name, colours,
// symbol and labels.  Data sets belong to their layer.
class DataSet {
public:
    virtual void setData(DoubleArray data) = 0;
    // kNoValue out of range.
    virtual double getValue(int i) = 0;
    // Where the point stands on its value axis: the value, or the top of its
    // part of a stack.
    virtual double getPosition(int i) = 0;
    virtual void setDataName(const char *name) = 0;
    virtual const char *getDataName() = 0;
    // -1 leaves a colour to the layer.
    virtual void setDataColor(int dataColor, int edgeColor, int shadowColor,
                              int shadowEdgeColor) = 0;
    virtual int getDataColor() = 0;
    // A shape (kSquareShape, ...), a picture file, a canvas of the caller's
    // (borrowed), or polygon points as x, y pairs.
    virtual void setDataSymbol(int symbol, int size, int fillColor, int edgeColor,
                               int lineWidth) = 0;
    virtual void setDataSymbol2(const char *imageFile) = 0;
    virtual void setDataSymbol3(DrawArea *symbol) = 0;
    virtual void setDataSymbol4(IntArray polygon, int size, int fillColor, int edgeColor) = 0;
    virtual void setSymbolOffset(int offsetX, int offsetY) = 0;
    // The set's legend key as mark-up that texts can show.
    virtual const char *getLegendIcon() = 0;
    virtual void setLineWidth(int width) = 0;
    virtual void setDataLabelFormat(const char *formatString) = 0;
    virtual TextBox *setDataLabelStyle(const char *font, double fontSize, int fontColor,
                                       double fontAngle) = 0;
    virtual void setUseYAxis2(bool useYAxis2) = 0;
    virtual void setUseYAxis(Axis *axis) = 0;
    // Null while the set uses its layer's axis.
    virtual Axis *getUseYAxis() = 0;

protected:
    virtual ~DataSet() {}
};
