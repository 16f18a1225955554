#pragma once

#include "draw/pixel/Octree.h"
#include "draw/pixel/Quantizer.h"

// The octree behind the Quantizer interface, with a small cache of mapped colours:
// dithered pixels ask for many colours the tree doesn't hold.
class OctreeQuantizer : public Quantizer {
public:
    explicit OctreeQuantizer(int colorCount);
    ~OctreeQuantizer() override;

    void addColor(int color);
    int getPalette(int *palette) override;
    int mapColor(int color) override;
    int mapColor(int r, int g, int b) override;

private:
    void finish();

    static const int kCacheSize = 1 << 16;
    Octree tree;
    bool finished;
    int *cacheColor;
    unsigned char *cacheIndex;
    int palette[256];
    int count;
};
