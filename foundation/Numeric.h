#pragma once

namespace qlx {

double round(double x);
bool isDivisible(double a, double b, double tolerance);
// fmod with the sign of a positive y.
double pmod(double x, double y);
// atan2 in degrees, 0 to below 360.
double atan(double y, double x);
// Exact on the axes.
double cosDegree(double a);
// Normal quantile (Beasley-Springer).
double invN(double p);
// Student's t quantile (Hill, algorithm 396).
double invT(double p, int df);

}  // namespace qlx
