#pragma once

#include "host/abc/VSVector.h"

namespace abc {

// Owns its items: deletes them in index order when it goes.
template <class T>
class AutoDeleteContainer : public VSVector<T> {
public:
    ~AutoDeleteContainer() override {
        for (int i = 0; i < this->count; ++i) delete this->items[i];
    }
};

}  // namespace abc
