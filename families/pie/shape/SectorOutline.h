#pragma once

#include <vector>

struct SectorGeometry;

// The outline of a sector's top as points: the outer arc clockwise, then the
// inner arc back or the centre.  Arcs are cut into pieces of at most a few
// degrees.  Serves image maps and edges wider than a pixel.
class SectorOutline {
public:
    // The closed outline of the ring sector of the given radii; a whole disc
    // gives its outer circle only.
    static void closed(const SectorGeometry &g, double rx, double ry, double innerRx,
                       double innerRy, std::vector<double> &x, std::vector<double> &y);
    // Points along the arc of the sector on the ellipse of radii (rx, ry), from
    // its start to its end (reversed: from end to start), appended.
    static void arc(const SectorGeometry &g, double rx, double ry, bool reversed,
                    std::vector<double> &x, std::vector<double> &y);
};
