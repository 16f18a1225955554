#pragma once

#include "host/glue/Blocks.h"
#include "host/glue/ClassId.h"

// What charts keep in their blocks: the standing axis objects and the child
// charts of a multi-chart.

// The host object of one of a chart's standing axes.  The slot of the chart (or
// layer) block holds one lock; the caller gets another.  Asked again for the
// same wrapper, the same object comes back.  The axis object has no owner, as a
// lock back to the chart would make a cycle; it gets the chart's parent.
// root is the axis class's block (Axis or AngularAxis), className the class.
REALobject cachedAxisObject(REALobject &slot, ClassId root, const char *className, void *wrapper,
                            REALobject parent);

// Keeps a host chart in a multi-chart's child array, so that asking for the
// chart later gives the same host object.
void keepChildChart(ChartBlock &block, REALobject child);
// The kept child with that chart wrapper, with a lock for the caller; null if
// none.
REALobject findChildChart(const ChartBlock &block, const abc::BaseChart *handle);
