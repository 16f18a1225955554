#pragma once

#include "host/glue/ChartFactories.h"
#include "host/glue/Forward.h"

// The parts a chart hands out, as results of the forwarded glue: host objects
// with the chart as owner, so that a part keeps its chart alive.

template <class W, REALobject (*Factory)(W *, REALobject, REALobject)>
struct PartOf {
    static constexpr bool kIsPart = true;
    static REALobject out(W *part, REALobject owner) { return Factory(part, owner, nullptr); }
};

template <>
struct PartResult<abc::TextBox *> : PartOf<abc::TextBox, &NewTextBoxXPG> {};
template <>
struct PartResult<abc::LegendBox *> : PartOf<abc::LegendBox, &NewLegendBoxXPG> {};
template <>
struct PartResult<abc::VSLine *> : PartOf<abc::VSLine, &NewLineXPG> {};
template <>
struct PartResult<abc::VSMLTable *> : PartOf<abc::VSMLTable, &NewMLTableXPG> {};
template <>
struct PartResult<abc::DrawArea *> : PartOf<abc::DrawArea, &NewChartCanvasXPG> {};
