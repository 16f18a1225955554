#pragma once

#include <string>
#include <vector>

#include "host/abc/Views.h"
#include "host/sdk/PluginTypes.h"

// Host values turned into engine values for the length of one call, and engine
// results turned into new host values that the caller owns.

// The number of items of a host array; 0 for nil.
RBInteger hostArrayCount(REALarray a);
// A count as a view length: views hold at most INT_MAX items.
int viewLength(size_t count);

// A host string as UTF-8 bytes; a nil string is empty.
class RBText {
public:
    explicit RBText(REALstring s);
    operator const char *() const { return text.c_str(); }
    const std::string &str() const { return text; }

private:
    std::string text;
};

// A copy of a host Double array; pixel measures are scaled.
class RBDoubleArray {
public:
    explicit RBDoubleArray(REALarray a, bool pixels = false);
    operator abc::DoubleArray() const { return {viewLength(values.size()), values.data()}; }
    const std::vector<double> &items() const { return values; }

private:
    std::vector<double> values;
};

// The general path beside RBDoubleArray's: one host call per item, each asking
// for the element function again.  Kept to check the fast path against.
std::vector<double> readDoublesByItem(REALarray a);

// A copy of a host Integer array; pixel measures are scaled.
class RBIntArray {
public:
    explicit RBIntArray(REALarray a, bool pixels = false);
    operator abc::IntArray() const { return {viewLength(values.size()), values.data()}; }

private:
    std::vector<int> values;
};

// A copy of a host Color array as engine colour words: the host packs a Color
// as the engine packs its colours.
class RBColorArray {
public:
    explicit RBColorArray(REALarray a);
    operator abc::IntArray() const { return {viewLength(values.size()), values.data()}; }

private:
    std::vector<int> values;
};

// A copy of a host String array as UTF-8 texts.
class RBStringArray {
public:
    explicit RBStringArray(REALarray a);
    operator abc::StringArray() const { return {viewLength(pointers.size()), pointers.data()}; }

private:
    std::vector<std::string> texts;
    std::vector<const char *> pointers;
};

// The bytes of a host MemoryBlock, borrowed for the call; empty for nil.
abc::MemBlock memoryBlockBytes(REALobject mb);
// The bytes of a MemoryBlock given to setResource: nil takes the entry away,
// an empty block stores no bytes.
abc::MemBlock resourceBytes(REALobject mb);

REALstring newHostString(const char *text);
REALarray newHostDoubleArray(abc::DoubleArray a);
REALarray newHostIntArray(abc::IntArray a);
REALobject newHostMemoryBlock(abc::MemBlock bytes);
