#include <algorithm>
#include <cmath>
#include <vector>

#include "draw/list/MetaDrawImpl.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "foundation/ReduceLine.h"

namespace {

const double kCoincident = 1e-6;
const double kReduceTolerance = 0.3;

bool isValid(double v) {
    return v != kNoValue && std::isfinite(v);
}

// Which line lies above: 1 for A, -1 for B, 0 where they touch.
int sideOf(double a, double b) {
    double d = a - b;
    return d > kCoincident ? 1 : d < -kCoincident ? -1 : 0;
}

// One run between two lines: the positions and both boundaries.
struct InterLineRun {
    std::vector<double> pos, a, b;
    void add(double p, double va, double vb) {
        pos.push_back(p);
        a.push_back(va);
        b.push_back(vb);
    }
    void clear() {
        pos.clear();
        a.clear();
        b.clear();
    }
};

}  // namespace

void MetaDrawImpl::interLineFill(bool swapXY, const LineValues *lineA, const LineValues *lineB,
                                 int colorAB, int colorBA, double start, double step,
                                 double offsetX, double offsetY, int count, double rangeMin,
                                 double rangeMax) {
    if (!lineA || !lineB || count < 1) return;
    double low = std::min(rangeMin, rangeMax), high = std::max(rangeMin, rangeMax);
    InterLineRun run;
    int side = 0;
    double prevA = 0, prevB = 0;

    // Emits the run as one polygon: boundary A forward, boundary B backward.
    auto emitRun = [&]() {
        size_t n = run.pos.size();
        if (n >= 2 && side != 0) {
            std::vector<double> xa(run.pos), xb(run.pos), ya(run.a), yb(run.b);
            for (size_t i = 0; i < n; ++i) {
                ya[i] = std::min(std::max(ya[i], low), high);
                yb[i] = std::min(std::max(yb[i], low), high);
            }
            int na = qlx::reduceLine(xa.data(), ya.data(), 0, (int)n - 1, kReduceTolerance);
            int nb = qlx::reduceLine(xb.data(), yb.data(), 0, (int)n - 1, kReduceTolerance);
            std::vector<double> px, py;
            for (int i = 0; i < na; ++i) {
                px.push_back(xa[i]);
                py.push_back(ya[i]);
            }
            for (int i = nb - 1; i >= 0; --i) {
                px.push_back(xb[i]);
                py.push_back(yb[i]);
            }
            if (swapXY) px.swap(py);
            for (size_t i = 0; i < px.size(); ++i) {
                px[i] += offsetX;
                py[i] += offsetY;
            }
            polygon(px.data(), py.data(), (int)px.size(), kTransparent,
                    side > 0 ? colorAB : colorBA);
        }
        run.clear();
        side = 0;
    };

    for (int i = 0; i < count; ++i) {
        double a = lineA->value(i), b = lineB->value(i);
        double p = start + i * step;
        if (!isValid(a) || !isValid(b)) {
            if (!run.pos.empty()) {
                // No neighbour after this end: half a step further.
                run.add(p - step / 2, prevA, prevB);
                emitRun();
            }
            continue;
        }
        int s = sideOf(a, b);
        if (run.pos.empty()) {
            run.add(p - step / 2, a, b);
        } else if (s != 0 && side != 0 && s != side) {
            // The lines cross inside this step: close the run at the crossing.
            double t = (prevB - prevA) / (prevB - prevA + a - b);
            double at = prevA + t * (a - prevA);
            run.add(p - step + t * step, at, at);
            emitRun();
            run.add(p - step + t * step, at, at);
        }
        if (side == 0) side = s;
        run.add(p, a, b);
        prevA = a;
        prevB = b;
    }
    if (!run.pos.empty()) {
        run.add(start + (count - 1) * step + step / 2, prevA, prevB);
        emitRun();
    }
}
