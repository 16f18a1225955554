#pragma once

#include <vector>

#include "chart/axis/scale/ScaleRecord.h"

class TickGenerator;

// What an automatic scale decided: its limits and its tick values.
struct ScaleOutcome {
    double lower = 0;
    double upper = 0;
    std::vector<double> majorTicks;
    std::vector<double> minorTicks;
    // The ticks are steps of plain values (the rule of the inserted zero applies).
    bool linearSteps = false;
    // The step between the first two major ticks, 0 with fewer than two.
    double tickStep() const;
};

// Turns a data range into a scale: grows it by the record's extensions, picks a
// tick step for n major ticks of m minors each, rounds the limits to that step
// and walks the ticks.  One kind of scale per subclass.
class AutoScaler {
public:
    explicit AutoScaler(const ScaleRecord &record) : record(record) {}
    virtual ~AutoScaler() {}

    // False when no finite scale comes out of the range (the outcome is then
    // not to be used).  A range given upside down comes back upside down.
    bool scale(double lower, double upper, int n, int m, ScaleOutcome &out) const;

protected:
    // Brings the limits into the domain of the scale; true when the results
    // must be negated back.
    virtual bool prepare(double &lower, double &upper) const = 0;
    virtual void scaleAscending(double lower, double upper, int n, int m,
                                ScaleOutcome &out) const = 0;

    // Equal limits move apart by half their size; two zeros become 0 to 100.
    static void spreadEqualLimits(double &lower, double &upper);
    // Takes the generator's ticks; with fewer than two majors and no minors the
    // limits themselves become the majors.
    static void takeTicks(const TickGenerator &generator, ScaleOutcome &out);

    const ScaleRecord &record;
};
