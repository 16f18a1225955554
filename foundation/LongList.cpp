#include "foundation/LongList.h"

#include <cstring>

LongList::LongList() : data(new long long[100]), capacity(100), first(50), last(50) {}

LongList::~LongList() {
    delete[] data;
}

void LongList::push_back(long long v) {
    if (last >= capacity) resize();
    data[last++] = v;
}

void LongList::push_front(long long v) {
    if (first <= 0) resize();
    data[--first] = v;
}

// Doubles the room and re-centres the live run, so both ends get free room.
void LongList::resize() {
    int newCapacity = capacity * 2;
    int newFirst = (newCapacity + first - last) / 2;
    long long *grown = new long long[newCapacity];
    memcpy(grown + newFirst, data + first, sizeof(long long) * (size_t)(last - first));
    delete[] data;
    data = grown;
    last = newFirst + (last - first);
    first = newFirst;
    capacity = newCapacity;
}
