#pragma once

#include <cstddef>

#include "host/glue/ClassRegistry.h"

// The host classes in registration order: names, supers, the size of the data
// block, and the counts the classes are to reach when complete.
struct ClassSpec {
    const char *name;
    // Null for none.
    const char *superName;
    // 0 for a class that uses the block of its root.
    size_t dataSize;
    int targetMethods;
    int targetProperties;
    // What is registered so far: declaration tables and lifetime callbacks.
    const ClassTables *tables;
};

const ClassSpec &classSpec(ClassId id);
inline const ClassSpec &classSpec(int index) {
    return classSpec(static_cast<ClassId>(index));
}
// The class whose block an object of the class uses: the first class up the
// super chain with a block of its own.
ClassId rootOf(ClassId id);
// The class of that name, or ClassId::Count.
ClassId classNamed(const char *name);
