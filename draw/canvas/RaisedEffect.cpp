#include "draw/canvas/RaisedEffect.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"

namespace {

// Rims are translucent white or black over the fill, so they suit any colour.
const int kHighlight = (int)0x60FFFFFFu;
const int kShadow = (int)0x80000000u;
// Soft rims fade in over their first pixels, outermost first.
const int kSoftRimAlpha[4] = {184, 216, 240, 250};
// Glass: bright at the lit side, a little dark at the far side.
const int kGlassLighting[6] = {0, 2048, 128, 1024, 256, 768};

void quad(DrawArea *d, double ax, double ay, double bx, double by, double cx, double cy, double dx,
          double dy, int color) {
    const double x[4] = {ax, bx, cx, dx};
    const double y[4] = {ay, by, cy, dy};
    d->polygon(DoubleArray(x, 4), DoubleArray(y, 4), kTransparent, color);
}

}  // namespace

RaisedEffect::RaisedEffect(int w)
    : word(w),
      bits(w < 0 ? 0u - (unsigned)w : (unsigned)w),
      sunken(w < 0),
      flat(Chart::isFlatBorder(w)),
      softRim(false),
      glass(0),
      light(kTopSide),
      rimFlags(0) {
    unsigned a = bits;
    if (Chart::isCylinderEffect(w) || Chart::isBarLighting(w)) return;
    softRim = (a & 0x2000) != 0;
    glass = (a >> 16) & 3;
    // Lighting comes from the glare side: top, left, bottom, right.
    static const Side kSides[4] = {kTopSide, kLeftSide, kBottomSide, kRightSide};
    light = kSides[(a >> 18) & 3];
    rimFlags = (a >> 20) & 15;
}

int RaisedEffect::thickness(double width, double height) const {
    if (Chart::isCylinderEffect(word) || Chart::isBarLighting(word)) return 0;
    int t = bits & 0xFFF;
    if (bits & 0x1000) {
        double shorter = std::min(std::fabs(width), std::fabs(height));
        t = t <= 50 ? (int)(shorter * t / 100) : t - 50;
    }
    return t;
}

bool RaisedEffect::isHighlight(Side side) const {
    // Without flags the top and left catch the light; sunken swaps them.
    bool lit = rimFlags ? (rimFlags >> side & 1) != 0 : side == kTopSide || side == kLeftSide;
    return sunken ? !lit : lit;
}

void RaisedEffect::paint(DrawArea *d, double x1, double y1, double x2, double y2, int edgeColor,
                         int fillColor) const {
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    int t = thickness(x2 - x1 + 1, y2 - y1 + 1);
    if (flat) {
        d->rect(x1, y1, x2, y2, kTransparent, fillColor, 0);
        const int radius[4] = {0, 0, 0, 0};
        d->frameRect(x1, y1, x2, y2, radius, std::max(t, 1), edgeColor);
        return;
    }
    d->rect(x1, y1, x2, y2, edgeColor, fillWithLighting(d, x1, y1, x2, y2, fillColor), 0);
    // Rims sit inside the edge line.
    bool hasEdge = d->getARGBColor(edgeColor) != kTransparent;
    double inset = hasEdge ? 1 : 0;
    x1 += inset, y1 += inset, x2 -= inset, y2 -= inset;
    t = std::min(t, (int)std::min((x2 - x1 + 1) / 2, (y2 - y1 + 1) / 2));
    if (t > 0) {
        if (softRim)
            paintSoftRims(d, x1, y1, x2, y2, t);
        else
            paintRims(d, x1, y1, x2, y2, t);
    }
    if (glass >= 2) paintGlare(d, x1, y1, x2, y2);
}

int RaisedEffect::fillWithLighting(DrawArea *d, double x1, double y1, double x2, double y2,
                                   int fillColor) const {
    if (d->getARGBColor(fillColor) == kTransparent) return fillColor;
    if (Chart::isBarLighting(word)) {
        int table[4];
        Chart::getBarLighting(table, word, 1.0);
        return d->linearLightingColor(x1, y1, x1, y2, fillColor, IntArray(table, 4), false);
    }
    if (Chart::isCylinderEffect(word)) {
        // A vertical cylinder is lit across its width, a horizontal one across its height.
        bool across = Chart::getCylinderOrientation(word) != 8;
        std::vector<int> table;
        // Seen straight on, the profile is symmetric about the cylinder's axis.
        Chart::getShearedCylinderLighting(table, word, 1, 0);
        if (table.empty()) return fillColor;
        IntArray lighting(table.data(), (int)table.size());
        return across ? d->linearLightingColor(x1, y1, x2, y1, fillColor, lighting, false)
                      : d->linearLightingColor(x1, y1, x1, y2, fillColor, lighting, false);
    }
    if (glass == 0) return fillColor;
    IntArray lighting(kGlassLighting, 6);
    switch (light) {
        case kLeftSide:
            return d->linearLightingColor(x1, y1, x2, y1, fillColor, lighting, false);
        case kBottomSide:
            return d->linearLightingColor(x1, y2, x1, y1, fillColor, lighting, false);
        case kRightSide:
            return d->linearLightingColor(x2, y1, x1, y1, fillColor, lighting, false);
        default:
            return d->linearLightingColor(x1, y1, x1, y2, fillColor, lighting, false);
    }
}

// Four trapezoids, mitred at the corners, so no pixel is painted twice.
void RaisedEffect::paintRims(DrawArea *d, double x1, double y1, double x2, double y2, int t) const {
    double l = x1 - 0.5, r = x2 + 0.5, top = y1 - 0.5, b = y2 + 0.5;
    auto color = [this](Side s) { return isHighlight(s) ? kHighlight : kShadow; };
    quad(d, l, top, r, top, r - t, top + t, l + t, top + t, color(kTopSide));
    quad(d, r, top, r, b, r - t, b - t, r - t, top + t, color(kRightSide));
    quad(d, r, b, l, b, l + t, b - t, r - t, b - t, color(kBottomSide));
    quad(d, l, b, l, top, l + t, top + t, l + t, b - t, color(kLeftSide));
}

void RaisedEffect::paintSoftRims(DrawArea *d, double x1, double y1, double x2, double y2,
                                 int t) const {
    for (int k = 0; k < t; ++k) {
        int alpha = kSoftRimAlpha[std::min(k, 3)] << 24;
        double l = x1 - 0.5 + k, r = x2 + 0.5 - k, top = y1 - 0.5 + k, b = y2 + 0.5 - k;
        auto color = [&](Side s) { return alpha | (isHighlight(s) ? 0xFFFFFF : 0); };
        quad(d, l, top, r, top, r - 1, top + 1, l + 1, top + 1, color(kTopSide));
        quad(d, r, top, r, b, r - 1, b - 1, r - 1, top + 1, color(kRightSide));
        quad(d, r, b, l, b, l + 1, b - 1, r - 1, b - 1, color(kBottomSide));
        quad(d, l, b, l, top, l + 1, top + 1, l + 1, b - 1, color(kLeftSide));
    }
}

// A translucent white band over part of the box at the lit side.
void RaisedEffect::paintGlare(DrawArea *d, double x1, double y1, double x2, double y2) const {
    double share = glass == 2 ? 0.35 : 0.48;
    double w = x2 - x1 + 1, h = y2 - y1 + 1;
    double l = x1 - 0.5, top = y1 - 0.5, r = x2 + 0.5, b = y2 + 0.5;
    int strong = (int)0x50FFFFFFu, faint = (int)0xD0FFFFFFu;
    int c;
    switch (light) {
        case kLeftSide:
            r = l + w * share;
            c = d->linearGradientColor((int)l, (int)top, (int)r, (int)top, strong, faint, false);
            break;
        case kRightSide:
            l = r - w * share;
            c = d->linearGradientColor((int)r, (int)top, (int)l, (int)top, strong, faint, false);
            break;
        case kBottomSide:
            top = b - h * share;
            c = d->linearGradientColor((int)l, (int)b, (int)l, (int)top, strong, faint, false);
            break;
        default:
            b = top + h * share;
            c = d->linearGradientColor((int)l, (int)top, (int)l, (int)b, strong, faint, false);
    }
    quad(d, l, top, r, top, r, b, l, b, c);
}
