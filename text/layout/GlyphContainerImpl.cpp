#include "text/layout/GlyphContainerImpl.h"

#include "text/font/FontLock.h"

GlyphContainerImpl::GlyphContainerImpl(int f) : flags(f), refCount(1) {
    glyphs.reserve(30);
}

void GlyphContainerImpl::release() {
    if (--refCount > 0) return;
    {
        FontLock lock;
        glyphs.clear();
    }
    delete this;
}
