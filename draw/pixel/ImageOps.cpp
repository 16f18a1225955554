#include "draw/pixel/ImageOps.h"

#include <algorithm>
#include <cmath>

#include "draw/pixel/ColorWords.h"

namespace {

const double kPi = 3.14159265358979;

double sinc(double x) {
    if (x == 0) return 1;
    double px = kPi * x;
    return std::sin(px) / px;
}

double cubicBC(double x, double b, double c) {
    x = std::fabs(x);
    if (x < 1)
        return ((12 - 9 * b - 6 * c) * x * x * x + (-18 + 12 * b + 6 * c) * x * x + (6 - 2 * b)) /
               6;
    if (x < 2)
        return ((-b - 6 * c) * x * x * x + (6 * b + 30 * c) * x * x + (-12 * b - 48 * c) * x +
                (8 * b + 24 * c)) /
               6;
    return 0;
}

// Support and weight of each filter, in the order of the filter numbers.
struct FilterDef {
    double support;
    double (*weight)(double x);
};

const double kWindow = 3;

const FilterDef kFilters[ImageOps::kFilterCount] = {
    {0.5, [](double x) { return std::fabs(x) <= 0.5 ? 1.0 : 0.0; }},
    {1.0, [](double x) { return std::max(0.0, 1 - std::fabs(x)); }},
    {1.5,
     [](double x) {
         x = std::fabs(x);
         if (x < 0.5) return 0.75 - x * x;
         if (x < 1.5) return 0.5 * (x - 1.5) * (x - 1.5);
         return 0.0;
     }},
    {2.0, [](double x) { return cubicBC(x, 1, 0); }},
    {1.0,
     [](double x) {
         x = std::fabs(x);
         return x < 1 ? (2 * x - 3) * x * x + 1 : 0.0;
     }},
    {2.0, [](double x) { return cubicBC(x, 0, 0.5); }},
    {2.0, [](double x) { return cubicBC(x, 1.0 / 3, 1.0 / 3); }},
    {4.0, [](double x) { return std::fabs(x) < 4 ? sinc(x) : 0.0; }},
    {3.0, [](double x) { return std::fabs(x) < 3 ? sinc(x) * sinc(x / 3) : 0.0; }},
    {1.5, [](double x) { return std::exp(-2 * x * x) * std::sqrt(2 / kPi); }},
    {kWindow,
     [](double x) {
         return std::fabs(x) < kWindow ? sinc(x) * (0.5 + 0.5 * std::cos(kPi * x / kWindow)) : 0.0;
     }},
    {kWindow,
     [](double x) {
         return std::fabs(x) < kWindow ? sinc(x) * (0.54 + 0.46 * std::cos(kPi * x / kWindow))
                                       : 0.0;
     }},
    {kWindow,
     [](double x) {
         if (std::fabs(x) >= kWindow) return 0.0;
         double t = kPi * x / kWindow;
         return sinc(x) * (0.42 + 0.5 * std::cos(t) + 0.08 * std::cos(2 * t));
     }},
    {3.2383,
     [](double x) {
         if (x == 0) return kPi / 4;
         return std::fabs(x) < 3.2383 ? j1(kPi * x) / (2 * x) : 0.0;
     }},
};

const FilterDef &filterOf(int filter) {
    return kFilters[filter >= 0 && filter < ImageOps::kFilterCount ? filter
                                                                   : ImageOps::kLinearFilter];
}

// Pixels as opacity and opacity-weighted channels, so that transparent pixels
// don't darken their neighbours when mixed.
struct Weighted {
    double o = 0, r = 0, g = 0, b = 0;
    void add(unsigned c, double w) {
        double op = (255 - (c >> 24)) * w;
        o += op, r += op * ((c >> 16) & 255), g += op * ((c >> 8) & 255), b += op * (c & 255);
    }
    void add(const Weighted &p, double w) {
        o += p.o * w, r += p.r * w, g += p.g * w, b += p.b * w;
    }
    int word() const {
        if (o <= 0.5) return kTransparent;
        auto ch = [&](double v) { return (unsigned)std::min(std::max(v / o + 0.5, 0.0), 255.0); };
        unsigned op = (unsigned)std::min(o + 0.5, 255.0);
        return (int)(((255 - op) << 24) | (ch(r) << 16) | (ch(g) << 8) | ch(b));
    }
};

// Weights of each output position over the input positions, for one axis.
struct Contributions {
    std::vector<int> first;
    std::vector<std::vector<double>> weights;
};

Contributions contributions(int inSize, int outSize, const FilterDef &f, double blur) {
    Contributions c;
    double scale = (double)inSize / outSize;
    double stretch = std::max(scale, 1.0) * std::max(blur, 0.01);
    double support = f.support * stretch;
    if (support < 0.5) support = 0.5;
    for (int i = 0; i < outSize; ++i) {
        double centre = (i + 0.5) * scale - 0.5;
        int lo = std::max(0, (int)std::floor(centre - support));
        int hi = std::min(inSize - 1, (int)std::ceil(centre + support));
        std::vector<double> w;
        double sum = 0;
        for (int j = lo; j <= hi; ++j) {
            double v = f.weight((j - centre) / stretch);
            w.push_back(v);
            sum += v;
        }
        if (std::fabs(sum) < 1e-12) {
            // Too narrow a kernel: take the nearest pixel.
            int n = std::min(std::max((int)std::floor(centre + 0.5), 0), inSize - 1);
            lo = n;
            w.assign(1, 1.0);
            sum = 1;
        }
        for (double &v : w) v /= sum;
        c.first.push_back(lo);
        c.weights.push_back(w);
    }
    return c;
}

PixelBuffer filled(int w, int h, int bg) {
    return PixelBuffer(std::max(w, 0), std::max(h, 0), bg);
}

}  // namespace

namespace ImageOps {

double filterWeight(int filter, double x) {
    return filterOf(filter).weight(x);
}
double filterSupport(int filter) {
    return filterOf(filter).support;
}

PixelBuffer resize(const PixelBuffer &src, int width, int height, int filter, double blur) {
    if (width <= 0 || height <= 0) return PixelBuffer();
    if (src.isEmpty()) return filled(width, height, kTransparent);
    if (!std::isfinite(blur) || blur <= 0) blur = 1;
    const FilterDef &f = filterOf(filter);
    Contributions cx = contributions(src.width, width, f, blur);
    Contributions cy = contributions(src.height, height, f, blur);
    std::vector<Weighted> mid((size_t)width * src.height);
    for (int y = 0; y < src.height; ++y)
        for (int x = 0; x < width; ++x) {
            Weighted p;
            const std::vector<double> &w = cx.weights[x];
            for (size_t k = 0; k < w.size(); ++k)
                p.add((unsigned)src.at(cx.first[x] + (int)k, y), w[k]);
            mid[(size_t)y * width + x] = p;
        }
    PixelBuffer out(width, height, 0);
    for (int y = 0; y < height; ++y) {
        const std::vector<double> &w = cy.weights[y];
        for (int x = 0; x < width; ++x) {
            Weighted p;
            for (size_t k = 0; k < w.size(); ++k)
                p.add(mid[(size_t)(cy.first[y] + (int)k) * width + x], w[k]);
            out.at(x, y) = p.word();
        }
    }
    return out;
}

int sampleBilinear(const PixelBuffer &src, double x, double y, int bgColor) {
    if (src.isEmpty() || !std::isfinite(x) || !std::isfinite(y)) return bgColor;
    if (x < -1 || y < -1 || x > src.width || y > src.height) return bgColor;
    double fx = std::floor(x), fy = std::floor(y);
    int ix = (int)fx, iy = (int)fy;
    double wx = x - fx, wy = y - fy;
    Weighted p;
    for (int k = 0; k < 4; ++k) {
        int px = ix + (k & 1), py = iy + (k >> 1);
        double w = ((k & 1) ? wx : 1 - wx) * ((k >> 1) ? wy : 1 - wy);
        if (w == 0) continue;
        bool inside = px >= 0 && py >= 0 && px < src.width && py < src.height;
        p.add(inside ? (unsigned)src.at(px, py) : (unsigned)bgColor, w);
    }
    return p.word();
}

PixelBuffer remap(const PixelBuffer &src, int width, int height, const double m[6], int bgColor,
                  int filter) {
    PixelBuffer out = filled(width, height, bgColor);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            double u = m[0] * x + m[1] * y + m[4], v = m[2] * x + m[3] * y + m[5];
            if (filter == kBoxFilter) {
                double ru = std::floor(u + 0.5), rv = std::floor(v + 0.5);
                if (ru >= 0 && rv >= 0 && ru < src.width && rv < src.height)
                    out.at(x, y) = src.at((int)ru, (int)rv);
            } else if (u > -0.5 && v > -0.5 && u < src.width - 0.5 && v < src.height - 0.5) {
                out.at(x, y) = sampleBilinear(src, u, v, bgColor);
            }
        }
    return out;
}

PixelBuffer affineTransform(const PixelBuffer &src, const double m[6], int bgColor, int filter,
                            double) {
    double det = m[0] * m[3] - m[1] * m[2];
    if (!std::isfinite(det) || std::fabs(det) < 1e-12)
        return filled(src.width, src.height, bgColor);
    double inv[6];
    inv[0] = m[3] / det, inv[1] = -m[1] / det, inv[2] = -m[2] / det, inv[3] = m[0] / det;
    inv[4] = -(inv[0] * m[4] + inv[1] * m[5]);
    inv[5] = -(inv[2] * m[4] + inv[3] * m[5]);
    return remap(src, src.width, src.height, inv, bgColor, filter);
}

PixelBuffer rotate(const PixelBuffer &src, double angle, double cx, double cy, int bgColor,
                   int filter) {
    double a = angle * kPi / 180, c = std::cos(a), s = std::sin(a);
    const double m[6] = {c, -s, s, c, cx - c * cx + s * cy, cy - s * cx - c * cy};
    return affineTransform(src, m, bgColor, filter, 1);
}

PixelBuffer move(const PixelBuffer &src, double dx, double dy, int bgColor, int filter) {
    const double m[6] = {1, 0, 0, 1, dx, dy};
    return affineTransform(src, m, bgColor, filter, 1);
}

PixelBuffer shearTransform(const PixelBuffer &src, double xShear, double yShear, int bgColor,
                           int filter) {
    const double m[6] = {1, xShear, yShear, 1, 0, 0};
    return affineTransform(src, m, bgColor, filter, 1);
}

namespace {

// Destination pixels that take the source at map(x, y); false leaves the background.
template <class Map>
PixelBuffer warp(const PixelBuffer &src, int bgColor, Map map) {
    PixelBuffer out = filled(src.width, src.height, bgColor);
    for (int y = 0; y < src.height; ++y)
        for (int x = 0; x < src.width; ++x) {
            double u, v;
            if (map(x, y, u, v)) out.at(x, y) = sampleBilinear(src, u, v, bgColor);
        }
    return out;
}

// [0, n) to [-1, 1] at pixel centres, and back.
double toUnit(double p, int n) {
    return (2 * p + 1) / n - 1;
}
double fromUnit(double t, int n) {
    return (t + 1) * n / 2 - 0.5;
}

double arcStretch(double t) {
    return std::asin(std::max(std::min(t, 1.0), -1.0)) / (kPi / 2);
}

}  // namespace

PixelBuffer waveTransform(const PixelBuffer &src, double period, double amplitude, double phase,
                          int bgColor) {
    if (!std::isfinite(period) || std::fabs(period) < 1e-9 || !std::isfinite(amplitude) ||
        !std::isfinite(phase))
        return src;
    return warp(src, bgColor, [&](int x, int y, double &u, double &v) {
        u = x + amplitude * std::sin(2 * kPi * y / period + phase);
        v = y;
        return u > -0.5 && u < src.width - 0.5;
    });
}

PixelBuffer hCylinderTransform(const PixelBuffer &src, int bgColor) {
    return warp(src, bgColor, [&](int x, int y, double &u, double &v) {
        u = x, v = fromUnit(arcStretch(toUnit(y, src.height)), src.height);
        return true;
    });
}

PixelBuffer vCylinderTransform(const PixelBuffer &src, int bgColor) {
    return warp(src, bgColor, [&](int x, int y, double &u, double &v) {
        u = fromUnit(arcStretch(toUnit(x, src.width)), src.width), v = y;
        return true;
    });
}

PixelBuffer sphereTransform(const PixelBuffer &src, int bgColor) {
    return warp(src, bgColor, [&](int x, int y, double &u, double &v) {
        double a = toUnit(x, src.width), b = toUnit(y, src.height), r = std::sqrt(a * a + b * b);
        if (r > 1) return false;
        double k = r > 0 ? arcStretch(r) / r : 1;
        u = fromUnit(a * k, src.width), v = fromUnit(b * k, src.height);
        return true;
    });
}

PixelBuffer vTriangleTransform(const PixelBuffer &src, int bgColor) {
    return warp(src, bgColor, [&](int x, int y, double &u, double &v) {
        double f = (y + 0.5) / src.height;
        double t = toUnit(x, src.width) / f;
        if (t < -1 || t > 1) return false;
        u = fromUnit(t, src.width), v = y;
        return true;
    });
}

PixelBuffer hTriangleTransform(const PixelBuffer &src, int bgColor) {
    return warp(src, bgColor, [&](int x, int y, double &u, double &v) {
        double f = (x + 0.5) / src.width;
        double t = toUnit(y, src.height) / f;
        if (t < -1 || t > 1) return false;
        u = x, v = fromUnit(t, src.height);
        return true;
    });
}

void hFlip(PixelBuffer &image) {
    for (int y = 0; y < image.height; ++y) {
        int *row = image.pixels.data() + (size_t)y * image.width;
        std::reverse(row, row + image.width);
    }
}

void vFlip(PixelBuffer &image) {
    for (int y = 0; y < image.height / 2; ++y)
        std::swap_ranges(image.pixels.begin() + (size_t)y * image.width,
                         image.pixels.begin() + (size_t)(y + 1) * image.width,
                         image.pixels.begin() + (size_t)(image.height - 1 - y) * image.width);
}

void boxBlur(std::vector<int> &values, int width, int height, int radius) {
    if (radius <= 0 || width <= 0 || height <= 0) return;
    int taps = 2 * radius + 1;
    std::vector<long long> line;
    auto pass = [&](int count, int length, auto index) {
        line.assign(length + 1, 0);
        for (int i = 0; i < count; ++i) {
            for (int k = 0; k < length; ++k) line[k + 1] = line[k] + values[index(i, k)];
            for (int k = 0; k < length; ++k) {
                int lo = std::max(0, k - radius), hi = std::min(length, k + radius + 1);
                values[index(i, k)] = (int)((line[hi] - line[lo]) / taps);
            }
        }
    };
    pass(height, width, [&](int row, int k) { return (size_t)row * width + k; });
    pass(width, height, [&](int col, int k) { return (size_t)k * width + col; });
}

PixelBuffer warp(const PixelBuffer &src, const ImageWarp &w) {
    switch (w.kind) {
        case ImageWarp::kWave:
            return waveTransform(src, w.period, w.amplitude, w.phase, w.bgColor);
        case ImageWarp::kHCylinder:
            return hCylinderTransform(src, w.bgColor);
        case ImageWarp::kVCylinder:
            return vCylinderTransform(src, w.bgColor);
        case ImageWarp::kSphere:
            return sphereTransform(src, w.bgColor);
        case ImageWarp::kVTriangle:
            return vTriangleTransform(src, w.bgColor);
        case ImageWarp::kHTriangle:
            return hTriangleTransform(src, w.bgColor);
    }
    return src;
}

}  // namespace ImageOps
