#include "chart/symbol/ShapeWords.h"

#include "text/markup/ShapeSymbol.h"

namespace Chart {

int CrossShape(double width) {
    return kCrossSymbol | ShapeSymbol::packArguments(ShapeSymbol::kFraction, {width});
}

int Cross2Shape(double width) {
    return kCross2Symbol | ShapeSymbol::packArguments(ShapeSymbol::kFraction, {width});
}

int PolygonShape(int sides) {
    return kVistrel_PolygonSymbol |
           ShapeSymbol::packArguments(ShapeSymbol::kCount, {(double)sides});
}

int Polygon2Shape(int sides) {
    return kVistrel_Polygon2Symbol |
           ShapeSymbol::packArguments(ShapeSymbol::kCount, {(double)sides});
}

int StarShape(int points) {
    return kVistrel_StarSymbol | ShapeSymbol::packArguments(ShapeSymbol::kCount, {(double)points});
}

int ArrowShape(double angle, double widthRatio, double stemWidthRatio, double stemLengthRatio) {
    return kVistrel_ArrowSymbol |
           ShapeSymbol::packArguments(ShapeSymbol::kArrow,
                                      {angle, widthRatio, 1 - stemLengthRatio, stemWidthRatio});
}

}  // namespace Chart
