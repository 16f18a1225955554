#pragma once

// Maps a value to a fraction of the axis: linear (value - origin) * factor, or
// logarithmic ln(value / origin) * factor.  Lower maps to 0 and upper to 1.
class ScaleMapping {
public:
    ScaleMapping() { setLinear(0, 100); }

    void setLinear(double lower, double upper);
    // Both limits of one sign.
    void setLog(double lower, double upper);

    double toFraction(double value) const;
    // The value at a fraction; kNoValue when the mapping has no extent.
    double fromFraction(double fraction) const;

    bool isLog() const { return log; }
    double getLower() const { return lower; }
    double getUpper() const { return upper; }

private:
    bool log;
    double lower;
    double upper;
    double origin;
    double factor;
};
