#pragma once

#include "api/chart/CVSMLTable.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/chart/DrawObj.h"

namespace abc {

// A grid of text boxes; the wrappers of its cells die with it.
class VSMLTable : public DrawObj, public GarbageContainer {
public:
    explicit VSMLTable(CVSMLTable *handle) : DrawObj(CVSMLTable_toDrawObj(handle)), table(handle) {}

    CVSMLTable *getHandle() const { return table; }

private:
    CVSMLTable *table;
};

}  // namespace abc
