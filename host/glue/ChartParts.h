#pragma once

#include "host/glue/Blocks.h"
#include "host/glue/ClassId.h"
#include "host/glue/Forward.h"

// What charts keep in their blocks: the standing axis objects and the child
// charts of a multi-chart.

// The host object of one of a chart's standing axes.  The slot of the chart (or
// layer) block holds one lock; the caller gets another.  Asked again for the
// same wrapper, the same object comes back.  The axis object has no owner, as a
// lock back to the chart would make a cycle; it gets the chart's parent, and
// the chart without a lock, as the owner of the parts it hands out.  root is
// the axis class's block (Axis or AngularAxis), className the class.
REALobject cachedAxisObject(REALobject &slot, ClassId root, const char *className, void *wrapper,
                            REALobject parent, REALobject chart);

// The glue of a chart's standing axis (xAxis and the like), a method or a
// property: Get is the family wrapper's method that gives the axis wrapper,
// SlotOf the slot where the chart keeps the object of that axis.
template <class Target, auto Get, ChartAxisSlot (*SlotOf)(abc::Axis *)>
struct StandingAxis {
    static REALobject glue(REALobject self) { return axisOf(self, procOf(&glue)); }
    static REALobject property(REALobject self, RBInteger) {
        return axisOf(self, procOf(&property));
    }

private:
    static REALobject axisOf(REALobject self, REALproc glue) {
        auto body = [self](typename Target::Wrapper *chart) {
            ChartBlock *b = blockOf<ChartBlock>(self, ClassId::BaseChart);
            abc::Axis *axis = (chart->*Get)();
            return axis ? cachedAxisObject(b->axes[SlotOf(axis)], ClassId::Axis, "VSAxisXPG", axis,
                                           b->parent, self)
                        : nullptr;
        };
        return callWrapper<Target, REALobject>(self, glue, body);
    }
};

template <ChartAxisSlot Slot>
ChartAxisSlot fixedSlot(abc::Axis *) {
    return Slot;
}

// An axis that keeps its role: one slot for whatever axis the chart gives.
template <class Target, auto Get, ChartAxisSlot Slot>
constexpr auto standingAxis = &StandingAxis<Target, Get, &fixedSlot<Slot>>::glue;

// The slot of one of the four axes around an XY plot, by the side it stands
// on: the same axis object whichever role swapXY, setXAxisOnTop or
// setYAxisOnRight give the axis.
ChartAxisSlot sideSlot(abc::Axis *axis);

template <class Target, auto Get>
constexpr auto sideAxisProperty = &StandingAxis<Target, Get, &sideSlot>::property;

// Keeps a host chart in a multi-chart's child array, so that asking for the
// chart later gives the same host object.
void keepChildChart(ChartBlock &block, REALobject child);
// The kept child with that chart wrapper, with a lock for the caller; null if
// none.
REALobject findChildChart(const ChartBlock &block, const abc::BaseChart *handle);
