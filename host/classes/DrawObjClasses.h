#pragma once

#include "host/glue/ClassRegistry.h"
#include "host/glue/Lifetime.h"

// The tables of a class derived from VSDrawObjXPG: the block, and so its
// lifetime, are the root's.
inline ClassTables derivedTables(TableSpan<MethodEntry> methods) {
    return {methods,      {nullptr, 0}, {nullptr, 0},
            {nullptr, 0}, {nullptr, 0}, reinterpret_cast<REALproc>(&PrivateConstructor),
            nullptr};
}
