#pragma once

// Counted views of the host side, count first and pointer second; they own
// nothing.
namespace abc {

struct DoubleArray {
    int len;
    const double *data;
};

struct IntArray {
    int len;
    const int *data;
};

struct StringArray {
    int len;
    const char *const *data;
};

struct MemBlock {
    int len;
    const char *data;
};

}  // namespace abc
