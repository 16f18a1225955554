#include "layers/bar/BarShapes.h"

#include "chart/symbol/ShapeWords.h"

namespace {

int key(int v) {
    return v < 0 ? BarShapes::kAll : v;
}

}  // namespace

bool BarShape::isBox() const {
    int code = Chart::shapeCode(word);
    return polygon.empty() && (code == kNoShape || code == kSquareShape);
}

bool BarShape::isRound() const {
    switch (Chart::shapeCode(word)) {
        case kCircleShape:
        case kCircleShapeNoShading:
        case kGlassSphereShape:
        case kGlassSphere2Shape:
        case kSolidSphereShape:
            return polygon.empty();
        default:
            return false;
    }
}

void BarShapes::set(int shape, int dataGroup, int dataItem) {
    BarShape &s = shapes[{key(dataGroup), key(dataItem)}];
    s.word = shape;
    s.polygon.clear();
}

void BarShapes::setPolygon(IntArray points, int dataGroup, int dataItem) {
    BarShape &s = shapes[{key(dataGroup), key(dataItem)}];
    s.polygon.clear();
    // Fewer than three points make no polygon: the box stays.
    s.word = points.len > 5 ? kVistrel_CustomSymbol : kSquareShape;
    if (points.len <= 5) return;
    for (int i = 0; i < points.len; ++i) s.polygon.push_back(points.data[i]);
}

const BarShape *BarShapes::find(int dataGroup, int dataItem) const {
    if (shapes.empty()) return nullptr;
    const std::pair<int, int> keys[] = {
        {dataGroup, dataItem}, {dataGroup, kAll}, {kAll, dataItem}, {kAll, kAll}};
    for (const auto &k : keys) {
        auto at = shapes.find(k);
        if (at != shapes.end()) return at->second.isBox() ? nullptr : &at->second;
    }
    return nullptr;
}
