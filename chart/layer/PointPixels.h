#pragma once

#include <cmath>

#include "chart/layer/AxisPixels.h"
#include "chart/layer/LayerImpl.h"

// The pixels of one data set's points in layer coordinates (x along the x
// axis, y along the value axis), where a layer of lines or areas draws them:
// the value, or under kStack and kPercentage the top of the point's part of
// its stack, on the axis of the set (of its group's first set when stacked),
// the set's slice of a kDepth layer moved back.  Walks over large data read
// it once a point: the plain case is inline and reads the arrays directly.
class PointPixels {
public:
    // With floor, the points are where each point's part starts instead
    // (LayerImpl::floorOf): the lower edge of an area's band.
    PointPixels(const LayerImpl &layer, int dataSet, bool floor = false);

    // False for a point without both values.  Pixels beyond the reach of any
    // canvas are held at its edge.
    bool pixel(int i, double *x, double *y) const {
        if (!direct || i >= count) return anyPixel(i, x, y);
        double v = ownValues[i];
        if (v == kNoValue) return false;
        if (positions) {
            if (i >= positionCount || positions[i] == kNoValue) return false;
            *x = held(xAxis.at(positions[i]) + shiftX);
        } else {
            *x = xPixelOf(i);
        }
        *y = yPixelOf(v);
        return !std::isnan(*x) && !std::isnan(*y);
    }
    // Whether the points are the set's own values at x pixels that rise by
    // the same step from one to the next, on a linear value axis: then the
    // pixel of point i is (xPixelOf(i), yPixelOf(values()[i])) for i below
    // valueCount(), and a larger value is always further along the axis.
    bool isEvenlySpread() const { return direct && !positions && yAxis.isAffine(); }
    double xPixelOf(int i) const { return held(firstX + i * stepX + shiftX); }
    double yPixelOf(double value) const { return held(yAxis.at(value) - shiftY); }
    const double *values() const { return ownValues; }
    int valueCount() const { return count; }
    // The value the point shows on its axis (its part's top in a stack, or
    // its floor).
    double valueAt(int i) const;
    const AxisPixels &xPixels() const { return xAxis; }
    const AxisPixels &yPixels() const { return yAxis; }

    static constexpr double kFarPixel = 1073741823.0;

private:
    void spreadEvenly();
    // Any point, through the layer: stacks, floors, x ranges, aligned layers.
    bool anyPixel(int i, double *x, double *y) const;
    static double held(double v) {
        return v < -kFarPixel ? -kFarPixel : v > kFarPixel ? kFarPixel : v;
    }

    const LayerImpl &layer;
    int dataSet;
    bool floor;
    const double *ownValues;
    int count;
    // The plain case: the set's own values, no layer to align with, and x
    // values given one by one or spread evenly over a linear axis (then the
    // pixel of point i is firstX + i * stepX).
    bool direct;
    const double *positions;
    int positionCount;
    double firstX;
    double stepX;
    AxisPixels xAxis;
    AxisPixels yAxis;
    double shiftX;
    double shiftY;
};
