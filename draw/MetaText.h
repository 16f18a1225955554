#pragma once

// What the display list needs of a laid-out text: a reference count, so the
// list can keep the text alive, and the colours of its items, so the colours can
// be registered before the text is played.
class MetaText {
public:
    virtual void retainText() = 0;
    virtual void releaseText() = 0;
    virtual int getItemCount() const = 0;
    // The colour of item i, or defaultColor when the item takes the draw colour.
    virtual int getItemColor(int i, int defaultColor) const = 0;

protected:
    virtual ~MetaText() {}
};
