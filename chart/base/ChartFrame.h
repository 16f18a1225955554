#pragma once

class DrawArea;

// The last strokes of a chart's picture: the thick frame, the edge, the rounded
// corners and the drop shadow.  Radii are in the order top-left, top-right,
// bottom-right, bottom-left.
class ChartFrame {
public:
    // Shrinks the radii to what a canvas of width by height can hold, each
    // corner against its neighbours as far as they are already limited.
    static void limitRadii(int radius[4], int width, int height);

    // A frame thickness pixels wide along the canvas's border, with an edge
    // line on its outer and on its inner side.
    static void paintThickFrame(DrawArea *d, int width, int height, const int radius[4],
                                int thickness, int frameColor, int outerEdgeColor,
                                int innerEdgeColor);
    // The border line and the raised or sunken rim of the chart.
    static void paintEdge(DrawArea *d, int width, int height, const int radius[4], int edgeColor,
                          int raisedEffect);
};
