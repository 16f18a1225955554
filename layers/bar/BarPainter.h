#pragma once

#include <vector>

class DrawArea;
struct BarShape;

// How the bars of a layer look, beyond their colours.
struct BarLook {
    int lineWidth = 1;
    // The layer's effect word: bar lighting, glass, a cylinder, a raised edge.
    int effect = 0;
    // Corner radii at the bar's end (two) and base (two), in the order of
    // BarLayer::setRoundedCorners.
    int radius[4] = {0, 0, 0, 0};
    // Null for the plain box.
    const BarShape *shape = nullptr;
    // The 3D depth in pixels; 0 draws flat.
    int depth = 0;
};

// Draws one bar, or one part of a stacked bar, into its box on the canvas:
// inclusive pixels x1 to x2 and y1 to y2, its end on the side endSide (kTop,
// kBottom, kLeft, kRight).  Boxes are drawn with rounded corners, lighting
// across the bar or another effect; shapes fill the box turned so that their
// top is the bar's end; a depth draws the faces behind the front.
class BarPainter {
public:
    explicit BarPainter(DrawArea *d) : d(d) {}

    // The edge colour of a bar of the fill colour for an edge word: -1 none
    // (under bar lighting the fill's shade on a 3D bar), -2 the fill's own
    // shade, kSameAsMainColor the fill.
    int resolveEdge(int edge, int fill, const BarLook &look) const;
    void paint(int x1, int y1, int x2, int y2, int endSide, int fill, int edge,
               const BarLook &look);

    // The radii of the box's corners on the canvas (top-left, top-right,
    // bottom-right, bottom-left) for radii given at the bar's end and base.
    static void canvasRadii(const int radius[4], int endSide, int out[4]);
    // The outlines of a shape filling the box, turned to its end side, as
    // canvas points on the pixels' outer edges.
    static std::vector<std::vector<double>> outline(const BarShape *shape, int x1, int y1, int x2,
                                                    int y2, int endSide);

private:
    void paintFront(int x1, int y1, int x2, int y2, int endSide, int fill, int edge,
                    const BarLook &look, bool rounded);
    void paintShape(int x1, int y1, int x2, int y2, int endSide, int fill, int edge,
                    const BarLook &look);
    void paintFaces(const std::vector<std::vector<double>> &outlines, int fill, int edge,
                    int depth);
    void paintBox(int x1, int y1, int x2, int y2, const int radius[4], int fill, int edge,
                  int lineWidth);
    // Brightness from dark sides to a bright middle across the bar.
    int litFill(int x1, int y1, int x2, int y2, int endSide, int fill, int effect);

    DrawArea *d;
};
