#pragma once

#include <vector>

#include "layers/line/PointStream.h"

// The end of a chain of clippers: keeps the points it is given until the next
// polygon starts.
class PointBuffer : public PointStream {
public:
    PointBuffer() : closed(false) {}
    void addPoint(double x, double y) override;
    void close() override { closed = true; }
    void clear();

    const std::vector<double> &getX() const { return x; }
    const std::vector<double> &getY() const { return y; }
    int size() const { return (int)x.size(); }

private:
    std::vector<double> x;
    std::vector<double> y;
    bool closed;
};
