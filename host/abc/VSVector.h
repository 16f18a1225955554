#pragma once

namespace abc {

// A growable array of pointers; it owns the array, not the items.
template <class T>
class VSVector {
public:
    VSVector() : items(nullptr), count(0), capacity(0) {}
    virtual ~VSVector() { delete[] items; }
    VSVector(const VSVector &) = delete;
    VSVector &operator=(const VSVector &) = delete;

    // A null item is not added.
    void add(T *item) {
        if (!item) return;
        if (count == capacity) grow();
        items[count++] = item;
    }
    int size() const { return count; }
    int getCapacity() const { return capacity; }
    T *at(int i) const { return i >= 0 && i < count ? items[i] : nullptr; }

protected:
    T **items;
    int count;
    int capacity;

private:
    void grow() {
        int newCapacity = count < 10 ? 10 : 2 * count;
        T **grown = new T *[newCapacity];
        for (int i = 0; i < count; ++i) grown[i] = items[i];
        delete[] items;
        items = grown;
        capacity = newCapacity;
    }
};

}  // namespace abc
