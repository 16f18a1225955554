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

    // The wrapper of W kept for the handle (read by handleOf), or a new one
    // kept from now on: an engine object that is handed out again, such as a
    // label style, keeps one wrapper.  Null for a null handle.
    template <class W, class H>
    W *keepOnce(H *handle, H *(W::*handleOf)() const) {
        if (!handle) return nullptr;
        for (int i = 0; i < garbage.size(); ++i) {
            W *w = dynamic_cast<W *>(garbage.at(i));
            if (w && (w->*handleOf)() == handle) return w;
        }
        return addGarbage(new W(handle));
    }

private:
    AutoDeleteContainer<VSObject> garbage;
};

}  // namespace abc
