#pragma once

#include "host/glue/Blocks.h"
#include "host/glue/ClassId.h"
#include "host/glue/ClassRegistry.h"

// Host locks that keep engine objects alive, and what an object's going ends.

void lockRef(REALobject obj);
void unlockRef(REALobject obj);
// Replaces a locked reference: the new value is locked, the old one let go.
void replaceRef(REALobject &slot, REALobject value);
// Unlocks owner and parent of a block and clears them.
void releaseRefs(REALobject &owner, REALobject &parent);

// The engine copies what setResource is given; the host value is kept beside
// it, under the same id, in a Dictionary made on first use, so that it lives as
// long as the object that was given it.
void keepHostValue(REALobject &dictionary, REALstring id, REALobject value);
// A host value that a part of a chart lent the engine (a data set's symbol
// canvas) kept in the chart's Resources under the part's own id.
void keepForChart(REALobject chart, const void *part, const char *what, REALobject value);

// Zeroes the block of a new object: the host may not have.
void InitBlock(REALobject self, ClassId root);
// Initializer of the classes that have no Constructor for the application:
// such objects come from factories; one made with New has null wrappers and
// raises the not-initialized exception on first use.
void PrivateConstructor(REALobject self);

// An axis object outliving its chart: its wrappers and its chart are zeroed
// and its references let go, so that its next use raises instead of touching freed
// memory.  root is the axis's class (Axis or AngularAxis).
void ClearAxis(REALobject axis, ClassId root);

// The finalizers of the blocks.
void BaseChartDestructor(REALobject self);
void LayerDestructor(REALobject self);
void PolarLayerDestructor(REALobject self);
void DataSetDestructor(REALobject self);
void AxisDestructor(REALobject self);
void DrawAreaDestructor(REALobject self);
// Blocks whose wrapper belongs to a chart: only the references go.
void ReleaseRefsDestructor(REALobject self, ClassId root);

// The same as host callbacks, one per class.
template <ClassId Root>
void InitBlockOf(REALobject self) {
    InitBlock(self, Root);
}
template <ClassId Root>
void ReleaseRefsOf(REALobject self) {
    ReleaseRefsDestructor(self, Root);
}

// Blocks whose wrapper belongs to the object: the wrapper goes first (it may use
// what owner keeps alive), then the references.
template <ClassId Root, class W>
void DeleteWrapperOf(REALobject self) {
    auto *b = blockOf<HandleBlock<W>>(self, Root);
    W *w = b->handle;
    b->handle = nullptr;
    delete w;
    releaseRefs(b->owner, b->parent);
}
