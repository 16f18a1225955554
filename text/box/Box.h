#pragma once

#include "foundation/DrawObj.h"

// A rectangle with a background, a border, a raised edge and rounded corners:
// the base of every text box.  Setters only store; a box takes its settings
// into account when its chart lays it out, once.
class Box : public DrawObj {
public:
    virtual void setPos(int x, int y) = 0;
    virtual void setSize(int width, int height) = 0;
    // An edgeColor of -1 means no edge.
    virtual void setBackground(int color, int edgeColor, int raisedEffect) = 0;
    // Top-left, top-right, bottom-right, bottom-left; -1 for r2 to r4 takes r1.
    virtual void setRoundedCorners(int r1, int r2, int r3, int r4) = 0;
    // The image-map shape of the box ("shape=\"rect\" coords=\"...\""), offsets
    // added; valid until the next call.
    virtual const char *getImageCoor(int offsetX, int offsetY) = 0;
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    virtual int getLeftX() const = 0;
    virtual int getTopY() const = 0;
};
