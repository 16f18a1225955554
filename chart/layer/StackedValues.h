#pragma once

#include <vector>

class DataSetImpl;

// The values of a layer's data sets as they combine: groups of sets, sums of
// stacks and the extremes that an axis must show.  Reads the layer's sets.
class StackedValues {
public:
    explicit StackedValues(const std::vector<DataSetImpl *> &sets) : sets(sets) {}

    // The sets of group g are those from groupBegin(g) to groupEnd(g) - 1;
    // g = -1 stands for all sets, an unknown group gives the number of sets.
    int groupBegin(int g) const;
    int groupEnd(int g) const;

    // kNoValue where the set is shorter or absent.
    double value(int set, int i) const;
    // The sum of sets from to to - 1 at point i, gaps skipped; by magnitude
    // when asked (percentage stacks).
    double accValue(int from, int to, int i, bool magnitude) const;
    // How many of the values are 0, or -1 when one is not; gaps are skipped.
    int countAllZero(int from, int to, int i) const;
    // The part of a stack below set s at point i: the sum of the earlier sets
    // of its group that have the value's sign (positive and negative values
    // pile up apart).  With percentage each counts by magnitude, on the
    // positive side.
    double stackBase(int s, int i, bool percentage) const;

    // Folds the extremes of points from to to - 1 into *min and *max, for the
    // sets marked in usesAxis, under the data combine method.
    void fold(int method, const std::vector<bool> &usesAxis, int from, int to, double *min,
              double *max) const;

private:
    void foldStacks(const std::vector<bool> &usesAxis, int from, int to, double *min,
                    double *max) const;
    int groupCount() const;

    const std::vector<DataSetImpl *> &sets;
};
