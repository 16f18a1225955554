#include "draw/pdf/PDFGradientBrush.h"

#include <algorithm>
#include <cmath>

#include "draw/vector/NumberText.h"

namespace {

// More periods than this and the ramp holds its end colours beyond.
const int kMaxPeriods = 1024;
const int kDecimals = 4;

}  // namespace

void PDFGradientBrush::write(PDFDocument &doc) {
    double x1 = paint.x1, y1 = paint.y1;
    double ux = paint.x2 - x1, uy = paint.y2 - y1;
    int first = 0, periods = 1;
    if (paint.periodic) {
        double k = paint.ramp.period();
        ux *= k, uy *= k;
        Affine toPaint;
        double len2 = ux * ux + uy * uy;
        if (len2 > 0 && paint.transform.inverse(toPaint)) {
            std::vector<double> xy = coverCorners(toPaint);
            double lo = 1e300, hi = -1e300;
            for (size_t i = 0; i < xy.size(); i += 2) {
                double t = ((xy[i] - x1) * ux + (xy[i + 1] - y1) * uy) / len2;
                lo = std::min(lo, t), hi = std::max(hi, t);
            }
            first = (int)std::max(std::floor(lo), -1e6);
            periods = (int)std::min(std::max(std::ceil(hi) - first, 1.0), (double)kMaxPeriods);
        }
    }
    std::string shading = "/ShadingType 2/Coords[";
    const double coords[4] = {x1 + first * ux, y1 + first * uy, x1 + (first + periods) * ux,
                              y1 + (first + periods) * uy};
    for (int i = 0; i < 4; ++i) {
        if (i) shading += ' ';
        NumberText::append(shading, coords[i], kDecimals);
    }
    shading += "]";
    colorId = writeShading(doc, shading, periods, false, paint.transform);
    if (paint.ramp.hasAlpha()) alphaId = writeShading(doc, shading, periods, true, paint.transform);
}
