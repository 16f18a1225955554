#pragma once

#include <vector>

// Walks a scale from a start value by a major step and fills the major and minor
// tick values that fall between two limits.  The kinds of scale differ only in
// how a value moves by a step and how a start is moved back to a limit.
class TickGenerator {
public:
    // At most this many ticks come out of one walk, so that a tiny step cannot
    // hang the chart.
    static constexpr int kMaxTicks = 10000;

    virtual ~TickGenerator() {}

    virtual double nextTick(double value, double step) const = 0;
    // The start moved back by whole steps to at or below value.
    virtual double firstTick(double value, double start, double step) const = 0;

    // Ticks from start by major between lower and upper, with minors by minor
    // between the majors.  A step pointing away from upper gives nothing.
    void generate(double lower, double upper, double start, double major, double minor);

    const std::vector<double> &getMajorTicks() const { return majorTicks; }
    const std::vector<double> &getMinorTicks() const { return minorTicks; }

protected:
    static bool isLogSentinel(double step);

private:
    struct TickRange;
    void walk(double lower, double upper, double start, double major, double minor);
    void walkMinors(const TickRange &range, double t, double next, double minor, int &made,
                    int &steps);

    std::vector<double> majorTicks;
    std::vector<double> minorTicks;
};
