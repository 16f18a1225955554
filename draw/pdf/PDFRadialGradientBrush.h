#pragma once

#include "draw/pdf/PDFBrush.h"

// A radial gradient, or a lighting by the distance from a centre: a radial
// shading of circles, squeezed to an ellipse by the pattern's matrix.
class PDFRadialGradientBrush : public PDFBrush {
public:
    PDFRadialGradientBrush(const VectorPaint &paint, const VectorBox &cover)
        : PDFBrush(paint, cover) {}
    void write(PDFDocument &doc) override;
};
