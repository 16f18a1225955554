#pragma once

#include <vector>

#include "draw/pixel/ImageOps.h"

// A symbol's picture made ready to be put at many points.  A picture of one
// colour, whatever the cover of each pixel (a plain anti-aliased mark), is
// kept as its cover alone: the stamps of all points are gathered into one
// cover per pixel, overlaps combining as one blend after the other would, and
// the colour is then laid once per pixel.  Any other picture is not a stamp:
// its copies are blended one after the other.
class SymbolStamp {
public:
    explicit SymbolStamp(const PixelBuffer &image);

    // Whether the picture is of one colour, so that it can be stamped.
    bool isStamp() const { return stamp; }
    // The colour, opaque.
    unsigned getColor() const { return color; }

    // The gathered cover of a rectangle of the canvas (inclusive pixels): for
    // each pixel how much of what lies under it still shows, 255 all of it.
    class Cover {
    public:
        Cover(int left, int top, int right, int bottom);
        bool isEmpty() const { return width <= 0 || height <= 0; }
        int getLeft() const { return left; }
        int getTop() const { return top; }
        int getWidth() const { return width; }
        int getHeight() const { return height; }
        unsigned char showing(int x, int y) const {
            return shows[(size_t)(y - top) * width + (x - left)];
        }

    private:
        friend class SymbolStamp;
        int left, top, width, height;
        std::vector<unsigned char> shows;
    };

    // Stamps the picture with its top-left corner at each x, y pair of points.
    void stampAll(Cover &cover, const int *points, int pointCount) const;

private:
    struct Dot {
        int dx, dy;
        // 255 - the cover of the dot: how much of what lies under it shows.
        unsigned keep;
    };
    void stampClipped(Cover &cover, int x, int y) const;

    bool stamp;
    unsigned color;
    int width, height;
    std::vector<Dot> dots;
};
