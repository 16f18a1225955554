#pragma once

#include "chart/layer/Layer.h"

class LineObj;

// How setSymbolScale reads its sizes: pixels, or lengths along the x axis or
// along the data set's y axis.
enum SymbolScaleType { kPixelScale = 0, kXAxisScale = 1, kYAxisScale = 2 };

// A layer that joins the points of each data set by a line and draws the data
// set's symbol and label at each point.  A data set's line width (or the
// layer's) of 0 draws the symbols alone.  kNoValue in the data leaves a gap.
class LineLayer : public virtual Layer {
public:
    // The line drawn across a gap: kTransparent (the default) leaves it open,
    // kSameAsMainColor bridges it in the data colour; a width of -1 is the
    // data set's.
    virtual void setGapColor(int lineColor, int lineWidth) = 0;
    // With many more points than the x axis has pixels, each pixel column
    // keeps only the points that make its shape (on by default).
    virtual void setFastLineMode(bool fast) = 0;
    // The width of a line's hot spots.
    virtual void setImageMapWidth(int width) = 0;
    // Symbol sizes per point, in the way the scale type says (SymbolScaleType);
    // a size missing in one direction takes the other's.
    virtual void setSymbolScale(DoubleArray zDataX, int scaleTypeX, DoubleArray zDataY,
                                int scaleTypeY) = 0;
    // One size per point for both directions.
    virtual void setSymbolScale2(DoubleArray zData, int scaleType) = 0;
    // A data set's line as laid out; null for a set the layer doesn't have.
    virtual LineObj *getLine(int dataSet) = 0;

protected:
    ~LineLayer() override {}
};
