#pragma once

#include "foundation/ArrayViews.h"

// A line that a chart lays out and draws: a mark's line across the plot, or the
// line of a data set.  Layers that fill between two lines read it.
class LineObj {
public:
    // The pixel points of the line in drawing order, as x0, y0, x1, y1 ...; empty
    // until the chart has laid it out.  Valid until the line is laid out again.
    virtual DoubleArray getPoints() = 0;

protected:
    virtual ~LineObj() {}
};
