#include "host/glue/ChartParts.h"

#include "host/glue/ClassRegistry.h"
#include "host/glue/Debugging.h"
#include "host/glue/Factories.h"
#include "host/glue/Lifetime.h"
#include "host/sdk/HostFunctions.h"

namespace {

// Axis blocks keep their first wrapper behind owner, parent and a reserved slot.
void *&axisWrapper(REALobject axis, ClassId root) {
    return blockOf<HandleBlock<void>>(axis, root)->handle;
}

}  // namespace

REALobject cachedAxisObject(REALobject &slot, ClassId root, const char *className, void *wrapper,
                            REALobject parent) {
    if (!wrapper) return nullptr;
    if (slot && axisWrapper(slot, root) == wrapper) {
        if (getDebugging()) LogMessage("return cached", static_cast<const void *>(slot));
        lockRef(slot);
        return slot;
    }
    REALobject axis = newHostObject(className, root, nullptr, parent);
    if (!axis) return nullptr;
    axisWrapper(axis, root) = wrapper;
    // A slot that held another axis lets it go, cleared.
    if (slot) {
        ClearAxis(slot, root);
        unlockRef(slot);
    }
    slot = axis;
    lockRef(axis);
    return axis;
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
