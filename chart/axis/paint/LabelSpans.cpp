#include "chart/axis/paint/LabelSpans.h"

#include <algorithm>

bool LabelSpans::clashes(const Span &a, const Span &b) const {
    return std::max(a.low, b.low) < std::min(a.high, b.high) + space;
}

void LabelSpans::reserve(double low, double high) {
    reserved.push_back({std::min(low, high), std::max(low, high)});
}

bool LabelSpans::accept(double low, double high) {
    Span s{std::min(low, high), std::max(low, high)};
    if (hasLast && clashes(s, last)) return false;
    for (const Span &r : reserved)
        if (clashes(s, r)) return false;
    last = s;
    hasLast = true;
    return true;
}
