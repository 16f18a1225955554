#pragma once

class ShapeTarget;

// Where an edge crosses a pixel row: its x there, the factor that turns a
// horizontal distance into a distance along the edge's normal, and the least
// and greatest x that the edge reaches within the row.
struct AASpan {
    double x;
    double factor;
    double minX;
    double maxX;
};

// One edge of an anti-aliased shape.
class AAEdge {
public:
    virtual ~AAEdge() {}
    double minY() const { return yMin; }
    double maxY() const { return yMax; }
    // Rows from minY up to, not including, maxY.
    bool crosses(double y) const { return y >= yMin && y < yMax; }
    virtual AASpan spanAt(double y) const = 0;
    virtual void drawOutline(ShapeTarget *target) const = 0;
    int getColor() const { return color; }

    // A coordinate within 0.001 of a whole number becomes that number.  Edges
    // meeting at a vertex must agree on its row, so every kind of edge that
    // snaps its ends uses this.
    static double snap(double v);

protected:
    AAEdge(int color) : color(color), yMin(0), yMax(0) {}
    int color;
    double yMin, yMax;
};
