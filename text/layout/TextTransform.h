#pragma once

#include <cmath>

// Maps the unrotated frame of a text item onto the canvas:
// X = e + a u + b v, Y = f + c u + d v.
struct TextTransform {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    void map(double u, double v, double *x, double *y) const {
        *x = e + a * u + b * v;
        *y = f + c * u + d * v;
    }
    TextTransform translated(double u, double v) const {
        TextTransform t = *this;
        t.e = e + a * u + b * v;
        t.f = f + c * u + d * v;
        return t;
    }
    // Counter-clockwise on the screen (y down) by angle degrees.
    TextTransform rotated(double angle) const {
        double r = angle * 3.14159265358979 / 180;
        double cs = std::cos(r), sn = std::sin(r);
        if (std::fabs(cs) < 1e-12) cs = 0;
        if (std::fabs(sn) < 1e-12) sn = 0;
        TextTransform t = *this;
        t.a = a * cs - b * sn;
        t.b = a * sn + b * cs;
        t.c = c * cs - d * sn;
        t.d = c * sn + d * cs;
        return t;
    }
    bool isRotated() const { return b != 0 || c != 0 || a < 0 || d < 0; }
};
