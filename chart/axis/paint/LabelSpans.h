#pragma once

#include <vector>

// The stretches along an axis that labels already take.  A label is refused
// when it comes closer than the minimum space to the last label accepted or to
// any reserved stretch (the labels of marks).
class LabelSpans {
public:
    explicit LabelSpans(int minSpace) : space(minSpace) {}

    void reserve(double low, double high);
    // True when the label fits; it then becomes the last one.
    bool accept(double low, double high);

private:
    struct Span {
        double low, high;
    };
    bool clashes(const Span &a, const Span &b) const;

    int space;
    std::vector<Span> reserved;
    Span last{0, 0};
    bool hasLast = false;
};
