#pragma once

#include <cstddef>
#include <vector>

#include "chart/axis/paint/LineObj.h"
#include "foundation/Constants.h"

// Makes the points of a line that layout left for later.
class LineMaker {
public:
    virtual void makeLine(int dataSet) = 0;

protected:
    ~LineMaker() {}
};

// The line of one data set as a layer lays it out: a list of points in layer
// pixels (x along the x axis, y along the value axis), each with the index of
// its data point and whether a gap follows it.  Plain records, no object per
// point.
class MultiLine : public LineObj {
public:
    struct Point {
        double x;
        double y;
        int index;
        bool gapAfter;
    };

    MultiLine();

    void clear();
    // Leaves the points to the maker until they are first read: a line that
    // draws nothing (a scatter's) costs nothing unless someone asks for it.
    void defer(LineMaker *maker, int dataSet) {
        pendingMaker = maker;
        pendingSet = dataSet;
    }
    // Makes the points now if they were left for later.
    void make();
    void reserve(size_t count) { points.reserve(count); }
    // Appends a point; x or y of kNoValue marks a gap after the last point
    // instead (nothing when there is none yet).
    void setData(double x, double y, int index) {
        if (x == kNoValue || y == kNoValue) {
            if (!points.empty()) points.back().gapAfter = true;
            return;
        }
        points.push_back(Point{x, y, index, false});
    }
    int size() const { return (int)points.size(); }
    const Point &at(int i) const { return points[i]; }

    // The line's height at x along the stored segment that spans it; kNoValue
    // where none does or a gap does.
    double getY(double x) const;

    // Where the line stands on the canvas: its points swapped on a chart with
    // swapped axes, then shifted by the offset.
    void layout(bool swapXY, int offsetX, int offsetY);
    DoubleArray getPoints() override;

private:
    std::vector<Point> points;
    LineMaker *pendingMaker;
    int pendingSet;
    bool swapXY;
    int offsetX;
    int offsetY;
    std::vector<double> canvasPoints;
};
