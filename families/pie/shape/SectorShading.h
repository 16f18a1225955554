#pragma once

#include <vector>

class DrawArea;
struct SectorGeometry;
struct SectorPaintStyle;

// The shading methods of a sector's top, from a table: a plain fill, a
// vertical gradient over the sector or over the whole pie, or a radial one out
// of the pie's centre; each a list of lighting stops (position 0 to 256,
// brightness in 1/1024 of the colour).
class SectorShading {
public:
    enum Effect {
        kPlain,
        // Vertical, over the sector's own height.
        kLocalGradient,
        // Vertical, over the whole pie.
        kGlobalGradient,
        kRadial,
        // Radial, with a rim at 90 % of the radius painted on its own.
        kConcave,
        // Radial, with a white glare over the top.
        kRadialGlare,
    };
    // Where kRadialShading and kRingShading place their stops: at the ratio of
    // the inner to the outer radius, and halfway from there to the rim.
    static const int kInnerRatioStop = -1;
    static const int kHalfwayStop = -2;
    // The rim of kConcave in percent of the radius; the glare of kRadialGlare
    // in 256ths of it.
    static const int kConcaveRimPercent = 90;
    static const int kGlareRadius = 236;

    explicit SectorShading(int method);

    Effect getEffect() const { return effect; }
    // The lighting pairs with the inner-to-outer ratio (0 to 256) put in.
    std::vector<int> stops(int innerRatio) const;
    // The fill of the sector's top drawn with radii (rx, ry): its colour, or a
    // lighting colour made on the canvas.
    int fill(DrawArea *d, const SectorGeometry &g, const SectorPaintStyle &s) const;

private:
    // The top and bottom of the sector's own top surface.
    static void verticalExtent(const SectorGeometry &g, double *top, double *bottom);

    Effect effect;
    int stopCount;
    const int *stopTable;
};
