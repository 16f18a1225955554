#include "draw/canvas/DrawAreaImpl.h"

#include <strings.h>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "draw/canvas/CanvasTextService.h"
#include "draw/canvas/CurveFlattener.h"
#include "draw/canvas/GlobalResources.h"
#include "draw/canvas/RaisedEffect.h"
#include "draw/canvas/ShapePath.h"
#include "draw/canvas/SubDrawArea.h"
#include "draw/canvas/TextAntiAlias.h"
#include "draw/codec/ImageEncoder.h"
#include "draw/list/MetaDraw.h"
#include "draw/pdf/DrawPDF.h"
#include "draw/pixel/ColorWords.h"
#include "draw/raster/DrawBMP.h"
#include "draw/svg/DrawSVG.h"
#include "foundation/Codec.h"
#include "foundation/Constants.h"
#include "foundation/Unicode.h"

namespace {

// Font table entries beyond this are refused: an index is a small number.
const int kMaxFontTable = 1024;
// The gzip level of compressed SVG.
const int kSvgzLevel = 6;

// Coordinates beyond this are missing values or garbage, never geometry.
bool isCoor(double v) {
    return std::isfinite(v) && std::fabs(v) < 1e300;
}

int clampToInt(long long v) {
    return (int)std::max<long long>(std::min<long long>(v, 0x7FFFFFFF), -0x7FFFFFFF);
}

// The output chosen by a file name's ending.
enum OutputKind {
    kOutGIF,
    kOutJPG,
    kOutPNG,
    kOutWMP,
    kOutBMP,
    kOutSVG,
    kOutSVGZ,
    kOutAGF,
    kOutPDF
};
struct Ending {
    const char *ending;
    OutputKind kind;
};
const Ending kEndings[] = {
    {".gif", kOutGIF},   {".jpg", kOutJPG}, {".jpeg", kOutJPG}, {".png", kOutPNG},
    {".wbmp", kOutWMP},  {".wmp", kOutWMP}, {".bmp", kOutBMP},  {".svg", kOutSVG},
    {".svgz", kOutSVGZ}, {".agf", kOutAGF}, {".pdf", kOutPDF},
};

// A decimal number, possibly negative, that is the whole text.  Numbers too
// large for the table come out as -1: they name no entry either.
bool parseFontIndex(const char *text, long *index) {
    bool negative = *text == '-';
    const char *p = negative ? text + 1 : text;
    if (!*p) return false;
    long n = 0;
    for (; *p; ++p) {
        if (*p < '0' || *p > '9') return false;
        if (n <= kMaxFontTable) n = n * 10 + (*p - '0');
    }
    *index = negative || n > kMaxFontTable ? -1 : n;
    return true;
}

bool endsWithNoCase(const char *s, const char *ending) {
    size_t n = strlen(s), m = strlen(ending);
    return n >= m && strcasecmp(s + n - m, ending) == 0;
}

}  // namespace

DrawAreaImpl::DrawAreaImpl()
    : refCount(1),
      metaDraw(MetaDraw::create(this)),
      bitmap(nullptr),
      replayPos(0),
      width(1),
      height(1),
      dynColorMark(0),
      derivedColorMark(0),
      dynamicLayerPos(-1),
      clipLeft(0),
      clipTop(0),
      clipRight(0),
      clipBottom(0),
      interlace(0),
      transparentColor(kTransparent),
      antiAliasText(TextAntiAlias::kAutoAntiAlias),
      antiAliasShape(1),
      paletteMode(0),
      ditherMethod(0),
      colorModel(metaDraw),
      defaultFonts({"arial.ttf", "arialbd.ttf", "ariali.ttf", "arialbi.ttf"}) {}

DrawAreaImpl::~DrawAreaImpl() {
    for (auto &r : drawAreaResources) r.second->destroy();
    for (DrawArea *d : heldShared) d->destroy();
    for (DrawAreaObject *obj : objects) delete obj;
    for (auto &attr : namedAttrs) delete attr.second;
    delete bitmap;
    metaDraw->destroyList();
}

void DrawAreaImpl::retain() {
    refCount.fetch_add(1, std::memory_order_relaxed);
}

void DrawAreaImpl::destroy() {
    // A shared canvas may lose its last reference on any thread.
    if (refCount.fetch_sub(1, std::memory_order_acq_rel) <= 1) delete this;
}

// ---- Raster on demand ----

DrawBMP *DrawAreaImpl::createRaster() {
    return DrawBMP::create(metaDraw, getTemplateRaster());
}

void DrawAreaImpl::applyRasterSettings() {
    bitmap->setPixelLimit(getPixelLimit());
    bitmap->setAntiAlias(antiAliasShape != 0, antiAliasText);
    bitmap->setInterlace(interlace);
    bitmap->setTransparentColor(transparentColor);
    bitmap->setDitherMethod(ditherMethod);
    bitmap->setPaletteMode(paletteMode);
}

void DrawAreaImpl::destroyRaster() {
    delete bitmap;
    bitmap = nullptr;
    replayPos = 0;
}

bool DrawAreaImpl::isRasterAllowed() const {
    int limit = getPixelLimit();
    return limit <= 0 || (long long)width * height <= limit;
}

DrawBMP *DrawAreaImpl::getRaster() {
    // No pixels rather than pixels of another size than the canvas says.
    if (!isRasterAllowed()) return nullptr;
    // A second round only when the list says the raster can't be continued.
    for (int round = 0; round < 2; ++round) {
        if (!bitmap) bitmap = createRaster();
        if (!bitmap) return nullptr;
        applyRasterSettings();
        int oldPos = replayPos;
        replayPos = metaDraw->play(bitmap, oldPos);
        if (oldPos > 0 && replayPos < 1) {
            destroyRaster();
            continue;
        }
        break;
    }
    return bitmap && !bitmap->hasRefusedSize() ? bitmap : nullptr;
}

// ---- Dynamic layer ----

void DrawAreaImpl::initDynamicLayer() {
    if (dynamicLayerPos >= 0) removeDynamicLayer();
    dynamicLayerPos = metaDraw->markDynamicLayer();
    dynColorMark = colors()->getNextDynColor();
    derivedColorMark = colors()->getDerivedColorCount();
    setClipRect(0, 0, width - 1, height - 1);
}

void DrawAreaImpl::removeDynamicLayer() {
    if (dynamicLayerPos < 0) return;
    int pos = metaDraw->rollback(bitmap);
    replayPos = std::min(replayPos, pos);
    colors()->cutBack(dynColorMark, derivedColorMark);
    dynamicLayerPos = -1;
    resetClip();
}

// ---- Size and state ----

void DrawAreaImpl::resetClip() {
    clipLeft = clipTop = 0;
    clipRight = width - 1;
    clipBottom = height - 1;
}

void DrawAreaImpl::setSize(int w, int h, int bgColor) {
    width = std::max(w, 1);
    height = std::max(h, 1);
    metaDraw->setSize(width, height, bgColor);
    resetClip();
}

void DrawAreaImpl::resize(int newWidth, int newHeight, int, double) {
    width = std::max(newWidth, 1);
    height = std::max(newHeight, 1);
    metaDraw->resize(width, height);
    resetClip();
}

void DrawAreaImpl::setClipRect(int left, int top, int right, int bottom) {
    clipLeft = std::max(left, 0);
    clipTop = std::max(top, 0);
    clipRight = std::min(right, width - 1);
    clipBottom = std::min(bottom, height - 1);
    metaDraw->setClipRect(clipLeft, clipTop, clipRight, clipBottom);
}

void DrawAreaImpl::getClipRect(int *left, int *top, int *right, int *bottom) const {
    if (left) *left = clipLeft;
    if (top) *top = clipTop;
    if (right) *right = clipRight;
    if (bottom) *bottom = clipBottom;
}

void DrawAreaImpl::setBgColor(int color) {
    metaDraw->setBgColor(color);
}

void DrawAreaImpl::setBgDropShadow(int color, int offsetX, int offsetY, int blurRadius) {
    metaDraw->setBgDropShadow(offsetX, offsetY, blurRadius, 0, color);
    long long b = blurRadius;
    long long w = width + std::max(0LL, b + offsetX) + std::max(0LL, b - offsetX);
    long long h = height + std::max(0LL, b + offsetY) + std::max(0LL, b - offsetY);
    width = std::max(clampToInt(w), 1);
    height = std::max(clampToInt(h), 1);
    resetClip();
}

void DrawAreaImpl::setBgRoundedClip(int r1, int r2, int r3, int r4, int color) {
    r1 = std::max(r1, 0);
    r2 = std::max(r2, 0);
    r3 = std::max(r3, 0);
    r4 = std::max(r4, 0);
    if (r1 == 0 && r2 == 0 && r3 == 0 && r4 == 0) return;
    metaDraw->setBgRoundedClip(r1, r2, r3, r4, color);
}

void DrawAreaImpl::setAntiAlias(bool shapeAntiAlias, int textAntiAlias) {
    antiAliasShape = shapeAntiAlias ? 1 : 0;
    antiAliasText = textAntiAlias;
}

int DrawAreaImpl::getTextAAMode() const {
    int defaultAA =
        antiAliasText == TextAntiAlias::kAutoAntiAlias ? DrawArea::getDefaultTextAA() : 0;
    return TextAntiAlias::modeWord(antiAliasText, defaultAA);
}

// ---- Whole-image operations ----

void DrawAreaImpl::affineTransform(double a, double b, double c, double d, double e, double f,
                                   int bgColor, int filter, double blur) {
    if (!isCoor(a) || !isCoor(b) || !isCoor(c) || !isCoor(d) || !isCoor(e) || !isCoor(f)) return;
    metaDraw->affineTransform(a, b, c, d, e, f, bgColor, filter, blur);
}

void DrawAreaImpl::rAffineTransform(double a, double b, double c, double d, double e, double f,
                                    int bgColor, int filter, double blur) {
    double det = a * d - b * c;
    if (det == 0 || !std::isfinite(det)) return;
    // Inverse of x' = a x + b y + e, y' = c x + d y + f.
    double ia = d / det, ib = -b / det, ic = -c / det, id = a / det;
    affineTransform(ia, ib, ic, id, -(ia * e + ib * f), -(ic * e + id * f), bgColor, filter, blur);
}

void DrawAreaImpl::move(double xOffset, double yOffset, int bgColor, int filter, double blur) {
    affineTransform(1, 0, 0, 1, xOffset, yOffset, bgColor, filter, blur);
}

void DrawAreaImpl::rotate(double angle, int bgColor, double cx, double cy, int filter,
                          double blur) {
    double t = angle * kPi / 180, cs = std::cos(t), sn = std::sin(t);
    affineTransform(cs, -sn, sn, cs, cx - cs * cx + sn * cy, cy - sn * cx - cs * cy, bgColor,
                    filter, blur);
}

void DrawAreaImpl::hFlip() {
    affineTransform(-1, 0, 0, 1, width - 1, 0, kTransparent, 0, 1.0);
}

void DrawAreaImpl::vFlip() {
    affineTransform(1, 0, 0, -1, 0, height - 1, kTransparent, 0, 1.0);
}

void DrawAreaImpl::shearTransform(double xShear, double yShear, int bgColor, int filter,
                                  double blur) {
    affineTransform(1, xShear, yShear, 1, 0, 0, bgColor, filter, blur);
}

void DrawAreaImpl::warp(ImageOps::ImageWarp::Kind kind, int bgColor, double period,
                        double amplitude, double phase) {
    ImageOps::ImageWarp w = {kind, getARGBColor(bgColor), period, amplitude, phase};
    DrawBMP *raster = getRaster();
    if (!raster) return;
    PixelBuffer warped = ImageOps::warp(raster->copyImage(), w);
    // No record draws a warp: the warped picture goes into the list as an
    // image, so that the vector outputs show it too.
    qlx::ostrstream png;
    char *block = nullptr;
    if (ImageEncoder::encodePNG(png, warped.pixels.data(), warped.width, warped.height))
        block = static_cast<char *>(malloc(png.tell()));
    if (!block) {
        raster->replaceImage(warped);
        return;
    }
    memcpy(block, png.str(), png.tell());
    metaDraw->loadStream(block, png.tell(), kPNG, warped.width, warped.height);
    resetClip();
}

void DrawAreaImpl::waveTransform(double period, double amplitude, double phase, int bgColor) {
    if (!isCoor(period) || !isCoor(amplitude) || !isCoor(phase) || period == 0) return;
    warp(ImageOps::ImageWarp::kWave, bgColor, period, amplitude, phase);
}

void DrawAreaImpl::sphereTransform(int bgColor) {
    warp(ImageOps::ImageWarp::kSphere, bgColor);
}

void DrawAreaImpl::hCylinderTransform(int bgColor) {
    warp(ImageOps::ImageWarp::kHCylinder, bgColor);
}

void DrawAreaImpl::vCylinderTransform(int bgColor) {
    warp(ImageOps::ImageWarp::kVCylinder, bgColor);
}

void DrawAreaImpl::vTriangleTransform(int bgColor) {
    warp(ImageOps::ImageWarp::kVTriangle, bgColor);
}

void DrawAreaImpl::hTriangleTransform(int bgColor) {
    warp(ImageOps::ImageWarp::kHTriangle, bgColor);
}

// ---- Pixels ----

void DrawAreaImpl::pixel(int x, int y, int color) {
    if (x < 0 || y < 0 || x >= width || y >= height) return;
    if (DrawBMP *raster = getRaster()) raster->setPixel(x, y, getARGBColor(color));
}

int DrawAreaImpl::getPixel(int x, int y) {
    if (x < 0 || y < 0 || x >= width || y >= height) return kTransparent;
    DrawBMP *raster = getRaster();
    return raster ? raster->getPixel(x, y) : kTransparent;
}

void DrawAreaImpl::fill2(int x, int y, int color, int borderColor) {
    if (x < 0 || y < 0 || x >= width || y >= height) return;
    if (DrawBMP *raster = getRaster())
        raster->floodFill(x, y, getARGBColor(color), getARGBColor(borderColor));
}

void DrawAreaImpl::fill(int x, int y, int color) {
    if (x < 0 || y < 0 || x >= width || y >= height) return;
    if (DrawBMP *raster = getRaster())
        raster->floodFill(x, y, getARGBColor(color), DrawBMP::kRegionOfSeed);
}

void DrawAreaImpl::beginSuperPixelMode() {
    metaDraw->beginSuperPixelMode();
}

void DrawAreaImpl::commitSuperPixels() {
    metaDraw->commitSuperPixels();
}

// ---- Lines ----

bool DrawAreaImpl::isLineVisible(double x1, double y1, double x2, double y2) const {
    if (!isCoor(x1) || !isCoor(y1) || !isCoor(x2) || !isCoor(y2)) return false;
    return !((x1 < 0 && x2 < 0) || (y1 < 0 && y2 < 0) || (x1 > width - 1 && x2 > width - 1) ||
             (y1 > height - 1 && y2 > height - 1));
}

int DrawAreaImpl::limitLineWidth(int lineWidth) const {
    return std::min(lineWidth, std::max(width, height));
}

void DrawAreaImpl::line(double x1, double y1, double x2, double y2, int color, int lineWidth) {
    if (lineWidth < 1 || getARGBColor(color) == kTransparent) return;
    if (!isLineVisible(x1, y1, x2, y2)) return;
    metaDraw->addLine(color, limitLineWidth(lineWidth), x1, y1, x2, y2);
}

void DrawAreaImpl::hline(int x1, int x2, int y, int color) {
    line(x1, y, x2, y, color, 1);
}

void DrawAreaImpl::vline(int y1, int y2, int x, int color) {
    line(x, y1, x, y2, color, 1);
}

void DrawAreaImpl::rawExactLine(double x1, double y1, double x2, double y2, int color,
                                int lineWidth) {
    if (lineWidth < 1 || getARGBColor(color) == kTransparent) return;
    if (!isLineVisible(x1, y1, x2, y2)) return;
    metaDraw->line(x1, y1, x2, y2, color, limitLineWidth(lineWidth));
}

void DrawAreaImpl::strokePoints(const std::vector<double> &x, const std::vector<double> &y,
                                int color, int lineWidth) {
    for (size_t i = 1; i < x.size(); ++i) line(x[i - 1], y[i - 1], x[i], y[i], color, lineWidth);
}

void DrawAreaImpl::rawPolyline(DoubleArray x, DoubleArray y, int color, int lineWidth) {
    int n = std::min(x.len, y.len);
    for (int i = 1; i < n; ++i)
        line(x.data[i - 1], y.data[i - 1], x.data[i], y.data[i], color, lineWidth);
}

void DrawAreaImpl::curve(DoubleArray x, DoubleArray y, int color, int lineWidth) {
    int n = std::min(x.len, y.len);
    if (n < 2) return;
    std::vector<CurveFlattener::Point> points(n), flat;
    for (int i = 0; i < n; ++i) {
        if (!isCoor(x.data[i]) || !isCoor(y.data[i])) return;
        points[i] = {x.data[i], y.data[i]};
    }
    CurveFlattener::smoothCurve(points.data(), n, false, flat);
    std::vector<double> fx, fy;
    for (auto &p : flat) {
        fx.push_back(p.x);
        fy.push_back(p.y);
    }
    strokePoints(fx, fy, color, lineWidth);
}

void DrawAreaImpl::arc(double cx, double cy, double rx, double ry, double a1, double a2,
                       int color) {
    if (getARGBColor(color) == kTransparent) return;
    if (!isCoor(cx) || !isCoor(cy) || !isCoor(rx) || !isCoor(ry) || !isCoor(a1) || !isCoor(a2))
        return;
    if (rx <= 0 || ry <= 0 || a1 == a2) return;
    ShapePath path(metaDraw, color);
    path.arcTo(cx, cy, rx, ry, a1, std::max(std::min(a2, a1 + 360), a1 - 360));
    // The closing edge is invisible: an arc is an outline only.
    path.setEdgeColor(kTransparent);
    path.paint(kTransparent);
}

// ---- Rectangles ----

void DrawAreaImpl::rect(double x1, double y1, double x2, double y2, int edgeColor, int fillColor,
                        int raisedEffect) {
    if (raisedEffect != 0) {
        RaisedEffect(raisedEffect).paint(this, x1, y1, x2, y2, edgeColor, fillColor);
        return;
    }
    const int radius[4] = {0, 0, 0, 0};
    const int edges[4] = {edgeColor, edgeColor, edgeColor, edgeColor};
    roundedRect(x1, y1, x2, y2, radius, edges, fillColor);
}

void DrawAreaImpl::roundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                               const int edgeColor[4], int fillColor) {
    if (!isCoor(x1) || !isCoor(y1) || !isCoor(x2) || !isCoor(y2)) return;
    int r[4];
    for (int i = 0; i < 4; ++i) r[i] = std::max(radius ? radius[i] : 0, 0);
    metaDraw->roundedRect(x1, y1, x2, y2, r, edgeColor, fillColor);
}

void DrawAreaImpl::rawRect(double x1, double y1, double x2, double y2, int color) {
    rect(x1, y1, x2, y2, color, color, 0);
}

void DrawAreaImpl::rawMultiRect(IntArray coords, int color) {
    for (int i = 0; i + 3 < coords.len; i += 4)
        rawRect(coords.data[i], coords.data[i + 1], coords.data[i + 2], coords.data[i + 3], color);
}

void DrawAreaImpl::frameRect(double x1, double y1, double x2, double y2, const int radius[4], int n,
                             int color) {
    if (n < 1 || getARGBColor(color) == kTransparent) return;
    if (!isCoor(x1) || !isCoor(y1) || !isCoor(x2) || !isCoor(y2)) return;
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    // Pixel centres are whole numbers: pixels x1 to x2 span x1 - 0.5 to x2 + 0.5.
    double outer[4], inner[4];
    for (int i = 0; i < 4; ++i) {
        outer[i] = std::max(radius ? radius[i] : 0, 0);
        inner[i] = std::max(outer[i] - n, 0.0);
    }
    ShapePath path(metaDraw, kTransparent);
    path.roundedRect(x1 - 0.5, y1 - 0.5, x2 + 0.5, y2 + 0.5, outer);
    bool filled = 2.0 * n >= x2 - x1 + 1 || 2.0 * n >= y2 - y1 + 1;
    if (!filled) path.roundedRect(x1 + n - 0.5, y1 + n - 0.5, x2 - n + 0.5, y2 - n + 0.5, inner);
    path.paint(color);
}

// ---- Polygons and curves ----

void DrawAreaImpl::polygonPoints(const double *x, const double *y, int n, int edgeColor,
                                 int fillColor) {
    if (n < 2) return;
    for (int i = 0; i < n; ++i)
        if (!isCoor(x[i]) || !isCoor(y[i])) return;
    if (n == 2) {
        line(x[0], y[0], x[1], y[1], edgeColor, 1);
        return;
    }
    if (getARGBColor(edgeColor) == kTransparent && getARGBColor(fillColor) == kTransparent) return;
    metaDraw->polygon(x, y, n, edgeColor, fillColor);
}

void DrawAreaImpl::polygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) {
    polygonPoints(x.data, y.data, std::min(x.len, y.len), edgeColor, fillColor);
}

void DrawAreaImpl::polygon2(IntArray x, IntArray y, int edgeColor, int fillColor) {
    int n = std::min(x.len, y.len);
    std::vector<double> dx(x.data, x.data + std::max(n, 0)), dy(y.data, y.data + std::max(n, 0));
    polygonPoints(dx.data(), dy.data(), n, edgeColor, fillColor);
}

void DrawAreaImpl::polyShape(DoubleArray xy, int edgeColor, int fillColor) {
    int n = xy.len / 2;
    std::vector<double> x(std::max(n, 0)), y(std::max(n, 0));
    for (int i = 0; i < n; ++i) {
        x[i] = xy.data[2 * i];
        y[i] = xy.data[2 * i + 1];
    }
    polygonPoints(x.data(), y.data(), n, edgeColor, fillColor);
}

void DrawAreaImpl::surface(double x1, double y1, double x2, double y2, double depthX, double depthY,
                           int edgeColor, int fillColor) {
    const double x[4] = {x1, x2, x2 + depthX, x1 + depthX};
    const double y[4] = {y1, y2, y2 + depthY, y1 + depthY};
    polygonPoints(x, y, 4, edgeColor, fillColor);
}

void DrawAreaImpl::drawPath(DoubleArray xy, int edgeColor, int fillColor, int lineWidth) {
    if (xy.len < 8) return;
    for (int i = 0; i < xy.len; ++i)
        if (!isCoor(xy.data[i])) return;
    typedef CurveFlattener::Point Point;
    std::vector<Point> flat{{xy.data[0], xy.data[1]}};
    for (int i = 2; i + 5 < xy.len; i += 6) {
        const double *p = xy.data + i;
        CurveFlattener::flattenCubic(flat.back(), {p[0], p[1]}, {p[2], p[3]}, {p[4], p[5]}, flat);
    }
    std::vector<double> x, y;
    for (auto &p : flat) {
        x.push_back(p.x);
        y.push_back(p.y);
    }
    if (getARGBColor(fillColor) != kTransparent)
        polygonPoints(x.data(), y.data(), (int)x.size(), edgeColor, fillColor);
    else
        strokePoints(x, y, edgeColor, lineWidth);
}

void DrawAreaImpl::smoothPolygon(DoubleArray x, DoubleArray y, int edgeColor, int fillColor) {
    int n = std::min(x.len, y.len);
    if (n < 3) {
        polygon(x, y, edgeColor, fillColor);
        return;
    }
    std::vector<CurveFlattener::Point> points(n), flat;
    for (int i = 0; i < n; ++i) {
        if (!isCoor(x.data[i]) || !isCoor(y.data[i])) return;
        points[i] = {x.data[i], y.data[i]};
    }
    CurveFlattener::smoothCurve(points.data(), n, true, flat);
    // The curve ends where it began; the polygon closes itself.
    flat.pop_back();
    std::vector<double> fx, fy;
    for (auto &p : flat) {
        fx.push_back(p.x);
        fy.push_back(p.y);
    }
    polygonPoints(fx.data(), fy.data(), (int)fx.size(), edgeColor, fillColor);
}

// ---- Elliptic shapes ----

namespace {

bool isEllipse(double cx, double cy, double rx, double ry) {
    return isCoor(cx) && isCoor(cy) && isCoor(rx) && isCoor(ry) && rx >= 0 && ry >= 0;
}

}  // namespace

void DrawAreaImpl::sector(double cx, double cy, double rx, double ry, double a1, double a2,
                          int edgeColor, int fillColor) {
    if (!isEllipse(cx, cy, rx, ry) || !isCoor(a1) || !isCoor(a2) || a1 == a2) return;
    if (std::fabs(a2 - a1) >= 360) {
        circle(cx, cy, rx, ry, edgeColor, fillColor);
        return;
    }
    ShapePath path(metaDraw, edgeColor);
    path.moveTo(cx, cy);
    path.arcTo(cx, cy, rx, ry, a1, a2);
    path.paint(fillColor);
}

void DrawAreaImpl::circle(double cx, double cy, double rx, double ry, int edgeColor,
                          int fillColor) {
    if (!isEllipse(cx, cy, rx, ry) || rx == 0 || ry == 0) return;
    ShapePath path(metaDraw, edgeColor);
    path.arcTo(cx, cy, rx, ry, 0, 360);
    path.paint(fillColor);
}

void DrawAreaImpl::cylinder(double cx, double cy, double rx, double ry, double a1, double a2,
                            double depthX, double depthY, int edgeColor, int fillColor) {
    if (!isEllipse(cx, cy, rx, ry) || !isCoor(a1) || !isCoor(a2) || !isCoor(depthX) ||
        !isCoor(depthY) || a1 == a2)
        return;
    a2 = std::max(std::min(a2, a1 + 360), a1 - 360);
    ShapePath path(metaDraw, edgeColor);
    path.arcTo(cx, cy, rx, ry, a1, a2);
    path.arcTo(cx + depthX, cy + depthY, rx, ry, a2, a1);
    path.paint(fillColor);
}

void DrawAreaImpl::ringSector(double cx, double cy, double rx, double ry, double rx2, double ry2,
                              double a1, double a2, int edgeColor, int fillColor) {
    if (!isEllipse(cx, cy, rx, ry) || !isEllipse(cx, cy, rx2, ry2) || !isCoor(a1) || !isCoor(a2) ||
        a1 == a2)
        return;
    if (std::fabs(a2 - a1) >= 360) {
        ring(cx, cy, rx, ry, rx2, ry2, edgeColor, fillColor);
        return;
    }
    ShapePath path(metaDraw, edgeColor);
    path.arcTo(cx, cy, rx, ry, a1, a2);
    if (rx2 > 0 && ry2 > 0)
        path.arcTo(cx, cy, rx2, ry2, a2, a1);
    else
        path.lineTo(cx, cy);
    path.paint(fillColor);
}

void DrawAreaImpl::ring(double cx, double cy, double rx, double ry, double rx2, double ry2,
                        int edgeColor, int fillColor) {
    if (!isEllipse(cx, cy, rx, ry) || !isEllipse(cx, cy, rx2, ry2)) return;
    ShapePath path(metaDraw, edgeColor);
    if (rx > 0 && ry > 0) path.arcTo(cx, cy, rx, ry, 0, 360);
    path.close();
    if (rx2 > 0 && ry2 > 0) path.arcTo(cx, cy, rx2, ry2, 0, 360);
    path.paint(fillColor);
}

void DrawAreaImpl::gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                                   double x2, double y2, double i2, int color) {
    const double v[9] = {x0, y0, i0, x1, y1, i1, x2, y2, i2};
    for (double d : v)
        if (!isCoor(d)) return;
    metaDraw->gouraudTriangle(x0, y0, i0, x1, y1, i1, x2, y2, i2, color);
}

// ---- Text ----

namespace {

// Wide copy of a UTF-8 text for the text layer.
std::vector<wchar_t> widen(const char *str) {
    std::vector<wchar_t> wide(str ? strlen(str) + 1 : 1, 0);
    if (str) qlx::toWCS(wide.data(), str);
    return wide;
}

}  // namespace

TTFText *DrawAreaImpl::text(const char *str, const char *font, double fontSize) {
    return text2w(widen(str).data(), font, 0, fontSize, 0, 0, false);
}

TTFText *DrawAreaImpl::textw(const wchar_t *str, const char *font, double fontSize) {
    return text2w(str, font, 0, fontSize, 0, 0, false);
}

TTFText *DrawAreaImpl::text2(const char *str, const char *font, int fontIndex, double fontHeight,
                             double fontWidth, double angle, bool vertical) {
    return text2w(widen(str).data(), font, fontIndex, fontHeight, fontWidth, angle, vertical);
}

TTFText *DrawAreaImpl::text2w(const wchar_t *str, const char *font, int fontIndex,
                              double fontHeight, double fontWidth, double angle, bool vertical) {
    CanvasTextService *service = CanvasTextService::get();
    if (!service) return nullptr;
    return service->text(this, str ? str : L"", font, fontIndex, fontHeight, fontWidth, angle,
                         vertical, getTextAAMode());
}

void DrawAreaImpl::text3(const char *str, const char *font, double fontSize, int x, int y,
                         int color) {
    text4w(widen(str).data(), font, 0, fontSize, 0, 0, false, x, y, color, kTopLeft);
}

void DrawAreaImpl::text3w(const wchar_t *str, const char *font, double fontSize, int x, int y,
                          int color) {
    text4w(str, font, 0, fontSize, 0, 0, false, x, y, color, kTopLeft);
}

void DrawAreaImpl::text4(const char *str, const char *font, int fontIndex, double fontHeight,
                         double fontWidth, double angle, bool vertical, int x, int y, int color,
                         int alignment) {
    text4w(widen(str).data(), font, fontIndex, fontHeight, fontWidth, angle, vertical, x, y, color,
           alignment);
}

void DrawAreaImpl::text4w(const wchar_t *str, const char *font, int fontIndex, double fontHeight,
                          double fontWidth, double angle, bool vertical, int x, int y, int color,
                          int alignment) {
    if (CanvasTextService *service = CanvasTextService::get())
        service->drawText(this, str ? str : L"", font, fontIndex, fontHeight, fontWidth, angle,
                          vertical, x, y, 0, 0, color, alignment, getTextAAMode());
}

void DrawAreaImpl::textBlock(const char *str, const char *font, int fontIndex, double fontHeight,
                             double fontWidth, double angle, int x, int y, int maxWidth,
                             int maxLines, int color, int alignment) {
    textBlockw(widen(str).data(), font, fontIndex, fontHeight, fontWidth, angle, x, y, maxWidth,
               maxLines, color, alignment);
}

void DrawAreaImpl::textBlockw(const wchar_t *str, const char *font, int fontIndex,
                              double fontHeight, double fontWidth, double angle, int x, int y,
                              int maxWidth, int maxLines, int color, int alignment) {
    if (CanvasTextService *service = CanvasTextService::get())
        service->drawText(this, str ? str : L"", font, fontIndex, fontHeight, fontWidth, angle,
                          false, x, y, maxWidth, maxLines, color, alignment, getTextAAMode());
}

void DrawAreaImpl::renderVSML(const char *markup) {
    CanvasTextService *service = CanvasTextService::get();
    if (!service) return;
    service->renderVSML(this, markup ? markup : "", getTextAAMode());
    metaDraw->freeze();
}

// ---- Composition ----

void DrawAreaImpl::merge(DrawArea *d, int x, int y, int align, int transparency) {
    if (!d || d == this || transparency >= 255) return;
    int w = d->getWidth(), h = d->getHeight();
    metaDraw->mergeScaled(d->getMetaDraw(), x - alignX(w, align), y - alignY(h, align), w, h,
                          std::max(transparency, 0));
}

void DrawAreaImpl::mergeScaled(DrawArea *d, int x, int y, int w, int h, int transparency) {
    if (!d || d == this || transparency >= 255 || w < 1 || h < 1) return;
    metaDraw->mergeScaled(d->getMetaDraw(), x, y, w, h, std::max(transparency, 0));
}

void DrawAreaImpl::mergeRotated(DrawArea *d, double x, double y, double angle) {
    if (!d || d == this || !isCoor(x) || !isCoor(y) || !isCoor(angle)) return;
    metaDraw->mergeRotated(d->getMetaDraw(), x, y, angle);
}

void DrawAreaImpl::mergeAtPoints(DrawArea *d, IntArray xy, int align) {
    if (!d || d == this || !xy.data || xy.len < 2) return;
    int w = d->getWidth(), h = d->getHeight();
    long long dx = alignX(w, align), dy = alignY(h, align);
    std::vector<int> corners;
    corners.reserve(xy.len & ~1);
    for (int i = 0; i + 1 < xy.len; i += 2) {
        long long x = xy.data[i] - dx, y = xy.data[i + 1] - dy;
        if (x + w <= 0 || y + h <= 0 || x >= width || y >= height) continue;
        corners.push_back((int)x);
        corners.push_back((int)y);
    }
    if (corners.empty()) return;
    metaDraw->mergeAtPoints(d->getMetaDraw(), w, h, IntArray(corners.data(), (int)corners.size()));
}

void DrawAreaImpl::clone(DrawArea *d, int x, int y, int align, int newWidth, int newHeight, int,
                         double) {
    if (!d || d == this) return;
    int w = std::max(newWidth == -1 ? width : newWidth, 1);
    int h = std::max(newHeight == -1 ? height : newHeight, 1);
    d->getMetaDraw()->mergeScaled(metaDraw, x - alignX(w, align), y - alignY(h, align), w, h, 0);
}

void DrawAreaImpl::tile(DrawArea *d, int transparency) {
    if (!d || d == this || transparency >= 255) return;
    int w = d->getWidth(), h = d->getHeight();
    if (w < 1 || h < 1) return;
    if (w == 1 && h == 1) {
        int c = d->getPixel(0, 0);
        if (c != kTransparent) rawRect(0, 0, width - 1, height - 1, c);
        return;
    }
    for (int y = 0; y < height; y += h)
        for (int x = 0; x < width; x += w) merge(d, x, y, kTopLeft, transparency);
}

// ---- Loading ----

void DrawAreaImpl::setSearchPath(const char *path) {
    searchPath = path ? path : "";
}

bool DrawAreaImpl::loadBlock(char *data, int length, int requiredType) {
    int type = getImageType(length, data);
    int w = 0, h = 0;
    getImageSize(length, data, &w, &h);
    int limit = getPixelLimit();
    bool ok = type >= 0 && (requiredType < 0 || requiredType == type) && w >= 1 && h >= 1 &&
              (limit <= 0 || (long long)w * h <= limit);
    if (!ok) {
        free(data);
        return false;
    }
    metaDraw->loadStream(data, length, type, w, h);
    width = w;
    height = h;
    resetClip();
    return true;
}

bool DrawAreaImpl::loadWithType(const char *path, int requiredType) {
    if (!path || !*path) return false;
    int length = 0;
    char *data = loadFile(path, getFileLimit(), &length);
    return data && loadBlock(data, length, requiredType);
}

bool DrawAreaImpl::load(const char *path) {
    return loadWithType(path, -1);
}

bool DrawAreaImpl::loadGIF(const char *path) {
    return loadWithType(path, kGIF);
}

bool DrawAreaImpl::loadPNG(const char *path) {
    return loadWithType(path, kPNG);
}

bool DrawAreaImpl::loadJPG(const char *path) {
    return loadWithType(path, kJPG);
}

bool DrawAreaImpl::loadBMP(const char *path) {
    return loadWithType(path, kBMP);
}

bool DrawAreaImpl::loadWMP(const char *) {
    return false;
}

bool DrawAreaImpl::load2(int length, const char *data, int imgType) {
    if (!data || length <= 0) return false;
    char *copy = (char *)malloc((size_t)length);
    if (!copy) return false;
    memcpy(copy, data, (size_t)length);
    return loadBlock(copy, length, imgType);
}

char *DrawAreaImpl::readFile(const char *path, int limit, int *length) {
    FILE *f = qlx::fopenUTF8(path, "rb");
    if (!f) return nullptr;
    std::vector<char> bytes;
    char buf[65536];
    bool ok = true;
    for (;;) {
        size_t n = fread(buf, 1, sizeof buf, f);
        if (n == 0) break;
        if (limit > 0 && bytes.size() + n > (size_t)limit) {
            ok = false;
            break;
        }
        bytes.insert(bytes.end(), buf, buf + n);
    }
    ok = ok && !ferror(f);
    fclose(f);
    if (!ok) return nullptr;
    char *data = (char *)malloc(bytes.size() + 1);
    if (!data) return nullptr;
    if (!bytes.empty()) memcpy(data, bytes.data(), bytes.size());
    *length = (int)bytes.size();
    return data;
}

char *DrawAreaImpl::readResource(const char *id, int *length) {
    char *data = getResourceData(id, length);
    if (data) return data;
    auto own = drawAreaResources.find(id);
    if (own == drawAreaResources.end()) return GlobalResources::encodeDrawArea(id, length);
    MemBlock png = own->second->outPNG2();
    if (png.len <= 0) return nullptr;
    data = (char *)malloc((size_t)png.len);
    if (!data) return nullptr;
    memcpy(data, png.data, (size_t)png.len);
    *length = png.len;
    return data;
}

char *DrawAreaImpl::loadFile(const char *path, int limit, int *length) {
    *length = 0;
    if (!path) return nullptr;
    while (*path == ' ' || *path == '\t') ++path;
    if (!*path) return nullptr;
    auto tryCandidate = [&](const std::string &candidate) -> char * {
        int n = 0;
        char *data;
        if (const char *id = getResourceId(candidate.c_str()))
            data = readResource(id, &n);
        else
            data = readFile(candidate.c_str(), limit, &n);
        if (data && limit > 0 && n > limit) {
            free(data);
            data = nullptr;
        }
        if (data) *length = n;
        return data;
    };
    if (*path == '/' || *path == '\\' || getResourceId(path) || searchPath.empty())
        return tryCandidate(path);
    char separator = searchPath.find(';') != std::string::npos ? ';' : ':';
    size_t start = 0;
    for (;;) {
        size_t end = searchPath.find(separator, start);
        std::string entry = searchPath.substr(start, end == std::string::npos ? end : end - start);
        if (!entry.empty() && entry.back() != '/' && entry.back() != '\\') entry += '/';
        if (char *data = tryCandidate(entry + path)) return data;
        if (end == std::string::npos) return nullptr;
        start = end + 1;
    }
}

// ---- Output ----

MemBlock DrawAreaImpl::memResult() {
    return MemBlock(memOut.str(), memOut.tell());
}

MemBlock DrawAreaImpl::encodeRaster(int imageType, int quality) {
    memOut.reset();
    DrawBMP *raster = getRaster();
    const char *alpha = metaDraw->getOption("alpha");
    if (!raster || !ImageEncoder::encode(memOut, raster->getImage(), imageType, quality, alpha)) {
        memOut.reset();
        return MemBlock();
    }
    return memResult();
}

bool DrawAreaImpl::writeFile(const char *path, MemBlock block) {
    if (!path || block.len <= 0) return false;
    qlx::ofstream file(path);
    if (!file.isOpen()) return false;
    file.write(block.data, block.len);
    return true;
}

bool DrawAreaImpl::out(const char *path) {
    if (!path) return false;
    OutputKind kind = kOutPNG;
    for (const Ending &e : kEndings)
        if (endsWithNoCase(path, e.ending)) kind = e.kind;
    switch (kind) {
        case kOutGIF:
            return outGIF(path);
        case kOutJPG:
            return outJPG(path, 80);
        case kOutWMP:
            return outWMP(path);
        case kOutBMP:
            return outBMP(path);
        case kOutSVG:
            return outSVG(path, nullptr);
        case kOutSVGZ:
            return outSVG(path, "compress");
        case kOutAGF:
            return outAGF(path);
        case kOutPDF:
            return outPDF(path);
        case kOutPNG:
            break;
    }
    return outPNG(path);
}

bool DrawAreaImpl::outGIF(const char *path) {
    return writeFile(path, outGIF2());
}

bool DrawAreaImpl::outPNG(const char *path) {
    return writeFile(path, outPNG2());
}

bool DrawAreaImpl::outJPG(const char *path, int quality) {
    return writeFile(path, outJPG2(quality));
}

bool DrawAreaImpl::outWMP(const char *path) {
    return writeFile(path, outWMP2());
}

bool DrawAreaImpl::outBMP(const char *path) {
    return writeFile(path, outBMP2());
}

bool DrawAreaImpl::outSVG(const char *path, const char *options) {
    return writeFile(path, outSVG2(options));
}

bool DrawAreaImpl::outPDF(const char *path) {
    return writeFile(path, outPDF2());
}

bool DrawAreaImpl::outAGF(const char *path) {
    if (!path) return false;
    qlx::ofstream file(path);
    if (!file.isOpen()) return false;
    writeAGFStream(file);
    return true;
}

MemBlock DrawAreaImpl::outGIF2() {
    return encodeRaster(kGIF, 0);
}

MemBlock DrawAreaImpl::outPNG2() {
    return encodeRaster(kPNG, 0);
}

MemBlock DrawAreaImpl::outJPG2(int quality) {
    return encodeRaster(kJPG, quality);
}

MemBlock DrawAreaImpl::outWMP2() {
    return encodeRaster(kWMP, 0);
}

MemBlock DrawAreaImpl::outBMP2() {
    return encodeRaster(kBMP, 0);
}

MemBlock DrawAreaImpl::outAlpha2() {
    memOut.reset();
    DrawBMP *raster = getRaster();
    if (!raster || !ImageEncoder::encodeAlpha(memOut, raster->getImage())) {
        memOut.reset();
        return MemBlock();
    }
    return memResult();
}

MemBlock DrawAreaImpl::outSVG2(const char *options) {
    memOut.reset();
    if (!writeSVGStream(memOut, options)) {
        memOut.reset();
        return MemBlock();
    }
    return memResult();
}

MemBlock DrawAreaImpl::outPDF2() {
    memOut.reset();
    if (!writeVector(memOut, kPDF, nullptr)) {
        memOut.reset();
        return MemBlock();
    }
    return memResult();
}

MemBlock DrawAreaImpl::outAGF2() {
    memOut.reset();
    writeAGFStream(memOut);
    return memResult();
}

bool DrawAreaImpl::writeVector(qlx::ostream &out, int imageType, const char *options) {
    if (options && *options) setOutputOptions(options);
    bool ok = false;
    if (imageType == kSVG && metaDraw->getOption("compress")) {
        qlx::ostrstream plain;
        ok = playVector(kSVG, plain);
        int n = plain.tell();
        std::vector<char> packed(ok ? qlx::getGzipBufferSize(n) : 0);
        int packedLen =
            ok ? qlx::gzipCompress(packed.data(), (int)packed.size(), plain.str(), n, kSvgzLevel)
               : 0;
        // A compressor failure still gives a readable file.
        if (packedLen >= 1)
            out.write(packed.data(), packedLen);
        else
            out.write(plain.str(), n);
    } else {
        ok = playVector(imageType, out);
    }
    setOutputOptions("");
    return ok;
}

bool DrawAreaImpl::playVector(int imageType, qlx::ostream &out) {
    MetaDraw *list = metaDraw;
    MetaDraw *picture = nullptr;
    if (metaDraw->getOption("bitmap")) {
        // The raster as one picture, in a list that reads this list's options.
        DrawBMP *raster = getRaster();
        if (!raster || !raster->getPixels()) return false;
        int w = raster->getWidth(), h = raster->getHeight();
        picture = MetaDraw::create(nullptr);
        picture->setOptionParent(metaDraw);
        picture->setSize(w, h, kTransparent);
        picture->mergeBitMap(raster->getPixels(), w * h, w, 0, 0);
        list = picture;
    }
    VectorBackEnd *document = imageType == kSVG
                                  ? static_cast<VectorBackEnd *>(DrawSVG::create(list))
                                  : DrawPDF::create(list);
    list->playAll(document);
    bool ok = document->write(out);
    delete document;
    if (picture) picture->destroyList();
    return ok;
}

bool DrawAreaImpl::writeSVGStream(qlx::ostream &out, const char *options) {
    return writeVector(out, kSVG, options);
}

void DrawAreaImpl::writeAGFStream(qlx::ostream &out) {
    metaDraw->writeListing(out);
    setOutputOptions("");
}

void DrawAreaImpl::setOutputOptions(const char *options) {
    metaDraw->setOutputOptions(options ? options : "");
}

// ---- Fonts and text attributes ----

void DrawAreaImpl::setDefaultFonts(const char *normal, const char *bold, const char *italic,
                                   const char *boldItalic) {
    const char *fonts[4] = {normal, bold, italic, boldItalic};
    for (int i = 0; i < 4; ++i)
        if (fonts[i]) defaultFonts[i] = fonts[i];
}

void DrawAreaImpl::setFontTable(int index, const char *font) {
    if (index < 0 || index >= kMaxFontTable) return;
    if (index >= (int)defaultFonts.size()) defaultFonts.resize(index + 1);
    defaultFonts[index] = font ? font : "";
}

const char *DrawAreaImpl::getFontTableEntry(int index) {
    if (index < 0 || index >= (int)defaultFonts.size()) return nullptr;
    return defaultFonts[index].c_str();
}

const char *DrawAreaImpl::resolveFont(const char *name) {
    if (!name || !*name) return defaultFonts[0].c_str();
    if (strchr(name, '.')) return name;
    static const char *const kStyleNames[4] = {"normal", "bold", "italic", "boldItalic"};
    for (int i = 0; i < 4; ++i)
        if (strcmp(name, kStyleNames[i]) == 0) return defaultFonts[i].c_str();
    long index = 0;
    if (strncmp(name, "font", 4) == 0 && parseFontIndex(name + 4, &index))
        return defaultFonts[index >= 0 && index < (long)defaultFonts.size() ? index : 0].c_str();
    return name;
}

DrawAreaObject *DrawAreaImpl::getFontAttr(const char *name) {
    if (!name) return nullptr;
    for (auto &attr : namedAttrs)
        if (attr.first == name) return attr.second;
    return nullptr;
}

void DrawAreaImpl::addFontAttr(const char *name, DrawAreaObject *attr) {
    if (!name) {
        delete attr;
        return;
    }
    namedAttrs.emplace_back(name, attr);
}

int DrawAreaImpl::addObject(DrawAreaObject *obj) {
    objects.push_back(obj);
    return (int)objects.size() - 1;
}

DrawAreaObject *DrawAreaImpl::getObject(int index) {
    return index >= 0 && index < (int)objects.size() ? objects[index] : nullptr;
}

void DrawAreaImpl::removeObject(int index) {
    if (index < 0 || index >= (int)objects.size()) return;
    delete objects[index];
    objects[index] = nullptr;
}

// ---- Resources ----

void DrawAreaImpl::setResource(const char *id, const char *data, int length) {
    if (!id) return;
    if (!data) {
        dataResources.erase(id);
        return;
    }
    dataResources[id].assign(data, data + std::max(length, 0));
}

void DrawAreaImpl::setResource2(const char *id, DrawArea *d) {
    if (!id) return;
    if (d) d->retain();
    auto it = drawAreaResources.find(id);
    if (it != drawAreaResources.end()) {
        DrawArea *old = it->second;
        if (d)
            it->second = d;
        else
            drawAreaResources.erase(it);
        old->destroy();
    } else if (d) {
        drawAreaResources[id] = d;
    }
}

char *DrawAreaImpl::getResourceData(const char *id, int *length) {
    *length = 0;
    if (!id || !*id) return nullptr;
    auto it = dataResources.find(id);
    if (it == dataResources.end()) return getGlobalResource(id, length);
    char *copy = (char *)malloc(it->second.size() + 1);
    if (!copy) return nullptr;
    if (!it->second.empty()) memcpy(copy, it->second.data(), it->second.size());
    *length = (int)it->second.size();
    return copy;
}

DrawArea *DrawAreaImpl::getDrawAreaResource(const char *id) {
    if (!id || !*id) return nullptr;
    auto it = drawAreaResources.find(id);
    if (it != drawAreaResources.end()) return it->second;
    // A shared canvas handed out stays alive as long as this canvas, whatever
    // another thread does to the global entry meanwhile.
    DrawArea *shared = GlobalResources::acquireDrawArea(id);
    if (!shared) return nullptr;
    if (std::find(heldShared.begin(), heldShared.end(), shared) != heldShared.end())
        shared->destroy();
    else
        heldShared.push_back(shared);
    return shared;
}

DrawArea *DrawAreaImpl::createSubDrawArea(int w, int h) {
    return new SubDrawArea(this, w, h);
}
