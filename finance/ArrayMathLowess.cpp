#include "finance/ArrayMathLowess.h"

#include <algorithm>
#include <cmath>

#include "finance/ArrayMathStats.h"

using ArrayMathStats::isGap;

namespace {

const int kMaxIterations = 50;
// Residuals below this share of the data's size are rounding noise.
const double kFlatResidual = 1e-7;

// Tricube weight of distance r in a neighbourhood of radius h.
double tricube(double r, double h) {
    double u = r / h;
    double t = 1 - u * u * u;
    return t * t * t;
}

}  // namespace

ArrayMathLowess::ArrayMathLowess(const double *y, int yLen, DoubleArray x) {
    int paired = std::min(yLen, x.len);
    for (int i = 0; i < paired; ++i) {
        if (isGap(x.data[i]) || isGap(y[i])) continue;
        xs.push_back(x.data[i]);
        ys.push_back(y[i]);
        positions.push_back(i);
    }
}

void ArrayMathLowess::smooth(double *y, int yLen, DoubleArray x, double smoothness, int iteration) {
    if (yLen <= 0) return;
    ArrayMathLowess fit(y, yLen, x);
    if (fit.count() == 1) {
        // Nothing to regress on: the point is its own fit.
        fit.fitted = fit.ys;
        fit.fittedOk.assign(1, true);
    } else if (fit.count() > 1) {
        fit.run(smoothness, iteration);
    }
    fit.writeBack(y, yLen);
}

void ArrayMathLowess::run(double smoothness, int iteration) {
    int n = count();
    iteration = std::max(0, std::min(iteration, kMaxIterations));
    smoothness = smoothness > 0 ? std::min(smoothness, 1.0) : 0;
    int window = std::max(2, std::min(n, (int)(n * smoothness + 1e-7)));

    fitted.assign(n, 0);
    fittedOk.assign(n, true);
    weights.assign(n, 0);
    robustness.assign(n, 1);
    for (int pass = 0; pass <= iteration; ++pass) {
        int left = 0;
        int right = window - 1;
        for (int i = 0; i < n; ++i) {
            // Slide while the next point on the right is nearer than the leftmost.
            while (right < n - 1 && xs[i] - xs[left] > xs[right + 1] - xs[i]) {
                ++left;
                ++right;
            }
            fittedOk[i] = fitPoint(i, left, right, pass > 0, fitted[i]);
        }
        if (pass < iteration && !updateRobustness()) break;
    }
}

bool ArrayMathLowess::fitPoint(int i, int left, int right, bool robust, double &out) {
    int n = count();
    double xi = xs[i];
    double h = std::max(xi - xs[left], xs[right] - xi);
    double h9 = 0.999 * h;
    double h1 = 0.001 * h;

    // Points past the window on the right still count while within h9.
    double total = 0;
    int last = left;
    for (int j = left; j < n; ++j) {
        weights[j] = 0;
        double r = std::fabs(xs[j] - xi);
        if (r <= h9) {
            weights[j] = r <= h1 ? 1 : tricube(r, h);
            if (robust) weights[j] *= robustness[j];
            total += weights[j];
        } else if (xs[j] > xi) {
            break;
        }
        last = j;
    }
    if (!(total > 0)) return false;

    for (int j = left; j <= last; ++j) weights[j] /= total;
    if (h > 0) {
        double mean = 0;
        for (int j = left; j <= last; ++j) mean += weights[j] * xs[j];
        double offset = xi - mean;
        double spread = 0;
        for (int j = left; j <= last; ++j) spread += weights[j] * (xs[j] - mean) * (xs[j] - mean);
        // A local line only where the neighbours spread enough to carry one.
        if (std::sqrt(spread) > 0.001 * (xs[n - 1] - xs[0])) {
            double slope = offset / spread;
            for (int j = left; j <= last; ++j) weights[j] *= slope * (xs[j] - mean) + 1;
        }
    }
    double value = 0;
    for (int j = left; j <= last; ++j) value += weights[j] * ys[j];
    out = value;
    return true;
}

bool ArrayMathLowess::updateRobustness() {
    int n = count();
    std::vector<double> residuals(n);
    for (int i = 0; i < n; ++i) {
        double fit = fittedOk[i] ? fitted[i] : kNoValue;
        residuals[i] = std::fabs(ys[i] - fit);
    }
    std::vector<double> ordered(residuals);
    int half = n / 2;
    std::nth_element(ordered.begin(), ordered.begin() + half, ordered.end());
    double upper = ordered[half];
    int lowerRank = n - half - 1;
    std::nth_element(ordered.begin(), ordered.begin() + lowerRank, ordered.end());
    double cmad = 3 * (upper + ordered[lowerRank]);
    // A fit this close leaves only rounding noise in the residuals; weighing
    // by noise would throw good points away, and another pass changes nothing.
    if (cmad < kFlatResidual * meanMagnitude()) return false;

    double c9 = 0.999 * cmad;
    double c1 = 0.001 * cmad;
    for (int i = 0; i < n; ++i) {
        double r = residuals[i];
        if (r <= c1) {
            robustness[i] = 1;
        } else if (r <= c9) {
            double u = r / cmad;
            robustness[i] = (1 - u * u) * (1 - u * u);
        } else {
            robustness[i] = 0;
        }
    }
    return true;
}

double ArrayMathLowess::meanMagnitude() const {
    double total = 0;
    for (double v : ys) total += std::fabs(v);
    return total / count();
}

void ArrayMathLowess::writeBack(double *y, int yLen) const {
    for (int i = 0; i < yLen; ++i) y[i] = kNoValue;
    for (int k = 0; k < count(); ++k) y[positions[k]] = fittedOk[k] ? fitted[k] : kNoValue;
}
