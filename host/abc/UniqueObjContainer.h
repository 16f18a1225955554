#pragma once

#include "host/abc/AutoDeleteContainer.h"

namespace abc {

// One wrapper per engine handle: asking twice for a handle gives the same
// wrapper, so its identity is stable across calls.
template <class T>
class UniqueObjContainer : public AutoDeleteContainer<T> {
public:
    template <class I>
    T *get(I *handle) {
        return get(handle, [](I *h) { return new T(h); });
    }
    // The same, a new wrapper made by make(handle): for wrappers that need
    // more than the handle, or of a kind derived from T.
    template <class I, class Make>
    T *get(I *handle, Make &&make) {
        if (!handle) return nullptr;
        if (T *known = find(handle)) return known;
        T *wrapper = make(handle);
        this->add(wrapper);
        return wrapper;
    }
    template <class I>
    T *find(I *handle) const {
        for (int i = 0; i < this->count; ++i)
            if (this->items[i]->getHandle() == handle) return this->items[i];
        return nullptr;
    }
};

}  // namespace abc
