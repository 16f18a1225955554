#pragma once

#include <vector>

#include "text/layout/Glyph.h"
#include "text/layout/GlyphContainer.h"

class GlyphContainerImpl : public GlyphContainer {
public:
    explicit GlyphContainerImpl(int flags);

    void addRef() override { ++refCount; }
    void release() override;
    int size() const override { return (int)glyphs.size(); }
    Glyph &at(int i) override { return glyphs[i]; }
    const Glyph &at(int i) const override { return glyphs[i]; }
    void append(const Glyph &g) override { glyphs.push_back(g); }
    void insert(int i, const Glyph &g) override { glyphs.insert(glyphs.begin() + i, g); }
    void erase(int from, int to) override {
        glyphs.erase(glyphs.begin() + from, glyphs.begin() + to);
    }
    int getFlags() const override { return flags; }

private:
    ~GlyphContainerImpl() override {}

    std::vector<Glyph> glyphs;
    int flags;
    int refCount;
};
