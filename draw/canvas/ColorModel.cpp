#include "draw/canvas/ColorModel.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "draw/list/MetaDraw.h"
#include "draw/pixel/ColorWords.h"
#include "draw/pixel/PixelBlend.h"
#include "foundation/Constants.h"
#include "foundation/Numeric.h"

namespace {

constexpr int kUnchanged = 1024;
// Integers of a gradient array that are looked at.
constexpr int kMaxGradientInts = 512;
constexpr int kGradientEnd = 256;
// Key space of the derived-colour cache: metal codes are keyed by the code
// itself, brightness adjustments by factor and source under this flag.
constexpr unsigned long long kBrightnessKey = 0x1000000000000000ull;
// Factors beyond this make black or white already; the limit keeps the factor
// clear of the key flag.
constexpr int kMaxBrightness = 1 << 24;
constexpr unsigned long long kEmptyKey = 0;

// The lighting that gives a flat colour its metal look.
const int kMetalLighting[] = {0, 1024, 48, 2048, 128, 4096, 208, 2048, 256, 1024};
// Stripe strengths of the brushed textures 1 to 3.
const int kBrushStrength[] = {0, 24, 36, 48};

int brightnessFactor(double brightness) {
    if (std::isnan(brightness)) return kUnchanged;
    double k = std::floor(1024 * brightness + 0.5);
    if (k < -1) return -1;
    if (k > kMaxBrightness) return kMaxBrightness;
    return (int)k;
}

// The unit vector of an angle in degrees (0 to the right, 90 down), exact on
// the axes.
// A colour placed by numbers that are not finite is no colour.
bool allFinite(std::initializer_list<double> values) {
    for (double v : values)
        if (!std::isfinite(v)) return false;
    return true;
}

bool allFinite(const double m[6]) {
    return m && allFinite({m[0], m[1], m[2], m[3], m[4], m[5]});
}

void unitVector(double angle, double &dx, double &dy) {
    dx = qlx::cosDegree(angle);
    dy = qlx::cosDegree(angle - 90);
}

bool hasTransparentTop(int word) {
    return ((unsigned)word >> 24) == 0xFFu;
}

}  // namespace

ColorModel::ColorModel(MetaDraw *list) : metaDraw(list), nextDynColor(0), freeDynColorSlot(-1) {}

// ---- palette -------------------------------------------------------------

void ColorModel::setColorTable(int index, int color) {
    setColorTable(&color, 1, index);
}

void ColorModel::setColorTable(IntArray colors, int offset) {
    setColorTable(colors.data, colors.len, offset);
}

int ColorModel::growTable(int offset, int count) {
    offset &= 0xFFFF;
    if (count <= 0 || offset >= kMaxColorTableSize) return offset;
    int end = (int)std::min<long long>((long long)offset + count, kMaxColorTableSize);
    if ((int)colorTable.size() < end) colorTable.resize(end, kTransparent);
    return end;
}

void ColorModel::setColorTable(const int *colors, int count, int offset) {
    if (!colors) return;
    int first = offset & 0xFFFF, end = growTable(offset, count);
    // One at a time, so an entry may refer to one stored just before it.
    for (int i = first; i < end; ++i) colorTable[i] = getARGBColor(colors[i - first]);
}

void ColorModel::setColorTableRaw(IntArray colors, int offset) {
    int first = offset & 0xFFFF, end = growTable(offset, colors.len);
    for (int i = first; i < end; ++i) colorTable[i] = colors.data[i - first];
}

int ColorModel::resolvePalette(int index) const {
    int size = (int)colorTable.size();
    if (index < size) return colorTable[index];
    if (size == 0) return index;
    // Data colours cycle without the fixed colours below kDataColor.
    const int firstData = kDataColor & 0xFFFF;
    if (size > firstData) return colorTable[firstData + (index - firstData) % (size - firstData)];
    return colorTable[index % size];
}

// ---- translation ---------------------------------------------------------

int ColorModel::getARGBColor(int color) {
    if (ColorWord::isMetalCode(color)) return decodeMetal(color);
    if (!ColorWord::isPaletteWord(color)) return color;
    if (color == kNoColor) return kTransparent;
    if (color & 0x8000) return color & 0xFFFF;
    return resolvePalette(color & 0xFFFF);
}

int *ColorModel::scratch(int n) {
    if ((int)tempColors.size() < n) tempColors.resize(std::max(n, 1024));
    return tempColors.data();
}

const int *ColorModel::mapColors(IntArray colors) {
    if (colors.len <= 0) return nullptr;
    int *out = scratch(colors.len);
    for (int i = 0; i < colors.len; ++i) out[i] = getARGBColor(colors.data[i]);
    return out;
}

const int *ColorModel::mapColorPairs(IntArray pairs) {
    if (pairs.len <= 0) return nullptr;
    int *out = scratch(pairs.len);
    for (int i = 0; i < pairs.len; ++i)
        out[i] = (i & 1) ? getARGBColor(pairs.data[i]) : pairs.data[i];
    return out;
}

bool ColorModel::isOpaque(int color) {
    return ColorWord::alphaByte(getARGBColor(color)) == 0;
}

bool ColorModel::isSpecialColor(int word) {
    return word != kTransparent && hasTransparentTop(word);
}

bool ColorModel::isLiveHandle(int word) const {
    return ColorWord::isDynamicHandle(word) && ColorWord::dynamicIndex(word) < nextDynColor;
}

// ---- brightness ----------------------------------------------------------

int ColorModel::halfColor(int color) {
    return adjustBrightness(color, 0.5);
}

int ColorModel::adjustBrightness(int color, double brightness) {
    int k = brightnessFactor(brightness);
    if (k == kUnchanged) return color;
    // Context colours are filled in at paint time: they stay symbolic.
    int word = ColorWord::isContextWord(color) ? color : getARGBColor(color);
    bool derived = ColorWord::isContextWord(word) || ColorWord::isDynamicHandle(word);
    if (!derived) return adjustBrightnessARGB(word, k);
    if (ColorWord::isDynamicHandle(word) && !isLiveHandle(word)) return kTransparent;
    unsigned long long key =
        ((unsigned long long)(unsigned)k << 32) | kBrightnessKey | (unsigned)word;
    int found = findDerived(key);
    if (found != kTransparent) return found;
    int handle = allocDynColor();
    if (handle == kTransparent) return kTransparent;
    if (metaDraw) metaDraw->defineBrightness(handle, word, k / 1024.0);
    addDerived(key, handle);
    return handle;
}

int ColorModel::adjustBrightnessARGB(int color, int k) {
    return (int)PixelBlend::adjustBrightness((unsigned)color, k);
}

// ---- handles and the derived cache ---------------------------------------

int ColorModel::allocDynColor() {
    int n = freeDynColorSlot;
    if (n < 0) {
        if (nextDynColor >= kMaxDynamicColors) return kTransparent;
        n = nextDynColor++;
    }
    freeDynColorSlot = -1;
    return kDynamicColorBase | n;
}

void ColorModel::freeDynColor(int handle) {
    if (!isLiveHandle(handle)) return;
    int n = ColorWord::dynamicIndex(handle);
    // A cached colour must not be handed out for a handle that is reused.
    for (DerivedColor &d : derivedColors)
        if (d.handle == handle) d = DerivedColor{kEmptyKey, kTransparent};
    if (n == nextDynColor - 1) {
        --nextDynColor;
        if (freeDynColorSlot >= nextDynColor) freeDynColorSlot = -1;
    } else {
        freeDynColorSlot = n;
    }
}

void ColorModel::reserveDynColor(int handle) {
    if (!ColorWord::isDynamicHandle(handle)) return;
    int n = ColorWord::dynamicIndex(handle);
    if (n >= nextDynColor) nextDynColor = n + 1;
    if (freeDynColorSlot == n) freeDynColorSlot = -1;
}

void ColorModel::cutBack(int dynColorMark, int derivedColorMark) {
    nextDynColor = std::max(0, std::min(nextDynColor, dynColorMark));
    if (freeDynColorSlot >= nextDynColor) freeDynColorSlot = -1;
    derivedColors.resize(std::max(derivedColorMark, 0), DerivedColor{kEmptyKey, kTransparent});
}

int ColorModel::findDerived(unsigned long long key) const {
    for (const DerivedColor &d : derivedColors)
        if (d.key == key) return d.handle;
    return kTransparent;
}

void ColorModel::addDerived(unsigned long long key, int handle) {
    derivedColors.push_back(DerivedColor{key, handle});
}

// ---- metal codes -----------------------------------------------------------

int ColorModel::decodeMetal(int code) {
    unsigned long long key = (unsigned)code;
    int found = findDerived(key);
    if (found != kTransparent) return found;

    int low = code & 0xFFFF;
    int base;
    if ((low >> 12) == 15) {
        int index = low & 0x7FF;
        if (low & 0x800) {
            base = resolvePalette(index);
        } else {
            base = kDynamicColorBase | index;
            if (!isLiveHandle(base)) return kTransparent;
        }
    } else {
        auto expand = [low](int shift) { return (unsigned)((low >> shift) & 0xF) * 17; };
        base = (int)((expand(12) << 24) | (expand(8) << 16) | (expand(4) << 8) | expand(0));
    }
    if (base == kTransparent || (hasTransparentTop(base) && !ColorWord::isDynamicHandle(base)))
        return kTransparent;

    double angle = ((code >> 16) & 3) * 45;
    int result = lightingColor(base, IntArray(kMetalLighting, 10), angle);
    int texture = (code >> 18) & 3;
    if (texture && result != kTransparent)
        result = brushedTextureColor(result, kBrushStrength[texture]);
    if (result != kTransparent) addDerived(key, result);
    return result;
}

// ---- constructors --------------------------------------------------------

namespace {

IntArray view(const std::vector<int> &v) {
    return IntArray(v.data(), (int)v.size());
}

}  // namespace

template <class Define>
int ColorModel::makeColor(Define define) {
    int handle = allocDynColor();
    if (handle != kTransparent && metaDraw) define(handle);
    return handle;
}

template <class Define>
int ColorModel::makeFromColor(int color, Define define) {
    int word = getARGBColor(color);
    if (word == kTransparent) return word;
    return makeColor([&](int handle) { define(handle, word); });
}

template <class Define>
int ColorModel::makeGradient(IntArray colors, Define define) {
    std::vector<int> pairs;
    if (colors.len < 4 || !toGradientPairs(colors, pairs)) return kTransparent;
    return makeColor([&](int handle) { define(handle, view(pairs)); });
}

template <class Define>
int ColorModel::makeLighting(int color, IntArray lighting, Define define) {
    int n = std::min(lighting.len, kMaxGradientInts) & ~1;
    int word = getARGBColor(color);
    if (word == kTransparent) return word;
    if (n < 4) return kTransparent;
    return makeColor([&](int handle) { define(handle, word, IntArray(lighting.data, n)); });
}

bool ColorModel::toGradientPairs(IntArray colors, std::vector<int> &pairs) {
    pairs.clear();
    int n = std::min(colors.len, kMaxGradientInts);
    if (n < 1) return false;
    if (n % 2 == 0) {
        pairs.assign(colors.data, colors.data + n);
    } else {
        // Colours alone: spread evenly from 0 to the end, a single one repeated.
        int steps = std::max(n - 1, 1);
        for (int i = 0; i <= steps; ++i) {
            pairs.push_back(kGradientEnd * i / steps);
            pairs.push_back(colors.data[std::min(i, n - 1)]);
        }
    }
    for (size_t i = 1; i < pairs.size(); i += 2) pairs[i] = getARGBColor(pairs[i]);
    return true;
}

int ColorModel::dashLineColor(int color, int pattern) {
    if (pattern == 0) return color;
    int word = ColorWord::isContextWord(color) ? color : getARGBColor(color);
    if (word == kTransparent) return word;
    return makeColor([&](int handle) { metaDraw->defineDash(handle, word, pattern); });
}

int ColorModel::patternColor(IntArray colors, int height, int startX, int startY) {
    if (colors.len < 1 || height < 1) return kTransparent;
    int width = colors.len / height;
    if (width == 0) {
        height = colors.len;
        width = 1;
    }
    std::vector<int> pixels(colors.data, colors.data + width * height);
    for (int &p : pixels) p = getARGBColor(p);
    return makeColor([&](int handle) {
        metaDraw->definePattern(handle, startX, startY, width, height, view(pixels));
    });
}

int ColorModel::patternColor(const char *file, int startX, int startY) {
    if (!file || !*file) return kTransparent;
    return makeColor(
        [&](int handle) { metaDraw->definePatternFile(handle, startX, startY, file); });
}

int ColorModel::gradientColor(int startX, int startY, int endX, int endY, int startColor,
                              int endColor) {
    int start = getARGBColor(startColor);
    if (start == getARGBColor(endColor)) return start;
    return linearGradientColor(startX, startY, endX, endY, startColor, endColor, false);
}

int ColorModel::gradientColor(IntArray colors, double angle, double scale, int startX, int startY) {
    if (!std::isfinite(angle) || !std::isfinite(scale)) return kTransparent;
    double dx, dy;
    unitVector(angle, dx, dy);
    double length = kGradientEnd * scale;
    double endX = startX + length * dx, endY = startY + length * dy;
    return makeGradient(colors, [&](int handle, IntArray pairs) {
        metaDraw->defineLinearGradient(handle, startX, startY, endX, endY, true, pairs);
    });
}

int ColorModel::linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                                    int endColor, bool periodic) {
    const int pairs[] = {0, startColor, kGradientEnd, endColor};
    return linearGradientColor(startX, startY, endX, endY, IntArray(pairs, 4), periodic);
}

int ColorModel::linearGradientColor(int startX, int startY, int endX, int endY, IntArray colors,
                                    bool periodic) {
    return makeGradient(colors, [&](int handle, IntArray pairs) {
        metaDraw->defineLinearGradient(handle, startX, startY, endX, endY, periodic, pairs);
    });
}

int ColorModel::radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                                    bool periodic) {
    const int pairs[] = {0, startColor, kGradientEnd, endColor};
    return radialGradientColor(cx, cy, rx, ry, IntArray(pairs, 4), periodic);
}

int ColorModel::radialGradientColor(int cx, int cy, int rx, int ry, IntArray colors,
                                    bool periodic) {
    return makeGradient(colors, [&](int handle, IntArray pairs) {
        metaDraw->defineRadialGradient(handle, cx, cy, rx, ry, periodic, pairs);
    });
}

int ColorModel::angleGradientColor(double cx, double cy, double startAngle, double endAngle,
                                   double innerRadius, double outerRadius, IntArray colors) {
    if (!allFinite({cx, cy, startAngle, endAngle, innerRadius, outerRadius})) return kTransparent;
    std::vector<int> pairs;
    if (!toGradientPairs(colors, pairs)) return kTransparent;
    if (colors.len < 4 || startAngle == endAngle) return pairs[1];
    return makeColor([&](int handle) {
        metaDraw->defineAngleGradient(handle, cx, cy, startAngle, endAngle, innerRadius,
                                      outerRadius, view(pairs));
    });
}

int ColorModel::lightingColor(int color, IntArray lighting, double angle) {
    if (!std::isfinite(angle)) return kTransparent;
    double dx, dy;
    unitVector(angle, dx, dy);
    return makeLighting(color, lighting, [&](int handle, int word, IntArray pairs) {
        metaDraw->defineLighting(handle, word, 0, 0, kGradientEnd * dx, kGradientEnd * dy, true,
                                 pairs);
    });
}

int ColorModel::linearLightingColor(double x1, double y1, double x2, double y2, int color,
                                    IntArray lighting, bool periodic) {
    if (!allFinite({x1, y1, x2, y2})) return kTransparent;
    return makeLighting(color, lighting, [&](int handle, int word, IntArray pairs) {
        metaDraw->defineLinearLighting(handle, word, x1, y1, x2, y2, periodic, pairs);
    });
}

int ColorModel::radialLightingColor(int cx, int cy, int rx, int ry, int color, IntArray lighting) {
    return makeLighting(color, lighting, [&](int handle, int word, IntArray pairs) {
        metaDraw->defineRadialLighting(handle, word, cx, cy, rx, ry, pairs);
    });
}

int ColorModel::relativeLightingColor(double x1, double y1, double x2, double y2, int color,
                                      IntArray lighting, bool periodic) {
    if (!allFinite({x1, y1, x2, y2})) return kTransparent;
    return makeLighting(color, lighting, [&](int handle, int word, IntArray pairs) {
        metaDraw->defineRelativeLighting(handle, word, x1, y1, x2, y2, periodic, pairs);
    });
}

int ColorModel::multiLayerColor(IntArray layers) {
    if (layers.len < 1) return kTransparent;
    if (layers.len == 1) return getARGBColor(layers.data[0]);
    std::vector<int> words(layers.data, layers.data + layers.len);
    for (int &w : words) w = getARGBColor(w);
    return makeColor([&](int handle) { metaDraw->defineMultiLayer(handle, view(words)); });
}

int ColorModel::brushedTextureColor(int color, int strength) {
    return makeFromColor(color, [&](int handle, int word) {
        metaDraw->defineBrushedTexture(handle, word, strength);
    });
}

int ColorModel::relativeLinearGradient(IntArray gradient, double angle, double radius) {
    if (!std::isfinite(angle) || !std::isfinite(radius)) return kTransparent;
    double dx, dy;
    unitVector(angle, dx, dy);
    // By default the gradient spans the canvas's extent along its direction.
    double half = radius < 0 ? 0.5 * (std::fabs(dx) + std::fabs(dy)) : radius;
    return makeGradient(gradient, [&](int handle, IntArray pairs) {
        metaDraw->defineRelativeGradient(handle, 0.5 - half * dx, 0.5 - half * dy, 0.5 + half * dx,
                                         0.5 + half * dy, false, pairs);
    });
}

int ColorModel::relativeRadialGradient(IntArray gradient, double radius, int width, int height) {
    if (!std::isfinite(radius) || radius > 1e9) return kTransparent;
    int r = radius < 0 ? std::min(width, height) / 2 : (int)std::floor(radius + 0.5);
    return radialGradientColor(width / 2, height / 2, r, r, gradient, false);
}

int ColorModel::xZoneColor(int boundary, int leftColor, int rightColor) {
    int left = getARGBColor(leftColor), right = getARGBColor(rightColor);
    return makeColor(
        [&](int handle) { metaDraw->defineZone(handle, false, boundary, left, right); });
}

int ColorModel::yZoneColor(int boundary, int topColor, int bottomColor) {
    int top = getARGBColor(topColor), bottom = getARGBColor(bottomColor);
    return makeColor(
        [&](int handle) { metaDraw->defineZone(handle, true, boundary, top, bottom); });
}

int ColorModel::transformedColor(int color, const double m[6]) {
    if (!allFinite(m)) return kTransparent;
    return makeFromColor(
        color, [&](int handle, int word) { metaDraw->defineTransformed(handle, word, m); });
}

int ColorModel::preciseTransformColor(int color, const double m[6]) {
    if (!allFinite(m)) return kTransparent;
    return makeFromColor(
        color, [&](int handle, int word) { metaDraw->definePreciseTransform(handle, word, m); });
}

int ColorModel::rectColor(double x1, double y1, double x2, double y2, int color) {
    if (!allFinite({x1, y1, x2, y2})) return kTransparent;
    return makeFromColor(
        color, [&](int handle, int word) { metaDraw->defineRect(handle, x1, y1, x2, y2, word); });
}
