#pragma once

#include <vector>

// How many decimals a set of tick labels needs: enough for the finest fraction
// among the values (up to 4) and enough to tell neighbours apart.  -1 when the
// spacing is uneven (as on a log scale of several decades): each label then
// takes the decimals it needs.
namespace LabelPrecision {

int decimalsFor(const std::vector<double> &values);

}  // namespace LabelPrecision
