#pragma once

#include <vector>

#include "layers/line/LineRibbon.h"

class LayerPainter;

// The sides of a 3D area that the viewer sees, run by run: the faces along
// its outer edge, which follows the data line where the line stands out from
// the base and the base where it doesn't, joined where the line crosses the
// base; and the face of the end that the depth leads to.  "Out" is the way
// the depth goes along the value axis: up on an upright chart, right on a
// chart with swapped axes.
class AreaSides {
public:
    AreaSides(LayerPainter &painter, const LineRibbon::Look &look, bool swapped, int endColor);

    // One run of the area in layer pixels: x, the line's y and the base's y
    // at each point.
    void paintRun(const std::vector<double> &x, const std::vector<double> &top,
                  const std::vector<double> &base);

    // The outer edge of a run: the line held at the base where it falls
    // behind it, with the crossings of the base put in.
    void outerEdge(const std::vector<double> &x, const std::vector<double> &top,
                   const std::vector<double> &base, std::vector<double> &edgeX,
                   std::vector<double> &edgeY) const;

private:
    // How far y stands out from the base: positive when it shows.
    double outward(double y, double base) const { return swapped ? y - base : base - y; }

    LayerPainter &painter;
    LineRibbon::Look look;
    bool swapped;
    int endColor;
};
