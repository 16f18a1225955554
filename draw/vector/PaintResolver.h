#pragma once

#include <array>
#include <map>
#include <memory>
#include <vector>

#include "draw/vector/ColorPlan.h"

class BrushSampler;

// Turns the dynamic colours of a display list into paints the vector outputs
// can write: gradients, ramps of lit colours and pixel tiles; zones, rectangles
// and layers as clipped coats; brightness and transforms folded into the paints
// they change.  What none of these can express (an angle gradient, a lighting
// of a gradient, a transformed zone) is painted as an image of what the raster
// would paint under the element.
//
// Definitions take display-list coordinates (pixel centres) and handles;
// resolve() answers in canvas space (pixel edges, see VectorBox).  A colour
// may be defined again: what depends on it follows.
class PaintResolver {
public:
    // Nesting beyond this resolves to nothing, as on the raster.
    static constexpr int kMaxDepth = 20;
    // Sampled images larger than this many pixels are cut to it.
    static constexpr int kMaxSampledPixels = 1 << 24;

    explicit PaintResolver(BrushSampler *sampler);
    ~PaintResolver();
    PaintResolver(const PaintResolver &) = delete;
    PaintResolver &operator=(const PaintResolver &) = delete;

    void defineBrightness(int handle, int source, double factor);
    // Transforms m of the source's coordinates: the colour at pixel p is the
    // source's at m(p).
    void defineTransform(int handle, int source, const double (&m)[6]);
    void defineMetal(int handle, int color);
    void defineLayers(int handle, const int *layers, int n);
    void defineDash(int handle, int color, int pattern);
    void defineLinear(int handle, double x1, double y1, double x2, double y2, bool periodic,
                      const ColorRamp &ramp);
    void defineRadial(int handle, double cx, double cy, double rx, double ry, bool periodic,
                      const ColorRamp &ramp);
    // A lighting of `color` along a line: a ramp for a plain colour.
    void defineLighting(int handle, int color, double x1, double y1, double x2, double y2,
                        bool periodic, const int *lighting, int n);
    void defineRadialLighting(int handle, int color, int cx, int cy, int rx, int ry,
                              const int *lighting, int n);
    // pixels: width * height colour words, or none for an unreadable pattern.
    void definePattern(int handle, int startX, int startY, int width, int height, const int *pixels,
                       int n);
    void defineZone(int handle, bool vertical, int boundary, int before, int after);
    void defineRect(int handle, double x1, double y1, double x2, double y2, int color);
    // A colour only the raster paints: sampled under each element.
    void defineSampled(int handle);

    // How to paint with `color` an element that lies within `area`.
    ColorPlan resolve(int color, const VectorBox &area);
    // The paints made so far, by id (ids run from 1).
    int paintCount() const { return (int)paints.size(); }

private:
    struct Node {
        enum Kind { kPaint, kBrightness, kTransform, kDash, kZone, kRect, kLayers, kSampled };
        Kind kind = kSampled;
        unsigned version = 0;
        const VectorPaint *paint = nullptr;
        int source = 0, other = 0;
        int brightness = 1024;
        Affine map;
        std::vector<double> dash;
        bool vertical = false;
        double boundary = 0;
        VectorBox box;
        std::vector<int> layers;
    };
    struct CachedPlan {
        unsigned generation;
        ColorPlan plan;
    };

    Node &define(int handle, Node::Kind kind);
    VectorPaint *newPaint(VectorPaint::Kind kind);
    ColorPlan resolveAt(int color, const VectorBox &area, int depth, bool &usesArea);
    ColorPlan resolveNode(int handle, const Node &node, const VectorBox &area, int depth,
                          bool &usesArea);
    ColorPlan single(const VectorPaint *paint) const;
    const VectorPaint *solid(int color);
    const VectorPaint *brightened(const VectorPaint *paint, int k);
    const VectorPaint *transformed(const VectorPaint *paint, const Affine &map);
    ColorPlan sampled(int handle, unsigned version, const VectorBox &area);
    ColorPlan clippedTo(ColorPlan plan, const VectorBox &box) const;

    BrushSampler *sampler;
    std::vector<std::unique_ptr<VectorPaint>> paints;
    std::map<int, Node> nodes;
    std::map<int, CachedPlan> plans;
    unsigned generation;
    std::map<int, const VectorPaint *> solids;
    std::map<std::pair<int, int>, const VectorPaint *> brightenedPaints;
    std::map<std::array<double, 7>, const VectorPaint *> transformedPaints;
    std::map<std::array<long long, 6>, const VectorPaint *> sampledPaints;
};
