#include "families/pie/shape/SectorShading.h"

#include <algorithm>

#include "draw/canvas/DrawArea.h"
#include "families/pie/shape/SectorGeometry.h"
#include "families/pie/shape/SectorOutline.h"
#include "families/pie/shape/SectorPaintStyle.h"

namespace {

const int R = SectorShading::kInnerRatioStop;
const int H = SectorShading::kHalfwayStop;

struct ShadingRow {
    SectorShading::Effect effect;
    int stopCount;
    int stops[8];
};

// By shading method, kDefaultShading (0) to kRingShading (8).
const ShadingRow kShadings[] = {
    {SectorShading::kPlain, 0, {}},
    {SectorShading::kPlain, 0, {}},
    {SectorShading::kLocalGradient, 4, {0, 512, 64, 768, 192, 1440, 256, 2560}},
    {SectorShading::kGlobalGradient, 4, {0, 512, 64, 768, 192, 1440, 256, 2560}},
    {SectorShading::kConcave, 3, {0, 820, 128, 1024, 256, 4096}},
    {SectorShading::kRadial, 4, {0, 1024, 216, 1024, 236, 1536, 256, 512}},
    {SectorShading::kRadialGlare, 4, {0, 1024, 216, 1024, 236, 1536, 256, 512}},
    {SectorShading::kRadial, 3, {0, 1536, R, 1536, 256, 720}},
    {SectorShading::kRadial, 4, {0, 512, R, 512, H, 1280, 256, 512}},
};
const int kShadingCount = (int)(sizeof(kShadings) / sizeof(kShadings[0]));
const int kRim = 256;

}  // namespace

SectorShading::SectorShading(int method) {
    const ShadingRow &row = kShadings[method >= 0 && method < kShadingCount ? method : 0];
    effect = row.effect;
    stopCount = row.stopCount;
    stopTable = row.stops;
}

std::vector<int> SectorShading::stops(int innerRatio) const {
    std::vector<int> pairs(stopTable, stopTable + 2 * stopCount);
    for (int i = 0; i < 2 * stopCount; i += 2) {
        if (pairs[i] == kInnerRatioStop) pairs[i] = innerRatio;
        if (pairs[i] == kHalfwayStop) pairs[i] = (innerRatio + kRim) / 2;
    }
    return pairs;
}

void SectorShading::verticalExtent(const SectorGeometry &g, double *top, double *bottom) {
    std::vector<double> x, y;
    SectorOutline::closed(g, g.rx, g.ry, g.innerRx, g.innerRy, x, y);
    *top = *std::min_element(y.begin(), y.end());
    *bottom = *std::max_element(y.begin(), y.end());
}

int SectorShading::fill(DrawArea *d, const SectorGeometry &g, const SectorPaintStyle &s) const {
    int ratio = g.innerRx * kRim / std::max(g.rx, 1);
    std::vector<int> pairs = stops(ratio);
    IntArray lighting(pairs.data(), (int)pairs.size());
    double top = s.pieTop, bottom = s.pieBottom;
    switch (effect) {
        case kLocalGradient:
            verticalExtent(g, &top, &bottom);
            // The light falls from above: the top of the gradient is its bright end.
            return d->linearLightingColor(g.x, bottom, g.x, top, s.color, lighting, false);
        case kGlobalGradient:
            return d->linearLightingColor(g.x, bottom, g.x, top, s.color, lighting, false);
        case kRadial:
        case kConcave:
        case kRadialGlare:
            return d->radialLightingColor(g.x, g.y, g.rx, g.ry, s.color, lighting);
        default:
            return s.color;
    }
}
