#pragma once

namespace qlx {

// One owning pointer kept by value in vectors that get stably sorted, so copying
// and assignment move the ownership (the source is left empty).
template <class T>
class AutoDeletePtr {
public:
    AutoDeletePtr(T *p = nullptr) : ptr(p) {}
    AutoDeletePtr(const AutoDeletePtr &other) : ptr(other.release()) {}
    AutoDeletePtr(AutoDeletePtr &&other) noexcept : ptr(other.release()) {}
    ~AutoDeletePtr() { delete ptr; }

    AutoDeletePtr &operator=(const AutoDeletePtr &other) {
        if (this != &other) reset(other.release());
        return *this;
    }
    AutoDeletePtr &operator=(AutoDeletePtr &&other) noexcept {
        if (this != &other) reset(other.release());
        return *this;
    }

    T *get() const { return ptr; }
    T *operator->() const { return ptr; }
    T &operator*() const { return *ptr; }
    explicit operator bool() const { return ptr != nullptr; }

    T *release() const {
        T *p = ptr;
        ptr = nullptr;
        return p;
    }
    void reset(T *p = nullptr) {
        if (p == ptr) return;
        delete ptr;
        ptr = p;
    }

private:
    mutable T *ptr;
};

}  // namespace qlx
