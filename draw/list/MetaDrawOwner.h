#pragma once

// What a display list needs of the canvas that owns it: colour translation,
// its size, and a reference count, so that a list another list merges keeps
// its canvas alive.
class MetaDrawOwner {
public:
    // The final word of a canvas colour: palette entries resolved, dynamic
    // colours as their handles.
    virtual int getARGBColor(int color) = 0;
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    virtual void retain() = 0;
    // Drops the reference retain added.
    virtual void destroy() = 0;

protected:
    virtual ~MetaDrawOwner() {}
};
