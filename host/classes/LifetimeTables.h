#pragma once

#include "host/glue/ClassRegistry.h"
#include "host/glue/Lifetime.h"

// The tables of a class: its declarations, and the lifetime of its block.

// A class with a block of its own (Root) and no Constructor for the
// application: the block starts zeroed, and Finalizer lets it go.
template <ClassId Root, void (*Finalizer)(REALobject) = &ReleaseRefsOf<Root>>
ClassTables rootTables(TableSpan<MethodEntry> methods) {
    return {methods,
            {nullptr, 0},
            {nullptr, 0},
            {nullptr, 0},
            {nullptr, 0},
            reinterpret_cast<REALproc>(&InitBlockOf<Root>),
            reinterpret_cast<REALproc>(Finalizer)};
}

// A class derived from another of ours (VSTextBoxXPG from VSDrawObjXPG,
// VSXYChartXPG from VSBaseChartXPG, ...): the block, and so its lifetime, are
// the root's.
inline ClassTables derivedTables(TableSpan<MethodEntry> methods,
                                 TableSpan<PropertyEntry> properties = {nullptr, 0}) {
    return {methods,      properties,   {nullptr, 0},
            {nullptr, 0}, {nullptr, 0}, reinterpret_cast<REALproc>(&PrivateConstructor),
            nullptr};
}
