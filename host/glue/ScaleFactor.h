#pragma once

#include <cstdint>

// Device pixels per logical pixel.  The glue multiplies every pixel argument by
// it before the engine sees it; returned pixels are left as they are.
double getScaleFactor();
// Clamped to 1 to 100; a NaN is 1.
void setScaleFactor(double factor);

// A pixel measure scaled and truncated.
int scalePixels(int64_t pixels);
double scalePixels(double pixels);
