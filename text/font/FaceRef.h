#pragma once

#include "text/font/FontFace.h"
#include "text/font/FontLock.h"

// A counted hold on a face, so the driver's caches keep it while it is held.
// Counts change under the font mutex.
class FaceRef {
public:
    FaceRef() : face(nullptr) {}
    explicit FaceRef(FontFace *f) : face(nullptr) { reset(f); }
    FaceRef(const FaceRef &other) : face(nullptr) { reset(other.face); }
    FaceRef &operator=(const FaceRef &other) {
        reset(other.face);
        return *this;
    }
    ~FaceRef() { reset(nullptr); }

    void reset(FontFace *f) {
        if (f == face) return;
        FontLock lock;
        if (f) f->addRef();
        if (face) face->release();
        face = f;
    }
    FontFace *get() const { return face; }
    FontFace *operator->() const { return face; }

private:
    FontFace *face;
};
