#pragma once

// The plot rectangle an axis stands on, and the 3D shift of its back wall:
// right by depthX and up by depthY.
struct PlotFrame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int depthX = 0;
    int depthY = 0;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
};
