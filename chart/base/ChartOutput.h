#pragma once

#include "foundation/ArrayViews.h"

class DrawArea;

// The image formats of a chart's in-memory output, by format code.
class ChartOutput {
public:
    // The listing of the drawing, beside the image formats.
    static constexpr int kAGF = 8;
    // The host's picture exchange form.
    static constexpr int kQTIMG = 9;

    // The canvas's bytes in the format of the code; unknown codes give PNG.
    // They live in the canvas until its next output.
    static MemBlock encode(DrawArea *d, int format);
};
