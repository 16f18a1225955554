#include "draw/pdf/PDFTextWriter.h"

#include <cmath>

#include "draw/pdf/PDFContent.h"
#include "draw/pdf/PDFFont.h"
#include "draw/vector/GlyphStretches.h"
#include "draw/vector/NumberText.h"

namespace {

// The shear of synthetic italic, as the raster's glyphs get it.
const double kItalicShear = 0.25;
// The stroke that thickens synthetic bold, in pixels.
const double kBoldStroke = 0.6;
// Adjustments below this (thousandths of the em) are not worth writing.
const double kSmallestAdjustment = 0.5;

}  // namespace

void PDFTextWriter::write(const GlyphText &text, const GlyphRun &run) {
    if (run.font.pixelSize <= 0) return;
    if (run.font.syntheticBold) {
        content.lineWidth(kBoldStroke);
        content.raw("2 Tr\n");
    }
    GlyphStretches::forEach(text, run,
                            [&](int first, int end) { writeStretch(text, run, first, end); });
    if (run.font.syntheticBold) content.raw("0 Tr\n");
}

void PDFTextWriter::writeStretch(const GlyphText &text, const GlyphRun &run, int first, int end) {
    double size = run.font.pixelSize;
    double ws =
        run.font.widthScale > 0 && std::isfinite(run.font.widthScale) ? run.font.widthScale : 1;
    const double *m = text.matrix;
    const PlacedGlyph &g0 = text.glyphs[first];
    // Text space (y up) to the frame (y down) to the canvas.
    double shear = run.font.syntheticItalic ? kItalicShear * ws : 0;
    double a = m[0] * ws, b = m[2] * ws, c = m[0] * shear - m[1], d = m[2] * shear - m[3];
    double e = text.originX + m[0] * g0.x + m[1] * g0.y;
    double f = text.originY + m[2] * g0.x + m[3] * g0.y;
    content.raw("BT\n" + fontName + " ");
    content.num(size).raw("Tf\n");
    content.textMatrix(Affine(a, c, b, d, e, f));
    bool hex = font.isHex();
    std::string array = hex ? "[<" : "[(";
    for (int i = first; i < end; ++i) {
        const PlacedGlyph &g = text.glyphs[i];
        font.addGlyph(array, g, text, run.rightToLeft);
        double own = font.advanceOf(g);
        if (!precise || i + 1 == end || own < 0) continue;
        double wanted = (text.glyphs[i + 1].x - g.x) / (size * ws) * 1000;
        double adjust = own - wanted;
        if (std::fabs(adjust) < kSmallestAdjustment) continue;
        array += hex ? ">" : ")";
        NumberText::appendInt(array, (long long)std::floor(adjust + 0.5));
        array += hex ? "<" : "(";
    }
    array += hex ? ">] TJ\nET\n" : ")] TJ\nET\n";
    content.raw(array);
}
