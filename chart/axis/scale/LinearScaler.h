#pragma once

#include "chart/axis/scale/AutoScaler.h"

// Linear scales with 1-2-5 steps.  Zero affinity may pull a limit to zero, and
// extensions never carry a limit across zero.
class LinearScaler : public AutoScaler {
public:
    using AutoScaler::AutoScaler;

    // The tick choice alone, on limits already grown: step, rounding, ticks.
    void chooseTicks(double lower, double upper, int n, int m, ScaleOutcome &out) const;

protected:
    bool prepare(double &, double &) const override { return false; }
    void scaleAscending(double lower, double upper, int n, int m, ScaleOutcome &out) const override;

private:
    void extend(double &lower, double &upper) const;
    // The step that puts zero on a tick when count ticks share a range across zero.
    static double stepThroughZero(double lower, double upper, int count);
    void applyMinTickInc(double &major, double &minor) const;
};
