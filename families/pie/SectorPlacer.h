#pragma once

#include <vector>

#include "families/pie/shape/PieView.h"

class SectorImpl;
struct PieSettings;
struct SectorGeometry;

// Works out where each sector stands: its arc from the start angle and the
// shares before it, the radii of a tilted or round pie, its depth, and the
// shift of an exploded sector or group along its bisector.
class SectorPlacer {
public:
    // Pixel sizes are kept within this many pixels.
    static const int kMaxPixels = 1 << 22;

    explicit SectorPlacer(const PieSettings &pie);

    // The direction the walls face the viewer in.
    PieView getView() const;
    int getRadius() const { return radius; }
    int getRadiusY() const { return radiusY; }
    void place(const std::vector<SectorImpl *> &sectors) const;

    // The arc that starts `from` radians into the pie and runs `span`, in the
    // pie's direction: its start and bisector.
    void arc(double from, double span, double *start, double *mid) const;

private:
    // The offset of a sector's bottom from its top for a depth.
    void depthVector(double depth, int *dx, int *dy) const;
    // The shift of an explosion by distance along angle mid.
    void explodeShift(double mid, int distance, int *dx, int *dy) const;
    void explodeGroups(const std::vector<SectorImpl *> &sectors, const std::vector<double> &from,
                       std::vector<int> &dx, std::vector<int> &dy) const;
    int explodeDistance(int distance) const;

    const PieSettings &pie;
    int radius;
    int innerRadius;
    int radiusY;
    int innerRadiusY;
    double theta;
    double firstAngle;
    bool clockwise;
};
