#pragma once

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "chart/axis/AxisImpl.h"
#include "foundation/ChartStatics.h"
#include "text/template/Formatter.h"

// An axis on its own, with a chart formatter of its own, laid out by hand.
struct AxisDestroyer {
    void operator()(AxisImpl *a) const { a->destroy(); }
};
using AxisPtr = std::unique_ptr<AxisImpl, AxisDestroyer>;

struct TestAxis {
    Formatter chartFormatter;
    AxisPtr axis;

    explicit TestAxis(int alignment = kBottom, int length = 250) {
        axis.reset(AxisImpl::of(Axis::create(nullptr, nullptr, &chartFormatter)));
        AxisOrientation o;
        o.alignment = alignment;
        axis->setOrientation(o);
        axis->setLength(length);
    }
    AxisImpl *operator->() const { return axis.get(); }
    AxisImpl &operator*() const { return *axis; }
};

inline double at(int y, int m, int d, int h = 0, int mi = 0, int s = 0) {
    return Chart::chartTime(y, m, d, h, mi, s);
}

// Values of the ticks that carry a label mark (no flag 4), in order.
inline std::vector<double> majorValues(const AxisImpl &a) {
    std::vector<double> v;
    for (const auto &t : a.getTickMap())
        if (!(t.second.flags & AxisLabel::kNoLabel)) v.push_back(t.first);
    return v;
}

inline std::vector<double> minorValues(const AxisImpl &a) {
    std::vector<double> v;
    for (const auto &t : a.getTickMap())
        if (t.second.flags & AxisLabel::kNoLabel) v.push_back(t.first);
    return v;
}

// Texts of the ticks that show a label.
inline std::vector<std::string> labelTexts(const AxisImpl &a) {
    std::vector<std::string> v;
    for (const auto &t : a.getTickMap())
        if (!(t.second.flags & AxisLabel::kNoLabel) && !t.second.text.empty())
            v.push_back(t.second.text);
    return v;
}

// 1, 2 or 5 times a power of ten.
inline bool isOneTwoFive(double step) {
    double mantissa = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
    for (double base : {1.0, 2.0, 5.0})
        if (std::fabs(mantissa - base) < 1e-6) return true;
    return false;
}

using Values = std::vector<double>;
using Texts = std::vector<std::string>;
