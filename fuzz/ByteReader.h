#pragma once

#include <cstddef>
#include <cstdint>

// The fuzzer's bytes read in order; past the end every read gives 0.
class ByteReader {
public:
    ByteReader(const uint8_t *d, size_t n) : data(d), size(n) {}
    bool more() const { return pos < size; }
    uint8_t byte() { return pos < size ? data[pos++] : 0; }
    int word() {
        int v = 0;
        for (int i = 0; i < 4; ++i) v = v << 8 | byte();
        return v;
    }

private:
    const uint8_t *data;
    size_t size;
    size_t pos = 0;
};
