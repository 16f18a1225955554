#pragma once

class AxisPainter;
class AxisScaleView;
class DrawArea;
class MarkImpl;
class TextBoxImpl2;
struct PlotFrame;

// What an axis on a side of the plot draws across the plot area: zones as
// bands, and marks as lines with, where asked, their labels beside them.
// Everything stands on the plot's back wall when the plot has a 3D shift.
class AxisPlotPass {
public:
    AxisPlotPass(AxisPainter &painter, AxisScaleView &scale, const PlotFrame &plot);
    AxisPlotPass(const AxisPlotPass &) = delete;
    AxisPlotPass &operator=(const AxisPlotPass &) = delete;

    void paintZones(DrawArea *d);
    // Lays out the line of every mark, and the in-plot labels of those of the
    // given pass (onTop 0 or 1; -1 for none).
    void placeMarks(int pass);
    void paintMarks(DrawArea *d, bool onTop);

private:
    // The canvas position across the plot of a value: x for an axis at the top
    // or bottom, y for one at a side; false when it is off the plot.
    bool positionOf(double value, double *pos) const;
    void placeMark(int index, bool withLabel);
    TextBoxImpl2 *placeLabel(MarkImpl *mark, double pos);
    bool isValid() const;

    AxisPainter &painter;
    AxisScaleView &scale;
    const PlotFrame &plot;
    // The axis runs along x (bottom and top axes) and its bands and lines across.
    bool alongX;
};
