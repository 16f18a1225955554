#pragma once

#include <map>

// A map whose values are owned: destruction walks the keys in order and asks each
// value to release itself (its own release operation, not a plain delete).
template <class T, class Key = int>
class AutoFreeContainer : public std::map<Key, T *> {
public:
    AutoFreeContainer() = default;
    AutoFreeContainer(const AutoFreeContainer &) = delete;
    AutoFreeContainer &operator=(const AutoFreeContainer &) = delete;
    ~AutoFreeContainer() {
        for (auto &item : *this)
            if (item.second) item.second->release();
    }
};
