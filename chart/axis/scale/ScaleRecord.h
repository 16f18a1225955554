#pragma once

#include "foundation/Constants.h"

// How an automatic scale grows its data range: extensions, zero affinity,
// rounding of the limits and the smallest tick step.  Set values are kNoValue (or
// -1 for rounding) while unset; the defaults stand in for them, and a chart kind
// or layer may change the defaults.
struct ScaleRecord {
    double topExtension = kNoValue;
    double bottomExtension = kNoValue;
    double zeroAffinity = kNoValue;
    double defaultTopExtension = 0.1;
    double defaultBottomExtension = 0.1;
    double defaultZeroAffinity = 0;
    int roundMax = -1;
    int roundMin = -1;
    int defaultRoundMax = -1;
    int defaultRoundMin = -1;
    double minTickInc = 0;

    double getTopExtension() const { return orDefault(topExtension, defaultTopExtension); }
    double getBottomExtension() const { return orDefault(bottomExtension, defaultBottomExtension); }
    double getZeroAffinity() const { return orDefault(zeroAffinity, defaultZeroAffinity); }
    // The set rounding, else the default; -1 when neither is set.
    int getRoundMin() const { return roundMin != -1 ? roundMin : defaultRoundMin; }
    int getRoundMax() const { return roundMax != -1 ? roundMax : defaultRoundMax; }
    // Linear and log scales count an unset rounding as on.
    bool roundsMin() const { return getRoundMin() != 0; }
    bool roundsMax() const { return getRoundMax() != 0; }

    // setAutoScale's rule: negative extensions become 0, and a pair that would
    // leave no room for the data (a sum of 1 or more) is refused.
    void setExtensions(double top, double bottom);
    void setZeroAffinity(double zero);

private:
    static double orDefault(double value, double fallback) {
        return value != kNoValue ? value : fallback;
    }
};
