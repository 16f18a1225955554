#pragma once

namespace qlx {

// Douglas-Peucker thinning in place of the run first..last; points whose y is
// kNoValue are skipped.  Returns how many points remain, moved to start at first.
int reduceLine(double *x, double *y, int first, int last, double tolerance);

}  // namespace qlx
