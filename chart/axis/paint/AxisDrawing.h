#pragma once

#include "chart/axis/paint/AxisFrame.h"
#include "chart/axis/paint/LabelSpans.h"
#include "chart/axis/paint/PaintExtent.h"

class AxisLabel;
class AxisPainter;
class AxisScaleView;
class DrawArea;
class MarkImpl;
class TextBoxImpl;
class TextBoxImpl2;

// One run of an axis's painter along its frame: the line, the ticks with their
// labels, the marks' ticks and labels, and the title.  Boxes are laid out on
// the painter's canvas and drawn on the target, if there is one.
class AxisDrawing {
public:
    AxisDrawing(AxisPainter &painter, const AxisFrame &frame, AxisScaleView &scale,
                DrawArea *target);
    AxisDrawing(const AxisDrawing &) = delete;
    AxisDrawing &operator=(const AxisDrawing &) = delete;

    PaintExtent run();

private:
    void drawLine();
    void drawTickMark(double coor, int length, int color, int width);
    void drawMarks();
    void drawTicks();
    void drawLabel(double key, AxisLabel &label);
    void drawTitle();
    // A box made from parent; null when there is no canvas to lay it out on.
    TextBoxImpl2 *newBox(TextBoxImpl *parent) const;
    // Lays the box out with its anchor at the point coor along the axis and
    // distance out of it; releases it and gives null when it shows nothing.
    TextBoxImpl2 *place(TextBoxImpl2 *box, double coor, double distance, int anchor);
    // Where a box lies along the axis.
    void spanOf(const TextBoxImpl2 *box, double *low, double *high) const;
    void include(TextBoxImpl2 *box);
    bool isOnAxis(double coor) const;
    int labelAnchor(double fontAngle) const;

    AxisPainter &painter;
    AxisFrame frame;
    AxisScaleView &scale;
    DrawArea *target;
    PaintExtent extent;
    LabelSpans spans;
    // From the axis to the labels' anchors, and the farthest the drawing reaches out.
    double labelDistance;
    double maxOutward;
};
