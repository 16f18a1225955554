#include "draw/pdf/PDFBrush.h"

#include "draw/pdf/PDFDocument.h"
#include "draw/pdf/PDFGradientBrush.h"
#include "draw/pdf/PDFPatternBrush.h"
#include "draw/pdf/PDFRadialGradientBrush.h"
#include "draw/vector/NumberText.h"

namespace {

const int kMatrixDecimals = 10;

}  // namespace

PDFBrush *PDFBrush::create(const VectorPaint &paint, const VectorBox &cover) {
    switch (paint.kind) {
        case VectorPaint::kLinear:
            return new PDFGradientBrush(paint, cover);
        case VectorPaint::kRadial:
            return new PDFRadialGradientBrush(paint, cover);
        case VectorPaint::kImage:
            return new PDFPatternBrush(paint, cover);
        case VectorPaint::kSolid:
            break;
    }
    return nullptr;
}

std::string PDFBrush::matrixEntry(const Affine &m) {
    std::string s = "/Matrix[";
    NumberText::appendMatrix(s, m, kMatrixDecimals);
    return s + "]";
}

std::vector<double> PDFBrush::coverCorners(const Affine &toPaint) const {
    std::vector<double> xy;
    const double corners[4][2] = {{cover.left, cover.top},
                                  {cover.right, cover.top},
                                  {cover.right, cover.bottom},
                                  {cover.left, cover.bottom}};
    for (const auto &c : corners) {
        double x, y;
        toPaint.apply(c[0], c[1], &x, &y);
        xy.push_back(x), xy.push_back(y);
    }
    return xy;
}

int PDFBrush::writeShading(PDFDocument &doc, const std::string &shading, int periods, bool opacity,
                           const Affine &matrix) const {
    std::vector<int> samples = paint.ramp.samples(paint.periodic);
    std::string bytes;
    for (int c : samples) {
        unsigned u = (unsigned)c;
        if (opacity) {
            bytes += (char)(255 - (u >> 24));
        } else {
            bytes += (char)(u >> 16), bytes += (char)(u >> 8), bytes += (char)u;
        }
    }
    std::string size;
    NumberText::appendInt(size, (long long)samples.size());
    int sampled = doc.newObject();
    doc.setStream(sampled,
                  "/FunctionType 0/Domain[0 1]/Range[" +
                      std::string(opacity ? "0 1" : "0 1 0 1 0 1") + "]/Size[" + size +
                      "]/BitsPerSample 8",
                  bytes);
    int function = sampled;
    std::string domain = "[0 1]";
    if (periods > 1) {
        // One copy of the ramp for each period, end to end.
        std::string n, functions, bounds, encode;
        NumberText::appendInt(n, periods);
        for (int k = 0; k < periods; ++k) {
            functions += PDFDocument::reference(sampled) + " ";
            if (k) NumberText::appendInt(bounds, k), bounds += ' ';
            encode += "0 1 ";
        }
        domain = "[0 " + n + "]";
        function = doc.newObject();
        doc.setDictionary(function, "/FunctionType 3/Domain" + domain + "/Functions[" + functions +
                                        "]/Bounds[" + bounds + "]/Encode[" + encode + "]");
    }
    int shadingId = doc.newObject();
    doc.setDictionary(shadingId, shading + "/Domain" + domain + "/Extend[true true]/ColorSpace/" +
                                     (opacity ? "DeviceGray" : "DeviceRGB") + "/Function " +
                                     PDFDocument::reference(function));
    int patternId = doc.newObject();
    doc.setDictionary(patternId, "/PatternType 2/Shading " + PDFDocument::reference(shadingId) +
                                     matrixEntry(matrix));
    return patternId;
}
