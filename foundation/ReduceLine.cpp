#include "foundation/ReduceLine.h"

#include <cmath>

#include "foundation/Constants.h"

namespace qlx {

namespace {

// Douglas-Peucker on the chord a..b; insignificant points get y = kNoValue.
void reduceSpan(const double *x, double *y, int a, int b, double tolerance) {
    if (a + 1 >= b || tolerance <= 0) return;
    double tol2 = tolerance * tolerance;
    while (a + 1 < b) {
        double cx = x[b] - x[a], cy = y[b] - y[a];
        double chord2 = cx * cx + cy * cy;
        double maxCross = -1, maxEnd = -1;
        int crossIndex = -1, endIndex = -1;
        for (int i = a + 1; i < b; ++i) {
            if (y[i] == kNoValue) continue;
            double px = x[i] - x[a], py = y[i] - y[a];
            double dot = cx * px + cy * py;
            if (dot > 0 && dot <= chord2) {
                double cross = std::fabs(cx * py - cy * px);
                if (cross > maxCross) {
                    maxCross = cross;
                    crossIndex = i;
                }
            } else {
                double ex = dot <= 0 ? px : x[i] - x[b];
                double ey = dot <= 0 ? py : y[i] - y[b];
                double end2 = ex * ex + ey * ey;
                if (end2 > maxEnd) {
                    maxEnd = end2;
                    endIndex = i;
                }
            }
        }
        double c = maxCross < 0 ? 0 : maxCross * maxCross;
        double e = maxEnd < 0 ? 0 : maxEnd;
        int candidate;
        bool significant;
        if (endIndex >= 0 && (crossIndex < 0 || e * chord2 >= c)) {
            candidate = endIndex;
            significant = e > tol2;
        } else {
            candidate = crossIndex;
            significant = candidate >= 0 && c > chord2 * tol2;
        }
        if (!significant) {
            for (int i = a + 1; i < b; ++i) y[i] = kNoValue;
            return;
        }
        reduceSpan(x, y, a, candidate, tolerance);
        a = candidate;
    }
}

}  // namespace

int reduceLine(double *x, double *y, int first, int last, double tolerance) {
    if (first > last) return 0;
    // The chord runs between the first and last real points of the run.
    int a = first, b = last;
    while (a <= last && y[a] == kNoValue) ++a;
    while (b >= a && y[b] == kNoValue) --b;
    if (a < b) reduceSpan(x, y, a, b, tolerance);

    int out = first;
    for (int i = first; i <= last; ++i) {
        if (y[i] == kNoValue) continue;
        x[out] = x[i];
        y[out] = y[i];
        ++out;
    }
    return out - first;
}

}  // namespace qlx
