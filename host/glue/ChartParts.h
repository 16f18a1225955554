#pragma once

#include "host/glue/Blocks.h"
#include "host/glue/ClassId.h"
#include "host/glue/Forward.h"

// What charts keep in their blocks: the standing axis objects and the child
// charts of a multi-chart.

// The host object of one of a chart's standing axes.  The slot of the chart (or
// layer) block holds one lock; the caller gets another.  Asked again for the
// same wrapper, the same object comes back.  The axis object has no owner, as a
// lock back to the chart would make a cycle; it gets the chart's parent.
// root is the axis class's block (Axis or AngularAxis), className the class.
REALobject cachedAxisObject(REALobject &slot, ClassId root, const char *className, void *wrapper,
                            REALobject parent);

// The glue of a chart method that gives one of its standing axes (xAxis and
// the like): Get is the family wrapper's method that gives the axis wrapper,
// Slot where the chart keeps the axis object.
template <class Target, auto Get, ChartAxisSlot Slot>
struct StandingAxis {
    static REALobject glue(REALobject self) {
        auto body = [self](typename Target::Wrapper *chart) {
            ChartBlock *b = blockOf<ChartBlock>(self, ClassId::BaseChart);
            return cachedAxisObject(b->axes[Slot], ClassId::Axis, "VSAxisXPG", (chart->*Get)(),
                                    b->parent);
        };
        return callWrapper<Target, REALobject>(self, reinterpret_cast<REALproc>(&glue), body);
    }
};

template <class Target, auto Get, ChartAxisSlot Slot>
constexpr auto standingAxis = &StandingAxis<Target, Get, Slot>::glue;

// Keeps a host chart in a multi-chart's child array, so that asking for the
// chart later gives the same host object.
void keepChildChart(ChartBlock &block, REALobject child);
// The kept child with that chart wrapper, with a lock for the caller; null if
// none.
REALobject findChildChart(const ChartBlock &block, const abc::BaseChart *handle);
