#pragma once

#include <map>
#include <vector>

#include "chart/axis/label/AxisLabel.h"

// The ticks of an axis in value order, keyed by the tick's position on the scale.
// Keys that are not numbers are refused, so the order always holds.
class TickMap {
public:
    using Map = std::map<double, AxisLabel>;

    // Replaces a tick at the same key (and its text box).
    void put(double key, AxisLabel &&label);
    void remove(double key);
    void clear() { ticks.clear(); }
    // Drops the ticks a scale made, keeping the caller's.
    void removeScaleTicks();

    // Majors of a scale get kScaleTick, minors also kMinorTick and kNoLabel.
    // kNoValue in the majors removes that key; kMinorTickOnly and kMicroTickOnly
    // become minor ticks with no value to show.
    void enterScaleTicks(const std::vector<double> &majors, const std::vector<double> &minors);

    // Keeps every majorStep-th tick (from majorOffset) as it is; of the others,
    // every minorStep-th (from minorOffset) keeps a minor tick mark, the rest
    // lose both mark and label.  A minorStep of 0 or less hides all the others.
    void thin(int majorStep, int minorStep, int majorOffset, int minorOffset);

    const AxisLabel *find(double key) const;
    AxisLabel *find(double key);
    bool empty() const { return ticks.empty(); }
    int size() const { return (int)ticks.size(); }
    std::vector<double> keys() const;

    Map::iterator begin() { return ticks.begin(); }
    Map::iterator end() { return ticks.end(); }
    Map::const_iterator begin() const { return ticks.begin(); }
    Map::const_iterator end() const { return ticks.end(); }

private:
    Map ticks;
};
