#pragma once

// Counted views passed by value: the count first, the pointer second.
// A view owns nothing; whoever keeps the numbers past a call copies them.

struct DoubleArray {
    int len;
    const double *data;
    DoubleArray() : len(0), data(nullptr) {}
    DoubleArray(const double *d, int n) : len(d ? n : 0), data(n > 0 ? d : nullptr) {}
};

struct IntArray {
    int len;
    const int *data;
    IntArray() : len(0), data(nullptr) {}
    IntArray(const int *d, int n) : len(d ? n : 0), data(n > 0 ? d : nullptr) {}
};

struct StringArray {
    int len;
    const char *const *data;
    StringArray() : len(0), data(nullptr) {}
    StringArray(const char *const *d, int n) : len(d ? n : 0), data(n > 0 ? d : nullptr) {}
};

struct MemBlock {
    int len;
    const char *data;
    MemBlock() : len(0), data(nullptr) {}
    MemBlock(const char *d, int n) : len(d ? n : 0), data(n > 0 ? d : nullptr) {}
};
