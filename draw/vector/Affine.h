#pragma once

#include <cmath>

// An affine map x' = a x + b y + e, y' = c x + d y + f, held as {a, b, c, d, e, f}.
struct Affine {
    double m[6] = {1, 0, 0, 1, 0, 0};

    Affine() {}
    Affine(double a, double b, double c, double d, double e, double f) : m{a, b, c, d, e, f} {}
    explicit Affine(const double (&v)[6]) : m{v[0], v[1], v[2], v[3], v[4], v[5]} {}
    static Affine translation(double x, double y) { return Affine(1, 0, 0, 1, x, y); }
    static Affine scaling(double sx, double sy) { return Affine(sx, 0, 0, sy, 0, 0); }

    bool isIdentity() const {
        return m[0] == 1 && m[1] == 0 && m[2] == 0 && m[3] == 1 && m[4] == 0 && m[5] == 0;
    }
    double determinant() const { return m[0] * m[3] - m[1] * m[2]; }
    bool isFinite() const {
        for (double v : m)
            if (!std::isfinite(v)) return false;
        return true;
    }
    void apply(double x, double y, double *ox, double *oy) const {
        *ox = m[0] * x + m[1] * y + m[4];
        *oy = m[2] * x + m[3] * y + m[5];
    }
    // This map after `first`: p -> this(first(p)).
    Affine after(const Affine &first) const {
        const double *a = m, *b = first.m;
        return Affine(a[0] * b[0] + a[1] * b[2], a[0] * b[1] + a[1] * b[3],
                      a[2] * b[0] + a[3] * b[2], a[2] * b[1] + a[3] * b[3],
                      a[0] * b[4] + a[1] * b[5] + a[4], a[2] * b[4] + a[3] * b[5] + a[5]);
    }
    // False, leaving `out` alone, when the map flattens the plane.
    bool inverse(Affine &out) const {
        double det = determinant();
        if (!std::isfinite(det) || std::fabs(det) < 1e-12) return false;
        double a = m[3] / det, b = -m[1] / det, c = -m[2] / det, d = m[0] / det;
        out = Affine(a, b, c, d, -(a * m[4] + b * m[5]), -(c * m[4] + d * m[5]));
        return out.isFinite();
    }
};
