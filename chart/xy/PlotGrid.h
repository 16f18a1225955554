#pragma once

class AxisImpl;
class DrawArea;
struct PlotFrame;

// Grid lines across the plot at the ticks of an axis: horizontal lines for an
// axis at a side, vertical ones for an axis at the top or bottom; minor lines
// at the minor ticks.  With a 3D shift the lines stand on the back wall and
// run on over the left wall or the floor.
class PlotGrid {
public:
    PlotGrid();

    // Minor colours of -1 draw no minor lines.
    void setColor(int hColor, int vColor, int minorHColor, int minorVColor);
    // -1 for vWidth takes hWidth, and for a minor width the major one.
    void setWidth(int hWidth, int vWidth, int minorHWidth, int minorVWidth);

    void paint(DrawArea *d, const PlotFrame &plot, AxisImpl *axis) const;

private:
    void line(DrawArea *d, const PlotFrame &plot, bool horizontal, double pos, int color,
              int width) const;

    int hGridColor;
    int vGridColor;
    int minorHGridColor;
    int minorVGridColor;
    int hGridWidth;
    int vGridWidth;
    int minorHGridWidth;
    int minorVGridWidth;
};
