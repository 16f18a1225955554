#pragma once

#include <vector>

// The outline of a symbol as polygons in the unit box: x and y from -0.5 to 0.5
// about the symbol's centre, y pointing down.  Shapes that are no polygons
// (circles, spheres, crosses of lines) have no outline.
class SymbolOutline {
public:
    struct Polygon {
        std::vector<double> x;
        std::vector<double> y;
    };

    // customPoints are the x, y pairs of a custom symbol, kNewShape between
    // polygons.
    static std::vector<Polygon> of(int word, const std::vector<double> &customPoints);

private:
    static std::vector<Polygon> fixedShape(int code);
    static Polygon regularPolygon(int corners, double turn);
    static Polygon star(int points);
    static Polygon cross(double armWidth, bool diagonal);
    static Polygon arrow(int word);
    static std::vector<Polygon> custom(const std::vector<double> &points);
    // Scales and shifts so that the polygons' bounding box is the unit box.
    static void fillUnitBox(std::vector<Polygon> &polygons);
};
