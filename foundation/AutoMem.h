#pragma once

namespace qlx {

// Scratch array that only ever grows; old content is not carried over.
template <class T>
class AutoMem {
public:
    AutoMem() : ptr(nullptr), capacity(0) {}
    ~AutoMem() { delete[] ptr; }
    AutoMem(const AutoMem &) = delete;
    AutoMem &operator=(const AutoMem &) = delete;

    T *get(int n) {
        if (n <= capacity) return ptr;
        delete[] ptr;
        ptr = new T[n];
        capacity = n;
        return ptr;
    }
    int getCapacity() const { return capacity; }

private:
    T *ptr;
    int capacity;
};

}  // namespace qlx
