#pragma once

#include <string>

#include "draw/vector/VectorPaint.h"

// A paint that is not a plain colour, written once into the definitions of an
// SVG document and named by url(#id) wherever it is used: gradients, lit
// colours (as gradients of the lit colours) and pixel tiles.
class SVGBrush {
public:
    virtual ~SVGBrush() {}
    // The brush that writes `paint`; null for a plain colour.  The caller deletes it.
    static SVGBrush *create(const VectorPaint &paint, int decimals);
    virtual void write(std::string &defs, const std::string &id) const = 0;

protected:
    SVGBrush(const VectorPaint &paint, int decimals) : paint(paint), decimals(decimals) {}
    // The stop elements of the paint's ramp.
    void writeStops(std::string &defs) const;
    // The paint's own transform as an attribute, when it isn't the identity.
    void writeTransform(class SVGElement &e, const char *name, const Affine &map) const;

    const VectorPaint &paint;
    int decimals;
};
