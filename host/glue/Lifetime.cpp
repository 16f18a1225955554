#include "host/glue/Lifetime.h"

#include <cstdio>
#include <cstring>

#include "host/abc/AutoDeleteContainer.h"
#include "host/abc/DrawArea.h"
#include "host/abc/chart/MultiChart.h"
#include "host/glue/ClassRegistry.h"
#include "host/glue/Debugging.h"
#include "host/glue/HostValues.h"
#include "host/sdk/HostFunctions.h"

void lockRef(REALobject obj) {
    if (obj) REALLockObject(obj);
}

void unlockRef(REALobject obj) {
    if (obj) REALUnlockObject(obj);
}

void replaceRef(REALobject &slot, REALobject value) {
    lockRef(value);
    REALobject old = slot;
    slot = value;
    unlockRef(old);
}

void releaseRefs(REALobject &owner, REALobject &parent) {
    REALobject o = owner, p = parent;
    owner = parent = nullptr;
    unlockRef(p);
    unlockRef(o);
}

void keepHostValue(REALobject &dictionary, REALstring id, REALobject value) {
    if (!dictionary) dictionary = REALnewInstance("Dictionary");
    if (!dictionary) return;
    using SetValue = void (*)(REALobject, REALobject, REALobject);
    auto setValue = reinterpret_cast<SetValue>(
        REALLoadObjectMethod(dictionary, "Value(key as Variant, Assigns value as Variant)"));
    REALobject key = REALNewVariantString(id);
    if (setValue && key) setValue(dictionary, key, value);
    unlockRef(key);
}

void keepForChart(REALobject chart, const void *part, const char *what, REALobject value) {
    if (!chart) return;
    char id[64];
    snprintf(id, sizeof id, "%s@%p", what, part);
    REALstring key = newHostString(id);
    keepHostValue(blockOf<ChartBlock>(chart, ClassId::BaseChart)->resources, key, value);
    REALUnlockString(key);
}

void InitBlock(REALobject self, ClassId root) {
    if (self) memset(blockOf<char>(self, root), 0, classDefinition(root).dataSize);
}

void PrivateConstructor(REALobject) {}

void ClearAxis(REALobject axis, ClassId root) {
    if (!axis) return;
    // Axis blocks: owner, parent, the chart without a lock, then the wrappers.
    auto *block = blockOf<HandleBlock<void>>(axis, root);
    size_t wrappers = offsetof(HandleBlock<void>, reserved);
    size_t size = classDefinition(root).dataSize;
    if (size > wrappers) memset(reinterpret_cast<char *>(block) + wrappers, 0, size - wrappers);
    releaseRefs(block->owner, block->parent);
}

void BaseChartDestructor(REALobject self) {
    auto *b = blockOf<ChartBlock>(self, ClassId::BaseChart);
    if (getDebugging()) LogMessage("Delete...", static_cast<void *>(b->handle));
    ClearAxis(b->angularAxis, ClassId::AngularAxis);
    for (REALobject axis : b->axes) ClearAxis(axis, ClassId::Axis);
    unlockRef(b->angularAxis);
    for (REALobject axis : b->axes) unlockRef(axis);
    b->angularAxis = nullptr;
    memset(b->axes, 0, sizeof b->axes);
    unlockRef(b->parent);
    b->parent = nullptr;
    // The charts placed in a multi-chart may outlive it: they forget it while
    // the child array still keeps them.
    if (!b->owner && b->multiChart) b->multiChart->releaseCharts();
    unlockRef(reinterpret_cast<REALobject>(b->children));
    b->children = nullptr;
    // A chart handed out by a multi-chart belongs to it; a root chart is ours.
    if (!b->owner) delete b->handle;
    b->handle = nullptr;
    memset(&b->xyChart, 0,
           reinterpret_cast<char *>(&b->angularAxis) - reinterpret_cast<char *>(&b->xyChart));
    if (b->extras && getDebugging()) LogMessage("clear garbage");
    delete b->extras;
    b->extras = nullptr;
    unlockRef(b->owner);
    b->owner = nullptr;
    unlockRef(b->resources);
    b->resources = nullptr;
    if (getDebugging()) LogMessage("deleted.");
}

void LayerDestructor(REALobject self) {
    auto *b = blockOf<LayerBlock>(self, ClassId::Layer);
    ClearAxis(b->axis, ClassId::Axis);
    unlockRef(b->axis);
    memset(&b->layer, 0, sizeof(LayerBlock) - offsetof(LayerBlock, layer));
    releaseRefs(b->owner, b->parent);
}

void PolarLayerDestructor(REALobject self) {
    auto *b = blockOf<PolarLayerBlock>(self, ClassId::PolarLayer);
    ClearAxis(b->axis, ClassId::Axis);
    unlockRef(b->axis);
    b->axis = nullptr;
    releaseRefs(b->owner, b->parent);
}

void DataSetDestructor(REALobject self) {
    auto *b = blockOf<DataSetBlock>(self, ClassId::DataSet);
    ClearAxis(b->axis, ClassId::Axis);
    unlockRef(b->axis);
    unlockRef(b->spare);
    b->axis = b->spare = nullptr;
    releaseRefs(b->owner, b->parent);
}

void AxisDestructor(REALobject self) {
    auto *b = blockOf<AxisBlock>(self, ClassId::Axis);
    b->chart = nullptr;
    b->axis = nullptr;
    b->colorAxis = nullptr;
    releaseRefs(b->owner, b->parent);
}

void DrawAreaDestructor(REALobject self) {
    auto *b = blockOf<DrawAreaBlock>(self, ClassId::DrawArea);
    if (b->ownsCanvas) delete b->handle;
    b->handle = nullptr;
    b->ownsCanvas = false;
    unlockRef(b->resources);
    b->resources = nullptr;
    releaseRefs(b->owner, b->parent);
    if (getDebugging()) LogMessage("destructor finished");
}

void ReleaseRefsDestructor(REALobject self, ClassId root) {
    auto *b = blockOf<HandleBlock<void>>(self, root);
    releaseRefs(b->owner, b->parent);
}
