#pragma once

// Centres the data ranges of the x and y axes on 0 by the chart's symmetry
// mode.  A range is a smallest and a largest value, kNoValue when there is no
// data.  The "if needed" forms act only on a range that has values on both
// sides of 0; the XY forms give both axes the same range.
class SymmetricScales {
public:
    static void apply(int mode, double *xMin, double *xMax, double *yMin, double *yMax);
};
