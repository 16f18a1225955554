#include "draw/svg/SVGRadialGradientBrush.h"

#include "draw/svg/SVGElement.h"

void SVGRadialGradientBrush::write(std::string &defs, const std::string &id) const {
    double cx = paint.x1, cy = paint.y1, rx = paint.x2, ry = paint.y2;
    double k = paint.periodic ? paint.ramp.period() : 1;
    // The circle of radius rx stretched along y about the centre.
    Affine ellipse = Affine::translation(cx, cy)
                         .after(Affine::scaling(1, ry / rx))
                         .after(Affine::translation(-cx, -cy));
    SVGElement e(defs, "radialGradient", decimals);
    e.attr("id", id)
        .number("cx", cx)
        .number("cy", cy)
        .number("r", rx * k)
        .number("fx", cx)
        .number("fy", cy)
        .attr("spreadMethod", paint.periodic ? "repeat" : "pad")
        .attr("gradientUnits", "userSpaceOnUse");
    writeTransform(e, "gradientTransform", paint.transform.after(ellipse));
    e.open();
    writeStops(defs);
    defs += "</radialGradient>\n";
}
