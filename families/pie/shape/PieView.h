#pragma once

// The direction the pie is seen from, as an angle of the pie: the walls around
// it face the viewer.  A tilted pie is seen from 6 o'clock (pi); a pie with a
// shadow-like depth from its depth angle.
class PieView {
public:
    // severalDepths: sectors stand at depths of their own, so that a sector's
    // back wall may rise above its neighbours'.
    PieView(double direction, bool severalDepths);

    double getDirection() const { return direction; }
    // How far the arc from a clockwise to b lies from the viewer: 0 for the
    // nearest, pi for the farthest.  Surfaces are painted farthest first.
    double zOrder(double a, double b) const;
    // Whether angle t lies on the half of the rim towards the viewer, where the
    // outer wall shows.
    bool isNearHalf(double t) const;

private:
    double direction;
    bool severalDepths;
};
