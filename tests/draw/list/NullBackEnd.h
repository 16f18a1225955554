#pragma once

#include "draw/list/DrawBackEnd.h"

// A back end that takes every operation and draws nothing, for tests and
// fuzzing that look at the calls of a few.  Not for the engine: a real back end
// implements each operation on purpose.
class NullBackEnd : public DrawBackEnd {
public:
    void beginPlay(double) override {}
    void endPlay() override {}
    void reportError(const char *) override {}
    void endSymbol(int) override {}
    bool restoreSnapshot() override { return false; }
    void removeSymbol(int) override {}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-parameter"
#define VISTREL_NULL_OPERATION(name, code, format, scaled, reading, operation, params) \
    void operation params override {}
    VISTREL_META_RECORDS(VISTREL_NULL_OPERATION)
#undef VISTREL_NULL_OPERATION
#pragma GCC diagnostic pop
};
