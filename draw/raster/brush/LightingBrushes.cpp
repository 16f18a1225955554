#include "draw/raster/brush/LightingBrushes.h"

#include <algorithm>
#include <cmath>

#include "draw/pixel/PixelBlend.h"
#include "draw/raster/brush/GradientBrushes.h"

namespace {

long long roundLL(double v) {
    return (long long)std::floor(v + 0.5);
}

int clampByte(int v) {
    return v < 0 ? 0 : (v > 255 ? 255 : v);
}

}  // namespace

LightingTable::LightingTable(const int *lighting, int n)
    : offsets(kEntries, 0), factors(kEntries, 1024) {
    int count = lighting ? std::min(std::max(n, 0), 512) / 2 : 0;
    if (count == 0) return;
    int last = lighting[2 * (count - 1)];
    std::vector<int> pos(count);
    for (int k = 0; k < count; ++k) {
        long long p = last > 0 ? roundLL((double)lighting[2 * k] * (kEntries - 1) / last) : 0;
        pos[k] = (int)std::min<long long>(std::max<long long>(p, k ? pos[k - 1] : 0), 255);
    }
    int k = 0;
    for (int i = 0; i < kEntries; ++i) {
        if (i <= pos[0] || i >= pos[count - 1]) {
            setBrightness(i, lighting[i <= pos[0] ? 1 : 2 * count - 1]);
            continue;
        }
        while (pos[k + 1] <= i) ++k;
        long long b0 = lighting[2 * k + 1], b1 = lighting[2 * k + 3];
        int span = pos[k + 1] - pos[k];
        setBrightness(i, b0 + (b1 - b0) * (i - pos[k]) / span);
    }
}

void LightingTable::setBrightness(int i, long long b) {
    if (b <= 1024) {
        factors[i] = (int)std::max(b, 0LL);
        offsets[i] = 0;
    } else {
        offsets[i] = (int)(255 - 261120 / b);
        factors[i] = (int)(1048576 / b);
    }
}

int LightingTable::apply(int c, int i) const {
    unsigned u = (unsigned)c;
    if (PixelBlend::isInvisible(u)) return kTransparent;
    int f = factors[i], o = offsets[i];
    unsigned r = clampByte((int)((((u >> 16) & 255) * f) >> 10) + o);
    unsigned g = clampByte((int)((((u >> 8) & 255) * f) >> 10) + o);
    unsigned b = clampByte((int)(((u & 255) * f) >> 10) + o);
    return (int)((u & 0xFF000000u) | (r << 16) | (g << 8) | b);
}

LightingBrush::LightingBrush(BrushHost *host, int color, double x1, double y1, double x2, double y2,
                             bool periodic, const int *lighting, int n)
    : ColorBrush(color), host(host), table(lighting, n), periodic(periodic), dx(0), dy(0) {
    double ex = x2 - x1, ey = y2 - y1, len2 = ex * ex + ey * ey;
    if (len2 > 0) {
        dx = BaseGradientBrush::limitedStep(4096.0 * 255 * ex / len2);
        dy = BaseGradientBrush::limitedStep(4096.0 * 255 * ey / len2);
    }
    offset = BaseGradientBrush::limitedOffset(-(x1 * dx + y1 * dy));
}

int LightingBrush::colorAt(int x, int y) {
    long long i = (x * dx + y * dy + offset) >> 12;
    i = periodic ? (i & 255) : std::min<long long>(std::max<long long>(i, 0), 255);
    return table.apply(host->resolveColor(color, x, y), (int)i);
}

RadialLightingBrush::RadialLightingBrush(BrushHost *host, int color, int cx, int cy, int rx, int ry,
                                         const int *lighting, int n)
    : ColorBrush(color), host(host), table(lighting, n), cx(cx), cy(cy) {
    kx = 1044480 / std::max(rx, 1);
    ky = 1044480 / std::max(ry, 1);
}

int RadialLightingBrush::colorAt(int x, int y) {
    long long X = (((long long)x - cx) * kx) >> 12, Y = (((long long)y - cy) * ky) >> 12;
    int i = (int)std::min(std::floor(std::sqrt((double)X * X + (double)Y * Y) + 0.5), 255.0);
    return table.apply(host->resolveColor(color, x, y), i);
}

namespace {

const int kStripeRows = 128;
const int kStripeCols = 256;
const int kStripeBlur = 15;

// Random rows blurred along x with a wrapping box kernel: long thin streaks.
struct StripeTexture {
    unsigned char v[kStripeRows][kStripeCols];
    StripeTexture() {
        unsigned seed = 0x2545F491u;
        int raw[kStripeCols];
        for (int y = 0; y < kStripeRows; ++y) {
            for (int x = 0; x < kStripeCols; ++x) {
                seed = seed * 1103515245u + 12345u;
                raw[x] = (int)((seed >> 16) & 255);
            }
            seed = seed * 1103515245u + 12345u;
            int rowLevel = (int)((seed >> 16) & 127) - 64;
            for (int x = 0; x < kStripeCols; ++x) {
                int sum = 0;
                for (int t = -kStripeBlur; t <= kStripeBlur; ++t)
                    sum += raw[(x + t + kStripeCols) % kStripeCols];
                int value = sum / (2 * kStripeBlur + 1) + rowLevel;
                v[y][x] = (unsigned char)clampByte(128 + 2 * (value - 128));
            }
        }
    }
};

}  // namespace

MetalTextureBrush::MetalTextureBrush(BrushHost *host, int color, int texture)
    : ColorBrush(color), host(host), strength(strengthOf(texture)) {}

int MetalTextureBrush::strengthOf(int texture) {
    static const int kStrengths[4] = {0, 24, 36, 48};
    if (texture >= 0 && texture <= 3) return kStrengths[texture];
    return std::min(texture, 1024);
}

int MetalTextureBrush::stripeAt(int x, int y) {
    static const StripeTexture texture;
    return texture.v[y & (kStripeRows - 1)][x & (kStripeCols - 1)];
}

int MetalTextureBrush::colorAt(int x, int y) {
    int c = host->resolveColor(color, x, y);
    int k = 1024 + (stripeAt(x, y) - 128) * strength / 32;
    return (int)PixelBlend::adjustBrightness((unsigned)c, k);
}
