#include "draw/vector/PaintResolver.h"

#include <cmath>

#include "draw/pixel/PixelBlend.h"
#include "draw/vector/BrushSampler.h"

using ColorWord::isDynamicHandle;

namespace {

// Half-planes as boxes: no canvas reaches this far.
const double kFar = 1e7;
// Display-list points name pixel centres.
const double kCentre = 0.5;

bool isPlain(int color) {
    return !isDynamicHandle(color);
}

int brightnessOf(double factor) {
    double v = std::floor(1024 * factor + 0.5);
    return std::isfinite(v) ? (int)std::max(std::min(v, 1e9), -1.0) : 1024;
}

// On and off lengths from a pattern word (run lengths from the top byte down:
// on, off, on, off), starting with an "on" run; empty when the line never
// shows, and one run when it never stops.
std::vector<double> dashRuns(int pattern) {
    std::vector<bool> pixels;
    unsigned p = (unsigned)pattern;
    for (int shift = 24, on = 1; shift >= 0; shift -= 8, on = !on)
        pixels.insert(pixels.end(), (p >> shift) & 255, on != 0);
    std::vector<double> runs;
    int n = (int)pixels.size(), start = 0;
    while (start < n && !pixels[start]) ++start;
    if (start == n) return runs;
    for (int i = 0; i < n; ++i) {
        bool on = pixels[(start + i) % n];
        if (runs.empty() || (runs.size() % 2 == 1) != on)
            runs.push_back(1);
        else
            runs.back() += 1;
    }
    if (runs.size() == 1) return runs;
    if (runs.size() % 2) runs.pop_back();  // an odd count never happens, but keep pairs
    return runs;
}

}  // namespace

PaintResolver::PaintResolver(BrushSampler *sampler) : sampler(sampler), generation(0) {}

PaintResolver::~PaintResolver() {}

PaintResolver::Node &PaintResolver::define(int handle, Node::Kind kind) {
    ++generation;
    Node &node = nodes[ColorWord::dynamicIndex(handle)];
    unsigned version = node.version + 1;
    node = Node();
    node.kind = kind;
    node.version = version;
    return node;
}

VectorPaint *PaintResolver::newPaint(VectorPaint::Kind kind) {
    paints.emplace_back(new VectorPaint());
    VectorPaint *p = paints.back().get();
    p->kind = kind;
    p->id = (int)paints.size();
    return p;
}

void PaintResolver::defineBrightness(int handle, int source, double factor) {
    Node &n = define(handle, Node::kBrightness);
    n.source = source;
    n.brightness = brightnessOf(factor);
}

void PaintResolver::defineTransform(int handle, int source, const double (&m)[6]) {
    Node &n = define(handle, Node::kTransform);
    n.source = source;
    // The same map between pixel edges: centre, map, and back.
    n.map = Affine::translation(kCentre, kCentre)
                .after(Affine(m))
                .after(Affine::translation(-kCentre, -kCentre));
}

void PaintResolver::defineMetal(int handle, int color) {
    if (!isPlain(color)) return defineSampled(handle);
    // The stripes repeat every 256 by 128 pixels: one tile of them is the paint.
    const int w = 256, h = 128;
    PixelBuffer tile = sampler->sample(handle, 0, 0, w, h);
    Node &n = define(handle, Node::kPaint);
    VectorPaint *p = newPaint(VectorPaint::kImage);
    p->tileWidth = w, p->tileHeight = h;
    p->pixels.swap(tile.pixels);
    n.paint = p;
}

void PaintResolver::defineLayers(int handle, const int *layers, int count) {
    Node &n = define(handle, Node::kLayers);
    if (layers && count > 0) n.layers.assign(layers, layers + count);
}

void PaintResolver::defineDash(int handle, int color, int pattern) {
    Node &n = define(handle, Node::kDash);
    n.source = color;
    n.dash = dashRuns(pattern);
}

void PaintResolver::defineLinear(int handle, double x1, double y1, double x2, double y2,
                                 bool periodic, const ColorRamp &ramp) {
    Node &n = define(handle, Node::kPaint);
    VectorPaint *p = newPaint(VectorPaint::kLinear);
    p->x1 = x1 + kCentre, p->y1 = y1 + kCentre, p->x2 = x2 + kCentre, p->y2 = y2 + kCentre;
    p->periodic = periodic;
    p->ramp = ramp;
    n.paint = p;
}

void PaintResolver::defineRadial(int handle, double cx, double cy, double rx, double ry,
                                 bool periodic, const ColorRamp &ramp) {
    Node &n = define(handle, Node::kPaint);
    VectorPaint *p = newPaint(VectorPaint::kRadial);
    p->x1 = cx + kCentre, p->y1 = cy + kCentre;
    p->x2 = std::max(std::fabs(rx), 1.0), p->y2 = std::max(std::fabs(ry), 1.0);
    p->periodic = periodic;
    p->ramp = ramp;
    n.paint = p;
}

void PaintResolver::defineLighting(int handle, int color, double x1, double y1, double x2,
                                   double y2, bool periodic, const int *lighting, int n) {
    if (!isPlain(color)) return defineSampled(handle);
    defineLinear(handle, x1, y1, x2, y2, periodic, ColorRamp::ofLighting(color, lighting, n));
}

void PaintResolver::defineRadialLighting(int handle, int color, int cx, int cy, int rx, int ry,
                                         const int *lighting, int n) {
    if (!isPlain(color)) return defineSampled(handle);
    defineRadial(handle, cx, cy, rx, ry, false, ColorRamp::ofLighting(color, lighting, n));
}

void PaintResolver::definePattern(int handle, int startX, int startY, int width, int height,
                                  const int *pixels, int n) {
    Node &node = define(handle, Node::kPaint);
    VectorPaint *p = newPaint(VectorPaint::kImage);
    bool valid = pixels && width >= 1 && width <= 65535 && height >= 1 && height <= 65535 &&
                 (long long)width * height <= n;
    p->x1 = startX, p->y1 = startY;
    p->tileWidth = valid ? width : 1, p->tileHeight = valid ? height : 1;
    if (valid)
        p->pixels.assign(pixels, pixels + (size_t)width * height);
    else
        p->pixels.assign(1, kTransparent);
    node.paint = p;
}

void PaintResolver::defineZone(int handle, bool vertical, int boundary, int before, int after) {
    Node &n = define(handle, Node::kZone);
    n.vertical = vertical;
    n.boundary = boundary;
    n.source = before, n.other = after;
}

void PaintResolver::defineRect(int handle, double x1, double y1, double x2, double y2, int color) {
    Node &n = define(handle, Node::kRect);
    n.source = color;
    // The pixels whose indices lie inside, as a box of their edges.
    double l = std::min(x1, x2), r = std::max(x1, x2), t = std::min(y1, y2), b = std::max(y1, y2);
    if (!(l == l) || !(r == r) || !(t == t) || !(b == b)) l = r = t = b = 0;
    n.box = VectorBox(std::ceil(std::max(l, -kFar)), std::ceil(std::max(t, -kFar)),
                      std::floor(std::min(r, kFar)) + 1, std::floor(std::min(b, kFar)) + 1);
}

void PaintResolver::defineSampled(int handle) {
    define(handle, Node::kSampled);
}

// ---- Resolving

ColorPlan PaintResolver::resolve(int color, const VectorBox &area) {
    bool usesArea = false;
    return resolveAt(color, area, 0, usesArea);
}

ColorPlan PaintResolver::single(const VectorPaint *paint) const {
    ColorPlan plan;
    if (paint) plan.layers.push_back(PaintLayer{paint, false, VectorBox()});
    return plan;
}

const VectorPaint *PaintResolver::solid(int color) {
    if (PixelBlend::isInvisible((unsigned)color)) return nullptr;
    const VectorPaint *&p = solids[color];
    if (!p) {
        VectorPaint *made = newPaint(VectorPaint::kSolid);
        made->color = color;
        p = made;
    }
    return p;
}

ColorPlan PaintResolver::resolveAt(int color, const VectorBox &area, int depth, bool &usesArea) {
    if (isPlain(color)) return single(solid(color));
    if (depth >= kMaxDepth) return ColorPlan();
    int handle = ColorWord::dynamicIndex(color);
    auto it = nodes.find(handle);
    if (it == nodes.end()) return ColorPlan();
    auto cached = plans.find(handle);
    if (cached != plans.end() && cached->second.generation == generation)
        return cached->second.plan;
    bool nodeUsesArea = false;
    ColorPlan plan = resolveNode(color, it->second, area, depth, nodeUsesArea);
    if (nodeUsesArea)
        usesArea = true;
    else
        plans[handle] = CachedPlan{generation, plan};
    return plan;
}

ColorPlan PaintResolver::resolveNode(int handle, const Node &node, const VectorBox &area, int depth,
                                     bool &usesArea) {
    switch (node.kind) {
        case Node::kPaint:
            return single(node.paint);
        case Node::kBrightness: {
            ColorPlan plan = resolveAt(node.source, area, depth + 1, usesArea);
            for (PaintLayer &layer : plan.layers)
                layer.paint = brightened(layer.paint, node.brightness);
            return plan;
        }
        case Node::kTransform: {
            ColorPlan plan = resolveAt(node.source, area, depth + 1, usesArea);
            for (PaintLayer &layer : plan.layers) {
                const VectorPaint *moved =
                    layer.clipped ? nullptr : transformed(layer.paint, node.map);
                if (!moved) {
                    usesArea = true;
                    return sampled(handle, node.version, area);
                }
                layer.paint = moved;
            }
            return plan;
        }
        case Node::kDash: {
            ColorPlan plan = resolveAt(node.source, area, depth + 1, usesArea);
            if (node.dash.empty()) return ColorPlan();
            if (node.dash.size() > 1) plan.dash = node.dash;
            return plan;
        }
        case Node::kZone: {
            VectorBox before(-kFar, -kFar, kFar, kFar), after = before;
            (node.vertical ? before.bottom : before.right) = node.boundary;
            (node.vertical ? after.top : after.left) = node.boundary;
            ColorPlan plan = clippedTo(resolveAt(node.source, area, depth + 1, usesArea), before);
            ColorPlan second = clippedTo(resolveAt(node.other, area, depth + 1, usesArea), after);
            plan.layers.insert(plan.layers.end(), second.layers.begin(), second.layers.end());
            return plan;
        }
        case Node::kRect:
            return clippedTo(resolveAt(node.source, area, depth + 1, usesArea), node.box);
        case Node::kLayers: {
            ColorPlan plan;
            for (int layer : node.layers) {
                ColorPlan coat = resolveAt(layer, area, depth + 1, usesArea);
                plan.layers.insert(plan.layers.end(), coat.layers.begin(), coat.layers.end());
            }
            return plan;
        }
        case Node::kSampled:
            usesArea = true;
            return sampled(handle, node.version, area);
    }
    return ColorPlan();
}

ColorPlan PaintResolver::clippedTo(ColorPlan plan, const VectorBox &box) const {
    for (PaintLayer &layer : plan.layers) {
        layer.clip = layer.clipped ? layer.clip.intersect(box) : box;
        layer.clipped = true;
    }
    return plan;
}

const VectorPaint *PaintResolver::brightened(const VectorPaint *paint, int k) {
    if (k == 1024) return paint;
    const VectorPaint *&p = brightenedPaints[std::make_pair(paint->id, k)];
    if (p) return p;
    if (paint->kind == VectorPaint::kSolid)
        return p = solid((int)PixelBlend::adjustBrightness((unsigned)paint->color, k));
    VectorPaint *made = newPaint(paint->kind);
    int id = made->id;
    *made = *paint;
    made->id = id;
    made->ramp = paint->ramp.brightened(k);
    for (int &c : made->pixels) c = (int)PixelBlend::adjustBrightness((unsigned)c, k);
    return p = made;
}

const VectorPaint *PaintResolver::transformed(const VectorPaint *paint, const Affine &map) {
    if (paint->kind == VectorPaint::kSolid) return paint;
    Affine inverse;
    if (!map.inverse(inverse)) return nullptr;
    std::array<double, 7> key{(double)paint->id};
    for (int i = 0; i < 6; ++i) key[i + 1] = map.m[i];
    const VectorPaint *&p = transformedPaints[key];
    if (p) return p;
    VectorPaint *made = newPaint(paint->kind);
    int id = made->id;
    *made = *paint;
    made->id = id;
    // The colour at p is the source's at map(p).
    made->transform = inverse.after(paint->transform);
    return p = made;
}

ColorPlan PaintResolver::sampled(int handle, unsigned version, const VectorBox &area) {
    VectorBox box = area.intersect(VectorBox(-kFar, -kFar, kFar, kFar));
    if (box.isEmpty()) return ColorPlan();
    long long l = (long long)std::floor(box.left), t = (long long)std::floor(box.top);
    long long w = (long long)std::ceil(box.right) - l, h = (long long)std::ceil(box.bottom) - t;
    while (w * h > kMaxSampledPixels) w = (w + 1) / 2, h = (h + 1) / 2;
    std::array<long long, 6> key{handle, (long long)version, l, t, w, h};
    const VectorPaint *&p = sampledPaints[key];
    if (!p) {
        PixelBuffer image = sampler->sample(handle, (int)l, (int)t, (int)w, (int)h);
        VectorPaint *made = newPaint(VectorPaint::kImage);
        made->x1 = (double)l, made->y1 = (double)t;
        made->tileWidth = (int)w, made->tileHeight = (int)h;
        made->pixels.swap(image.pixels);
        p = made;
    }
    return single(p);
}
