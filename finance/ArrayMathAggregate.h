#pragma once

// Groups src by a key series and reduces each group to one value.
namespace ArrayMathAggregate {

// A real key starts a group and the gaps behind it join it; the walk starts a
// group at position 0 whatever its key. Results go to the front of src, the
// items past the keys follow unchanged; returns the new length of src.
int aggregate(const double *keys, int keyLen, double *src, int srcLen, int method, double param);

// One group's value by an AggregateMethod; a method out of range averages.
double reduce(const double *group, int len, int method, double param);

}  // namespace ArrayMathAggregate
