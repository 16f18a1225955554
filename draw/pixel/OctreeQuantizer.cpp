#include "draw/pixel/OctreeQuantizer.h"

#include <cstring>

OctreeQuantizer::OctreeQuantizer(int colorCount)
    : tree(colorCount),
      finished(false),
      cacheColor(new int[kCacheSize]),
      cacheIndex(new unsigned char[kCacheSize]),
      palette(),
      count(0) {
    // -1 is never a looked-up colour: lookups are 24-bit.
    memset(cacheColor, 0xff, sizeof(int) * kCacheSize);
}

OctreeQuantizer::~OctreeQuantizer() {
    delete[] cacheColor;
    delete[] cacheIndex;
}

void OctreeQuantizer::addColor(int color) {
    if (!finished) tree.AddColor(color);
}

void OctreeQuantizer::finish() {
    if (finished) return;
    finished = true;
    count = tree.GetPalette(palette);
}

int OctreeQuantizer::getPalette(int *out) {
    finish();
    memcpy(out, palette, sizeof(int) * count);
    return count;
}

int OctreeQuantizer::mapColor(int color) {
    finish();
    color &= 0xffffff;
    unsigned slot = ((unsigned)color * 2654435761u) >> 16;
    if (cacheColor[slot] == color) return cacheIndex[slot];
    int index = tree.MapColor(color);
    cacheColor[slot] = color;
    cacheIndex[slot] = (unsigned char)index;
    return index;
}

int OctreeQuantizer::mapColor(int r, int g, int b) {
    return mapColor((r << 16) | (g << 8) | b);
}
