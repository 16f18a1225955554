#pragma once

class Glyph;

// The glyphs of a text, shared by a run and the continuations it wraps into.
class GlyphContainer {
public:
    virtual void addRef() = 0;
    // The last release frees the glyphs under the font mutex.
    virtual void release() = 0;
    virtual int size() const = 0;
    virtual Glyph &at(int i) = 0;
    virtual const Glyph &at(int i) const = 0;
    virtual void append(const Glyph &g) = 0;
    virtual void insert(int i, const Glyph &g) = 0;
    virtual void erase(int from, int to) = 0;
    virtual int getFlags() const = 0;

protected:
    virtual ~GlyphContainer() {}
};
