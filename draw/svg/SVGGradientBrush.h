#pragma once

#include "draw/svg/SVGBrush.h"

// A linear gradient, or a lighting along a line, as a linearGradient of stops.
class SVGGradientBrush : public SVGBrush {
public:
    SVGGradientBrush(const VectorPaint &paint, int decimals) : SVGBrush(paint, decimals) {}
    void write(std::string &defs, const std::string &id) const override;
};
