#include "chart/layer/StackedValues.h"

#include <algorithm>
#include <cmath>

#include "chart/layer/DataSetImpl.h"
#include "foundation/Constants.h"

int StackedValues::groupBegin(int g) const {
    if (g < 0) return 0;
    int n = (int)sets.size();
    for (int s = 0; s < n; ++s)
        if (sets[s]->getGroupNo() >= g) return sets[s]->getGroupNo() == g ? s : n;
    return n;
}

int StackedValues::groupEnd(int g) const {
    int n = (int)sets.size();
    if (g < 0) return n;
    int begin = groupBegin(g);
    int s = begin;
    while (s < n && sets[s]->getGroupNo() == g) ++s;
    return begin == n ? n : s;
}

int StackedValues::groupCount() const {
    return sets.empty() ? 0 : sets.back()->getGroupNo() + 1;
}

double StackedValues::value(int set, int i) const {
    return set >= 0 && set < (int)sets.size() ? sets[set]->valueAt(i) : kNoValue;
}

double StackedValues::accValue(int from, int to, int i, bool magnitude) const {
    double sum = 0;
    for (int s = std::max(from, 0); s < to && s < (int)sets.size(); ++s) {
        double v = sets[s]->valueAt(i);
        if (v != kNoValue) sum += magnitude ? std::fabs(v) : v;
    }
    return sum;
}

int StackedValues::countAllZero(int from, int to, int i) const {
    int zeros = 0;
    for (int s = std::max(from, 0); s < to && s < (int)sets.size(); ++s) {
        double v = sets[s]->valueAt(i);
        if (v == kNoValue) continue;
        if (v != 0) return -1;
        ++zeros;
    }
    return zeros;
}

double StackedValues::stackBase(int s, int i, bool percentage) const {
    if (s < 0 || s >= (int)sets.size()) return 0;
    double own = sets[s]->valueAt(i);
    bool negative = !percentage && own != kNoValue && own < 0;
    double sum = 0;
    for (int k = groupBegin(sets[s]->getGroupNo()); k < s; ++k) {
        double v = sets[k]->valueAt(i);
        if (v == kNoValue) continue;
        if (percentage)
            sum += std::fabs(v);
        else if ((v < 0) == negative)
            sum += v;
    }
    return sum;
}

void StackedValues::fold(int method, const std::vector<bool> &usesAxis, int from, int to,
                         double *min, double *max) const {
    if (method == kStack) {
        foldStacks(usesAxis, from, to, min, max);
        return;
    }
    int n = (int)sets.size();
    if (method == kPercentage) {
        for (int g = 0, count = groupCount(); g < count; ++g) {
            int first = groupBegin(g);
            if (first < n && usesAxis[first]) {
                *min = std::min(*min, 0.0);
                *max = std::max(*max, 100.0);
                return;
            }
        }
        return;
    }
    // Kept in locals: a large series is one pass in registers.
    double low = *min, high = *max;
    for (int s = 0; s < n; ++s) {
        if (!usesAxis[s]) continue;
        const std::vector<double> &data = sets[s]->values();
        int end = std::min(to, (int)data.size());
        // A whole set: its extremes were taken when its data came.
        if (from <= 0 && end == (int)data.size()) {
            if (sets[s]->getLowest() == kNoValue) continue;
            low = std::min(low, sets[s]->getLowest());
            high = std::max(high, sets[s]->getHighest());
            continue;
        }
        for (int i = std::max(from, 0); i < end; ++i) {
            double v = data[i];
            if (v == kNoValue) continue;
            low = std::min(low, v);
            high = std::max(high, v);
        }
    }
    *min = low;
    *max = high;
}

// Each group stacks its positive values upward and its negative values
// downward, apart from the other groups.
void StackedValues::foldStacks(const std::vector<bool> &usesAxis, int from, int to, double *min,
                               double *max) const {
    int n = (int)sets.size();
    for (int g = 0, count = groupCount(); g < count; ++g) {
        int begin = groupBegin(g), end = groupEnd(g);
        if (begin >= n || !usesAxis[begin]) continue;
        int length = 0;
        for (int s = begin; s < end; ++s) length = std::max(length, sets[s]->size());
        for (int i = std::max(from, 0); i < to && i < length; ++i) {
            double positive = 0, negative = 0;
            bool any = false;
            for (int s = begin; s < end; ++s) {
                double v = sets[s]->valueAt(i);
                if (v == kNoValue) continue;
                any = true;
                *min = std::min(*min, v);
                *max = std::max(*max, v);
                (v >= 0 ? positive : negative) += v;
            }
            if (!any) continue;
            *max = std::max(*max, *max > 0 ? positive : negative);
            *min = std::min(*min, *min < 0 ? negative : positive);
        }
    }
}
