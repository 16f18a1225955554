#pragma once

#include "draw/svg/SVGBrush.h"

// A radial gradient, or a lighting by the distance from a centre: a
// radialGradient of stops, squeezed to an ellipse when the radii differ.
class SVGRadialGradientBrush : public SVGBrush {
public:
    SVGRadialGradientBrush(const VectorPaint &paint, int decimals) : SVGBrush(paint, decimals) {}
    void write(std::string &defs, const std::string &id) const override;
};
