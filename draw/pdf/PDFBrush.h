#pragma once

#include <string>
#include <vector>

#include "draw/vector/VectorBox.h"
#include "draw/vector/VectorPaint.h"

class PDFDocument;

// A paint that is not a plain colour, written once into a PDF file as a
// pattern: a shading for gradients and lit colours, a tiling of an image for
// pixel tiles.  A ramp that isn't opaque has a second pattern of the same
// geometry holding its opacity in grey, for the soft mask the caller builds.
class PDFBrush {
public:
    virtual ~PDFBrush() {}
    // The brush for `paint`, null for a plain colour.  `cover` is the box the
    // pattern must reach (a repeating ramp is written out that far).
    static PDFBrush *create(const VectorPaint &paint, const VectorBox &cover);
    // Writes the objects; afterwards the pattern ids are known.
    virtual void write(PDFDocument &doc) = 0;
    int colorPattern() const { return colorId; }
    // 0 when the paint is opaque.
    int alphaPattern() const { return alphaId; }

protected:
    PDFBrush(const VectorPaint &paint, const VectorBox &cover) : paint(paint), cover(cover) {}

    // A shading pattern of the paint's ramp: colours, or opacity in grey.
    // shading: the geometry entries (type, coordinates); periods: the ramp
    // repeats that many times over the domain [0, periods].
    int writeShading(PDFDocument &doc, const std::string &shading, int periods, bool opacity,
                     const Affine &matrix) const;
    // The cover box in the paint's own space, as the corners' coordinates.
    std::vector<double> coverCorners(const Affine &toPaint) const;
    static std::string matrixEntry(const Affine &m);

    const VectorPaint &paint;
    VectorBox cover;
    int colorId = 0, alphaId = 0;
};
