#include "draw/svg/SVGGradientBrush.h"

#include "draw/svg/SVGElement.h"

void SVGGradientBrush::write(std::string &defs, const std::string &id) const {
    // A repeating ramp runs one period, a little longer than the gradient.
    double k = paint.periodic ? paint.ramp.period() : 1;
    SVGElement e(defs, "linearGradient", decimals);
    e.attr("id", id)
        .number("x1", paint.x1)
        .number("y1", paint.y1)
        .number("x2", paint.x1 + (paint.x2 - paint.x1) * k)
        .number("y2", paint.y1 + (paint.y2 - paint.y1) * k)
        .attr("spreadMethod", paint.periodic ? "repeat" : "pad")
        .attr("gradientUnits", "userSpaceOnUse");
    writeTransform(e, "gradientTransform", paint.transform);
    e.open();
    writeStops(defs);
    defs += "</linearGradient>\n";
}
