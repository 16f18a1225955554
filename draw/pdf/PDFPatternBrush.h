#pragma once

#include "draw/pdf/PDFBrush.h"

// A tile of pixels as a tiling pattern that paints one image.
class PDFPatternBrush : public PDFBrush {
public:
    PDFPatternBrush(const VectorPaint &paint, const VectorBox &cover) : PDFBrush(paint, cover) {}
    void write(PDFDocument &doc) override;
};
