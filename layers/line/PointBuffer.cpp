#include "layers/line/PointBuffer.h"

#include <cstddef>

namespace {

// Room kept at the first point: most polygons need no more.
const size_t kFirstRoom = 64;

}  // namespace

void PointBuffer::addPoint(double px, double py) {
    if (closed) clear();
    if (x.capacity() == 0) {
        x.reserve(kFirstRoom);
        y.reserve(kFirstRoom);
    }
    x.push_back(px);
    y.push_back(py);
}

void PointBuffer::clear() {
    x.clear();
    y.clear();
    closed = false;
}
