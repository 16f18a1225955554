#pragma once

#include "host/abc/AutoDeleteContainer.h"
#include "host/abc/VSObject.h"

namespace abc {

// Wrappers that an object hands out without giving them away die with it.
class GarbageContainer {
public:
    GarbageContainer() {}
    virtual ~GarbageContainer() {}
    GarbageContainer(const GarbageContainer &) = delete;
    GarbageContainer &operator=(const GarbageContainer &) = delete;

    // Takes obj and returns it; null is ignored.
    template <class T>
    T *addGarbage(T *obj) {
        garbage.add(obj);
        return obj;
    }
    int garbageCount() const { return garbage.size(); }

private:
    AutoDeleteContainer<VSObject> garbage;
};

}  // namespace abc
