#pragma once

#include <cstddef>

#include "host/glue/ClassId.h"
#include "host/sdk/PluginTypes.h"

// One declaration table per class: what the host is told, the glue behind each
// declaration, and the flags.  Registration, the counts and the listing of the
// declarations all read these tables.

struct MethodEntry {
    const char *declaration;
    REALproc function;
    // The C shape of function: the result's code, ':', one code per parameter
    // (see GlueSignature.h).
    const char *signature;
    uint32_t flags;
    // Hosts older than this do not get the entry; such entries close a table.
    double minHostVersion;
};

struct PropertyEntry {
    const char *name;
    const char *type;
    REALproc getter;
    REALproc setter;
    const char *getterSignature;
    uint32_t flags;
};

struct ConstantEntry {
    const char *declaration;
};

template <class T>
struct TableSpan {
    const T *items;
    int count;
};

template <class T, size_t N>
TableSpan<T> tableOf(const T (&items)[N]) {
    return {items, (int)N};
}

struct ClassTables {
    TableSpan<MethodEntry> methods;
    TableSpan<PropertyEntry> properties;
    TableSpan<MethodEntry> sharedMethods;
    TableSpan<PropertyEntry> sharedProperties;
    TableSpan<ConstantEntry> constants;
    // Runs on allocation before any Constructor, and when the object goes;
    // null takes the default of the class's block.
    REALproc initializer;
    REALproc finalizer;
};

// The definitions handed to the host, one per class: forSystemUse is the
// offset of the class's data in an object.
REALclassDefinition &classDefinition(ClassId id);

template <class Block>
Block *blockOf(REALobject self, ClassId root) {
    return reinterpret_cast<Block *>(reinterpret_cast<char *>(self) +
                                     classDefinition(root).forSystemUse);
}

// The name a registered glue function is logged under: the declaration's name,
// with a "C" for the overloads that take the host's Color, or the property's
// name for a getter; "?" if none.
const char *glueName(REALproc function);
