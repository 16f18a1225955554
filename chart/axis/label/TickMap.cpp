#include "chart/axis/label/TickMap.h"

#include <cmath>

#include "foundation/Constants.h"

namespace {

// i - offset is a multiple of step, with offset taken modulo step.
bool onStep(long long i, long long offset, long long step) {
    long long r = (i - offset % step) % step;
    return r == 0;
}

}  // namespace

void TickMap::put(double key, AxisLabel &&label) {
    if (std::isnan(key) || std::isinf(key)) return;
    auto found = ticks.find(key);
    if (found != ticks.end()) {
        found->second = std::move(label);
    } else {
        ticks.emplace(key, std::move(label));
    }
}

void TickMap::remove(double key) {
    ticks.erase(key);
}

void TickMap::removeScaleTicks() {
    for (auto i = ticks.begin(); i != ticks.end();) {
        if (i->second.flags & AxisLabel::kScaleTick) {
            i = ticks.erase(i);
        } else {
            ++i;
        }
    }
}

void TickMap::enterScaleTicks(const std::vector<double> &majors,
                              const std::vector<double> &minors) {
    for (double v : majors) {
        if (v == kNoValue) {
            remove(kNoValue);
        } else if (v == kMinorTickOnly || v == kMicroTickOnly) {
            put(v,
                AxisLabel(kNoValue, std::string(), AxisLabel::kScaleTick | AxisLabel::kMinorTick));
        } else {
            put(v, AxisLabel(v, std::string(), AxisLabel::kScaleTick));
        }
    }
    const int minorFlags = AxisLabel::kScaleTick | AxisLabel::kMinorTick | AxisLabel::kNoLabel;
    for (double v : minors) put(v, AxisLabel(v, std::string(), minorFlags));
}

void TickMap::thin(int majorStep, int minorStep, int majorOffset, int minorOffset) {
    long long step = majorStep > 1 ? majorStep : 1;
    long long i = 0;
    for (auto &tick : ticks) {
        int &flags = tick.second.flags;
        if (!onStep(i, majorOffset, step)) {
            if (minorStep > 0 && onStep(i, minorOffset, minorStep)) {
                flags |= AxisLabel::kMinorTick | AxisLabel::kNoLabel;
            } else {
                flags |= AxisLabel::kNoTickMark | AxisLabel::kNoLabel;
            }
        }
        ++i;
    }
}

const AxisLabel *TickMap::find(double key) const {
    auto found = ticks.find(key);
    return found != ticks.end() ? &found->second : nullptr;
}

AxisLabel *TickMap::find(double key) {
    auto found = ticks.find(key);
    return found != ticks.end() ? &found->second : nullptr;
}

std::vector<double> TickMap::keys() const {
    std::vector<double> result;
    result.reserve(ticks.size());
    for (const auto &tick : ticks) result.push_back(tick.first);
    return result;
}
