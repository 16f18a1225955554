#pragma once

#include "draw/svg/SVGBrush.h"

// A tile of pixels (a pattern colour, brushed metal, or what the raster paints
// under an element) as a pattern holding one PNG image.
class SVGPatternBrush : public SVGBrush {
public:
    SVGPatternBrush(const VectorPaint &paint, int decimals) : SVGBrush(paint, decimals) {}
    void write(std::string &defs, const std::string &id) const override;
};
