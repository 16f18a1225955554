#pragma once

// Where an axis runs on the canvas: its low end, the direction in which its
// values rise, and the outward side where ticks and labels stand.  Points are
// given by their distance along the axis and outward from it.
class AxisFrame {
public:
    // An axis on a side of the plot (kBottom, kLeft, kRight or kTop) with its
    // low end at (x, y); its points fall on whole pixels.
    static AxisFrame upright(int side, double x, double y);
    // An axis turned by angle degrees (clockwise on the canvas, whose y points
    // down) about its low end; the outward side lies clockwise of it.
    static AxisFrame turned(double angle, double x, double y);

    double pointX(double along, double out) const;
    double pointY(double along, double out) const;
    // The distance of a canvas point along the axis from the low end, and its
    // distance outward.
    double along(double px, double py) const;
    double outward(double px, double py) const;

    // kBottom, kLeft, kRight, kTop, or kCenter for a turned axis.
    int getSide() const { return side; }
    bool isHorizontal() const { return side == 2 || side == 8; }
    // Degrees of the outward direction on the canvas, 0 to 360, clockwise from
    // the right.
    double outwardAngle() const;

private:
    AxisFrame(int side, double x, double y, double dx, double dy, double nx, double ny);
    double snap(double v) const;

    int side;
    double x0;
    double y0;
    double dx;
    double dy;
    double nx;
    double ny;
};
