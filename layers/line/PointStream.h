#pragma once

// A receiver of the points of a polygon, one after the other; close() ends
// the polygon.
class PointStream {
public:
    virtual ~PointStream() {}
    virtual void addPoint(double x, double y) = 0;
    virtual void close() = 0;
};
