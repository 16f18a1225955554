#pragma once

#include <string>
#include <vector>

// A symbol named in an "img" value: "@circle", "@star(7)", "@arrow(45, 1, 0.5)",
// "@@3" (entry 3 of the canvas's symbol table).
class ShapeSymbol {
public:
    // The marker that stands for "newshape" in a coordinate list.
    static constexpr double kNewShape = -1342177279;

    ShapeSymbol() : code(0), tableIndex(-1) {}
    // False when the value names no symbol.
    static bool parse(const std::wstring &value, ShapeSymbol *out);

    // The symbol code with the packed arguments of its kind.
    int code;
    // The coordinate list of "polyshape".
    std::vector<double> coordinates;
    // "@@n": n, otherwise -1.
    int tableIndex;

    // How a symbol word carries its arguments above the code: a fraction 0 to 1
    // in 12 bits at bit 12 (crosses), a count 0 to 100 at bit 12 (polygons,
    // stars), and for arrows the angle's share of 360 in the 6 bits from bit 26
    // and the head width, head length and shaft width in fiftieths, 6 bits each
    // at bits 20, 14 and 8.  Missing arguments take their defaults.
    enum ArgumentKind { kNoArguments, kFraction, kCount, kCoordinates, kArrow };
    static int packArguments(ArgumentKind kind, const std::vector<double> &args);
    static double unpackFraction(int word);
    static int unpackCount(int word);
    // angle in degrees, then the three ratios.
    static void unpackArrow(int word, double out[4]);

private:
    static std::vector<double> readArguments(const wchar_t *p);
};
