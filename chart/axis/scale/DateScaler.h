#pragma once

#include "chart/axis/scale/AutoScaler.h"
#include "chart/axis/scale/TickStep.h"

// Date scales: steps from the clock and calendar table, ticks anchored on the
// start of a minute, hour, day, month or year.  Only extensions that were set
// explicitly apply, and the limits are rounded only when asked to.
class DateScaler : public AutoScaler {
public:
    using AutoScaler::AutoScaler;

protected:
    bool prepare(double &lower, double &upper) const override;
    void scaleAscending(double lower, double upper, int n, int m, ScaleOutcome &out) const override;

private:
    struct Anchor {
        double time;
        double unit;
    };
    void extend(double &lower, double &upper) const;
    TickStep chooseStep(double range, int n, int m) const;
    static Anchor findAnchor(double lower, double range, double major);
    static bool rounds(int rounding, double extension);
};
