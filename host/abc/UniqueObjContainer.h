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
        if (!handle) return nullptr;
        for (int i = 0; i < this->count; ++i)
            if (this->items[i]->getHandle() == handle) return this->items[i];
        T *wrapper = new T(handle);
        this->add(wrapper);
        return wrapper;
    }
};

}  // namespace abc
