#pragma once

#include <string>

#include "draw/canvas/DrawArea.h"

// A canvas that is released at the end of the test.
class CanvasHolder {
public:
    CanvasHolder() : canvas(DrawArea::create()) {}
    ~CanvasHolder() { canvas->destroy(); }
    CanvasHolder(const CanvasHolder &) = delete;
    CanvasHolder &operator=(const CanvasHolder &) = delete;
    DrawArea *operator->() const { return canvas; }
    DrawArea *get() const { return canvas; }

private:
    DrawArea *canvas;
};

inline std::string listingOf(DrawArea *d) {
    MemBlock block = d->outAGF2();
    return std::string(block.data ? block.data : "", block.len);
}
