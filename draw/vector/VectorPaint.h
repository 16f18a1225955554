#pragma once

#include <vector>

#include "draw/pixel/ColorWords.h"
#include "draw/vector/Affine.h"
#include "draw/vector/ColorRamp.h"

// One way of painting an area, in the terms both vector outputs share.  The
// outputs write each paint once, under its id, and refer to it from then on.
struct VectorPaint {
    enum Kind {
        kSolid,   // one plain colour
        kLinear,  // a ramp along the line from (x1, y1) to (x2, y2)
        kRadial,  // a ramp from the centre (x1, y1) out to the radii x2 (along x) and y2
        kImage,   // a tile of pixels repeated from (x1, y1)
    };
    Kind kind = kSolid;
    int id = 0;
    int color = kTransparent;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    // kLinear and kRadial: the ramp repeats instead of holding its end colours.
    bool periodic = false;
    ColorRamp ramp;
    // kImage: the tile, row by row, in colour words.
    int tileWidth = 0, tileHeight = 0;
    std::vector<int> pixels;
    // From the paint's own space (where the numbers above live) to the canvas.
    Affine transform;

    // True when some colour of the paint isn't opaque.
    bool hasAlpha() const {
        switch (kind) {
            case kSolid:
                return ColorWord::alphaByte(color) != 0;
            case kLinear:
            case kRadial:
                return ramp.hasAlpha();
            case kImage:
                for (int c : pixels)
                    if (ColorWord::alphaByte(c) != 0) return true;
                return false;
        }
        return false;
    }
};
