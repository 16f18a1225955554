#pragma once

#include <initializer_list>
#include <vector>

#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

// The colour makers that the canvas and the charts both offer, declared alike:
// one table for any target whose wrapper has them.
template <class Target>
TableSpan<MethodEntry> colorMakerMethods() {
    using namespace glue;
    using W = typename Target::Wrapper;
    // clang-format off
    static const MethodEntry entries[] = {
        method("dashLineColor(colorValue as integer, patternCode as integer = &h0505) as integer",
               forward<Target, &W::dashLineColor, Color, Int>),
        method("dashLineColor(colorValue as color, patternCode as integer = &h0505) as integer",
               forward<Target, &W::dashLineColor, ColorC, Int>),
        method("patternColor(colors() as integer, height as integer, startX as integer = 0, "
               "startY as integer = 0) as integer",
               forward<Target, &W::patternColor, Ints, Int, Px, Px>),
        method("patternColor(file as string, startX as integer = 0, startY as integer = 0) "
               "as integer", forward<Target, &W::patternColor2, Str, Px, Px>),
        method("gradientColor(startX as integer, startY as integer, endX as integer, "
               "endY as integer, startColor as integer, endColor as integer) as integer",
               forward<Target, &W::gradientColor, Px, Px, Px, Px, Color, Color>),
        method("gradientColor(startX as integer, startY as integer, endX as integer, "
               "endY as integer, startColor as color, endColor as color) as integer",
               forward<Target, &W::gradientColor, Px, Px, Px, Px, ColorC, ColorC>),
        method("gradientColor(colors() as integer, angle as double = 90, scale as double = 1.0, "
               "startX as integer = 0, startY as integer = 0) as integer",
               forward<Target, &W::gradientColor2, Ints, Dbl, Dbl, Px, Px>),
        method("linearGradientColor(startX as integer, startY as integer, endX as integer, "
               "endY as integer, startColor as integer, endColor as integer, "
               "periodic as boolean = false) as integer",
               forward<Target, &W::linearGradientColor, Px, Px, Px, Px, Color, Color, Bool>),
        method("linearGradientColor(startX as integer, startY as integer, endX as integer, "
               "endY as integer, startColor as color, endColor as color, "
               "periodic as boolean = false) as integer",
               forward<Target, &W::linearGradientColor, Px, Px, Px, Px, ColorC, ColorC, Bool>),
        method("linearGradientColor(startX as integer, startY as integer, endX as integer, "
               "endY as integer, colors() as integer, periodic as boolean = false) as integer",
               forward<Target, &W::linearGradientColor2, Px, Px, Px, Px, Ints, Bool>),
        method("radialGradientColor(cx as integer, cy as integer, rx as integer, ry as integer, "
               "startColor as integer, endColor as integer, periodic as boolean = false) "
               "as integer",
               forward<Target, &W::radialGradientColor, Px, Px, Px, Px, Color, Color, Bool>),
        method("radialGradientColor(cx as integer, cy as integer, rx as integer, ry as integer, "
               "startColor as color, endColor as color, periodic as boolean = false) as integer",
               forward<Target, &W::radialGradientColor, Px, Px, Px, Px, ColorC, ColorC, Bool>),
        method("radialGradientColor(cx as integer, cy as integer, rx as integer, ry as integer, "
               "colors() as integer, periodic as boolean = false) as integer",
               forward<Target, &W::radialGradientColor2, Px, Px, Px, Px, Ints, Bool>),
    };
    // clang-format on
    return tableOf(entries);
}

// One table made of several, in order, kept in storage that lives for the process.
inline TableSpan<MethodEntry> joinTables(std::vector<MethodEntry> &storage,
                                         std::initializer_list<TableSpan<MethodEntry>> parts) {
    for (const TableSpan<MethodEntry> &p : parts)
        storage.insert(storage.end(), p.items, p.items + p.count);
    return {storage.data(), (int)storage.size()};
}
