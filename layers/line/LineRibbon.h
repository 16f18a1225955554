#pragma once

#include <vector>

class LayerPainter;

// The 3D form of a line: each segment is the face between it and its copy
// moved back by the depth, in the colour of the face's side; with lighting
// the faces are shaded by their slope.  Edges are drawn where the edge colour
// shows: the end lines of a run and the outline moved back where the face
// turns to the other side or the run ends.
class LineRibbon {
public:
    struct Look {
        int color;
        // The colour of faces whose top shows.
        int topColor;
        int edgeColor;
        // The shift of the back, in canvas pixels (right and up).
        int depth;
        bool lit;
        // Phong lighting: ambient, diffuse, specular and the shininess power.
        double lighting[4];
    };

    LineRibbon(LayerPainter &painter, const Look &look);
    // One run of joined points, layer pixels, at least two.
    void paintRun(const std::vector<double> &x, const std::vector<double> &y);

    // Whether the face of a segment with these canvas deltas shows its top:
    // the viewer looks from where the depth leads, above and to the right.
    static bool showsTop(double dx, double dy, int depth);
    // The brightness of a lit face of a segment with these canvas deltas.
    double brightness(double dx, double dy) const;

private:
    // The face of a segment given in layer pixels.
    void paintFace(double x1, double y1, double x2, double y2, bool top, double b1, double b2);
    void edge(double x1, double y1, double x2, double y2);
    // The outline moved back over points from to to, and the end line at to.
    void backOutline(const std::vector<double> &cx, const std::vector<double> &cy, int from,
                     int to);

    LayerPainter &painter;
    Look look;
    bool edged;
};
