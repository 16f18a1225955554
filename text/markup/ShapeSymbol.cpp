#include "text/markup/ShapeSymbol.h"

#include <cmath>
#include <cwchar>
#include <cwctype>

#include "text/markup/VSMLTag.h"

namespace {

enum ArgumentKind { kNone, kFraction, kCount, kCoordinates, kArrow };

struct ShapeName {
    const wchar_t *name;
    int code;
    ArgumentKind kind;
};

const ShapeName kShapes[] = {
    {L"square", 1, kNone},
    {L"diamond", 2, kNone},
    {L"triangle", 3, kNone},
    {L"righttriangle", 4, kNone},
    {L"lefttriangle", 5, kNone},
    {L"invertedtriangle", 6, kNone},
    {L"circle", 7, kNone},
    {L"cross", 8, kFraction},
    {L"cross2", 9, kFraction},
    {L"polygon", 11, kCount},
    {L"polygon2", 11, kCount},
    {L"star", 13, kCount},
    {L"polyshape", 14, kCoordinates},
    {L"glasssphere", 15, kNone},
    {L"glasssphere2", 16, kNone},
    {L"solidsphere", 17, kNone},
    {L"arrow", 18, kArrow},
};

double argOr(const std::vector<double> &args, size_t i, double fallback) {
    return i < args.size() && std::isfinite(args[i]) ? args[i] : fallback;
}

int clampInt(double v, int lo, int hi) {
    if (!(v >= lo)) return lo;
    if (v > hi) return hi;
    return (int)v;
}

int fractionBits(double v, double whole, int bits) {
    int top = (1 << bits) - 1;
    return clampInt(std::floor(v / whole * top + 0.5), 0, top);
}

}  // namespace

std::vector<double> ShapeSymbol::readArguments(const wchar_t *p) {
    std::vector<double> args;
    while (*p && *p != L')') {
        while (*p == L' ' || *p == L'\t' || *p == L',') ++p;
        if (!*p || *p == L')') break;
        std::wstring item;
        while (*p && *p != L' ' && *p != L'\t' && *p != L',' && *p != L')') item += *p++;
        std::wstring low = item;
        for (wchar_t &c : low) c = (wchar_t)towlower(c);
        args.push_back(low == L"newshape" ? kNewShape : VSMLTag::toDouble(item));
        if (args.size() > 100000) break;
    }
    return args;
}

int ShapeSymbol::packArguments(int kind, const std::vector<double> &args) {
    switch (kind) {
        case kFraction: {
            double w = argOr(args, 0, 0.5);
            if (w < 0) w = 0;
            if (w > 1) w = 1;
            return (int)std::floor(4095 * w + 0.5) << 12;
        }
        case kCount:
            return clampInt(argOr(args, 0, 5), 0, 100) << 12;
        case kArrow: {
            double angle = std::fmod(argOr(args, 0, 0), 360);
            if (angle < 0) angle += 360;
            return (fractionBits(angle, 360, 10) << 26) |
                   (fractionBits(argOr(args, 1, 1), 50, 6) << 20) |
                   (fractionBits(argOr(args, 2, 0.5), 50, 6) << 14) |
                   (fractionBits(argOr(args, 3, 0.5), 50, 6) << 8);
        }
        default:
            return 0;
    }
}

bool ShapeSymbol::parse(const std::wstring &value, ShapeSymbol *out) {
    if (value.size() < 2 || value[0] != L'@') return false;
    if (value[1] == L'@') {
        if (value.size() < 3 || !iswdigit(value[2])) return false;
        out->tableIndex = (int)wcstol(value.c_str() + 2, nullptr, 10);
        out->code = 0;
        return true;
    }
    size_t paren = value.find(L'(');
    std::wstring name =
        value.substr(1, paren == std::wstring::npos ? std::wstring::npos : paren - 1);
    for (wchar_t &c : name) c = (wchar_t)towlower(c);
    while (!name.empty() && (name.back() == L' ' || name.back() == L'\t')) name.pop_back();
    for (const ShapeName &s : kShapes) {
        if (name != s.name) continue;
        std::vector<double> args;
        if (paren != std::wstring::npos) args = readArguments(value.c_str() + paren + 1);
        out->code = s.code | packArguments(s.kind, args);
        if (s.kind == kCoordinates) out->coordinates = args;
        out->tableIndex = -1;
        return true;
    }
    return false;
}
