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

private:
    static std::vector<double> readArguments(const wchar_t *p);
    static int packArguments(int kind, const std::vector<double> &args);
};
