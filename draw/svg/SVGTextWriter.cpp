#include "draw/svg/SVGTextWriter.h"

#include <cmath>
#include <vector>

#include "draw/svg/SVGElement.h"
#include "draw/vector/Affine.h"
#include "draw/vector/GlyphStretches.h"
#include "draw/vector/NumberText.h"

namespace {

const int kTransformDecimals = 6;

bool isUpright(const double m[4]) {
    return m[0] == 1 && m[1] == 0 && m[2] == 0 && m[3] == 1;
}

bool isRotation(const double m[4]) {
    return std::fabs(m[0] - m[3]) < 1e-9 && std::fabs(m[1] + m[2]) < 1e-9 &&
           std::fabs(m[0] * m[0] + m[2] * m[2] - 1) < 1e-9;
}

}  // namespace

std::string SVGTextWriter::styleOf(const GlyphFont &font) {
    std::string s = "font-family:'";
    // The name sits in single quotes inside an attribute in double quotes.
    std::string name;
    SVGElement::appendEscaped(name, font.familyName ? font.familyName : "");
    for (size_t at = name.find("&#39;"); at != std::string::npos; at = name.find("&#39;", at))
        name.replace(at, 5, "\\'");
    s += name;
    s += "';font-size:";
    NumberText::appendInt(s, font.pixelSize);
    s += "px";
    if (font.italic) s += ";font-style:italic";
    if (font.bold) s += ";font-weight:bold";
    s += ';';
    return s;
}

std::string SVGTextWriter::transformOf(const GlyphText &text, double widthScale) const {
    const double *m = text.matrix;
    if (widthScale == 1 && isUpright(m)) return std::string();
    std::string v;
    if (widthScale == 1 && isRotation(m)) {
        v = "rotate(";
        NumberText::append(v, -text.angle(), kTransformDecimals);
        v += ' ';
        NumberText::appendInt(v, text.originX);
        v += ' ';
        NumberText::appendInt(v, text.originY);
        v += ')';
        return v;
    }
    Affine frame(m[0] * widthScale, m[1], m[2] * widthScale, m[3], text.originX, text.originY);
    v = "matrix(";
    NumberText::appendMatrix(v, frame, kTransformDecimals);
    return v + ")";
}

void SVGTextWriter::write(const GlyphText &text, const GlyphRun &run) {
    GlyphStretches::forEach(text, run,
                            [&](int first, int end) { writeStretch(text, run, first, end); });
}

void SVGTextWriter::writeStretch(const GlyphText &text, const GlyphRun &run, int first, int end) {
    std::vector<int> chars;
    for (int i = first; i < end; ++i) {
        const PlacedGlyph &g = text.glyphs[i];
        if (run.rightToLeft) {
            chars.push_back(g.drawnChar);
            continue;
        }
        for (int k = 0; k < g.charCount; ++k) {
            int c = g.firstChar + k;
            if (c >= 0 && c < (int)text.chars.size()) chars.push_back(text.chars[c]);
        }
    }
    std::string content;
    SVGElement::appendCharacters(content, chars.data(), (int)chars.size());
    if (content.empty()) return;

    double ws =
        run.font.widthScale > 0 && std::isfinite(run.font.widthScale) ? run.font.widthScale : 1;
    std::string transform = transformOf(text, ws);
    const PlacedGlyph &g0 = text.glyphs[first], &last = text.glyphs[end - 1];
    // Upright and turned text stand at their canvas place; a general frame holds its own.
    bool framed = !transform.empty() && transform[0] == 'm';
    double x = framed ? g0.x / ws : text.originX + g0.x;
    double y = framed ? g0.y : text.originY + g0.y;

    SVGElement e(out, "text", decimals);
    e.style(styleOf(run.font)).number("x", x).number("y", y).append(fill);
    if (!transform.empty()) e.raw("transform", transform);
    if (precise) e.number("textLength", (last.x + last.advance - g0.x) / ws);
    e.open();
    if (run.rightToLeft) out += "<tspan style='unicode-bidi:bidi-override;direction:ltr'>";
    out += content;
    if (run.rightToLeft) out += "</tspan>";
    out += "</text>\n";
}
