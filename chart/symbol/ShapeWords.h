#pragma once

// Symbol codes and the words of the shapes that take arguments.  A word keeps
// its code in the low byte and packs the arguments above it.
enum SymbolShape {
    kNoShape = 0,
    kSquareShape = 1,
    kDiamondShape = 2,
    kTriangleShape = 3,
    kRightTriangleShape = 4,
    kLeftTriangleShape = 5,
    kInvertedTriangleShape = 6,
    kCircleShape = 7,
    kCrossSymbol = 8,
    kCross2Symbol = 9,
    kCircleShapeNoShading = 10,
    kVistrel_PolygonSymbol = 11,
    kVistrel_Polygon2Symbol = 12,
    kVistrel_StarSymbol = 13,
    kVistrel_CustomSymbol = 14,
    kGlassSphereShape = 15,
    kGlassSphere2Shape = 16,
    kSolidSphereShape = 17,
    kVistrel_ArrowSymbol = 18,
    // Starts a further polygon in the point list of a custom symbol.
    kNewShape = -1342177279,
};

namespace Chart {

// The code of a symbol word.
inline int shapeCode(int word) {
    return word & 0xFF;
}

// Crosses with arms of the given width, a fraction 0 to 1 of the symbol.
int CrossShape(double width);
int Cross2Shape(double width);
// Regular polygons with a corner on top (PolygonShape) or a side on top
// (Polygon2Shape), and stars, of 3 to 100 corners or points.
int PolygonShape(int sides);
int Polygon2Shape(int sides);
int StarShape(int points);
// An arrow pointing at the angle (degrees clockwise from up), with a head as
// wide as widthRatio of the symbol, a stem of stemWidthRatio, and a stem that
// takes stemLengthRatio of the length.
int ArrowShape(double angle, double widthRatio, double stemWidthRatio, double stemLengthRatio);

}  // namespace Chart
