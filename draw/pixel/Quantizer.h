#pragma once

// Maps true colours to the entries of a reduced palette.
class Quantizer {
public:
    virtual ~Quantizer() {}
    // Fills palette (room for 256 words) with opaque colours; returns the count.
    virtual int getPalette(int *palette) = 0;
    // The palette index of the entry that stands for a colour.
    virtual int mapColor(int color) = 0;
    virtual int mapColor(int r, int g, int b) = 0;
};
