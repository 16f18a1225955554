#include "host/glue/ChartParts.h"

#include "host/abc/chart/Axis.h"

#include "host/glue/ClassRegistry.h"
#include "host/glue/Debugging.h"
#include "host/glue/Factories.h"
#include "host/glue/Lifetime.h"
#include "host/sdk/HostFunctions.h"

namespace {

// Axis blocks keep their first wrapper behind owner, parent and their chart.
HandleBlock<void> *axisBlock(REALobject axis, ClassId root) {
    return blockOf<HandleBlock<void>>(axis, root);
}

}  // namespace

REALobject cachedAxisObject(REALobject &slot, ClassId root, const char *className, void *wrapper,
                            REALobject parent, REALobject chart) {
    if (!wrapper) return nullptr;
    if (slot && axisBlock(slot, root)->handle == wrapper) {
        if (getDebugging()) LogMessage("return cached", static_cast<const void *>(slot));
        lockRef(slot);
        return slot;
    }
    REALobject axis = newHostObject(className, root, nullptr, parent);
    if (!axis) return nullptr;
    axisBlock(axis, root)->handle = wrapper;
    axisBlock(axis, root)->reserved = chart;
    // A slot that held another axis lets it go, cleared.
    if (slot) {
        ClearAxis(slot, root);
        unlockRef(slot);
    }
    slot = axis;
    lockRef(axis);
    return axis;
}

ChartAxisSlot sideSlot(abc::Axis *axis) {
    switch (axis->getAlignment()) {
        case 8:
            return kXAxis2Slot;
        case 4:
            return kYAxisSlot;
        case 6:
            return kYAxis2Slot;
        default:
            return kXAxisSlot;
    }
}

void keepChildChart(ChartBlock &block, REALobject child) {
    if (!child) return;
    if (!block.children) block.children = REALCreateArray(kTypeObject, -1);
    if (!block.children) return;
    RBInteger end = REALGetArrayUBound(block.children) + 1;
    REALInsertArrayValueObject(block.children, end, child);
}

REALobject findChildChart(const ChartBlock &block, const abc::BaseChart *handle) {
    if (!block.children || !handle) return nullptr;
    RBInteger upper = REALGetArrayUBound(block.children);
    for (RBInteger i = 0; i <= upper; ++i) {
        // An element comes with a lock of its own.
        REALobject child = REALGetArrayValueObject(block.children, i);
        if (child && blockOf<ChartBlock>(child, ClassId::BaseChart)->handle == handle) return child;
        unlockRef(child);
    }
    return nullptr;
}
