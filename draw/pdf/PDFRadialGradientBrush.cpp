#include "draw/pdf/PDFRadialGradientBrush.h"

#include <algorithm>
#include <cmath>

#include "draw/vector/NumberText.h"

namespace {

const int kMaxPeriods = 1024;
const int kDecimals = 4;

}  // namespace

void PDFRadialGradientBrush::write(PDFDocument &doc) {
    double cx = paint.x1, cy = paint.y1, r = paint.x2;
    Affine ellipse = Affine::translation(cx, cy)
                         .after(Affine::scaling(1, paint.y2 / paint.x2))
                         .after(Affine::translation(-cx, -cy));
    Affine matrix = paint.transform.after(ellipse);
    int periods = 1;
    if (paint.periodic) {
        r *= paint.ramp.period();
        Affine toCircle;
        if (matrix.inverse(toCircle)) {
            std::vector<double> xy = coverCorners(toCircle);
            double far = 0;
            for (size_t i = 0; i < xy.size(); i += 2)
                far = std::max(far, std::hypot(xy[i] - cx, xy[i + 1] - cy));
            periods = (int)std::min(std::max(std::ceil(far / r), 1.0), (double)kMaxPeriods);
        }
    }
    std::string shading = "/ShadingType 3/Coords[";
    const double coords[6] = {cx, cy, 0, cx, cy, r * periods};
    for (int i = 0; i < 6; ++i) {
        if (i) shading += ' ';
        NumberText::append(shading, coords[i], kDecimals);
    }
    shading += "]";
    colorId = writeShading(doc, shading, periods, false, matrix);
    if (paint.ramp.hasAlpha()) alphaId = writeShading(doc, shading, periods, true, matrix);
}
