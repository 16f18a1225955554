#pragma once

// Double-ended list of 64-bit integers with free room kept at both ends.
class LongList {
public:
    LongList();
    ~LongList();
    LongList(const LongList &) = delete;
    LongList &operator=(const LongList &) = delete;

    void push_back(long long v);
    void push_front(long long v);
    int size() const { return last - first; }
    long long operator[](int i) const { return data[first + i]; }
    long long front() const { return data[first]; }
    long long back() const { return data[last - 1]; }
    int getCapacity() const { return capacity; }
    int getFirst() const { return first; }
    int getLast() const { return last; }

private:
    void resize();

    long long *data;
    int capacity;
    int first;
    int last;
};
