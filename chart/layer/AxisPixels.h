#pragma once

class AxisImpl;
class PlotAreaImpl;

// The pixels of values along one axis of a plot, as PlotAreaImpl::pixelOf
// gives them, for walks over many points: on a linear axis each pixel is one
// multiplication away from its value; a log axis, or one that follows
// another, asks the axis for every value.
class AxisPixels {
public:
    AxisPixels(const PlotAreaImpl &plot, const AxisImpl *axis);

    double at(double value) const {
        return affine ? origin + (value - from) * slope : general(value);
    }
    bool isAffine() const { return affine; }

private:
    double general(double value) const;

    const PlotAreaImpl &plot;
    const AxisImpl *axis;
    bool affine;
    double from;
    double origin;
    double slope;
};
