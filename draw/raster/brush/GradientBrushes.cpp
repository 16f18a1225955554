#include "draw/raster/brush/GradientBrushes.h"

#include <algorithm>
#include <cmath>

#include "draw/pixel/PixelBlend.h"

namespace {

const int kMaxPairInts = 512;

int pairCount(int n) {
    return std::min(std::max(n, 0), kMaxPairInts) / 2;
}

// An end colour that is fully transparent takes the other end's colour, so a
// fade changes only the alpha.
unsigned fadeEnd(unsigned self, unsigned other) {
    return PixelBlend::isInvisible(self) ? PixelBlend::withAlpha(other, 255) : self;
}

unsigned finalWord(unsigned c) {
    return PixelBlend::isInvisible(c) ? (unsigned)kTransparent : c;
}

long long roundLL(double v) {
    return (long long)std::floor(v + 0.5);
}

}  // namespace

long long BaseGradientBrush::limitedStep(double v) {
    if (!(v == v)) return 0;
    return (long long)std::floor(std::max(std::min(v, 1073741824.0), -1073741824.0) + 0.5);
}

long long BaseGradientBrush::limitedOffset(double v) {
    if (!(v == v)) return 0;
    const double limit = 2305843009213693952.0;  // 2^61
    return (long long)std::floor(std::max(std::min(v, limit), -limit));
}

int BaseGradientBrush::lastPosition(const int *pairs, int n) {
    int count = pairCount(n);
    return count > 0 ? pairs[2 * (count - 1)] : 0;
}

void BaseGradientBrush::buildTable(const int *pairs, int n, int entries, std::vector<int> &table) {
    table.assign(std::max(entries, 1), kTransparent);
    int count = pairs ? pairCount(n) : 0;
    if (count == 0) return;
    int last = pairs[2 * (count - 1)];
    std::vector<int> pos(count);
    for (int k = 0; k < count; ++k) {
        long long p = last > 0 ? roundLL((double)pairs[2 * k] * (entries - 1) / last) : 0;
        pos[k] = (int)std::min<long long>(std::max<long long>(p, 0), entries - 1);
    }
    for (int k = 1; k < count; ++k) pos[k] = std::max(pos[k], pos[k - 1]);
    int k = 0;
    for (int i = 0; i < entries; ++i) {
        if (i <= pos[0] || i >= pos[count - 1]) {
            table[i] = (int)finalWord((unsigned)pairs[i <= pos[0] ? 1 : 2 * count - 1]);
            continue;
        }
        while (pos[k + 1] <= i) ++k;
        unsigned c0 = (unsigned)pairs[2 * k + 1], c1 = (unsigned)pairs[2 * k + 3];
        int p0 = pos[k], span = pos[k + 1] - p0;
        unsigned w = (unsigned)(((i - p0) * 256 + span / 2) / span);
        table[i] = (int)finalWord(PixelBlend::mix256(fadeEnd(c0, c1), fadeEnd(c1, c0), w));
    }
}

int BaseGradientBrush::limitIndex(long long index) const {
    long long n = (long long)table.size();
    if (index >= 0 && index < n) return (int)index;
    if (periodic) return (int)(((index % n) + n) % n);
    return index < 0 ? 0 : (int)(n - 1);
}

int BaseGradientBrush::colorAt(int x, int y) {
    return table[indexAt(x, y)];
}

GradientBrush::GradientBrush(double x1, double y1, double x2, double y2, bool periodic,
                             const int *pairs, int n)
    : BaseGradientBrush(periodic), dx(0), dy(0), offset(0) {
    buildTable(pairs, n, 256, table);
    double ex = x2 - x1, ey = y2 - y1, len2 = ex * ex + ey * ey;
    if (len2 > 0) {
        dx = limitedStep(4096.0 * 255 * ex / len2);
        dy = limitedStep(4096.0 * 255 * ey / len2);
    }
    offset = limitedOffset(-(x1 * dx + y1 * dy));
}

int GradientBrush::indexAt(int x, int y) const {
    return limitIndex((x * dx + y * dy + offset) >> 12);
}

void GradientBrush::fillSpan(BrushHost *target, int x1, int x2, int y, int *out, int outIndex) {
    long long acc = x1 * dx + y * dy + offset;
    int *p = out + outIndex;
    if (!target->allowsDirectStores()) {
        for (int x = x1; x <= x2; ++x, acc += dx)
            target->blendInto(p + (x - x1), x, y, table[limitIndex(acc >> 12)]);
        return;
    }
    // Table entries are plain colours: blend them in place.
    for (int x = x1; x <= x2; ++x, acc += dx, ++p) {
        long long i = acc >> 12;
        unsigned c = (unsigned)table[i >= 0 && i < 256 ? (int)i : limitIndex(i)];
        *p = (int)PixelBlend::blendStored((unsigned)*p, c);
    }
}

PreciseGradientBrush::PreciseGradientBrush(double x1, double y1, double x2, double y2,
                                           bool periodic, const int *pairs, int n)
    : BaseGradientBrush(periodic), dx(0), dy(0), offset(0) {
    double ex = x2 - x1, ey = y2 - y1, len2 = ex * ex + ey * ey;
    int limit = (ex == 0 || ey == 0) ? kMaxEntries : kMaxSlantedEntries;
    double wanted = std::ceil(std::sqrt(len2)) + 1;
    int entries = wanted < limit ? (int)wanted : limit;
    buildTable(pairs, n, std::max(entries, 2), table);
    if (len2 > 0) {
        double steps = 65536.0 * (double)(table.size() - 1) / len2;
        dx = limitedStep(steps * ex);
        dy = limitedStep(steps * ey);
    }
    offset = limitedOffset(-(x1 * dx + y1 * dy));
}

int PreciseGradientBrush::indexAt(int x, int y) const {
    return limitIndex((x * dx + y * dy + offset) >> 16);
}

ColorBrush *createLinearGradient(double x1, double y1, double x2, double y2, bool periodic,
                                 const int *pairs, int n) {
    if (BaseGradientBrush::lastPosition(pairs, n) > 256)
        return new PreciseGradientBrush(x1, y1, x2, y2, periodic, pairs, n);
    return new GradientBrush(x1, y1, x2, y2, periodic, pairs, n);
}

RadialGradientBrush::RadialGradientBrush(int cx, int cy, int rx, int ry, bool periodic,
                                         const int *pairs, int n)
    : BaseGradientBrush(periodic), cx(cx), cy(cy) {
    buildTable(pairs, n, 256, table);
    kx = roundLL(4096.0 * 255 / std::max(rx, 1));
    ky = roundLL(4096.0 * 255 / std::max(ry, 1));
}

int RadialGradientBrush::indexAt(int x, int y) const {
    long long X = (((long long)x - cx) * kx) >> 12, Y = (((long long)y - cy) * ky) >> 12;
    double r2 = (double)X * X + (double)Y * Y;
    if (r2 < 64960) return (int)std::floor(std::sqrt(r2) + 0.5);
    if (!periodic) return 255;
    return (int)((long long)std::floor(std::sqrt(r2) + 0.5) & 255);
}

PreciseRadialGradientBrush::PreciseRadialGradientBrush(int cx, int cy, int rx, int ry,
                                                       bool periodic, const int *pairs, int n)
    : BaseGradientBrush(periodic), cx(cx), cy(cy) {
    int entries = (int)std::min<long long>((long long)std::max(std::max(rx, ry), 1) + 1,
                                           PreciseGradientBrush::kMaxEntries);
    buildTable(pairs, n, entries, table);
    kx = roundLL(65536.0 * (entries - 1) / std::max(rx, 1));
    ky = roundLL(65536.0 * (entries - 1) / std::max(ry, 1));
}

int PreciseRadialGradientBrush::indexAt(int x, int y) const {
    double X = (double)((((long long)x - cx) * kx) >> 16),
           Y = (double)((((long long)y - cy) * ky) >> 16);
    return limitIndex((long long)std::floor(std::min(std::sqrt(X * X + Y * Y) + 0.5, 1e15)));
}

ColorBrush *createRadialGradient(int cx, int cy, int rx, int ry, bool periodic, const int *pairs,
                                 int n) {
    if (std::max(rx, ry) > 255)
        return new PreciseRadialGradientBrush(cx, cy, rx, ry, periodic, pairs, n);
    return new RadialGradientBrush(cx, cy, rx, ry, periodic, pairs, n);
}

AngleGradientBrush::AngleGradientBrush(double cx, double cy, double startAngle, double endAngle,
                                       double innerRadius, double outerRadius, const int *pairs,
                                       int n)
    : BaseGradientBrush(false), cx(cx), cy(cy), r1(innerRadius), r2(outerRadius) {
    buildTable(pairs, n, 1000, table);
    if (!std::isfinite(cx) || !std::isfinite(cy)) this->cx = this->cy = 0, r1 = HUGE_VAL;
    if (!std::isfinite(startAngle) || !std::isfinite(endAngle)) startAngle = endAngle = 0;
    double a1 = std::min(startAngle, endAngle), a2 = std::max(startAngle, endAngle);
    start = (int)std::floor(std::fmod(a1, 360.0) * 1000 + 0.5);
    sweep = (int)std::min(std::floor((a2 - a1) * 1000 + 0.5), 360000.0);
    k = sweep > 0 ? roundLL(65536.0 * 999 / sweep) : 0;
}

int AngleGradientBrush::indexAt(int x, int y) const {
    int angle = (int)std::floor(57295.77951308238 * std::atan2(x - cx, cy - y) + 0.5);
    int a = ((angle - start) % 360000 + 360000) % 360000;
    if (a <= sweep) return (int)std::min<long long>((a * k) >> 16, 999);
    int gap = 360000 - sweep;
    return a - sweep > gap / 2 ? 0 : 999;
}

int AngleGradientBrush::colorAt(int x, int y) {
    double ddx = x - cx, ddy = y - cy, r = std::sqrt(ddx * ddx + ddy * ddy);
    if (r < r1 || (r2 > 0 && r > r2)) return kTransparent;
    return table[indexAt(x, y)];
}
