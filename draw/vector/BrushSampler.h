#pragma once

#include <vector>

#include "draw/pixel/ImageOps.h"

class DrawBMP;
class DrawBackEnd;

// The raster's brushes kept beside a vector output.  Every colour definition is
// played on a raster of no size as well, so that whatever the output can't
// write as a gradient or a pattern is painted as an image of what the raster
// would paint there.
class BrushSampler {
public:
    // A Gouraud triangle as recorded: x, y and intensity of each vertex.
    struct Triangle {
        double v[9];
        int color;
    };

    BrushSampler();
    ~BrushSampler();
    BrushSampler(const BrushSampler &) = delete;
    BrushSampler &operator=(const BrushSampler &) = delete;

    // Where the colour records go.
    DrawBackEnd *colorRecords();
    // The colours of `color` over width by height pixels from (left, top).
    PixelBuffer sample(int color, int left, int top, int width, int height);
    // Triangles drawn `scale` times finer over the pixels width by height from
    // (left, top); transparent where no triangle lies.
    PixelBuffer renderTriangles(const std::vector<Triangle> &triangles, int left, int top,
                                int width, int height, int scale);

private:
    DrawBMP *raster;
};
