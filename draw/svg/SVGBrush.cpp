#include "draw/svg/SVGBrush.h"

#include "draw/svg/SVGElement.h"
#include "draw/svg/SVGGradientBrush.h"
#include "draw/svg/SVGPatternBrush.h"
#include "draw/svg/SVGRadialGradientBrush.h"
#include "draw/vector/NumberText.h"

namespace {

// Levels a straight mix between two stops may miss a ramp entry by.
const int kStopTolerance = 2;
// Transforms keep more digits than coordinates: they multiply.
const int kTransformDecimals = 6;

}  // namespace

SVGBrush *SVGBrush::create(const VectorPaint &paint, int decimals) {
    switch (paint.kind) {
        case VectorPaint::kLinear:
            return new SVGGradientBrush(paint, decimals);
        case VectorPaint::kRadial:
            return new SVGRadialGradientBrush(paint, decimals);
        case VectorPaint::kImage:
            return new SVGPatternBrush(paint, decimals);
        case VectorPaint::kSolid:
            break;
    }
    return nullptr;
}

void SVGBrush::writeStops(std::string &defs) const {
    for (const GradientStop &s : paint.ramp.stops(paint.periodic, kStopTolerance)) {
        SVGElement stop(defs, "stop", 4);
        stop.number("offset", s.offset).color("stop-color", s.color);
        int alpha = ColorWord::alphaByte(s.color);
        if (alpha) stop.number("stop-opacity", (255 - alpha) / 255.0);
        stop.close();
    }
}

void SVGBrush::writeTransform(SVGElement &e, const char *name, const Affine &map) const {
    if (map.isIdentity()) return;
    std::string v = "matrix(";
    NumberText::appendMatrix(v, map, kTransformDecimals);
    v += ')';
    e.raw(name, v);
}
