#include "finance/ArrayMathWindows.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "finance/ArrayMathRing.h"
#include "finance/ArrayMathStats.h"

using ArrayMathStats::isGap;

namespace ArrayMathWindows {

namespace {

// A window that can never fill: every real value is still waiting.
void blankReals(double *a, int len) {
    for (int i = 0; i < len; ++i) {
        if (!isGap(a[i])) a[i] = kNoValue;
    }
}

// Drives a window statistic over the series. Stat::enter sees each real value
// and the one it pushed out (`evicted` tells whether that was real or filler);
// Stat::value reads the full window.
template <class Stat>
void slide(double *a, int len, int interval, Stat &stat) {
    if (interval < 2) return;
    if (interval > len) {
        blankReals(a, len);
        return;
    }
    ArrayMathRing ring(interval);
    for (int i = 0; i < len; ++i) {
        double v = a[i];
        if (isGap(v)) continue;
        bool evicted = ring.isFull();
        double old = ring.push(v);
        stat.enter(v, old, evicted, ring);
        a[i] = ring.isFull() ? stat.value(ring) : kNoValue;
    }
}

struct RunningSum {
    double sum = 0;
    double sumSq = 0;
    // Filler is 0, so taking off `old` is right before the window fills too.
    void enter(double v, double old, bool, const ArrayMathRing &) {
        sum -= old;
        sum += v;
        sumSq -= old * old;
        sumSq += v * v;
    }
};

struct Average : RunningSum {
    double value(const ArrayMathRing &ring) const { return sum / ring.getSize(); }
};

struct Deviation : RunningSum {
    double value(const ArrayMathRing &ring) const {
        return ArrayMathStats::populationStdDev(ring.getSize(), sum, sumSq);
    }
};

// Keeps the window's extreme and rescans only when it leaves the window.
template <class Better>
struct Extreme {
    bool any = false;
    double best = 0;
    void enter(double v, double old, bool evicted, const ArrayMathRing &ring) {
        Better better;
        if (!any || !better(best, v)) {
            best = v;
            any = true;
        } else if (evicted && old == best) {
            const double *items = ring.getItems();
            best = items[0];
            for (int k = 1; k < ring.getSize(); ++k) {
                if (better(items[k], best)) best = items[k];
            }
        }
    }
    double value(const ArrayMathRing &) const { return best; }
};

struct Percentile {
    double p;
    std::vector<double> scratch;
    explicit Percentile(double p) : p(p) {}
    void enter(double, double, bool, const ArrayMathRing &) {}
    double value(const ArrayMathRing &ring) {
        scratch.assign(ring.getItems(), ring.getItems() + ring.getSize());
        return ArrayMathStats::selectPercentile(scratch.data(), ring.getSize(), p);
    }
};

// Drives the lagged operations: combine(current, older) once offset + 1
// real values have been seen.
template <class Combine>
void lagged(double *a, int len, int offset, Combine combine) {
    if (offset < 1) return;
    if (offset >= len) {
        blankReals(a, len);
        return;
    }
    ArrayMathRing ring(offset + 1);
    for (int i = 0; i < len; ++i) {
        double v = a[i];
        if (isGap(v)) continue;
        ring.push(v);
        a[i] = ring.isFull() ? combine(v, ring.oldest()) : kNoValue;
    }
}

}  // namespace

void movAvg(double *a, int len, int interval) {
    Average stat;
    slide(a, len, interval, stat);
}

void movStdDev(double *a, int len, int interval) {
    Deviation stat;
    slide(a, len, interval, stat);
}

void movMax(double *a, int len, int interval) {
    Extreme<std::greater<double>> stat;
    slide(a, len, interval, stat);
}

void movMin(double *a, int len, int interval) {
    Extreme<std::less<double>> stat;
    slide(a, len, interval, stat);
}

void movPercentile(double *a, int len, int interval, double percentile) {
    Percentile stat(percentile);
    slide(a, len, interval, stat);
}

void movCorr(double *a, int len, int interval, DoubleArray b) {
    if (interval < 2) return;
    bool againstIndex = b.len <= 0;
    int paired = againstIndex ? len : std::min(len, b.len);
    for (int i = paired; i < len; ++i) a[i] = kNoValue;
    if (interval > paired) {
        for (int i = 0; i < paired; ++i) a[i] = kNoValue;
        return;
    }

    ArrayMathRing xs(interval);
    ArrayMathRing ys(interval);
    double sx = 0, sy = 0, sxx = 0, syy = 0, sxy = 0;
    double n = interval;
    for (int i = 0; i < paired; ++i) {
        double x = a[i];
        double y = againstIndex ? i : b.data[i];
        if (isGap(x) || isGap(y)) {
            a[i] = kNoValue;
            continue;
        }
        double oldX = xs.push(x);
        double oldY = ys.push(y);
        sx += x - oldX;
        sy += y - oldY;
        sxx += x * x - oldX * oldX;
        syy += y * y - oldY * oldY;
        sxy += x * y - oldX * oldY;
        if (!xs.isFull()) {
            a[i] = kNoValue;
            continue;
        }
        double spread = (n * sxx - sx * sx) * (n * syy - sy * sy);
        a[i] = (n * sxy - sx * sy) / (spread > 0 ? std::sqrt(spread) : 0);
    }
}

void expAvg(double *a, int len, double smoothingFactor) {
    bool started = false;
    double previous = 0;
    for (int i = 0; i < len; ++i) {
        double v = a[i];
        if (isGap(v)) continue;
        if (started) a[i] = smoothingFactor * v + (1 - smoothingFactor) * previous;
        previous = a[i];
        started = true;
    }
}

void delta(double *a, int len, int offset) {
    lagged(a, len, offset, [](double current, double older) { return current - older; });
}

void rate(double *a, int len, int offset) {
    lagged(a, len, offset, [](double current, double older) {
        if (older == 0) return current != 0 ? kNoValue : 1.0;
        return current / older;
    });
}

void shift(double *a, int len, int offset, double fillValue) {
    lagged(a, len, offset, [](double, double older) { return older; });
    int filled = std::min(offset, len);
    fillValue = ArrayMathStats::gapForNaN(fillValue);
    for (int i = 0; i < filled; ++i) a[i] = fillValue;
}

}  // namespace ArrayMathWindows
