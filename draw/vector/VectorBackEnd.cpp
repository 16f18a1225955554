#include "draw/vector/VectorBackEnd.h"

#include <algorithm>
#include <cmath>

#include "draw/pixel/PixelBlend.h"

using ColorWord::paints;

namespace {

// Display-list points name pixel centres: canvas space lies half a pixel on.
const double kCentre = 0.5;
// Canvas sizes beyond this are refused, as the raster refuses them.
const long long kMaxPixels = 1LL << 28;
// Triangle images are drawn this much finer, unless they grow beyond kMaxFinePixels.
const int kTriangleScale = 2;
const long long kMaxFinePixels = 1LL << 24;

bool isCoor(double v) {
    return std::isfinite(v) && std::fabs(v) < 1e9;
}

bool near(double ax, double ay, double bx, double by) {
    return std::fabs(ax - bx) < 1e-6 && std::fabs(ay - by) < 1e-6;
}

struct EdgeEnds {
    double x1, y1, x2, y2;
};

EdgeEnds endsOf(const MetaPathItem &it) {
    const double *v = it.v;
    if (it.type == kPathLine) return EdgeEnds{v[0], v[1], v[2], v[3]};
    if (it.type == kPathArc) return EdgeEnds{v[4], v[5], v[6], v[7]};
    return EdgeEnds{v[6], v[7], v[8], v[9]};
}

bool isFiniteEdge(const MetaPathItem &it) {
    int n = it.type == kPathLine ? 4 : it.type == kPathArc ? 8 : 10;
    for (int i = 0; i < n; ++i)
        if (!isCoor(it.v[i])) return false;
    return true;
}

// The half of its ellipse an arc edge lies on, as the raster decides it.
bool isLeftHalf(const MetaPathItem &it) {
    EdgeEnds e = endsOf(it);
    double cx = it.v[0];
    return cx > e.x1 || cx > e.x2 || (cx == e.x1 && cx == e.x2 && e.y1 > e.y2);
}

// Adds an edge to the outline, joined to the current point from whichever end
// meets it, or as the start of a new figure.
void addEdge(VectorPath &path, const MetaPathItem &it) {
    EdgeEnds e = endsOf(it);
    double sx = e.x1 + kCentre, sy = e.y1 + kCentre, ex = e.x2 + kCentre, ey = e.y2 + kCentre;
    if (path.hasCurrentPoint() && !near(sx, sy, path.currentX(), path.currentY())) {
        if (near(ex, ey, path.currentX(), path.currentY())) {
            std::swap(sx, ex), std::swap(sy, ey);
        } else {
            path.close();
            path.moveTo(sx, sy);
        }
    }
    if (!path.hasCurrentPoint()) path.moveTo(sx, sy);
    if (it.type == kPathLine)
        path.lineTo(ex, ey);
    else
        path.halfArcTo(it.v[0] + kCentre, it.v[1] + kCentre, it.v[2], it.v[3], ex, ey,
                       isLeftHalf(it));
}

// True when the edge starts or ends at (x, y).
bool joins(const MetaPathItem &it, double x, double y) {
    EdgeEnds e = endsOf(it);
    return near(e.x1, e.y1, x, y) || near(e.x2, e.y2, x, y);
}

// True when every figure the edges make ends where it started.
bool figuresClose(const MetaPathItem *items, int count) {
    double startX = 0, startY = 0, curX = 0, curY = 0;
    for (int i = 0; i < count; ++i) {
        EdgeEnds e = endsOf(items[i]);
        bool joins = i > 0 && (near(e.x1, e.y1, curX, curY) || near(e.x2, e.y2, curX, curY));
        if (!joins) {
            if (i > 0 && !near(curX, curY, startX, startY)) return false;
            startX = e.x1, startY = e.y1, curX = e.x1, curY = e.y1;
        }
        bool forward = near(e.x1, e.y1, curX, curY);
        curX = forward ? e.x2 : e.x1, curY = forward ? e.y2 : e.y1;
    }
    return near(curX, curY, startX, startY);
}

MetaPathItem lineItem(int color, double x1, double y1, double x2, double y2) {
    return MetaPathItem{kPathLine, {x1, y1, x2, y2}, color, false};
}

MetaPathItem arcItem(int color, double cx, double cy, double r, double x1, double y1, double x2,
                     double y2) {
    return MetaPathItem{kPathArc, {cx, cy, r, r, x1, y1, x2, y2}, color, false};
}

}  // namespace

VectorBackEnd::VectorBackEnd() : resolver(&sampler), surfaces(1), triangleBox(VectorBox::none()) {}

VectorBackEnd::~VectorBackEnd() {}

// ---- The run

void VectorBackEnd::beginPlay(double) {}

void VectorBackEnd::endPlay() {
    flushTriangles();
}

void VectorBackEnd::reportError(const char *) {}

bool VectorBackEnd::restoreSnapshot() {
    return false;
}

void VectorBackEnd::removeSymbol(int) {}

void VectorBackEnd::initDynamicLayer() {}

// ---- Size, clip and the whole picture

void VectorBackEnd::startFresh(int width, int height) {
    flushTriangles();
    width = std::max(width, 1), height = std::max(height, 1);
    if ((long long)width * height > kMaxPixels) width = height = 1;
    Surface &s = surface();
    s.width = width, s.height = height, s.clipped = false;
    startSurface(width, height);
}

void VectorBackEnd::setSize(int width, int height, int bgColor) {
    startFresh(width, height);
    setBgColor(bgColor);
}

void VectorBackEnd::setClip(const VectorBox *clip) {
    Surface &s = surface();
    bool whole = !clip || clip->contains(surfaceBox());
    if (whole && !s.clipped) return;
    if (!whole && s.clipped && s.clip == *clip) return;
    s.clipped = !whole;
    if (clip) s.clip = *clip;
    clipSurface(whole ? nullptr : &s.clip);
}

void VectorBackEnd::setClipRect(int left, int top, int right, int bottom) {
    flushTriangles();
    VectorBox box = VectorBox::ofPixels(left, top, right, bottom).intersect(surfaceBox());
    if (box.isEmpty()) box = VectorBox();
    setClip(&box);
}

void VectorBackEnd::setBgColor(int color) {
    flushTriangles();
    const Surface &s = surface();
    VectorBox region = s.clipped ? s.clip : surfaceBox();
    if (region.isEmpty()) return;
    paintPath(VectorPath::rect(region, 0), color, kTransparent, StrokeStyle());
}

void VectorBackEnd::wrap(SurfaceWrap &w) {
    setClip(nullptr);
    w.oldCanvas = surfaceBox();
    wrapSurface(w);
}

void VectorBackEnd::resize(int width, int height) {
    flushTriangles();
    width = std::max(width, 1), height = std::max(height, 1);
    if ((long long)width * height > kMaxPixels) width = height = 1;
    if (width == surfaceWidth() && height == surfaceHeight()) return;
    SurfaceWrap w;
    w.map = Affine::scaling((double)width / surfaceWidth(), (double)height / surfaceHeight());
    w.clip = nullptr;
    wrap(w);
    surface().width = width, surface().height = height;
}

void VectorBackEnd::affineTransform(double a, double b, double c, double d, double e, double f,
                                    int bgColor, int, double) {
    flushTriangles();
    // The map between pixel centres, moved to pixel edges.
    Affine map = Affine::translation(kCentre, kCentre)
                     .after(Affine(a, b, c, d, e, f))
                     .after(Affine::translation(-kCentre, -kCentre));
    int bg = ColorWord::isDynamicHandle(bgColor) ? kTransparent : bgColor;
    if (!map.isFinite() || std::fabs(map.determinant()) < 1e-12) {
        setSize(surfaceWidth(), surfaceHeight(), bg);
        return;
    }
    SurfaceWrap w;
    w.map = map;
    w.clip = nullptr;
    wrap(w);
    // Where no pixel of the old picture lands, the background shows.
    VectorPath outside = VectorPath::rect(surfaceBox(), 0);
    double W = surfaceWidth(), H = surfaceHeight(), x, y;
    const double corners[4][2] = {{0, 0}, {W, 0}, {W, H}, {0, H}};
    for (int k = 0; k < 4; ++k) {
        map.apply(corners[k][0], corners[k][1], &x, &y);
        k == 0 ? outside.moveTo(x, y) : outside.lineTo(x, y);
    }
    outside.close();
    paintPath(outside, bg, kTransparent, StrokeStyle());
}

void VectorBackEnd::setBgRoundedClip(int r1, int r2, int r3, int r4, int color) {
    flushTriangles();
    double W = surfaceWidth(), H = surfaceHeight(), limit = std::min(W, H) / 2;
    double r[4] = {(double)r1, (double)r2, (double)r3, (double)r4};
    for (double &v : r) v = std::min(std::max(v, 0.0), limit);
    // Corners top left, top right, bottom right, bottom left.
    VectorPath rounded;
    rounded.moveTo(r[0], 0);
    rounded.lineTo(W - r[1], 0);
    if (r[1] > 0) rounded.halfArcTo(W - r[1], r[1], r[1], r[1], W, r[1], false);
    rounded.lineTo(W, H - r[2]);
    if (r[2] > 0) rounded.halfArcTo(W - r[2], H - r[2], r[2], r[2], W - r[2], H, false);
    rounded.lineTo(r[3], H);
    if (r[3] > 0) rounded.halfArcTo(r[3], H - r[3], r[3], r[3], 0, H - r[3], true);
    rounded.lineTo(0, r[0]);
    if (r[0] > 0) rounded.halfArcTo(r[0], r[0], r[0], r[0], r[0], 0, true);
    rounded.close();
    SurfaceWrap w;
    w.clip = &rounded;
    wrap(w);
    // The corners cut off take the frame colour.
    VectorPath corners = VectorPath::rect(surfaceBox(), 0);
    corners.append(rounded);
    paintPath(corners, ColorWord::isDynamicHandle(color) ? kTransparent : color, kTransparent,
              StrokeStyle());
}

void VectorBackEnd::setBgDropShadow(int offsetX, int offsetY, int blurRadius, int, int color) {
    flushTriangles();
    int b = std::min(std::max(blurRadius, 0), 4096);
    offsetX = std::max(std::min(offsetX, 4096), -4096);
    offsetY = std::max(std::min(offsetY, 4096), -4096);
    int left = std::max(0, b - offsetX), top = std::max(0, b - offsetY);
    long long w = (long long)surfaceWidth() + left + std::max(0, b + offsetX);
    long long h = (long long)surfaceHeight() + top + std::max(0, b + offsetY);
    if (w * h > kMaxPixels) return;
    SurfaceWrap wrapping;
    wrapping.map = Affine::translation(left, top);
    wrapping.clip = nullptr;
    wrapping.shadow = true;
    wrapping.shadowX = offsetX, wrapping.shadowY = offsetY, wrapping.shadowBlur = b;
    wrapping.shadowColor = ColorWord::isDynamicHandle(color) ? kTransparent : color;
    wrap(wrapping);
    surface().width = (int)w, surface().height = (int)h;
}

// ---- Lines

void VectorBackEnd::line(double x1, double y1, double x2, double y2, int color, int width) {
    const double xy[4] = {x1, y1, x2, y2};
    polyLine(color, width, DoubleArray(xy, 4));
}

void VectorBackEnd::polyLine(int color, int width, DoubleArray points) {
    flushTriangles();
    surface().lineColor = color, surface().lineWidth = width;
    int n = points.len / 2;
    if (!points.data || n < 2 || !paints(color) || width < 1) return;
    std::vector<double> xy(points.data, points.data + 2 * n);
    for (double v : xy)
        if (!isCoor(v)) return;
    StrokeStyle style;
    style.width = width;
    style.wide = width > 1;
    if (style.wide) {
        // Wide lines end half a pixel beyond their end points, as thin ones do.
        for (int end = 0; end < 2; ++end) {
            int i = end ? 2 * n - 2 : 0, j = end ? 2 * n - 4 : 2;
            double dx = xy[i] - xy[j], dy = xy[i + 1] - xy[j + 1], len = std::hypot(dx, dy);
            if (len > 0) xy[i] += kCentre * dx / len, xy[i + 1] += kCentre * dy / len;
        }
    }
    // Very long lines go out in pieces that share their end points: XML readers
    // refuse attributes of more than about ten million bytes.
    const int kMaxPiece = 50000;
    for (int first = 0; first < n - 1; first += kMaxPiece - 1) {
        int end = std::min(n, first + kMaxPiece);
        VectorPath path;
        for (int i = first; i < end; ++i) path.lineTo(xy[2 * i] + kCentre, xy[2 * i + 1] + kCentre);
        path.form = VectorPath::kPolyline;
        paintPath(path, kTransparent, color, style);
    }
}

void VectorBackEnd::multiLine(const MetaLineEntry *items, int count) {
    int color = surface().lineColor, width = surface().lineWidth;
    forEachLineRun(items, count, color, width,
                   [&](int c, int w, DoubleArray xy) { polyLine(c, w, xy); });
    surface().lineColor = color, surface().lineWidth = width;
}

// ---- Shapes

void VectorBackEnd::paintEdges(int fillColor, bool keepOutline, const MetaPathItem *items,
                               int count, VectorPath::Form form) {
    std::vector<MetaPathItem> edges;
    for (int i = 0; i < count; ++i)
        if (items[i].type <= kPathArc2 && isFiniteEdge(items[i])) edges.push_back(items[i]);
    if (edges.empty()) return;
    VectorPath outline;
    for (const MetaPathItem &e : edges) addEdge(outline, e);
    outline.close();
    bool oneColor = true;
    for (const MetaPathItem &e : edges) oneColor = oneColor && e.color == edges[0].color;
    bool strokeWhole = !keepOutline && oneColor && figuresClose(edges.data(), (int)edges.size());
    if (oneColor) outline.form = form;
    if (strokeWhole || keepOutline || (oneColor && !paints(edges[0].color))) {
        paintPath(outline, fillColor, strokeWhole ? edges[0].color : kTransparent, StrokeStyle());
        return;
    }
    outline.form = VectorPath::kGeneral;
    paintPath(outline, fillColor, kTransparent, StrokeStyle());
    // Each run of joined edges of one colour is stroked on its own.
    for (size_t i = 0; i < edges.size();) {
        VectorPath run;
        addEdge(run, edges[i]);
        size_t j = i + 1;
        while (j < edges.size() && edges[j].color == edges[i].color &&
               joins(edges[j], run.currentX() - kCentre, run.currentY() - kCentre))
            addEdge(run, edges[j++]);
        const PathSegment &first = run.segments().front();
        if (near(first.x, first.y, run.currentX(), run.currentY())) run.close();
        if (paints(edges[i].color)) paintPath(run, kTransparent, edges[i].color, StrokeStyle());
        i = j;
    }
}

void VectorBackEnd::shape(int fillColor, bool, bool keepOutline, const MetaPathItem *items,
                          int count) {
    flushTriangles();
    if (!items || count <= 0) return;
    paintEdges(fillColor, keepOutline, items, count, VectorPath::kGeneral);
}

void VectorBackEnd::polygon(int edgeColor, int fillColor, DoubleArray xs, DoubleArray ys) {
    flushTriangles();
    int n = std::min(xs.len, ys.len);
    if (!xs.data || !ys.data || n < 2) return;
    std::vector<MetaPathItem> edges;
    for (int i = 0; i < n && !(n == 2 && i == 1); ++i) {
        int j = (i + 1) % n;
        edges.push_back(lineItem(edgeColor, xs.data[i], ys.data[i], xs.data[j], ys.data[j]));
    }
    paintEdges(n >= 3 ? fillColor : kTransparent, false, edges.data(), (int)edges.size(),
               VectorPath::kPolygon);
}

void VectorBackEnd::exactPolygon(int fillColor, DoubleArray xs, DoubleArray ys) {
    flushTriangles();
    int n = std::min(xs.len, ys.len);
    if (!xs.data || !ys.data || n < 3) return;
    VectorPath path;
    for (int i = 0; i < n; ++i) {
        if (!isCoor(xs.data[i]) || !isCoor(ys.data[i])) return;
        path.lineTo(xs.data[i] + kCentre, ys.data[i] + kCentre);
    }
    path.close();
    path.form = VectorPath::kPolygon;
    paintPath(path, fillColor, kTransparent, StrokeStyle());
}

void VectorBackEnd::roundedRect(double x1, double y1, double x2, double y2, int radius,
                                int edgeColor, int fillColor) {
    const int r[4] = {radius, radius, radius, radius};
    const int e[4] = {edgeColor, edgeColor, edgeColor, edgeColor};
    multiRoundedRect(x1, y1, x2, y2, r, e, fillColor);
}

void VectorBackEnd::multiRoundedRect(double x1, double y1, double x2, double y2,
                                     const int (&radius)[4], const int (&edgeColor)[4],
                                     int fillColor) {
    flushTriangles();
    if (!isCoor(x1) || !isCoor(y1) || !isCoor(x2) || !isCoor(y2)) return;
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    bool edged = false, sameEdges = true, sameRadii = true;
    for (int i = 0; i < 4; ++i) {
        edged = edged || paints(edgeColor[i]);
        sameEdges = sameEdges && edgeColor[i] == edgeColor[0];
        sameRadii = sameRadii && radius[i] == radius[0];
    }
    // Without an edge the fill reaches the outer side of the border pixels; with
    // one, the edge runs through their centres.
    if (!edged) x1 -= kCentre, y1 -= kCentre, x2 += kCentre, y2 += kCentre;
    double limit = std::min(x2 - x1, y2 - y1) / 2, r[4];
    for (int i = 0; i < 4; ++i) r[i] = std::min(std::max((double)radius[i], 0.0), limit);
    int top = edgeColor[0], right = edgeColor[1], bottom = edgeColor[2], left = edgeColor[3];
    if (x1 == x2 || y1 == y2) {
        line(x1, y1, x2, y2, paints(top) ? top : left, 1);
        return;
    }
    if (sameEdges && sameRadii) {
        VectorPath box = VectorPath::rect(
            VectorBox(x1 + kCentre, y1 + kCentre, x2 + kCentre, y2 + kCentre), r[0]);
        paintPath(box, fillColor, edged ? top : kTransparent, StrokeStyle());
        return;
    }
    // Sides and corners as the raster lays them out, each with its side's colour.
    std::vector<MetaPathItem> e;
    e.push_back(lineItem(top, x1 + r[0], y1, x2 - r[1], y1));
    if (r[1] > 0)
        e.push_back(arcItem(top, x2 - r[1], y1 + r[1], r[1], x2 - r[1], y1, x2, y1 + r[1]));
    e.push_back(lineItem(right, x2, y1 + r[1], x2, y2 - r[2]));
    if (r[2] > 0)
        e.push_back(arcItem(bottom, x2 - r[2], y2 - r[2], r[2], x2, y2 - r[2], x2 - r[2], y2));
    e.push_back(lineItem(bottom, x2 - r[2], y2, x1 + r[3], y2));
    if (r[3] > 0)
        e.push_back(arcItem(bottom, x1 + r[3], y2 - r[3], r[3], x1 + r[3], y2, x1, y2 - r[3]));
    e.push_back(lineItem(left, x1, y2 - r[3], x1, y1 + r[0]));
    if (r[0] > 0)
        e.push_back(arcItem(top, x1 + r[0], y1 + r[0], r[0], x1, y1 + r[0], x1 + r[0], y1));
    paintEdges(fillColor, !edged, e.data(), (int)e.size(), VectorPath::kGeneral);
}

// ---- Images the raster draws

void VectorBackEnd::gouraudTriangle(const double (&v)[9], int color) {
    if (!paints(color)) return;
    for (double d : v)
        if (!isCoor(d)) return;
    triangles.push_back(
        BrushSampler::Triangle{{v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8]}, color});
    for (int k = 0; k < 3; ++k) triangleBox.add(v[3 * k] + kCentre, v[3 * k + 1] + kCentre);
}

void VectorBackEnd::flushTriangles() {
    if (triangles.empty()) return;
    VectorBox box = triangleBox.grown(1).intersect(surfaceBox());
    if (!box.isEmpty()) {
        int l = (int)std::floor(box.left), t = (int)std::floor(box.top);
        int w = (int)std::ceil(box.right) - l, h = (int)std::ceil(box.bottom) - t;
        int scale = (long long)w * h * kTriangleScale * kTriangleScale <= kMaxFinePixels
                        ? kTriangleScale
                        : 1;
        PixelBuffer image = sampler.renderTriangles(triangles, l, t, w, h, scale);
        writeImage(image, VectorBox(l, t, l + w, t + h));
    }
    triangles.clear();
    triangleBox = VectorBox::none();
}

void VectorBackEnd::beginSuperPixelMode() {}

void VectorBackEnd::commitSuperPixels() {}

// ---- Text

VectorBox VectorBackEnd::glyphBounds(const GlyphText &text, const GlyphRun &run) const {
    VectorBox box = VectorBox::none();
    for (int i = 0; i < run.glyphCount; ++i) {
        const PlacedGlyph &g = text.glyphs[run.firstGlyph + i];
        double size = run.font.pixelSize;
        // The em box around the pen, wide enough for any glyph of the font.
        const double corners[4][2] = {{g.x - size, g.y - size * 1.2},
                                      {g.x + g.advance + size, g.y - size * 1.2},
                                      {g.x - size, g.y + size * 0.6},
                                      {g.x + g.advance + size, g.y + size * 0.6}};
        for (const auto &c : corners) {
            double x, y;
            text.toCanvas(c[0], c[1], &x, &y);
            box.add(x, y);
        }
    }
    return box;
}

void VectorBackEnd::drawText(const GlyphText &text) {
    flushTriangles();
    for (const GlyphRun &run : text.runs) {
        if (run.glyphCount <= 0 || run.firstGlyph < 0 ||
            run.firstGlyph + run.glyphCount > (int)text.glyphs.size())
            continue;
        VectorBox area = glyphBounds(text, run).intersect(surfaceBox());
        if (area.isEmpty()) continue;
        ColorPlan plan = resolver.resolve(run.color, area);
        for (const PaintLayer &layer : plan.layers) {
            if (layer.clipped) {
                VectorBox clip = layer.clip.intersect(area);
                if (clip.isEmpty()) continue;
                beginLayerClip(clip);
            }
            writeGlyphs(text, run, layer.paint);
            if (layer.clipped) endLayerClip();
        }
    }
}

// ---- Painting with colour words

void VectorBackEnd::paintPath(const VectorPath &path, int fillColor, int strokeColor,
                              const StrokeStyle &style) {
    if (path.isEmpty() || (!paints(fillColor) && !paints(strokeColor))) return;
    VectorBox area = path.bounds().grown(style.width / 2 + 1).intersect(surfaceBox());
    if (area.isEmpty()) return;
    ColorPlan fill = paints(fillColor) ? resolver.resolve(fillColor, area) : ColorPlan();
    ColorPlan stroke = paints(strokeColor) ? resolver.resolve(strokeColor, area) : ColorPlan();
    StrokeStyle lineStyle = style;
    if (!stroke.dash.empty()) lineStyle.dash = &stroke.dash;
    bool simple = (fill.isEmpty() || fill.isSimple()) && (stroke.isEmpty() || stroke.isSimple());
    if (simple) {
        if (!fill.isEmpty() || !stroke.isEmpty())
            writePath(path, fill.simplePaint(), stroke.simplePaint(), lineStyle);
        return;
    }
    for (const PaintLayer &layer : fill.layers) coat(path, layer, true, area, lineStyle);
    for (const PaintLayer &layer : stroke.layers) coat(path, layer, false, area, lineStyle);
}

void VectorBackEnd::coat(const VectorPath &path, const PaintLayer &layer, bool fill,
                         const VectorBox &area, const StrokeStyle &style) {
    if (layer.clipped) {
        VectorBox clip = layer.clip.intersect(area);
        if (clip.isEmpty()) return;
        beginLayerClip(clip);
    }
    writePath(path, fill ? layer.paint : nullptr, fill ? nullptr : layer.paint, style);
    if (layer.clipped) endLayerClip();
}

// ---- Symbols and images

void VectorBackEnd::beginSymbol(int id) {
    flushTriangles();
    surfaces.emplace_back();
    openSymbol(id);
}

void VectorBackEnd::endSymbol(int id) {
    if (surfaces.size() < 2) return;
    flushTriangles();
    closeSymbol(id, surfaceWidth(), surfaceHeight());
    surfaces.pop_back();
    definedSymbols.insert(id);
}

void VectorBackEnd::mergeWithScaling(int id, int x, int y, int width, int height,
                                     int transparency) {
    flushTriangles();
    if (!isSymbolDefined(id) || width <= 0 || height <= 0 || transparency >= 255) return;
    placeSymbol(id, VectorBox(x, y, (double)x + width, (double)y + height),
                std::max(transparency, 0));
}

void VectorBackEnd::mergeAtPoints(int id, int width, int height, IntArray points) {
    for (int i = 0; points.data && i + 1 < points.len; i += 2)
        mergeWithScaling(id, points.data[i], points.data[i + 1], width, height, 0);
}

void VectorBackEnd::mergeWithRotation(int id, double x, double y, double angle) {
    flushTriangles();
    if (!isSymbolDefined(id) || !isCoor(x) || !isCoor(y) || !std::isfinite(angle)) return;
    rotateSymbol(id, x + kCentre, y + kCentre, angle);
}

void VectorBackEnd::mergeBitMap(int id, IntArray pixels, int width, int x, int y) {
    flushTriangles();
    if (!pixels.data || width <= 0 || pixels.len < width) return;
    writeBitmap(id, pixels.data, width, pixels.len / width, x, y);
}

void VectorBackEnd::loadStream(int id, const char *data, int length, int imageType, int width,
                               int height) {
    startFresh(width, height);
    if (data && length > 0)
        writeEncodedImage(id, data, length, imageType, surfaceWidth(), surfaceHeight());
}
