#pragma once

#include "draw/pdf/PDFBrush.h"

// A linear gradient, or a lighting along a line: an axial shading.  A
// repeating ramp is laid end to end as far as the cover box reaches.
class PDFGradientBrush : public PDFBrush {
public:
    PDFGradientBrush(const VectorPaint &paint, const VectorBox &cover) : PDFBrush(paint, cover) {}
    void write(PDFDocument &doc) override;
};
