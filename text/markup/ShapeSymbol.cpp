#include "text/markup/ShapeSymbol.h"

#include <cmath>
#include <cwchar>
#include <cwctype>

#include "text/markup/VSMLTag.h"

namespace {

struct ShapeName {
    const wchar_t *name;
    int code;
    ShapeSymbol::ArgumentKind kind;
};

const ShapeName kShapes[] = {
    {L"square", 1, ShapeSymbol::kNoArguments},
    {L"diamond", 2, ShapeSymbol::kNoArguments},
    {L"triangle", 3, ShapeSymbol::kNoArguments},
    {L"righttriangle", 4, ShapeSymbol::kNoArguments},
    {L"lefttriangle", 5, ShapeSymbol::kNoArguments},
    {L"invertedtriangle", 6, ShapeSymbol::kNoArguments},
    {L"circle", 7, ShapeSymbol::kNoArguments},
    {L"cross", 8, ShapeSymbol::kFraction},
    {L"cross2", 9, ShapeSymbol::kFraction},
    {L"polygon", 11, ShapeSymbol::kCount},
    {L"polygon2", 11, ShapeSymbol::kCount},
    {L"star", 13, ShapeSymbol::kCount},
    {L"polyshape", 14, ShapeSymbol::kCoordinates},
    {L"glasssphere", 15, ShapeSymbol::kNoArguments},
    {L"glasssphere2", 16, ShapeSymbol::kNoArguments},
    {L"solidsphere", 17, ShapeSymbol::kNoArguments},
    {L"arrow", 18, ShapeSymbol::kArrow},
};

double argOr(const std::vector<double> &args, size_t i, double fallback) {
    return i < args.size() && std::isfinite(args[i]) ? args[i] : fallback;
}

int clampInt(double v, int lo, int hi) {
    if (!(v >= lo)) return lo;
    if (v > hi) return hi;
    return (int)v;
}

// Bit fields of an arrow word: the angle, then the three ratios.  The angle has
// the 6 bits left at the top of the word, steps of 360 / 64 degrees.
const int kAngleShift = 26, kAngleBits = 6;
const int kRatioShifts[3] = {20, 14, 8};
const int kRatioBits = 6;
const double kRatioUnits = 50;
const double kArrowDefaults[4] = {0, 1, 0.5, 0.5};

int field(int word, int shift, int bits) {
    return (int)(((unsigned)word >> shift) & ((1u << bits) - 1));
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

int ShapeSymbol::packArguments(ArgumentKind kind, const std::vector<double> &args) {
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
            int steps = 1 << kAngleBits;
            unsigned word =
                (unsigned)(clampInt(std::floor(angle / 360 * steps + 0.5), 0, steps) % steps)
                << kAngleShift;
            for (int i = 0; i < 3; ++i) {
                double ratio = argOr(args, i + 1, kArrowDefaults[i + 1]);
                word |= (unsigned)clampInt(std::floor(ratio * kRatioUnits + 0.5), 0,
                                           (1 << kRatioBits) - 1)
                        << kRatioShifts[i];
            }
            return (int)word;
        }
        default:
            return 0;
    }
}

double ShapeSymbol::unpackFraction(int word) {
    return field(word, 12, 12) / 4095.0;
}

int ShapeSymbol::unpackCount(int word) {
    return field(word, 12, 12);
}

void ShapeSymbol::unpackArrow(int word, double out[4]) {
    out[0] = field(word, kAngleShift, kAngleBits) * 360.0 / (1 << kAngleBits);
    for (int i = 0; i < 3; ++i) out[i + 1] = field(word, kRatioShifts[i], kRatioBits) / kRatioUnits;
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
