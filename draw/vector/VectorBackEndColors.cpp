// The colour records of the vector outputs: each is played on the sampling
// raster as well, then turned into a paint.
#include <cstdlib>

#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageSniffer.h"
#include "draw/vector/VectorBackEnd.h"

namespace {

// Pattern files larger than this are not read.
const long long kMaxPatternFile = 64LL << 20;

}  // namespace

void VectorBackEnd::setSubDrawMode() {}

void VectorBackEnd::adjustBrightness(int handle, int source, double factor) {
    sampler.colorRecords()->adjustBrightness(handle, source, factor);
    resolver.defineBrightness(handle, source, factor);
}

void VectorBackEnd::transformedColor(int handle, int source, const double (&m)[6]) {
    sampler.colorRecords()->transformedColor(handle, source, m);
    resolver.defineTransform(handle, source, m);
}

void VectorBackEnd::preciseTransformColor(int handle, int source, const double (&m)[6]) {
    sampler.colorRecords()->preciseTransformColor(handle, source, m);
    resolver.defineTransform(handle, source, m);
}

void VectorBackEnd::brushedTextureColor(int handle, int color, int texture) {
    sampler.colorRecords()->brushedTextureColor(handle, color, texture);
    resolver.defineMetal(handle, color);
}

void VectorBackEnd::multiLayerColor(int handle, IntArray layers) {
    sampler.colorRecords()->multiLayerColor(handle, layers);
    resolver.defineLayers(handle, layers.data, layers.len);
}

void VectorBackEnd::dashLineColor(int handle, int color, int pattern) {
    sampler.colorRecords()->dashLineColor(handle, color, pattern);
    resolver.defineDash(handle, color, pattern);
}

void VectorBackEnd::linearGradientColor(int handle, double x1, double y1, double x2, double y2,
                                        bool periodic, IntArray pairs) {
    sampler.colorRecords()->linearGradientColor(handle, x1, y1, x2, y2, periodic, pairs);
    resolver.defineLinear(handle, x1, y1, x2, y2, periodic,
                          ColorRamp::ofGradient(pairs.data, pairs.len));
}

void VectorBackEnd::radialGradientColor(int handle, int cx, int cy, int rx, int ry, bool periodic,
                                        IntArray pairs) {
    sampler.colorRecords()->radialGradientColor(handle, cx, cy, rx, ry, periodic, pairs);
    resolver.defineRadial(handle, cx, cy, rx, ry, periodic,
                          ColorRamp::ofGradient(pairs.data, pairs.len));
}

void VectorBackEnd::angleGradientColor(int handle, double cx, double cy, double startAngle,
                                       double endAngle, double innerRadius, double outerRadius,
                                       IntArray pairs) {
    sampler.colorRecords()->angleGradientColor(handle, cx, cy, startAngle, endAngle, innerRadius,
                                               outerRadius, pairs);
    resolver.defineSampled(handle);
}

void VectorBackEnd::relativeLinearGradientColor(int handle, double x1, double y1, double x2,
                                                double y2, bool periodic, IntArray pairs) {
    double w = surfaceWidth(), h = surfaceHeight();
    linearGradientColor(handle, x1 * w, y1 * h, x2 * w, y2 * h, periodic, pairs);
}

void VectorBackEnd::lightingColor(int handle, int color, double x1, double y1, double x2, double y2,
                                  bool periodic, IntArray lighting) {
    sampler.colorRecords()->lightingColor(handle, color, x1, y1, x2, y2, periodic, lighting);
    resolver.defineLighting(handle, color, x1, y1, x2, y2, periodic, lighting.data, lighting.len);
}

void VectorBackEnd::linearLightingColor(int handle, int color, double x1, double y1, double x2,
                                        double y2, bool periodic, IntArray lighting) {
    lightingColor(handle, color, x1, y1, x2, y2, periodic, lighting);
}

void VectorBackEnd::radialLightingColor(int handle, int color, int cx, int cy, int rx, int ry,
                                        IntArray lighting) {
    sampler.colorRecords()->radialLightingColor(handle, color, cx, cy, rx, ry, lighting);
    resolver.defineRadialLighting(handle, color, cx, cy, rx, ry, lighting.data, lighting.len);
}

void VectorBackEnd::relativeLinearLightingColor(int handle, int color, double x1, double y1,
                                                double x2, double y2, bool periodic,
                                                IntArray lighting) {
    double w = surfaceWidth(), h = surfaceHeight();
    lightingColor(handle, color, x1 * w, y1 * h, x2 * w, y2 * h, periodic, lighting);
}

void VectorBackEnd::patternColor(int handle, int startX, int startY, int width, int height,
                                 IntArray pixels) {
    sampler.colorRecords()->patternColor(handle, startX, startY, width, height, pixels);
    resolver.definePattern(handle, startX, startY, width, height, pixels.data, pixels.len);
}

void VectorBackEnd::patternColor2(int handle, int startX, int startY, const char *fileName) {
    std::vector<char> bytes = ImageDecoder::readFile(fileName, kMaxPatternFile);
    int w = 0, h = 0;
    int *decoded = nullptr;
    if (!bytes.empty()) {
        int type = ImageSniffer::getType((int)bytes.size(),
                                         reinterpret_cast<const unsigned char *>(bytes.data()));
        if (type >= 0)
            decoded = ImageDecoder::decodeAllocated(bytes.data(), (int)bytes.size(), type, &w, &h);
    }
    int count = decoded ? w * h : 0;
    // The raster gets the decoded pixels: the file is read once.
    patternColor(handle, startX, startY, w, h, IntArray(decoded, count));
    std::free(decoded);
}

void VectorBackEnd::zoneColor(int handle, bool vertical, int boundary, int before, int after) {
    sampler.colorRecords()->zoneColor(handle, vertical, boundary, before, after);
    resolver.defineZone(handle, vertical, boundary, before, after);
}

void VectorBackEnd::rectColor(int handle, double x1, double y1, double x2, double y2, int color) {
    sampler.colorRecords()->rectColor(handle, x1, y1, x2, y2, color);
    resolver.defineRect(handle, x1, y1, x2, y2, color);
}
