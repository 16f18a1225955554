#include "draw/canvas/ColorEffects.h"

#include <algorithm>
#include <cmath>

#include "draw/canvas/Palettes.h"
#include "draw/canvas/TextAntiAlias.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace Chart {

namespace {

constexpr int kMaxThickness = 4095;
constexpr int kCylinderMask = (int)0xE0000000u;
constexpr int kDefaultOrientation = 5;

// abs() that can't overflow, limited to `limit`.
int absAtMost(int v, int limit) {
    long long a = v < 0 ? -(long long)v : v;
    return (int)std::min<long long>(a, limit);
}

// An 8-bit component reduced to 4 bits, to the nearest.
int toNibble(int color, int shift) {
    return (int)((((unsigned)color >> shift) & 0xFF) + 8) / 17;
}

int intensityAt(int word, int shift) {
    return (word >> shift) & 0xFF;
}

}  // namespace

int encodeIntensity(double v) {
    // Infinity, and NaN with it, takes the top of the upper code space.
    if (std::isnan(v) || std::isinf(v)) return v < 0 ? 0 : 228;
    if (v > 1) return (int)std::floor(-128 / v + 128 + 0.5) + 100;
    if (v <= 0) return 0;
    return (int)std::floor(100 * v + 0.5);
}

double decodeIntensity(int code) {
    if (code < 101) return code / 100.0;
    return 128 / std::max(228.0 - code, 0.1);
}

int flatBorder(int thickness) {
    int w = 0x600000 | absAtMost(thickness, kMaxThickness);
    return thickness < 0 ? -w : w;
}

bool isFlatBorder(int word) {
    unsigned a = word < 0 ? 0u - (unsigned)word : (unsigned)word;
    return (a & 0xF02000u) == 0x600000u;
}

int glassEffect(int glareSize, int glareDirection, int raisedEffect) {
    int direction = 0;
    if (glareDirection == kLeft)
        direction = 4;
    else if (glareDirection == kBottom)
        direction = 8;
    else if (glareDirection == kRight)
        direction = 12;
    int size = std::min(std::max(glareSize, 0), 3);
    int thickness = 0;
    if (raisedEffect > 0)
        thickness = raisedEffect > kMaxThickness - 50 ? kMaxThickness : raisedEffect + 50;
    else if (raisedEffect < 0)
        thickness = absAtMost(raisedEffect, 50);
    return thickness | 0x903000 | ((direction + size) << 16);
}

int softLighting(int direction, int raisedEffect) {
    int glareDirection = kBottom;
    if (direction == kLeft)
        glareDirection = kRight;
    else if (direction == kBottom)
        glareDirection = kTop;
    else if (direction == kRight)
        glareDirection = kLeft;
    return glassEffect(kNoGlare, glareDirection, raisedEffect);
}

int encodeCylinderOrientation(int orientation) {
    static const int kCodes[] = {0x40000000, 0x60000000, 0x20000000, 0x60000000,
                                 0x20000000, 0x60000000, 0x40000000};
    if (orientation < 2 || orientation > 8) return 0x60000000;
    return kCodes[orientation - 2];
}

int cylinderEffect(int orientation, double ambientIntensity, double diffuseIntensity,
                   double specularIntensity, int shininess) {
    int s = std::min(std::max(shininess - 1, 0), 31);
    return encodeCylinderOrientation(orientation) | encodeIntensity(ambientIntensity) |
           (encodeIntensity(diffuseIntensity) << 8) | (encodeIntensity(specularIntensity) << 16) |
           (s << 24);
}

bool isCylinderEffect(int word) {
    return word > 0 && (word & kCylinderMask) != 0;
}

int getCylinderOrientation(int word) {
    int o = word & kCylinderMask;
    if (o == 0x20000000) return 4;
    if (o == 0x40000000) return 8;
    return kDefaultOrientation;
}

int phongLighting(double ambientIntensity, double diffuseIntensity, double specularIntensity,
                  int shininess) {
    return cylinderEffect(kDefaultOrientation, ambientIntensity, diffuseIntensity,
                          specularIntensity, shininess);
}

int setDefaultCylinderOrientation(int word, int orientation) {
    if (!isCylinderEffect(word) || getCylinderOrientation(word) != kDefaultOrientation) return word;
    return (word & ~kCylinderMask) | encodeCylinderOrientation(orientation);
}

void getPhongLighting(double values[4], int word) {
    values[0] = decodeIntensity(intensityAt(word, 0));
    values[1] = decodeIntensity(intensityAt(word, 8));
    values[2] = decodeIntensity(intensityAt(word, 16));
    values[3] = ((word >> 24) & 0x1F) + 1;
}

void getShearedCylinderLighting(std::vector<int> &table, int word, double dx, double dy) {
    table.clear();
    double r = std::sqrt(dx * dx + dy * dy);
    if (!(r > 0) || !std::isfinite(r)) return;
    double phong[4];
    getPhongLighting(phong, word);
    // The step count only needs to reach the 128 cap of n.
    int steps = std::max(2 * (int)std::ceil(std::min(r, 1e6)), 16);
    int n = steps / (steps / 128 + 1);
    table.reserve(2 * (n + 1));
    for (int k = 0; k <= n; ++k) {
        double t = 1 - 2.0 * k / n;
        double h2 = 1 - t * t;
        double h = h2 > 0 ? std::sqrt(h2) : 0;
        double x = t * dy / r + h * dx / r;
        double value = phong[0];
        if (x > 0) value += phong[1] * x;
        if (x > 0.707) value += phong[2] * std::pow(2 * x * x - 1, phong[3]);
        table.push_back(256 * k / n);
        table.push_back((int)std::floor(1024 * value + 0.5));
    }
}

int barLighting(double startBrightness, double endBrightness) {
    return 0x10000000 | encodeIntensity(startBrightness) | (encodeIntensity(endBrightness) << 8);
}

bool isBarLighting(int word) {
    return ((unsigned)word >> 28) == 1;
}

void getBarLighting(int table[4], int word, double scale) {
    double a = decodeIntensity(intensityAt(word, 0));
    double b = decodeIntensity(intensityAt(word, 8));
    double s = 1024 * scale;
    if (s < 0) {
        double start = a, end = b;
        a = (2 * start + end) / 3;
        b = (end + a) / 2;
        s = -s;
    }
    table[0] = 0;
    table[1] = (int)std::floor(b * s + 0.5);
    table[2] = 256;
    table[3] = (int)std::floor(a * s + 0.5);
}

int ClearTypeColor(double gamma) {
    return TextAntiAlias::clearTypeColor(gamma);
}

int ClearTypeMono(double gamma) {
    return TextAntiAlias::clearTypeMono(gamma);
}

int metalColor(int color, int angle) {
    int a = angle % 180;
    if (a < 0) a += 180;
    // Code 4 (near 180 degrees) is the same axis as 0; two bits are kept so
    // the texture bits above stay free.
    int code = (((a + 22) / 45) & 3) << 16;
    if (ColorWord::isDynamicHandle(color)) return (color & 0x7FF) | (int)0xFF80F000u | code;
    if (ColorWord::isPaletteWord(color)) {
        if (color == kNoColor) return kTransparent;
        if (!(color & 0x8000)) return (color & 0x7FF) | (int)0xFF80F800u | code;
        color &= 0xFFFF;
    }
    int t = toNibble(color, 24);
    if (t >= 15) return kTransparent;
    return kMetalColorBase | code | (t << 12) | (toNibble(color, 16) << 8) |
           (toNibble(color, 8) << 4) | toNibble(color, 0);
}

int goldColor(int angle) {
    return metalColor(goldGradient[1], angle);
}

int silverColor(int angle) {
    return metalColor(silverGradient[1], angle);
}

int brushedMetalColor(int color, int texture, int angle) {
    int m = metalColor(color, angle);
    if (m == kTransparent) return m;
    return m | (std::min(std::max(texture, 0), 3) << 18);
}

int brushedSilverColor(int texture, int angle) {
    return brushedMetalColor(silverGradient[1], texture, angle);
}

int brushedGoldColor(int texture, int angle) {
    return brushedMetalColor(goldGradient[1], texture, angle);
}

}  // namespace Chart
