#include "draw/vector/ColorRamp.h"

#include <algorithm>
#include <cstdlib>

#include "draw/pixel/PixelBlend.h"
#include "draw/raster/brush/GradientBrushes.h"
#include "draw/raster/brush/LightingBrushes.h"

namespace {

int channel(unsigned c, int shift) {
    return (int)((c >> shift) & 255);
}

// An invisible entry takes the colour of its nearest visible neighbour, so that
// a fade runs through the colour and not through black.
std::vector<int> withVisibleColors(const std::vector<int> &in) {
    std::vector<int> out(in);
    int n = (int)in.size();
    for (int i = 0; i < n; ++i) {
        if (!PixelBlend::isInvisible((unsigned)in[i])) continue;
        for (int d = 1; d < n; ++d) {
            int k = i - d >= 0 && !PixelBlend::isInvisible((unsigned)in[i - d])  ? i - d
                    : i + d < n && !PixelBlend::isInvisible((unsigned)in[i + d]) ? i + d
                                                                                 : -1;
            if (k < 0) continue;
            out[i] = (int)PixelBlend::withAlpha((unsigned)in[k], 255);
            break;
        }
    }
    return out;
}

// True when the straight mix from entry i to entry j stays near every entry between.
bool fits(const std::vector<int> &e, int i, int j, int tolerance) {
    for (int k = i + 1; k < j; ++k) {
        double t = (double)(k - i) / (j - i);
        for (int shift = 0; shift < 32; shift += 8) {
            double a = channel((unsigned)e[i], shift), b = channel((unsigned)e[j], shift);
            if (std::abs(a + (b - a) * t - channel((unsigned)e[k], shift)) > tolerance)
                return false;
        }
    }
    return true;
}

}  // namespace

ColorRamp ColorRamp::ofGradient(const int *pairs, int n) {
    int last = BaseGradientBrush::lastPosition(pairs, n);
    int entries = std::min(std::max(last + 1, 256), kMaxEntries);
    std::vector<int> table;
    BaseGradientBrush::buildTable(pairs, n, entries, table);
    return ColorRamp(std::move(table));
}

ColorRamp ColorRamp::ofLighting(int color, const int *lighting, int n) {
    LightingTable light(lighting, n);
    std::vector<int> table(LightingTable::kEntries);
    for (int i = 0; i < LightingTable::kEntries; ++i) table[i] = light.apply(color, i);
    return ColorRamp(std::move(table));
}

bool ColorRamp::hasAlpha() const {
    for (int c : table)
        if (PixelBlend::alphaOf((unsigned)c) != 0) return true;
    return false;
}

ColorRamp ColorRamp::brightened(int k) const {
    std::vector<int> out(table);
    for (int &c : out) c = (int)PixelBlend::adjustBrightness((unsigned)c, k);
    return ColorRamp(std::move(out));
}

double ColorRamp::period() const {
    int n = size();
    return n > 1 ? (double)n / (n - 1) : 1;
}

std::vector<GradientStop> ColorRamp::stops(bool periodic, int tolerance) const {
    std::vector<GradientStop> out;
    int n = size();
    if (n == 0) return out;
    std::vector<int> e = withVisibleColors(table);
    double span = periodic ? n : std::max(n - 1, 1);
    int i = 0;
    out.push_back(GradientStop{0, e[0]});
    while (i < n - 1) {
        // The farthest entry the straight mix from entry i can reach, found by
        // halving: a smooth ramp takes one long look.
        int lo = i + 1, hi = n - 1;
        while (lo < hi) {
            int mid = (lo + hi + 1) / 2;
            if (fits(e, i, mid, tolerance))
                lo = mid;
            else
                hi = mid - 1;
        }
        out.push_back(GradientStop{lo / span, e[lo]});
        i = lo;
    }
    if (periodic) out.push_back(GradientStop{1, e[n - 1]});
    return out;
}

std::vector<int> ColorRamp::samples(bool periodic) const {
    std::vector<int> out = withVisibleColors(table);
    if (periodic && !out.empty()) out.push_back(out.back());
    return out;
}
