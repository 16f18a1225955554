#pragma once

#include "draw/canvas/DrawAreaImpl.h"

// A canvas for symbols and off-screen pieces of a parent canvas: its own list,
// but the parent's palette and dynamic colours, and a raster made after the
// parent's.  Holds no reference to the parent, which merges its sub-canvases
// and so keeps them alive: the parent must outlive every use of its sub-canvases.
class SubDrawArea : public DrawAreaImpl {
public:
    SubDrawArea(DrawAreaImpl *parent, int width, int height);

protected:
    ColorModel *colors() override;
    DrawBMP *getTemplateRaster() override;

private:
    DrawAreaImpl *parent;
};
