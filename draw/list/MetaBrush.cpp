#include "draw/list/MetaBrush.h"

#include <algorithm>
#include <cmath>

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaOpcodes.h"

namespace {

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

void MetaRecordBrush::emitRecord(MetaDrawImpl *target, unsigned opcode,
                                 std::initializer_list<RecordArg> args) {
    const MetaRecordInfo *info = findMetaOpcode(opcode);
    std::vector<int> encoded;
    if (!info || !encodeRecordArgs(encoded, info->format, args.begin(), (int)args.size())) return;
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
    emitRecord(target, kOpDashLineColor,
               {RecordArg::word(handle), RecordArg::word(c), RecordArg::integer(pattern)});
}

void MetaBrightnessAdjustmentBrush::emit(MetaDrawImpl *target, int, int) {
    int c = target->registerColor(source);
    emitRecord(target, kOpAdjustBrightness,
               {RecordArg::word(handle), RecordArg::word(c), RecordArg::number(factor)});
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
    emitRecord(
        target, sized ? kOpLinearGradientColor : kOpRelativeLinearGradientColor,
        {RecordArg::word(handle), RecordArg::number(box[0] * w), RecordArg::number(box[1] * h),
         RecordArg::number(box[2] * w), RecordArg::number(box[3] * h), RecordArg::boolean(periodic),
         RecordArg::words(p.data(), (int)p.size())});
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
    emitRecord(target, sized ? kOpLinearLightingColor : kOpRelativeLinearLightingColor,
               {RecordArg::word(handle), RecordArg::word(c), RecordArg::number(box[0] * w),
                RecordArg::number(box[1] * h), RecordArg::number(box[2] * w),
                RecordArg::number(box[3] * h), RecordArg::boolean(periodic),
                RecordArg::ints(lighting.data(), (int)lighting.size())});
}

void MetaXYZoneBrush::emit(MetaDrawImpl *target, int, int) {
    int b = target->registerColor(before);
    int a = target->registerColor(after);
    int boundary = roundToInt(scale ? scale->toPixel(value) : value);
    emitRecord(target, kOpZoneColor,
               {RecordArg::word(handle), RecordArg::boolean(vertical), RecordArg::integer(boundary),
                RecordArg::word(b), RecordArg::word(a)});
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
    emitRecord(target, kOpLinearGradientColor,
               {RecordArg::word(handle), RecordArg::number(vertical ? 0 : p0),
                RecordArg::number(vertical ? p0 : 0), RecordArg::number(x2), RecordArg::number(y2),
                RecordArg::boolean(false), RecordArg::words(pairs.data(), (int)pairs.size())});
}
