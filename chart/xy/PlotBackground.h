#pragma once

#include <string>
#include <vector>

#include "chart/axis/paint/PlotFrame.h"

class DrawArea;

// The plot's background (a colour, bands of two colours between grid lines,
// four quadrant colours, a picture), its 3D walls and its edge.
class PlotBackground {
public:
    PlotBackground();

    // altColor -1 paints no bands; edgeColor -1 no edge.
    void setBackground(int color, int altColor, int edgeColor);
    void setAltBgColor(bool horizontal, int color1, int color2, int edgeColor);
    void set4QBgColor(const int colors[4], int edgeColor);
    void setImage(const char *path, int align);

    // Whether bands run horizontally (their edges at the ticks of a side axis).
    bool hasHorizontalBands() const { return horizontalBands; }
    bool hasBands() const;
    bool hasQuadrants() const { return quadrants; }

    // The back wall of the plot.  bandEdges are pixel offsets of the band
    // axis's major ticks from its low end, ascending; (originX, originY) is the
    // canvas point of the axes' zero, on the plot.
    void paint(DrawArea *d, const PlotFrame &plot, const std::vector<double> &bandEdges,
               double originX, double originY);
    // The left wall and the floor of a plot with a 3D shift.
    void paintWalls(DrawArea *d, const PlotFrame &plot);
    void paintEdge(DrawArea *d, const PlotFrame &plot);

private:
    void paintBands(DrawArea *d, const PlotFrame &plot, const std::vector<double> &bandEdges);
    void paintQuadrants(DrawArea *d, const PlotFrame &plot, double originX, double originY);
    void paintImage(DrawArea *d, const PlotFrame &plot);

    int bgColor;
    int altBgColor;
    int edgeColor;
    bool horizontalBands;
    bool quadrants;
    int quadrantColors[4];
    std::string imagePath;
    int imageAlign;
};
