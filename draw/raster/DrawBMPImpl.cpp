#include "draw/raster/DrawBMPImpl.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageSniffer.h"
#include "draw/pixel/PixelBlend.h"
#include "draw/raster/AAShape.h"
#include "draw/raster/CoverageGrid.h"
#include "draw/raster/GlyphRaster.h"
#include "draw/raster/SymbolStamp.h"
#include "draw/raster/brush/GradientBrushes.h"
#include "draw/raster/brush/LightingBrushes.h"
#include "draw/raster/brush/PatternBrushes.h"
#include "draw/raster/brush/SimpleBrushes.h"
#include "draw/raster/scan/LineRasterizer.h"
#include "draw/raster/scan/StrokeMask.h"

using ColorWord::isDynamicHandle;
using ColorWord::paints;
using PixelBlend::isInvisible;

namespace {

// Larger images are refused: the buffer would not fit the index arithmetic.
const long long kMaxPixels = 1LL << 28;
const long long kMaxPatternFile = 64LL << 20;

DrawBMP::DecodeHook decodeHook = ImageDecoder::decodeAllocated;

// Lines go straight to the raster when no joint needs sharing.
class RasterLineSink : public LineSink {
public:
    RasterLineSink(DrawBMPImpl *raster, int color) : raster(raster), color(color) {}
    int stepColor(int x, int y) override { return raster->resolveColor(color, x, y); }
    void plot(int x, int y, int level, int c) override { raster->coveragePixel(x, y, level, c); }

private:
    DrawBMPImpl *raster;
    int color;
};

}  // namespace

// ---- Creation and the image decoder ----

DrawBMP *DrawBMP::create(MetaDraw *metaDraw, DrawBMP *templateRaster) {
    return new DrawBMPImpl(metaDraw, dynamic_cast<DrawBMPImpl *>(templateRaster));
}

void DrawBMP::setDecodeHook(DecodeHook hook) {
    decodeHook = hook;
}
DrawBMP::DecodeHook DrawBMP::getDecodeHook() {
    return decodeHook;
}

DrawBMPImpl::DrawBMPImpl(MetaDraw *metaDraw, DrawBMPImpl *parent)
    : metaDraw(metaDraw),
      parent(parent),
      parentMode(parent != nullptr),
      brushCount(0),
      width(0),
      height(0),
      clipLeft(0),
      clipTop(0),
      clipRight(-1),
      clipBottom(-1),
      bgColor(kTransparent),
      bgTransparent(true),
      shapeAntiAlias(true),
      textAntiAlias(1),
      interlace(0),
      transparentColor(kTransparent),
      ditherMethod(0),
      paletteMode(0),
      snapshotValid(false),
      snapshotWidth(0),
      snapshotHeight(0),
      curColor(kTransparent),
      curWidth(1),
      curX(0),
      curY(0),
      colorDepth(0),
      outlineCollector(nullptr),
      sizeRefused(false),
      pixelLimit(kMaxPixels) {
    if (parent) shapeAntiAlias = parent->shapeAntiAlias, textAntiAlias = parent->textAntiAlias;
}

DrawBMPImpl::~DrawBMPImpl() {
    for (ColorBrush *b : brushes) delete b;
    delete outlineCollector;
}

PixelImage DrawBMPImpl::getImage() const {
    PixelImage image(getPixels(), width, height);
    image.transparentColor = transparentColor;
    image.paletteMode = paletteMode;
    image.ditherMethod = ditherMethod;
    image.interlace = interlace;
    image.bgTransparent = bgTransparent;
    return image;
}

// ---- Colours ----

ColorBrush *DrawBMPImpl::getBrush(int color) const {
    if (!isDynamicHandle(color)) return nullptr;
    int i = ColorWord::dynamicIndex(color);
    if (i < (int)brushes.size() && brushes[i]) return brushes[i];
    return parentMode && parent ? parent->getBrush(color) : nullptr;
}

void DrawBMPImpl::setBrush(int handle, ColorBrush *brush) {
    if (!isDynamicHandle(handle)) {
        delete brush;
        return;
    }
    int i = ColorWord::dynamicIndex(handle);
    if (i >= (int)brushes.size()) brushes.resize(i + 1, nullptr);
    delete brushes[i];
    brushes[i] = brush;
    brushCount = (int)brushes.size();
}

int DrawBMPImpl::resolveColor(int color, int x, int y) {
    for (int level = 0; isDynamicHandle(color); ++level) {
        if (colorDepth + level >= kMaxColorDepth) return color;
        ColorBrush *b = getBrush(color);
        if (!b) return kTransparent;
        ++colorDepth;
        color = b->colorAt(x, y);
        --colorDepth;
    }
    return color;
}

void DrawBMPImpl::store(int *p, unsigned c) {
    if (isInvisible(c)) return;
    unsigned d = (unsigned)*p;
    if (superPixels.isActive() && SuperPixels::isSuper(d)) {
        *p = (int)superPixels.writeFull(d, c);
        return;
    }
    unsigned r = PixelBlend::blend(d, c);
    *p = isInvisible(r) ? kTransparent : (int)r;
}

void DrawBMPImpl::blendInto(int *out, int x, int y, int color) {
    store(out, (unsigned)resolveColor(color, x, y));
}

// ---- Pixels ----

void DrawBMPImpl::sampleColor(int color, int x, int y, int w, int h, int *out) {
    if (!out || w <= 0 || h <= 0 || (long long)x + w > INT_MAX || (long long)y + h > INT_MAX)
        return;
    std::fill(out, out + (size_t)w * h, kTransparent);
    ColorBrush *b = getBrush(color);
    for (int j = 0; j < h; ++j) {
        int *row = out + (size_t)j * w;
        if (b && colorDepth < kMaxColorDepth) {
            ++colorDepth;
            b->fillSpan(this, x, x + w - 1, y + j, row, 0);
            --colorDepth;
        } else if (!isDynamicHandle(color) && !isInvisible((unsigned)color)) {
            std::fill(row, row + w, color);
        }
    }
}

int DrawBMPImpl::getPixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return kTransparent;
    unsigned p = (unsigned)pixels[(size_t)y * width + x];
    return (int)(superPixels.isActive() ? superPixels.average(p) : p);
}

void DrawBMPImpl::setPixel(int x, int y, int color) {
    if (x < 0 || y < 0 || x >= width || y >= height) return;
    blendInto(pixelAt(x, y), x, y, color);
}

void DrawBMPImpl::coveragePixel(int x, int y, int level, int color) {
    fringePixel(x, y, level, color);
}

void DrawBMPImpl::getClip(int *l, int *t, int *r, int *b) const {
    *l = clipLeft, *t = clipTop, *r = clipRight, *b = clipBottom;
}

void DrawBMPImpl::solidSpan(int x1, int x2, int y, int color) {
    x1 = std::max(x1, clipLeft), x2 = std::min(x2, clipRight);
    if (x1 > x2 || y < clipTop || y > clipBottom) return;
    int *row = pixelAt(0, y);
    if (isDynamicHandle(color)) {
        ColorBrush *b = getBrush(color);
        if (b && colorDepth < kMaxColorDepth) {
            ++colorDepth;
            b->fillSpan(this, x1, x2, y, row, x1);
            --colorDepth;
        }
        return;
    }
    if (((unsigned)color >> 24) == 0 && !superPixels.isActive()) {
        std::fill(row + x1, row + x2 + 1, color);
        return;
    }
    if (isInvisible((unsigned)color)) return;
    if (!superPixels.isActive()) {
        for (int x = x1; x <= x2; ++x)
            row[x] = (int)PixelBlend::blendStored((unsigned)row[x], (unsigned)color);
        return;
    }
    for (int x = x1; x <= x2; ++x) store(row + x, (unsigned)color);
}

void DrawBMPImpl::fringePixel(int x, int y, int level, int color) {
    if (!inClip(x, y) || level <= 0) return;
    unsigned c = (unsigned)resolveColor(color, x, y);
    if (isInvisible(c)) return;
    int *p = pixelAt(x, y);
    if (superPixels.isActive()) {
        unsigned r = superPixels.write((unsigned)*p, c, level);
        *p = isInvisible(r) && !SuperPixels::isSuper(r) ? kTransparent : (int)r;
        return;
    }
    unsigned a = PixelBlend::atCoverage(c, level);
    if (PixelBlend::alphaOf(a) < 255) store(p, a);
}

void DrawBMPImpl::outlineLine(double x1, double y1, double x2, double y2, int color) {
    if (!paints(color)) return;
    if (outlineCollector) {
        outlineCollector->setColor(color);
        LineRasterizer(clipLeft, clipTop, clipRight, clipBottom, shapeAntiAlias)
            .draw(x1, y1, x2, y2, outlineCollector);
        return;
    }
    drawThinLine(x1, y1, x2, y2, color);
}

void DrawBMPImpl::drawThinLine(double x1, double y1, double x2, double y2, int color) {
    if (!paints(color)) return;
    RasterLineSink sink(this, color);
    LineRasterizer(clipLeft, clipTop, clipRight, clipBottom, shapeAntiAlias)
        .draw(x1, y1, x2, y2, &sink);
}

// ---- Size, clip, background ----

void DrawBMPImpl::resetClip() {
    clipLeft = 0, clipTop = 0, clipRight = width - 1, clipBottom = height - 1;
}

void DrawBMPImpl::setPixelLimit(long long limit) {
    pixelLimit = limit > 0 ? std::min(limit, kMaxPixels) : kMaxPixels;
}

bool DrawBMPImpl::fitsBuffer(long long w, long long h) const {
    return w * h <= pixelLimit;
}

bool DrawBMPImpl::limitSize(int &w, int &h) const {
    w = std::max(w, 1), h = std::max(h, 1);
    if (fitsBuffer(w, h)) return true;
    w = h = 1;
    return false;
}

void DrawBMPImpl::noteSize(bool made) {
    // A symbol's size is its own business: only the image itself counts.
    if (symbolStack.empty()) sizeRefused = !made;
}

void DrawBMPImpl::allocate(int w, int h, int fill) {
    noteSize(limitSize(w, h));
    superPixels.clear();
    width = w, height = h;
    pixels.assign((size_t)w * h, isInvisible((unsigned)fill) ? kTransparent : fill);
    resetClip();
}

void DrawBMPImpl::takeBuffer(PixelBuffer &buffer) {
    superPixels.clear();
    width = buffer.width, height = buffer.height;
    pixels.swap(buffer.pixels);
    resetClip();
}

PixelBuffer DrawBMPImpl::copyBuffer() const {
    PixelBuffer b;
    b.width = width, b.height = height, b.pixels = pixels;
    return b;
}

void DrawBMPImpl::setSize(int w, int h, int bg) {
    allocate(w, h, kTransparent);
    setBgColor(bg);
}

void DrawBMPImpl::setClipRect(int left, int top, int right, int bottom) {
    // Kept within one pixel of the image so that clip arithmetic can't overflow.
    clipLeft = std::min(std::max(left, 0), width), clipTop = std::min(std::max(top, 0), height);
    clipRight = std::max(std::min(right, width - 1), -1);
    clipBottom = std::max(std::min(bottom, height - 1), -1);
}

void DrawBMPImpl::setBgColor(int color) {
    bgColor = color;
    if (clipLeft > clipRight || clipTop > clipBottom) return;
    if (isDynamicHandle(color)) {
        bool seeThrough = false;
        for (int y = clipTop; y <= clipBottom; ++y) {
            int *row = pixelAt(0, y);
            std::fill(row + clipLeft, row + clipRight + 1, kTransparent);
            solidSpan(clipLeft, clipRight, y, color);
            for (int x = clipLeft; x <= clipRight && !seeThrough; ++x)
                seeThrough = ((unsigned)row[x] >> 24) != 0;
        }
        bgTransparent = seeThrough;
        return;
    }
    int word = isInvisible((unsigned)color) ? kTransparent : color;
    bgTransparent = ((unsigned)word >> 24) != 0;
    for (int y = clipTop; y <= clipBottom; ++y) {
        int *row = pixelAt(0, y);
        std::fill(row + clipLeft, row + clipRight + 1, word);
    }
}

void DrawBMPImpl::resize(int w, int h) {
    if (!limitSize(w, h)) noteSize(false);
    if (w == width && h == height) return;
    PixelBuffer out = ImageOps::resize(copyBuffer(), w, h, ImageOps::kLinearFilter, 1.0);
    takeBuffer(out);
}

void DrawBMPImpl::affineTransform(double a, double b, double c, double d, double e, double f,
                                  int bgColor, int filter, double blur) {
    if (pixels.empty()) return;
    const double m[6] = {a, b, c, d, e, f};
    int bg = isDynamicHandle(bgColor) ? kTransparent : bgColor;
    PixelBuffer out = ImageOps::affineTransform(copyBuffer(), m, bg, filter, blur);
    takeBuffer(out);
}

void DrawBMPImpl::setBgRoundedClip(int r1, int r2, int r3, int r4, int color) {
    const int radius[4] = {r1, r2, r3, r4};
    unsigned frame = isDynamicHandle(color) ? (unsigned)kTransparent : (unsigned)color;
    for (int corner = 0; corner < 4; ++corner) {
        int r = std::min(std::max(radius[corner], 0), std::min(width, height));
        if (r == 0) continue;
        bool right = corner == 1 || corner == 2, bottom = corner >= 2;
        // The circle's centre in pixel-area coordinates.
        double cx = right ? width - r : r, cy = bottom ? height - r : r;
        for (int j = 0; j < r; ++j) {
            int y = bottom ? height - 1 - j : j;
            for (int i = 0; i < r; ++i) {
                int x = right ? width - 1 - i : i;
                int inside = 0;
                for (int s = 0; s < 16; ++s) {
                    double px = x + 0.125 + 0.25 * (s & 3) - cx;
                    double py = y + 0.125 + 0.25 * (s >> 2) - cy;
                    inside += px * px + py * py <= (double)r * r;
                }
                if (inside == 16) continue;
                int *p = pixelAt(x, y);
                unsigned top = PixelBlend::atCoverage((unsigned)*p, inside);
                if (isInvisible((unsigned)*p)) top = (unsigned)kTransparent;
                unsigned result = PixelBlend::blend(frame, top);
                *p = isInvisible(result) ? kTransparent : (int)result;
            }
        }
    }
    bgTransparent = bgTransparent || isInvisible(frame) || (frame >> 24) != 0;
}

void DrawBMPImpl::setBgDropShadow(int offsetX, int offsetY, int blurRadius, int, int color) {
    if (pixels.empty()) return;
    // The image grows by what the canvas said, or the image is refused.
    long long b = blurRadius;
    long long left = std::max(0LL, b - offsetX), top = std::max(0LL, b - offsetY);
    long long grownW = width + left + std::max(0LL, b + offsetX);
    long long grownH = height + top + std::max(0LL, b + offsetY);
    if (!fitsBuffer(grownW, grownH)) {
        noteSize(false);
        return;
    }
    int w = (int)grownW, h = (int)grownH;
    std::vector<int> mask((size_t)w * h, 0);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            int mx = x + left + offsetX, my = y + top + offsetY;
            if (mx >= 0 && my >= 0 && mx < w && my < h)
                mask[(size_t)my * w + mx] =
                    255 - (int)((unsigned)pixels[(size_t)y * width + x] >> 24);
        }
    ImageOps::boxBlur(mask, w, h, (int)std::max(0LL, b));
    PixelBuffer out(w, h, kTransparent);
    unsigned shade = isDynamicHandle(color) ? (unsigned)kTransparent : (unsigned)color;
    if (!isInvisible(shade)) {
        unsigned opacity = 255 - (shade >> 24);
        for (size_t i = 0; i < out.pixels.size(); ++i) {
            unsigned o = (unsigned)mask[i] * opacity / 255;
            if (o) out.pixels[i] = (int)PixelBlend::withAlpha(shade, 255 - o);
        }
    }
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            int &d = out.at(x + left, y + top);
            unsigned r = PixelBlend::blend((unsigned)d, (unsigned)pixels[(size_t)y * width + x]);
            d = isInvisible(r) ? kTransparent : (int)r;
        }
    takeBuffer(out);
    bgTransparent = true;
}

// ---- Lines ----

void DrawBMPImpl::line(double x1, double y1, double x2, double y2, int color, int lineWidth) {
    const double xy[4] = {x1, y1, x2, y2};
    polyLine(color, lineWidth, DoubleArray(xy, 4));
}

void DrawBMPImpl::polyLine(int color, int lineWidth, DoubleArray points) {
    const double *xy = points.data;
    int pointCount = points.len / 2;
    curColor = color, curWidth = lineWidth;
    if (!xy || pointCount < 1 || !paints(color) || lineWidth < 1) return;
    curX = xy[2 * pointCount - 2], curY = xy[2 * pointCount - 1];
    if (pointCount < 2) return;
    if (lineWidth <= 1)
        strokeThin(xy, pointCount, color);
    else
        strokeWide(xy, pointCount, color, lineWidth);
}

void DrawBMPImpl::strokeThin(const double *xy, int pointCount, int color) {
    if (pointCount == 2) {
        drawThinLine(xy[0], xy[1], xy[2], xy[3], color);
        return;
    }
    CoverageGrid collector(this, color, clipLeft, clipTop, clipRight, clipBottom);
    collector.addPolyline(xy, pointCount, shapeAntiAlias, !isDynamicHandle(color));
    collector.flush(this);
}

void DrawBMPImpl::strokeWide(const double *xy, int pointCount, int color, int lineWidth) {
    double half = lineWidth / 2.0;
    double minX = 1e18, minY = 1e18, maxX = -1e18, maxY = -1e18;
    for (int i = 0; i < pointCount; ++i) {
        double x = xy[2 * i], y = xy[2 * i + 1];
        if (!std::isfinite(x) || !std::isfinite(y)) return;
        minX = std::min(minX, x), maxX = std::max(maxX, x);
        minY = std::min(minY, y), maxY = std::max(maxY, y);
    }
    double l = std::max<double>(clipLeft, std::floor(minX - half - 1));
    double t = std::max<double>(clipTop, std::floor(minY - half - 1));
    double r = std::min<double>(clipRight, std::ceil(maxX + half + 1));
    double b = std::min<double>(clipBottom, std::ceil(maxY + half + 1));
    if (l > r || t > b) return;
    StrokeMask mask((int)l, (int)t, (int)r, (int)b, shapeAntiAlias);
    if (mask.isEmpty()) return;
    // A dashed wide line is cut into its dashes here: the brush can't follow a fill.
    DashLineBrush *dash = dynamic_cast<DashLineBrush *>(getBrush(color));
    const std::vector<bool> solid(1, true);
    const std::vector<bool> &runs = dash ? dash->getRuns() : solid;
    int paintColor = dash ? dash->getColor() : color;
    auto quad = [&](double ax, double ay, double ux, double uy, double from, double to) {
        double nx = -uy * half, ny = ux * half;
        double bx = ax + ux * to, by = ay + uy * to;
        ax += ux * from, ay += uy * from;
        AAShape s(nullptr, true);
        s.addLine(kTransparent, true, ax + nx, ay + ny, bx + nx, by + ny);
        s.addLine(kTransparent, true, bx + nx, by + ny, bx - nx, by - ny);
        s.addLine(kTransparent, true, bx - nx, by - ny, ax - nx, ay - ny);
        s.addLine(kTransparent, true, ax - nx, ay - ny, ax + nx, ay + ny);
        s.paintOn(&mask, 0, false, true);
    };
    // The ends reach half a pixel beyond the end points, as the pixels of a thin
    // line do; a dash covers the pixels of its steps.
    long long phase = 0;
    int period = (int)runs.size();
    for (int i = 0; i + 1 < pointCount; ++i) {
        double ax = xy[2 * i], ay = xy[2 * i + 1], bx = xy[2 * i + 2], by = xy[2 * i + 3];
        double len = std::sqrt((bx - ax) * (bx - ax) + (by - ay) * (by - ay));
        if (len <= 0) continue;
        double ux = (bx - ax) / len, uy = (by - ay) / len;
        double lo = i == 0 ? -0.5 : 0, hi = i + 2 == pointCount ? len + 0.5 : len;
        if (!dash) {
            quad(ax, ay, ux, uy, lo, hi);
        } else if (len < 1e6) {
            int steps = (int)std::floor(len + 0.5) + (i + 2 == pointCount ? 1 : 0);
            for (int k = 0; k < steps;) {
                if (!runs[(phase + k) % period]) {
                    ++k;
                    continue;
                }
                int e = k;
                while (e + 1 < steps && runs[(phase + e + 1) % period]) ++e;
                quad(ax, ay, ux, uy, std::max(lo, k - 0.5), std::min(hi, e + 0.5));
                k = e + 1;
            }
            phase += (int)std::floor(len + 0.5);
        }
        // Round joints fill the gap between two segments.
        bool on = !dash || runs[phase % period];
        if (i + 2 < pointCount && on && half > 1) {
            AAShape s(nullptr, true);
            s.addArc(kTransparent, bx, by, half, half, bx, by + half, bx, by - half);
            s.addArc(kTransparent, bx, by, half, half, bx, by - half, bx, by + half);
            s.paintOn(&mask, 0, false, true);
        }
    }
    mask.paintOn(this, paintColor);
}

void DrawBMPImpl::multiLine(const MetaLineEntry *items, int count) {
    int color = curColor, lineWidth = curWidth;
    forEachLineRun(items, count, color, lineWidth,
                   [&](int c, int w, DoubleArray xy) { polyLine(c, w, xy); });
    curColor = color, curWidth = lineWidth;
}

// ---- Shapes ----

DrawBMP::BMPShape *DrawBMPImpl::createShape() {
    return new AAShape(this);
}

void DrawBMPImpl::paintShape(AAShape &s, int color, bool inset, bool keepOutline) {
    // Edges share their end pixels: gather the outlines so a joint is painted once.
    CoverageGrid collector(this, kTransparent, clipLeft, clipTop, clipRight, clipBottom);
    CoverageGrid *saved = outlineCollector;
    outlineCollector = &collector;
    s.paintOn(this, color, inset, keepOutline);
    outlineCollector = saved;
    collector.flush(this);
}

void DrawBMPImpl::polygon(int edgeColor, int fillColor, DoubleArray xs, DoubleArray ys) {
    const double *x = xs.data, *y = ys.data;
    int n = xs.len < ys.len ? xs.len : ys.len;
    if (!x || !y || n < 2) return;
    AAShape s(this);
    for (int i = 0; i < n; ++i) {
        int j = (i + 1) % n;
        if (n == 2 && i == 1) break;
        s.addLine(edgeColor, false, x[i], y[i], x[j], y[j]);
    }
    paintShape(s, n >= 3 ? fillColor : kTransparent, paints(edgeColor), false);
}

void DrawBMPImpl::exactPolygon(int fillColor, DoubleArray xs, DoubleArray ys) {
    const double *x = xs.data, *y = ys.data;
    int n = xs.len < ys.len ? xs.len : ys.len;
    if (!x || !y || n < 3) return;
    // A fan of flat triangles from the first vertex: pixel centres decide, so
    // polygons that share an edge leave no seam and no pixel painted twice.
    for (int i = 1; i + 1 < n; ++i) {
        const double v[9] = {x[0], y[0], 1, x[i], y[i], 1, x[i + 1], y[i + 1], 1};
        gouraudTriangle(v, fillColor);
    }
}

void DrawBMPImpl::shape(int fillColor, bool inset, bool keepOutline, const MetaPathItem *items,
                        int count) {
    if (!items || count <= 0) return;
    AAShape s(this);
    for (int i = 0; i < count; ++i) {
        const MetaPathItem &it = items[i];
        const double *v = it.v;
        if (it.type == 0)
            s.addLine(it.color, it.flag, v[0], v[1], v[2], v[3]);
        else if (it.type == 1)
            s.addArc(it.color, v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
        else if (it.type == 2)
            s.addArc2(it.color, it.flag, v[0], v[1], v[2], v[3], v[6], v[7], v[8], v[9]);
    }
    paintShape(s, fillColor, inset, keepOutline);
}

void DrawBMPImpl::roundedRect(double x1, double y1, double x2, double y2, int radius, int edgeColor,
                              int fillColor) {
    const int r[4] = {radius, radius, radius, radius};
    const int e[4] = {edgeColor, edgeColor, edgeColor, edgeColor};
    multiRoundedRect(x1, y1, x2, y2, r, e, fillColor);
}

void DrawBMPImpl::multiRoundedRect(double x1, double y1, double x2, double y2,
                                   const int (&radius)[4], const int (&edgeColor)[4],
                                   int fillColor) {
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2))
        return;
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    bool edged = false;
    for (int i = 0; i < 4; ++i) edged = edged || paints(edgeColor[i]);
    // Rectangles are inclusive pixels: without an edge the fill reaches the outer
    // side of the border pixels; with one, the edge lies on them and the fill is
    // inset.
    if (!edged) x1 -= 0.5, y1 -= 0.5, x2 += 0.5, y2 += 0.5;
    double limit = std::min(x2 - x1, y2 - y1) / 2;
    double r[4];
    for (int i = 0; i < 4; ++i) r[i] = std::min(std::max((double)radius[i], 0.0), limit);
    int top = edgeColor[0], right = edgeColor[1], bottom = edgeColor[2], left = edgeColor[3];
    AAShape s(this);
    if (x2 - x1 > r[0] + r[1]) s.addLine(top, false, x1 + r[0], y1, x2 - r[1], y1);
    if (r[1] > 0) s.addArc(top, x2 - r[1], y1 + r[1], r[1], r[1], x2 - r[1], y1, x2, y1 + r[1]);
    if (y2 - y1 > r[1] + r[2]) s.addLine(right, false, x2, y1 + r[1], x2, y2 - r[2]);
    if (r[2] > 0) s.addArc(bottom, x2 - r[2], y2 - r[2], r[2], r[2], x2, y2 - r[2], x2 - r[2], y2);
    if (x2 - x1 > r[2] + r[3]) s.addLine(bottom, false, x2 - r[2], y2, x1 + r[3], y2);
    if (r[3] > 0) s.addArc(bottom, x1 + r[3], y2 - r[3], r[3], r[3], x1 + r[3], y2, x1, y2 - r[3]);
    if (y2 - y1 > r[3] + r[0]) s.addLine(left, false, x1, y2 - r[3], x1, y1 + r[0]);
    if (r[0] > 0) s.addArc(top, x1 + r[0], y1 + r[0], r[0], r[0], x1, y1 + r[0], x1 + r[0], y1);
    if (x1 == x2 || y1 == y2) {
        drawThinLine(x1, y1, x2, y2, paints(top) ? top : left);
        return;
    }
    paintShape(s, fillColor, edged, !edged);
}

void DrawBMPImpl::gouraudTriangle(const double (&v)[9], int color) {
    if (!paints(color)) return;
    for (int i = 0; i < 9; ++i)
        if (!std::isfinite(v[i])) return;
    double x0 = v[0], y0 = v[1], x1 = v[3], y1 = v[4], x2 = v[6], y2 = v[7];
    double area = (x1 - x0) * (y2 - y0) - (y1 - y0) * (x2 - x0);
    if (area == 0) return;
    int left = std::max(clipLeft, (int)std::floor(std::max(std::min({x0, x1, x2}), -1e9)));
    int right = std::min(clipRight, (int)std::ceil(std::min(std::max({x0, x1, x2}), 1e9)));
    int top = std::max(clipTop, (int)std::floor(std::max(std::min({y0, y1, y2}), -1e9)));
    int bottom = std::min(clipBottom, (int)std::ceil(std::min(std::max({y0, y1, y2}), 1e9)));
    double sign = area > 0 ? 1 : -1;
    auto edge = [](double ax, double ay, double bx, double by, double px, double py) {
        return (bx - ax) * (py - ay) - (by - ay) * (px - ax);
    };
    // A pixel centre on a shared edge belongs to one of the two triangles only.
    auto owns = [&](double w, double ax, double ay, double bx, double by) {
        if (w != 0) return w > 0;
        double dx = (bx - ax) * sign, dy = (by - ay) * sign;
        return dy < 0 || (dy == 0 && dx > 0);
    };
    for (int y = top; y <= bottom; ++y) {
        int *row = pixelAt(0, y);
        for (int x = left; x <= right; ++x) {
            double w0 = edge(x1, y1, x2, y2, x, y) * sign, w1 = edge(x2, y2, x0, y0, x, y) * sign;
            double w2 = edge(x0, y0, x1, y1, x, y) * sign;
            if (!owns(w0, x1, y1, x2, y2) || !owns(w1, x2, y2, x0, y0) || !owns(w2, x0, y0, x1, y1))
                continue;
            double intensity = (w0 * v[2] + w1 * v[5] + w2 * v[8]) / (area * sign);
            int k = (int)std::floor(std::min(std::max(1024 * intensity, -1.0), 1e6) + 0.5);
            unsigned c = (unsigned)resolveColor(color, x, y);
            store(row + x, PixelBlend::adjustBrightness(c, k));
        }
    }
}

// ---- Super pixels ----

void DrawBMPImpl::beginSuperPixelMode() {
    superPixels.begin();
}

void DrawBMPImpl::commitSuperPixels() {
    if (!superPixels.isActive()) return;
    for (int &p : pixels) {
        unsigned u = (unsigned)p;
        if (SuperPixels::isSuper(u)) {
            unsigned a = superPixels.average(u);
            p = isInvisible(a) ? kTransparent : (int)a;
        }
    }
    superPixels.clear();
}

// ---- Text ----

void DrawBMPImpl::drawText(const GlyphText &text) {
    for (const GlyphRun &run : text.runs)
        for (int i = 0; i < run.glyphCount; ++i) {
            const PlacedGlyph &g = text.glyphs[run.firstGlyph + i];
            GlyphRaster::paint(this, g.image, text.originX, text.originY, g.x, g.y, text.matrix,
                               run.color);
        }
}

void DrawBMPImpl::fillGlyph(const unsigned char *coverage, int w, int h, int pitch, int x, int y,
                            int color) {
    if (!coverage || w <= 0 || h <= 0 || !paints(color)) return;
    long long j0 = std::max(0LL, (long long)clipTop - y),
              j1 = std::min(h - 1LL, (long long)clipBottom - y);
    long long i0 = std::max(0LL, (long long)clipLeft - x),
              i1 = std::min(w - 1LL, (long long)clipRight - x);
    for (long long j = j0; j <= j1; ++j) {
        int py = (int)(y + j);
        const unsigned char *row = coverage + j * pitch;
        for (long long i = i0; i <= i1; ++i) {
            if (!row[i]) continue;
            int px = (int)(x + i);
            unsigned c = (unsigned)resolveColor(color, px, py);
            if (isInvisible(c)) continue;
            unsigned cov = textAntiAlias == 0 ? (row[i] >= 128 ? 255u : 0u) : row[i];
            unsigned a = 255 - cov * (255 - (c >> 24)) / 255;
            if (a < 255) store(pixelAt(px, py), PixelBlend::withAlpha(c, a));
        }
    }
}

// ---- Symbols and merging ----

void DrawBMPImpl::saveSurface(Surface &s) {
    s.width = width, s.height = height;
    s.pixels.swap(pixels);
    s.clipLeft = clipLeft, s.clipTop = clipTop, s.clipRight = clipRight, s.clipBottom = clipBottom;
    s.bgColor = bgColor, s.bgTransparent = bgTransparent;
}

void DrawBMPImpl::restoreSurface(Surface &s) {
    width = s.width, height = s.height;
    pixels.swap(s.pixels);
    clipLeft = s.clipLeft, clipTop = s.clipTop, clipRight = s.clipRight, clipBottom = s.clipBottom;
    bgColor = s.bgColor, bgTransparent = s.bgTransparent;
}

void DrawBMPImpl::beginSymbol(int) {
    commitSuperPixels();
    symbolStack.emplace_back();
    saveSurface(symbolStack.back());
    width = height = 0;
    pixels.clear();
    resetClip();
    bgColor = kTransparent, bgTransparent = true;
}

void DrawBMPImpl::endSymbol(int id) {
    if (symbolStack.empty()) return;
    commitSuperPixels();
    PixelBuffer &image = symbols[id];
    image.width = width, image.height = height;
    image.pixels.swap(pixels);
    pixels.clear();
    restoreSurface(symbolStack.back());
    symbolStack.pop_back();
}

void DrawBMPImpl::removeSymbol(int id) {
    symbols.erase(id);
}

void DrawBMPImpl::blendImage(const PixelBuffer &image, int x, int y, int transparency) {
    unsigned keep = 255 - (unsigned)std::min(std::max(transparency, 0), 255);
    long long j0 = std::max(0LL, (long long)clipTop - y);
    long long j1 = std::min(image.height - 1LL, (long long)clipBottom - y);
    long long i0 = std::max(0LL, (long long)clipLeft - x);
    long long i1 = std::min(image.width - 1LL, (long long)clipRight - x);
    for (long long j = j0; j <= j1; ++j)
        for (long long i = i0; i <= i1; ++i) {
            unsigned s = (unsigned)image.at((int)i, (int)j);
            if (isInvisible(s)) continue;
            if (keep < 255) s = PixelBlend::withAlpha(s, 255 - (255 - (s >> 24)) * keep / 255);
            store(pixelAt((int)(x + i), (int)(y + j)), s);
        }
}

const PixelBuffer *DrawBMPImpl::symbolAtSize(int id, int w, int h, PixelBuffer &scaled) const {
    auto it = symbols.find(id);
    if (it == symbols.end() || it->second.isEmpty() || w <= 0 || h <= 0) return nullptr;
    if ((long long)w * h > kMaxPixels) return nullptr;
    const PixelBuffer &src = it->second;
    if (w == src.width && h == src.height) return &src;
    scaled = ImageOps::resize(src, w, h, ImageOps::kLinearFilter, 1.0);
    return &scaled;
}

void DrawBMPImpl::mergeWithScaling(int id, int x, int y, int w, int h, int transparency) {
    PixelBuffer scaled;
    const PixelBuffer *image = transparency < 255 ? symbolAtSize(id, w, h, scaled) : nullptr;
    if (image) blendImage(*image, x, y, transparency);
}

void DrawBMPImpl::mergeAtPoints(int id, int w, int h, IntArray points) {
    PixelBuffer scaled;
    const PixelBuffer *image = points.data ? symbolAtSize(id, w, h, scaled) : nullptr;
    if (!image) return;
    int count = points.len / 2;
    if (stampAtPoints(*image, points.data, count)) return;
    for (int i = 0; i < count; ++i) blendImage(*image, points.data[2 * i], points.data[2 * i + 1], 0);
}

bool DrawBMPImpl::stampAtPoints(const PixelBuffer &image, const int *points, int count) {
    SymbolStamp stamp(image);
    // Super pixels keep samples of their own: those take the marks one by one.
    if (!stamp.isStamp() || superPixels.isActive()) return false;
    long long left = clipRight + 1LL, top = clipBottom + 1LL, right = clipLeft - 1LL,
              bottom = clipTop - 1LL;
    for (int i = 0; i < count; ++i) {
        left = std::min(left, (long long)points[2 * i]);
        top = std::min(top, (long long)points[2 * i + 1]);
        right = std::max(right, (long long)points[2 * i] + image.width - 1);
        bottom = std::max(bottom, (long long)points[2 * i + 1] + image.height - 1);
    }
    SymbolStamp::Cover cover((int)std::max(left, (long long)clipLeft),
                             (int)std::max(top, (long long)clipTop),
                             (int)std::min(right, (long long)clipRight),
                             (int)std::min(bottom, (long long)clipBottom));
    if (cover.isEmpty()) return true;
    stamp.stampAll(cover, points, count);
    unsigned color = stamp.getColor();
    for (int y = cover.getTop(); y < cover.getTop() + cover.getHeight(); ++y)
        for (int x = cover.getLeft(); x < cover.getLeft() + cover.getWidth(); ++x) {
            unsigned shows = cover.showing(x, y);
            if (shows < 255) store(pixelAt(x, y), color | shows << 24);
        }
    return true;
}

void DrawBMPImpl::mergeWithRotation(int id, double x, double y, double angle) {
    auto it = symbols.find(id);
    if (it == symbols.end() || it->second.isEmpty() || !std::isfinite(x) || !std::isfinite(y) ||
        !std::isfinite(angle))
        return;
    const PixelBuffer &src = it->second;
    double a = angle * 3.14159265358979 / 180, c = std::cos(a), s = std::sin(a);
    double hw = (src.width - 1) / 2.0, hh = (src.height - 1) / 2.0;
    double ex = std::fabs(c) * hw + std::fabs(s) * hh + 1,
           ey = std::fabs(s) * hw + std::fabs(c) * hh + 1;
    int left = std::max(clipLeft, (int)std::floor(std::max(x - ex, -1e9)));
    int right = std::min(clipRight, (int)std::ceil(std::min(x + ex, 1e9)));
    int top = std::max(clipTop, (int)std::floor(std::max(y - ey, -1e9)));
    int bottom = std::min(clipBottom, (int)std::ceil(std::min(y + ey, 1e9)));
    for (int py = top; py <= bottom; ++py)
        for (int px = left; px <= right; ++px) {
            double dx = px - x, dy = py - y;
            double u = dx * c + dy * s + hw, v = -dx * s + dy * c + hh;
            if (u < -1 || v < -1 || u > src.width || v > src.height) continue;
            store(pixelAt(px, py), (unsigned)ImageOps::sampleBilinear(src, u, v, kTransparent));
        }
}

void DrawBMPImpl::mergeBitMap(int, IntArray pixels, int w, int x, int y) {
    const int *data = pixels.data;
    int count = pixels.len;
    if (!data || w <= 0 || count < w) return;
    long long j0 = std::max(0LL, (long long)clipTop - y);
    long long j1 = std::min(count / w - 1LL, (long long)clipBottom - y);
    long long i0 = std::max(0LL, (long long)clipLeft - x);
    long long i1 = std::min(w - 1LL, (long long)clipRight - x);
    for (long long j = j0; j <= j1; ++j)
        for (long long i = i0; i <= i1; ++i)
            store(pixelAt((int)(x + i), (int)(y + j)), (unsigned)data[j * w + i]);
}

void DrawBMPImpl::loadStream(int, const char *data, int length, int imageType, int w, int h) {
    noteSize(limitSize(w, h));
    int dw = w, dh = h;
    int *decoded =
        decodeHook && data && length > 0 ? decodeHook(data, length, imageType, &dw, &dh) : nullptr;
    PixelBuffer image;
    if (decoded && dw > 0 && dh > 0 && (long long)dw * dh <= kMaxPixels) {
        image.width = dw, image.height = dh;
        image.pixels.assign(decoded, decoded + (size_t)dw * dh);
        for (int &p : image.pixels)
            if (isInvisible((unsigned)p)) p = kTransparent;
    } else {
        image = PixelBuffer(w, h, kTransparent);
    }
    std::free(decoded);
    takeBuffer(image);
    bgTransparent = getImage().hasAlpha();
}

// ---- Dynamic layer ----

void DrawBMPImpl::initDynamicLayer() {
    commitSuperPixels();
    snapshotWidth = width, snapshotHeight = height;
    snapshotPixels = pixels;
    if (snapshotPixels.size() != (size_t)width * height)
        snapshotPixels.assign((size_t)width * height, kTransparent);
    snapshotValid = true;
}

bool DrawBMPImpl::restoreSnapshot() {
    if (!snapshotValid) return false;
    superPixels.clear();
    pixels.swap(snapshotPixels);
    std::swap(width, snapshotWidth);
    std::swap(height, snapshotHeight);
    resetClip();
    snapshotValid = false;
    return true;
}

// ---- Flood fill ----

void DrawBMPImpl::floodFill(int x, int y, int color, int borderColor) {
    if (x < 0 || y < 0 || x >= width || y >= height || !paints(color)) return;
    commitSuperPixels();
    int seed = pixels[(size_t)y * width + x];
    bool toBorder = borderColor != kRegionOfSeed;
    if (toBorder && seed == borderColor) return;
    auto inRegion = [&](int p) { return toBorder ? p != borderColor : p == seed; };
    std::vector<char> seen((size_t)width * height, 0);
    std::vector<std::pair<int, int>> todo{{x, y}};
    std::vector<std::pair<int, int>> region;
    while (!todo.empty()) {
        auto [px, py] = todo.back();
        todo.pop_back();
        size_t i = (size_t)py * width + px;
        if (seen[i] || !inRegion(pixels[i])) continue;
        // Extend along the row, then queue the rows above and below.
        int l = px, r = px;
        while (l > 0 && !seen[i - (px - l) - 1] && inRegion(pixels[i - (px - l) - 1])) --l;
        while (r < width - 1 && !seen[i + (r - px) + 1] && inRegion(pixels[i + (r - px) + 1])) ++r;
        for (int k = l; k <= r; ++k) {
            seen[(size_t)py * width + k] = 1;
            region.push_back({k, py});
            if (py > 0) todo.push_back({k, py - 1});
            if (py < height - 1) todo.push_back({k, py + 1});
        }
    }
    for (auto &p : region)
        if (inClip(p.first, p.second))
            blendInto(pixelAt(p.first, p.second), p.first, p.second, color);
}

// ---- Colour definitions ----

void DrawBMPImpl::adjustBrightness(int handle, int source, double factor) {
    setBrush(handle, new BrightnessAdjustmentBrush(this, source, factor));
}

void DrawBMPImpl::transformedColor(int handle, int source, const double (&m)[6]) {
    setBrush(handle, new TransformedBrushF(this, source, m));
}

void DrawBMPImpl::preciseTransformColor(int handle, int source, const double (&m)[6]) {
    setBrush(handle, new PreciseTransformBrush(this, getBrush(source), source, m));
}

void DrawBMPImpl::brushedTextureColor(int handle, int color, int texture) {
    setBrush(handle, new MetalTextureBrush(this, color, texture));
}

void DrawBMPImpl::multiLayerColor(int handle, IntArray layers) {
    setBrush(handle, new MultiLayerBrush(this, layers.data, layers.len));
}

void DrawBMPImpl::dashLineColor(int handle, int color, int pattern) {
    setBrush(handle, new DashLineBrush(color, pattern));
}

void DrawBMPImpl::linearGradientColor(int handle, double x1, double y1, double x2, double y2,
                                      bool periodic, IntArray pairs) {
    setBrush(handle, createLinearGradient(x1, y1, x2, y2, periodic, pairs.data, pairs.len));
}

void DrawBMPImpl::radialGradientColor(int handle, int cx, int cy, int rx, int ry, bool periodic,
                                      IntArray pairs) {
    setBrush(handle, createRadialGradient(cx, cy, rx, ry, periodic, pairs.data, pairs.len));
}

void DrawBMPImpl::angleGradientColor(int handle, double cx, double cy, double startAngle,
                                     double endAngle, double innerRadius, double outerRadius,
                                     IntArray pairs) {
    setBrush(handle, new AngleGradientBrush(cx, cy, startAngle, endAngle, innerRadius, outerRadius,
                                            pairs.data, pairs.len));
}

void DrawBMPImpl::relativeLinearGradientColor(int handle, double x1, double y1, double x2,
                                              double y2, bool periodic, IntArray pairs) {
    linearGradientColor(handle, x1 * width, y1 * height, x2 * width, y2 * height, periodic, pairs);
}

void DrawBMPImpl::lightingColor(int handle, int color, double x1, double y1, double x2, double y2,
                                bool periodic, IntArray lighting) {
    setBrush(handle,
             new LightingBrush(this, color, x1, y1, x2, y2, periodic, lighting.data, lighting.len));
}

void DrawBMPImpl::linearLightingColor(int handle, int color, double x1, double y1, double x2,
                                      double y2, bool periodic, IntArray lighting) {
    lightingColor(handle, color, x1, y1, x2, y2, periodic, lighting);
}

void DrawBMPImpl::radialLightingColor(int handle, int color, int cx, int cy, int rx, int ry,
                                      IntArray lighting) {
    setBrush(handle,
             new RadialLightingBrush(this, color, cx, cy, rx, ry, lighting.data, lighting.len));
}

void DrawBMPImpl::relativeLinearLightingColor(int handle, int color, double x1, double y1,
                                              double x2, double y2, bool periodic,
                                              IntArray lighting) {
    lightingColor(handle, color, x1 * width, y1 * height, x2 * width, y2 * height, periodic,
                  lighting);
}

void DrawBMPImpl::patternColor(int handle, int startX, int startY, int w, int h, IntArray pixels) {
    setBrush(handle, new PatternBrush(startX, startY, w, h, pixels.data, pixels.len));
}

void DrawBMPImpl::patternColor2(int handle, int startX, int startY, const char *fileName) {
    std::vector<char> bytes = ImageDecoder::readFile(fileName, kMaxPatternFile);
    int w = 0, h = 0;
    int *decoded = nullptr;
    if (!bytes.empty() && decodeHook) {
        int type = ImageSniffer::getType((int)bytes.size(), (const unsigned char *)bytes.data());
        if (type >= 0) decoded = decodeHook(bytes.data(), (int)bytes.size(), type, &w, &h);
    }
    long long count = decoded && w > 0 && h > 0 ? (long long)w * h : 0;
    setBrush(handle, new PatternBrush(startX, startY, w, h, decoded,
                                      (int)std::min<long long>(count, 1LL << 30)));
    std::free(decoded);
}

void DrawBMPImpl::zoneColor(int handle, bool vertical, int boundary, int before, int after) {
    setBrush(handle, new ZoneBrush(vertical, boundary, before, after));
}

void DrawBMPImpl::rectColor(int handle, double x1, double y1, double x2, double y2, int color) {
    setBrush(handle, new RectBrush(x1, y1, x2, y2, color));
}
