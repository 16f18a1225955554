#pragma once

#include "host/glue/ChartFactories.h"
#include "host/glue/Debugging.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/HostExceptions.h"
#include "host/glue/ScaleFactor.h"

// What a family's Constructor does after making its chart when ScaleFactor is
// above 1: nothing, unless the family raises the defaults that the engine
// would draw too small.
struct NoScaledDefaults {
    template <class Wrapper>
    static void apply(Wrapper *) {}
};

// The Constructor of a chart family (Target): a root chart made by Make, the
// family wrapper's create, and deleted with the object.  The size is in
// logical pixels.
template <class Target, auto Make, class BgColor, class ScaledDefaults = NoScaledDefaults>
void constructChart(REALobject self, RBInteger width, RBInteger height,
                    typename BgColor::Host bgColor, RBInteger edgeColor, RBInteger raisedEffect) {
    using namespace glue;
    if (getDebugging()) LogMessage("Constructor", static_cast<const void *>(self));
    ChartBlock *b = Target::block(self);
    if (b->handle) return;
    guard<void>([&] {
        auto *chart = Make(Px::in(width), Px::in(height), BgColor::in(bgColor),
                           Color::in(edgeColor), Int::in(raisedEffect));
        installChart(*b, chart);
        if (chart && getScaleFactor() > 1) ScaledDefaults::apply(chart);
    });
}
