#pragma once

#include "chart/axis/scale/AutoScaler.h"

// Logarithmic scales: ticks at 1-2-5 or at every digit of a decade, or every few
// decades.  A range shorter than 0.8 decades gets linear steps when they fit.
// Negative ranges are scaled as their mirror image.
class LogScaler : public AutoScaler {
public:
    using AutoScaler::AutoScaler;

    // Rounding of log10 values to the 1-2-5 grid, down and up, and up to the next
    // digit of the decade.
    static double oneTwoFiveDown(double x);
    static double oneTwoFiveUp(double x);
    static double nextDigitUp(double x);

protected:
    bool prepare(double &lower, double &upper) const override;
    void scaleAscending(double lower, double upper, int n, int m, ScaleOutcome &out) const override;

private:
    struct Plan {
        double start;
        double major;
        double minor;
    };
    Plan plan(double ll, double per, int m) const;
    static double minorDecades(double major, int m);
    static double roundUpLog(const Plan &p, double lu);
};
