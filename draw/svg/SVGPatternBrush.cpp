#include "draw/svg/SVGPatternBrush.h"

#include "draw/svg/SVGElement.h"
#include "draw/svg/SVGImageData.h"

void SVGPatternBrush::write(std::string &defs, const std::string &id) const {
    SVGElement e(defs, "pattern", decimals);
    e.attr("id", id)
        .attr("patternUnits", "userSpaceOnUse")
        .number("x", paint.x1)
        .number("y", paint.y1)
        .integer("width", paint.tileWidth)
        .integer("height", paint.tileHeight);
    writeTransform(e, "patternTransform", paint.transform);
    e.open();
    SVGElement image(defs, "image", decimals);
    image.integer("width", paint.tileWidth)
        .integer("height", paint.tileHeight)
        .attr("preserveAspectRatio", "none")
        .raw("xlink:href",
             SVGImageData::ofPixels(paint.pixels.data(), paint.tileWidth, paint.tileHeight));
    image.close();
    defs += "</pattern>\n";
}
