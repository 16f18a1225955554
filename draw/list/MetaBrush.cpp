#include "draw/list/MetaBrush.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaOpcodes.h"

namespace {

// A relative gradient or lighting is written as its absolute kind once the
// canvas size is known: the two layouts must stay the same.
template <MetaOpcode a, MetaOpcode b>
constexpr bool sameLayout() {
    return std::is_same<typename MetaRecordKind<a>::Call, typename MetaRecordKind<b>::Call>::value;
}
static_assert(sameLayout<kOpLinearGradientColor, kOpRelativeLinearGradientColor>(), "");
static_assert(sameLayout<kOpLinearLightingColor, kOpRelativeLinearLightingColor>(), "");

std::vector<int> copyInts(IntArray a) {
    return a.len > 0 ? std::vector<int>(a.data, a.data + a.len) : std::vector<int>();
}

int roundToInt(double v) {
    if (!(v == v)) return 0;
    double r = std::floor(v + 0.5);
    if (r > 2147483647.0) return 2147483647;
    if (r < -2147483647.0) return -2147483647;
    return (int)r;
}

}  // namespace

void MetaRecordBrush::forgetFrom(int pos) {
    if (lastPos >= pos) lastPos = -1;
}

void MetaRecordBrush::emitWords(MetaDrawImpl *target, unsigned opcode, std::vector<int> &encoded) {
    bool stillThere = lastTarget == target && lastPos >= 0 && lastPos < target->readEnd();
    if (stillThere && opcode == lastOpcode && encoded == lastWords) return;
    lastPos = target->appendRecord(opcode, encoded.data(), (int)encoded.size());
    lastTarget = target;
    lastOpcode = opcode;
    lastWords.swap(encoded);
}

RegisterDependentBrush::RegisterDependentBrush(IntArray colors) : colors(copyInts(colors)) {}

void RegisterDependentBrush::emit(MetaDrawImpl *target, int, int) {
    for (int c : colors) target->registerColor(c);
}

void MetaDashLineBrush::emit(MetaDrawImpl *target, int, int) {
    int c = target->registerColor(color);
    emitRecord<kOpDashLineColor>(target, handle, c, pattern);
}

void MetaBrightnessAdjustmentBrush::emit(MetaDrawImpl *target, int, int) {
    int c = target->registerColor(source);
    emitRecord<kOpAdjustBrightness>(target, handle, c, factor);
}

MetaRelativeLinearGradientBrush::MetaRelativeLinearGradientBrush(int handle, const double box[4],
                                                                 bool periodic, IntArray pairs)
    : handle(handle),
      box{box[0], box[1], box[2], box[3]},
      periodic(periodic),
      pairs(copyInts(pairs)) {}

void MetaRelativeLinearGradientBrush::emit(MetaDrawImpl *target, int widthHint, int heightHint) {
    std::vector<int> p = target->registerPairs(IntArray(pairs.data(), (int)pairs.size()));
    bool sized = widthHint > 0 && heightHint > 0;
    double w = sized ? widthHint : 1, h = sized ? heightHint : 1;
    std::vector<int> encoded;
    MetaRecordKind<kOpLinearGradientColor>::Call::encode(encoded, handle, box[0] * w, box[1] * h,
                                                         box[2] * w, box[3] * h, periodic,
                                                         IntArray(p.data(), (int)p.size()));
    emitWords(target, sized ? kOpLinearGradientColor : kOpRelativeLinearGradientColor, encoded);
}

MetaRelativeLinearLightingBrush::MetaRelativeLinearLightingBrush(int handle, int color,
                                                                 const double box[4], bool periodic,
                                                                 IntArray lighting)
    : handle(handle),
      color(color),
      box{box[0], box[1], box[2], box[3]},
      periodic(periodic),
      lighting(copyInts(lighting)) {}

void MetaRelativeLinearLightingBrush::emit(MetaDrawImpl *target, int widthHint, int heightHint) {
    int c = target->registerColor(color);
    bool sized = widthHint > 0 && heightHint > 0;
    double w = sized ? widthHint : 1, h = sized ? heightHint : 1;
    std::vector<int> encoded;
    MetaRecordKind<kOpLinearLightingColor>::Call::encode(
        encoded, handle, c, box[0] * w, box[1] * h, box[2] * w, box[3] * h, periodic,
        IntArray(lighting.data(), (int)lighting.size()));
    emitWords(target, sized ? kOpLinearLightingColor : kOpRelativeLinearLightingColor, encoded);
}

void MetaXYZoneBrush::emit(MetaDrawImpl *target, int, int) {
    int b = target->registerColor(before);
    int a = target->registerColor(after);
    int boundary = roundToInt(scale ? scale->toPixel(value) : value);
    emitRecord<kOpZoneColor>(target, handle, vertical, boundary, b, a);
}

MetaScaleColorBrush::MetaScaleColorBrush(int handle, const MetaDraw::PixelScale *scale,
                                         bool vertical, DoubleArray values, IntArray colors)
    : handle(handle), scale(scale), vertical(vertical), colors(copyInts(colors)) {
    if (values.len > 0) this->values.assign(values.data, values.data + values.len);
}

void MetaScaleColorBrush::emit(MetaDrawImpl *target, int, int) {
    size_t n = std::min(values.size(), colors.size());
    std::vector<double> pixels(n);
    for (size_t i = 0; i < n; ++i) pixels[i] = scale ? scale->toPixel(values[i]) : values[i];
    double p0 = n > 0 ? pixels[0] : 0;
    double span = n > 1 ? pixels[n - 1] - p0 : 0;
    if (!(std::fabs(span) >= 1e-9)) span = 1;
    std::vector<int> pairs;
    pairs.reserve(2 * n);
    for (size_t i = 0; i < n; ++i) {
        double t = (pixels[i] - p0) / span;
        pairs.push_back(roundToInt(256 * std::min(std::max(t, 0.0), 1.0)));
        pairs.push_back(target->registerColor(colors[i]));
    }
    double x2 = vertical ? 0 : p0 + span, y2 = vertical ? p0 + span : 0;
    emitRecord<kOpLinearGradientColor>(target, handle, vertical ? 0 : p0, vertical ? p0 : 0, x2, y2,
                                       false, IntArray(pairs.data(), (int)pairs.size()));
}
